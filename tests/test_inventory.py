"""The inventory: the calls of the vendor's CLI, its three reports, what happens when one of them can't be had."""

import pytest

from conftest import BOTH, FM, LIST, MAPPING, expect

PORTS = ["10:00:00:00:c9:b2:00:11", "10:00:00:00:c9:b2:00:12", "10:00:00:00:c9:a1:00:11", "10:00:00:00:c9:a1:00:12",
         "10:00:00:00:c9:d4:00:01", "00:00:c9:c3:00:02", "00:00:c9:c3:00:01", "00:00:c9:a1:00:01", "00:00:c9:a1:00:02",
         "00:00:c9:b2:00:01", "00:00:c9:b2:00:02"]
# Only Fibre Channel and FCoE ports see storage.
CALLS = ["listhbas", *(f"hbaattributes [{port}]" for port in PORTS), *(f"targetmapping [{port}]" for port in PORTS[:5])]
ATTRIBUTES = "VM10250117_2_hba_attributes.out"  # of FM's first FCoE port
NO_BLADE = "\nNo Blade Engine was found in this system.\n"


# The calls, and the commands that fail.


def test_calls_in_the_order_of_the_list(cli):
    files = {path.name for path in [*cli.files.iterdir(), *cli.reports.iterdir()]}
    real = cli.real(f"-v 6 {BOTH}")
    assert cli.calls == CALLS
    assert {path.name for path in cli.files.iterdir()} == files
    # The same is said of the reports that lie there now.
    simulated = cli.simulated(f"-v 6 {BOTH}")
    assert simulated.output.replace("/usr/sbin/ocmanager/hbacmd", "./hbacmd").splitlines() == real.output.splitlines()


def test_missing_cli(cli):
    (cli.directory / "hbacmd").unlink()
    expect(cli.real(""), 13, f"\t\tCommand ./hbacmd is not available!\n\n{NO_BLADE}")


def test_list_whose_command_fails_counts_for_nothing(cli):
    cli.on("listhbas1", "cat cli/reports/local_hba_list.out; echo 'The list is made.' >&2; exit 3")
    expect(cli.real("-v 6"), 13, "...\n./hbacmd listhbas > blade//local_hba_list.out \nThe list is made.\n\n"
           f'Fail, "hbacmd listhbas" command returned code 768.\n{NO_BLADE}')
    assert cli.calls == CALLS[:1]


def test_list_whose_command_is_not_run(cli):
    (cli.files / LIST).mkdir()
    expect(cli.real("-v 4"), 13, f'...\n\nFail, "hbacmd listhbas" command returned code -1.\n{NO_BLADE}')


@pytest.mark.parametrize("call, file, text", [
    pytest.param("hbaattributes3", ATTRIBUTES,
                 '\n\t\tFail, "hbacmd hbaattributes {}" command returned code 768.\n\n\t\tHBA Attributes for {}\n',
                 id="attributes"),
    pytest.param("targetmapping3", MAPPING,
                 '\n\n\t\t\tFail, "hbacmd targetmapping {}" command returned code 768.\n\n\t\t\tTarget Mapping for {}',
                 id="target-mapping"),
])
def test_report_whose_command_fails_is_read(cli, call, file, text):
    cli.on(call, f"cat cli/reports/{file}; exit 3")
    expect(cli.real(f"-v 6 {BOTH}"), 0, f"...\n{text.format(PORTS[2], PORTS[2])}\n...")


@pytest.mark.parametrize("call, file, calls, status", [
    pytest.param("listhbas1", LIST, 1, 13, id="list"),
    pytest.param("hbaattributes3", ATTRIBUTES, 4, 12, id="attributes"),
    pytest.param("targetmapping3", MAPPING, 15, 0, id="target-mapping"),
])
def test_report_that_cannot_be_opened_ends_the_inventory(cli, call, file, calls, status):
    cli.on(call, f"rm blade/{file}")
    expect(cli.real(FM), status, f"Error: Could not open file blade//{file}\n...")
    assert cli.calls == CALLS[:calls]


# The lines of the reports. A value begins two characters after the colon, without the blanks and quotes around it.


def numbered(labels):
    """A line for each label, with its number as the value."""
    return "".join(f"{label}: {number}\n" for number, label in enumerate(labels.split(","), 1))


@pytest.mark.parametrize("lines, text", [
    pytest.param(numbered("Port WWN,Node WWN,Fabric Name,Permanent MAC,Current MAC,Flags,Host Name,Mfg,Serial No.,"
                          "Port Number,Mode,PCI Bus Number,PCI Function,Port Type,Model"),
                 "\n1)\tPortWWN: 1\n\tNodeWWN: 2\n\tFabric_Name: 3\n\n2)\tPermanentMAC: 4\n\tCurrentMAC: 5\n\t" +
                 "\n\t".join(map(str, range(6, 16))) + "\n", id="each-label"),
    pytest.param("Serial No.: nobody\nPort WWN\nNode WWN\nMode: a Mode\n", "\ta Mode\n", id="before-the-first-port"),
    pytest.param('Permanent MAC: "10:22:33:44:55:66:77"\nFlags:\nHost Name:\t x \nMfg:Emulex\nModel:M\n',
                 "\n1)\tPermanentMAC: 10:22:33:44:55:66:77\n\t\n\tx\n\tmulex\n\t\n", id="around-the-value"),
    # The line before must not show through.
    pytest.param("Port WWN: w\nMode: a Mode\nMfg:", "\n1)\tPortWWN: w\n\ta Mode\n\t\n", id="ends-at-the-colon"),
    pytest.param("Port WWN: w\nModeling: a Model\nPort WWN: w\n",
                 "\n1)\tPortWWN: w\n\ta Model\n\n2)\tPortWWN: w\n", id="longer-than-its-label"),
    # A line of more than 1,023 characters is read in pieces.
    pytest.param(f"Port WWN: w\nFlags: {0:01015}Mode: a Mode\n", "\n1)\tPortWWN: w\n\t0*M\n", id="long"),
    pytest.param(f"Port WWN: w\nFlags: {0:01016}Mode: a Mode\n", "\n1)\tPortWWN: w\n\t0*0\n\ta Mode\n", id="in-pieces"),
])
def test_lines_of_the_list(blade, lines, text):
    blade.write(LIST, lines)
    expect(blade.simulated("-v 6"), 22,
           f'...\n\nSuccess, "hbacmd listhbas" command returned code 0.\n{text}\n\t\t*hbacmd hbaattributes*\n...')


TITLE = "HBA Attributes for x\n"
IDS = "Vendor Spec ID: 19A2\nDevice ID: 714\nSub Vendor ID: 1C3E\nSub Device ID: 11C1\n"
SHOWN_TITLE = f"\n\t\tHBA Attributes for {PORTS[2]}\n\n"
SHOWN_IDS = "\t\t19A2\n\t\t714\n\t\t1C3E\n\t\t11C1\n"


@pytest.mark.parametrize("lines, status, text", [
    pytest.param(TITLE + numbered("Serial Number,Model,HW Version,FW Version,Vendor Spec ID,Device ID,HBA Type,"
                                  "Operational FW,Driver Version,Function Type,Sub Device ID,Sub Vendor ID,"
                                  "IPL Filename"), 12,
                 SHOWN_TITLE + "".join(f"\t\t{number}\n" for number in range(1, 14)), id="each-label"),
    pytest.param(IDS + TITLE, 12, SHOWN_TITLE, id="before-the-title"),
    # A line without a colon tells what there is.
    pytest.param(f"{TITLE}{IDS}{TITLE}Model Desc: D\nModel: M\nDevice ID\n", 12,
                 f"{SHOWN_TITLE}{SHOWN_IDS}{SHOWN_TITLE}\t\tM\n\t\t\n", id="second-title-begins-anew"),
    pytest.param(f"{TITLE}{IDS}Vendor Spec ID: 00019A2\nDevice ID\n", 0, f"{SHOWN_TITLE}{SHOWN_IDS}\t\t0001\n\t\t714\n",
                 id="number-of-the-whole-value"),
])
def test_lines_of_the_attributes(blade, lines, status, text):
    """Of FM's first port, the only one that is selected."""
    blade.edit("VM10250117_3_hba_attributes.out", ("11C1", "11C9"))
    blade.write(ATTRIBUTES, lines)
    expect(blade.simulated(f"-v 6 {FM}"), status,
           f'...\n\t\tSuccess, "hbacmd hbaattributes {PORTS[2]}" command returned code 0.\n{text}\n\t\t/usr*\n...')


def test_number_of_more_than_64_bits(blade):
    blade.write(ATTRIBUTES, f"{TITLE}Device ID: 10000000000000000\n")
    expect(blade.simulated(FM), 1, "strtoul: Numerical result out of range")


@pytest.mark.parametrize("lines, status, text", [
    pytest.param("Target Mapping for x\n\n\n\n" + numbered("FCP LUN,SCSI OS Lun,Lun Device Name,Vendor ID,Product ID,"
                                                        "Product Version,Type,SCSI Capacity,Block Size"), 4,
                 f"\n\t\t\tTarget Mapping for {PORTS[2]}\n" + "".join(f"\t\t\t{i}\n" for i in range(1, 10)),
                 id="each-label"),
    # The title has four lines; storage begins with the next one that has a colon.
    pytest.param("1\n2\n3\nVendor ID: NRB\nType Disk\n", 0, "", id="title"),
    pytest.param("1\n2\n3\n4\nType Disk\nVendor ID: NRB\n", 4, "\t\t\tNRB\n", id="after-the-title"),
    pytest.param("\n\n\n\nSCSI: x\nType\nSCSI OS Lun: 123456\nType: x\nType:\nProduct ID: Marlovan_CX1\n"
                 "Vendor ID: X\nVendor ID: DGC\nVendor ID\n", 0, "".join(
                     f"\t\t\t{text}\n" for text in ["", "1234", "x", "", "Marlovan_CX1", "X", "DGC", "DGC"]),
                 id="last-LUN-counts"),
])
def test_lines_of_the_target_mapping(blade, lines, status, text):
    blade.write(MAPPING, lines)
    expect(blade.simulated(f"-v 6 {FM}"), status,
           f'...\n\t\t\tSuccess, "hbacmd targetmapping {PORTS[2]}" command returned code 0.\n{text}\n\t\t\t/usr*\n...')


def test_type_that_begins_with_FC_is_called_by_its_MAC_and_told_by_its_world_wide_name(blade):
    blade.write(LIST, "Port WWN: w\nSerial No.: n/a\nPort Type: FCxx\n")
    expect(blade.simulated("-v 6"), 12,
           "...\n\t\t/usr/sbin/ocmanager/hbacmd hbaattributes  > blade//n/a__hba_attributes.out\n"
           '\n\t\tSuccess, "hbacmd hbaattributes w" command returned code 0.\n'
           "\t\tNo serial number => SKIP!\n\n\nOriginal*\n...")
