"""The messages of a run, whole and by their levels. What a check or a flash finds is told in their own tests."""

import pytest

from conftest import BOTH, FLASH_BOTH, FM, LIST, expect

STARS, DASHES = 8 * "*********+", 8 * "---------+"


def test_what_is_told_of_a_passing_check(blade):
    """Without what the tests of the conditions, the inventory and the order of the ports show."""
    ports = [f"Vendor: Emulex Corporation, Model: CNA-10102-FM SerialNumber: VM10250117 PortType: FCoE PortNumber: {i} "
             f"PCI function: {i + 2}" for i in (0, 1)]
    storage = """\
\t\tAttached storage sub-system:
\t\t\t\tDGC
\t\t\t\tMarlovan_CX1
\t\t\t\t0430
\t\t\tCheck subsystem: 'Marlovan_CX' Attached subsystem: 'Marlovan_CX1'\t\t\t--> OK
\tAlready identified reference subsystems: Marlovan_CX  Subsystem group: Marlovan_CX,CX4-
\tReference subsystem Marlovan_CX found in Group: Marlovan_CX,CX4-
\t\t\tAll reference subsystems appear in the same group: Marlovan_CX,CX4-"""
    expect(blade.simulated(f"-v 6 {FM}"), 0, f"""\

List of input pci-ids: "19A2:0714:1C3E:11C1"

\tVendor-Id 0x19a2
\tDevice-Id 0x714
\tSubVendor-Id 0x1c3e
\tSubDevice-Id 0x11c1
env: Environment variable TMPDIR is not set.
HBA conditions file: blade/FC_HBA_Conditions.txt
...
{STARS}
/usr/sbin/ocmanager/hbacmd listhbas > blade//local_hba_list.out\x20

Success, "hbacmd listhbas" command returned code 0.
...
\t\t/usr/sbin/ocmanager/hbacmd hbaattributes 10:00:00:00:c9:b2:00:11 > blade//VM20713302_2_hba_attributes.out
...
\t\t\t/usr/sbin/ocmanager/hbacmd targetmapping 10:00:00:00:c9:b2:00:11 > blade//VM20713302_2_target_mapping.out
...
9\tCNA-10102-I iSCSI VM30550041 1 1

{80 * "*"}\x20

List of Fibre-Channel-Controller and attached Online-Storage-Systems:

  Emulex Corporation\tCNA-10102-FX\tFCoE\tVM20713302  port 0  function 2

\tNRB
\tMarlovan_SX1
\t7.12

...
\t0430


{80 * "*"}

InvalidCtrlSubsystemCombinationFound: 0\x20
MatchingCtrlModelInstalled: 0\x20
CtrlVendorSpecificSubsystemEquality: 1\x20
CtrlSpecificSubsystemEquality: 1\x20


{STARS}
{STARS}
\tFC_HBA_Conditions.txt:
\tFound a matching controller-device in line 1:
\t\tvendor-id: 19A2, device-id: 0714
\t\tsubvendor-id: 1C3E, subdevice-id: 11C1
\t\tCorrespondig data: vendor: Emulex; model: CNA-10102-F


\t\t{DASHES}

\t\tPerform subsystem check for:
\t\t{ports[0]}

{storage}

\t\tTake this sub-system as reference-sub-system for this controller-device.
\t\t\t{ports[0]}

\t\tTake this sub-system as reference-sub-system for vendor Emulex Corporation.
\t\t\t{ports[0]}

\t\t{DASHES}

\t\tPerform subsystem check for:
\t\t{ports[1]}

{storage}

\t\tThis sub-system is consistent with controller specific reference-sub-system (only vendor-id was checked).
\t\t\t{ports[1]}

\t\tAll sub-systems are consistent with vendor specific reference-sub-system (only vendor-id was checked) 10:*.

{DASHES}
...
\t\tSubsystem check already done => continue.
{DASHES}

{STARS}
{STARS}

OverallSubSystemCheck returned: 1\x20
InvalidCtrlSubsystemCombinationFound: 0\x20
MatchingCtrlModelInstalled: 1\x20
CtrlVendorSpecificSubsystemEquality: 1\x20
CtrlSpecificSubsystemEquality: 1\x20""")


def list_of(*ports):
    """The list of ports, of each of which a line gives the model, type, serial number, function and number."""
    labels = ["Model", "Port Type", "Serial No.", "PCI Function", "Port Number"]
    return "".join("Port WWN: w\n" + "".join(f"{label}: {value}\n" for label, value in zip(labels, port.split()))
                   for port in ports)


def test_order_of_the_ports(blade):
    blade.write(LIST, list_of("X NIC A 1 1", "Y iSCSI B 5 0", "X FCoE A 3 1", "Z FC C 0 0", "X FCoE A 2 0"))
    expect(blade.simulated("-v 6"), 22, """\
...


Original input list.

0\tX NIC A 1 1
1\tY iSCSI B 5 0
2\tX FCoE A 3 1
3\tZ FC C 0 0
4\tX FCoE A 2 0


List of CNA controller.

0\tX NIC A 1 1
1\tY iSCSI B 5 0
2\tX FCoE A 3 1
3\tX FCoE A 2 0

FC and iSCSI ports detected.


Total Result after PCI function sort.

0\tX NIC A 1 1
1\tX FCoE A 2 0
2\tX FCoE A 3 1
3\tY iSCSI B 5 0""")


@pytest.mark.parametrize("kind, told", [
    pytest.param("iSCSI", "\nOnly iSCSI ports detected.\n", id="iSCSI"),
    pytest.param("FCoE", "\nOnly FC ports detected.\n", id="FCoE"),
    pytest.param("NIC", "", id="neither"),
])
def test_kind_of_the_ports(blade, kind, told):
    blade.write(LIST, list_of(f"X {kind} A 2 0"))
    expect(blade.simulated("-v 6"), 22, f"...\n0\tX {kind} A 2 0\n{told}\n\nTotal Result*\n...")


@pytest.mark.parametrize("change, words, on_screen, in_log", [
    pytest.param([], f"--ctrl-wide-identical --ctrl-vendor-wide-identical {BOTH}", [0, 64, 82, 95, 219, 224, 824], 795,
                 id="check"),
    pytest.param([], FLASH_BOTH, [0, 54, 54, 60, 112, 117, 693], 664, id="flash"),
    pytest.param([("VM1.*", "n/a")], BOTH, [0, 38, 46, 59, 139, 144, 624], 595, id="without-a-serial-number"),
])
def test_number_of_lines_at_each_level(blade, change, words, on_screen, in_log):
    """Notices a message that has moved to another level, or behind another gate."""
    blade.edit(LIST, *change)
    assert [blade.simulated(f"-v {level} {words}").output.count("\n") for level in range(7)] == on_screen
    blade.simulated(f"-d 6 {words}")
    assert (blade.files / "Merlie_DLL.log").read_text().count("\n") == in_log
