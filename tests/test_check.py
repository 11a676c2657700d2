"""The checks of the attached storage: their statuses, the walk over an adapter's ports, the judging of one port."""

import re

import pytest

from conftest import BOTH, CONDITIONS, DGC_FOR_NRB, FCOE_IMAGES, FM, FX, LIST, MAPPING, NRB_FOR_DGC, Result, expect

BOTH_CHECKS = "--ctrl-wide-identical --ctrl-vendor-wide-identical"
ALL_CHECKS = ["--check-for-valid-subsystem", "--ctrl-wide-identical", "--ctrl-vendor-wide-identical"]


def fm_ports_differ(blade):
    """FM's second port sees what its record allows, but of another vendor than the first port's."""
    blade.edit("VM10250117_3_target_mapping.out", *NRB_FOR_DGC)


def fm_sees(blade, storage):
    blade.write(MAPPING, "Target Mapping\n\n\n\n" + storage)


def only(expression, result):
    """The result with only those lines of its output in which the expression is found."""
    lines = result.output.splitlines(keepends=True)
    return Result(result.status, "".join(line for line in lines if re.search(expression, line)))


# What is found and what is asked for.


@pytest.mark.parametrize("words, status", [
    pytest.param(f"--ctrl-wide-identical {BOTH}", 0, id="each-adapter-for-itself"),
    pytest.param(FX, 4, id="not-allowed"),
    pytest.param(f"{BOTH_CHECKS} {FX}", 4, id="not-allowed-comes-before-what-differs"),
    # The first record of the device is FM's, which allows NRB as well.
    pytest.param("-pci-id 19A2:0714:0:11C2", 0, id="without-subvendor-two-ids-count"),
    pytest.param("-pci-id 19A2:0714:1:11C1", 12, id="with-subvendor-four-ids-count"),
    pytest.param("-pci-id 19A2:0714:1C3E:0", 12, id="with-subvendor-a-subdevice-of-0-counts"),
    pytest.param("-pci-id 19A2:0712:1C3E:11D0", 0, id="iSCSI-has-no-storage"),
])
def test_status(blade, words, status):
    expect(blade.simulated(f"--silent {words}"), status)


def test_differing_ports_are_enough_for_valid_storage(blade):
    fm_ports_differ(blade)
    expect(blade.simulated(f"--silent {FM}"), 0)


# Without the default check, which would pass.


def test_differing_ports_are_told(blade):
    fm_ports_differ(blade)
    expect(blade.simulated(f"-v 6 --ctrl-wide-identical {FM}"), 1, """\
...
\t\tThis sub-system differs from controller specific reference-sub-system.
\t\t\tVendor: *PCI function: 3

vendor specific reference-sub-system 0 >DGC< >DGC<.
\t\tAt least one*
...
OverallSubSystemCheck returned: 0\x20
*: 0\x20
*: 1\x20
CtrlVendorSpecificSubsystemEquality: 0\x20
CtrlSpecificSubsystemEquality: 0 """)


def test_differing_adapters_are_told(blade):
    expect(blade.simulated(f"-v 6 --ctrl-vendor-wide-identical {BOTH}"), 2, """\
...
vendor specific reference-sub-system 1 >NRB< >DGC<.
\t\tAt least one sub-system differs from vendor specific reference-sub-system (different vendors).


...
vendor specific reference-sub-system 0 >NRB< >DGC<.
...
CtrlVendorSpecificSubsystemEquality: 0\x20
CtrlSpecificSubsystemEquality: 1 """)


def test_adapters_are_compared_with_the_first_one(blade):
    blade.edit("VM20713302_*_target_mapping.out", *DGC_FOR_NRB)
    consistent = "\t\tAll sub-systems are consistent * 10:00:00:00:c9:b2:00:11."
    expect(only("vendor specific", blade.simulated(f"-v 2 {BOTH}")), 0, "\n".join([consistent] * 3))


# The first check that is asked for, in this order, decides about the flash; the status is that of the last one.

FLASH, NO_FLASH = "...\n\tNow start flashing the firmware.\n...", "...\nOverallSubSystemCheck returned: 0 "


@pytest.mark.parametrize("words, status, text", [
    pytest.param(f"--check-for-valid-subsystem --ctrl-wide-identical {FM}", 1, FLASH, id="ctrl-wide-fails-after-valid"),
    pytest.param(f"{BOTH_CHECKS} {FM}", 2, NO_FLASH, id="ctrl-wide-fails"),
    pytest.param(f"--ctrl-vendor-wide-identical {BOTH}", 2, NO_FLASH, id="vendor-wide-fails"),
    *(pytest.param(f"{check} {FX}", 4, NO_FLASH, id=f"storage-not-allowed{check}") for check in ALL_CHECKS),
])
def test_flash_beside_checks(blade, words, status, text):
    fm_ports_differ(blade)
    blade.edit(CONDITIONS, *FCOE_IMAGES)
    expect(blade.simulated(f"-v 6 --flash {words}"), status, text)


def test_flash_of_adapters_that_differ_but_pass_the_first_check(blade):
    blade.edit(CONDITIONS, *FCOE_IMAGES)
    expect(blade.simulated(f"--flash {BOTH_CHECKS} {BOTH}"), 2, FLASH)


# Ports without a record, a flash port, a serial number.


def test_port_without_a_record_counts_as_found(blade):
    blade.write(CONDITIONS, "# none")
    expect(blade.simulated(f"--silent {FM}"), 0)


def test_no_ports_in_qmr_mode(blade):
    blade.write(LIST, "ERROR: no adapter\n")
    expect(blade.simulated("--qmr-mode"), 0, "\nNo Blade*\n")


def test_port_without_a_serial_number_is_passed_over(blade):
    blade.edit(LIST, ("VM2.*", "n/ab"))
    expect(blade.simulated(f"-v 6 {BOTH}"), 0, """\
...
\t\tNo serial number => SKIP!
...
\t\t\tNo serial number => SKIP!
...
\tVendor: Emulex Corporation Model: CNA-10102-FX; SN: n/ab port: 0 function: 0
\tNo serial number => SKIP
---------+*
\tVendor*
...""")


def test_serial_number_is_missing_only_with_the_slash(blade):
    blade.edit(LIST, ("^(Serial.*: )VM.*", r"\1n.a"), ("^(Port Number *): .*", r"\1: 3"))
    expect(blade.simulated("-v 1"), 22, "Error: Could not open file blade//n.a_2_hba_attributes.out")


# The walk over an adapter's ports, in the order of their functions.

WALK = r"^\t\tVendor|^\t*(Take this|This|All sub|Subsystem check)"
FUNCTION_2, FUNCTION_3 = "\t\tVendor: *PCI function: 2", "\t\tVendor: *PCI function: 3"


def test_second_selected_port_walks_again_over_what_is_done(blade):
    expect(only(WALK, blade.simulated(f"-v 4 {FM}")), 0, f"""\
{FUNCTION_2}
\t\tTake this sub-system as reference-sub-system for this controller-device.
\t\tTake this sub-system as reference-sub-system for vendor Emulex Corporation.
{FUNCTION_3}
\t\tThis sub-system is consistent with controller specific reference-sub-system (only vendor-id was checked).
\t\tAll sub-systems are consistent with vendor specific reference-sub-system (only vendor-id was checked) 10:*.
{FUNCTION_2}
\t\tSubsystem check already done => continue.
{FUNCTION_3}
\t\tSubsystem check already done => continue.""")


def test_storage_that_is_not_allowed_ends_the_walk(blade):
    fm_sees(blade, "Vendor ID: dgc\n")
    expect(only(WALK, blade.simulated(f"-v 2 {FM}")), 4, f"""\
{FUNCTION_2}
\t\tTake this * controller-device.
{FUNCTION_3}
\t\tTake this * controller-device.
\t\tTake this * vendor *""")


def test_storage_that_is_not_allowed_is_not_compared(blade):
    blade.edit("VM10250117_3_target_mapping.out", (": DGC", ": HP"))
    expect(only("differs from", blade.simulated(f"-v 2 {FM}")), 4)


@pytest.mark.parametrize("file, change, told", [
    pytest.param(MAPPING, ("(?s).+", ""), f"{FUNCTION_2}\n{FUNCTION_3}",
                 id="without-storage"),
    pytest.param(LIST, ("(?s)(a1:00:11.*?Mfg *: )E", r"\1e"), FUNCTION_3, id="of-another-maker"),
    pytest.param(LIST, ("(?s)(a1:00:11.*?Model *: )C", r"\1c"), FUNCTION_3, id="of-another-model"),
])
def test_first_port_does_not_end_the_walk(blade, file, change, told):
    blade.edit(file, change)
    # Only the first port is selected: no second walk finds the other one.
    blade.edit("VM10250117_3_hba_attributes.out", ("11C1", "11C9"))
    expect(only(WALK, blade.simulated(f"-v 1 {FM}")), 0, told)


def test_port_without_storage_is_told(blade):
    blade.write(MAPPING)
    expect(blade.simulated(f"-v 4 {FM}"), 0, f"...\n{FUNCTION_2}\n\n\n\t\t---------+*\n...\n"
           f"{FUNCTION_2}\n\t\tSubsystem check already done => continue.\n...")


def test_ports_come_into_their_order_before_they_are_chained(blade):
    blade.edit(LIST, ("(?<=^PCI Function   : )[23]", lambda function: "3" if function[0] == "2" else "2"))
    expect(only(WALK, blade.simulated(f"-v 1 {FM}")), 0, f"{FUNCTION_2}\n{FUNCTION_3}")


# What is told of the storage of a port.


def test_listed_storage_without_a_vendor(blade):
    fm_sees(blade, "Type: x")
    expect(blade.simulated(f"-v 4 {FM}"), 4, "...\n  *VM10250117  port 0  function 2\n\n  Emulex*  function 3\n...")


def test_storage_that_is_not_allowed_is_told_at_the_highest_level(blade):
    expect(only("Invaild", blade.simulated(f"-v 5 {FX}")), 4)
    expect(blade.simulated(f"-v 6 {FX}"), 4, "...\n\t\tInvaild attached storage sub-system found.\n\t\t\t\tNRB\n...")


# The storage of one port, NRB Marlovan_SX1, against the subsystems that its record allows: vendor, models, extra.


@pytest.mark.parametrize("allowed, status, told", [
    pytest.param("NRB| |x", 0, "\t\tAttached storage sub-system:", id="blank-models-allow-all"),
    pytest.param("NR| |x|NRBX| |x|nrb| |x| |Marlovan|x", 4, "", id="vendor-counts-whole"),
    pytest.param("NRB|Marlovan_SX|x", 0, "...\n\t\tCheck*'Marlovan_SX' *--> OK\n...", id="model-is-a-leading-part"),
    # Those before the last are told with one more tab.
    pytest.param("NRB|A,Marlovan_SX1|x", 0, "...\n\t\t\tCheck*'A' *!\n\t\tCheck*'Marlovan_SX1' *--> OK\n...",
                 id="last-model-will-do"),
    pytest.param("NRB|Marlovan_SX1,A|x", 0, "...\n\t\t\tCheck*'Marlovan_SX1' *--> OK\n\tAlready*\n...",
                 id="first-model-will-do"),
    pytest.param("NRB|A,,B|x", 0, "...\n\t\t\tCheck*'A'*!\n\t\t\tCheck*: ''*--> OK",
                 id="empty-model-before-a-comma-allows-all"),
    pytest.param("NRB|A,|x", 4, "...\n\t\t\tCheck*'A'*\t--> Invalid subsystem!\n\t\tCheck*''*\t--> Invalid subsystem!",
                 id="empty-last-model-allows-none"),
    pytest.param("NRB|X|x|NRB|Marlovan_S|x|NRB|Marlovan|x", 0,
                 "...\n*'X'*!\n\t\tAtt*\n*'Marlovan_S'*--> OK\n...\n*group: Marlovan_S",
                 id="subsystems-are-tried-until-one-allows"),
    pytest.param("NRB| |x|NRB|Y,Z|x|NRB|Marlovan|x", 0, "\t\tAtt*\n\t\tAtt*\n*'Y'*!\n\t\tAtt*",
                 id="after-blank-models-all-but-the-last-are-looked-at"),
    pytest.param("NRB|,|x|NRB|A|x", 0, "\t\tAtt*\n\t\t\tCheck*: ''*--> OK\n\t\tAtt*",
                 id="after-an-empty-model-likewise"),
])
def test_allowed_subsystems(blade, allowed, status, told):
    blade.write(CONDITIONS, f"Emulex|CNA-10102-FX|19A2|0714|1C3E|11C2|x|x|x|x|x|x|{allowed}\n")
    blade.write("VM20713302_3_target_mapping.out")
    expect(only("Attached|eference subs", blade.simulated(FX)), status, told)


@pytest.mark.parametrize("model, status", [("X,Marlovan_SX1_of_the_very_first_ed", 0),
                                           ("Marlovan_SX1_of_the_very_first_issue", 4)])
def test_models_and_products_are_compared_whole_however_long(blade, model, status):
    blade.edit("VM20713302_*_target_mapping.out", ("Marlovan_SX1", "Marlovan_SX1_of_the_very_first_edition"))
    blade.edit(CONDITIONS, (r"DGC \| Marlovan_CX \|", f"NRB|{model}|"))
    expect(blade.simulated(f"--silent {FX}"), status)
