"""What lscna lists, what it says is to be looked at, and how it ends."""

import fcntl
import json
import os
import re
import shlex
import subprocess

import pytest
from conftest import CONDITIONS, DGC_FOR_NRB, LIST, LSCNA, LSCNA_STANDIN, MAPPING, PROJECT, Terminal, expect

NOTES = "...\nTo look at:\n"
# Of the FM adapter: the title of its first FCoE port's report, the ids of its FCoE ports, its image.
TITLE = "Target Mapping for 10:00:00:00:c9:a1:00:11\n\n\n\n"
IDS, IMAGE = r"19A2 \| 0714 \| 1C3E \| 11C1", "fm10102-4.6.142.10.ufi"
VERSION = "1.0.1.0"
STORAGE, WRONG = "Vendor ID: DGC\nProduct ID: Marlovan_CX1\n", "Vendor ID: NRB\nProduct ID: X\n"


def simulated(blade, words=""):
    return blade.run(LSCNA, f"--simulate --conpath blade {words}")


def found(blade, words=""):
    """The JSON object, whose status is that of the run; what goes to standard error comes before it."""
    status, output = simulated(blade, f"--json {words}")
    answer = json.loads(output[output.index("{\n"):].encode("utf-8", "surrogateescape"))
    assert answer["status"] == status
    return answer


def change(blade, *what):
    """Calls a function with the blade, writes (name, content), or edits (pattern, regular expression, text)."""
    if callable(what[0]):
        what[0](blade)
    else:
        blade.write(*what) if len(what) < 3 else blade.edit(what[0], what[1:])


def removed(name):
    return lambda blade: blade.remove(name)


@pytest.fixture
def good(blade):
    """The example, but both adapters see storage that their records 1 and 2 (lines 21 and 22) allow."""
    blade.edit("VM20713302_*_target_mapping.out", *DGC_FOR_NRB)
    return blade


@pytest.mark.parametrize("shown_in", ["README.md", "man/lscna.8.in"])
def test_the_examples_screen_is_the_one_that_is_shown(blade, shown_in):
    text = (PROJECT / shown_in).read_text().replace(r"\-", "-")
    expect(simulated(blade), 1, re.search("^ADAPTER  (.|\n)*To look at:\n.*", text, re.MULTILINE)[0])


WELL = {
    "storage-that-is-allowed-behind-a-LUN-without-any": (MAPPING, f"{TITLE}FCP LUN: 0\nFCP LUN: 1\n{STORAGE}"),
    "no-storage": (MAPPING, TITLE + "no target\n"),
    "an-allowed-LUN-before-the-judged-one": (MAPPING, TITLE + "Vendor ID: DGC\nProduct ID: CX4-9\n" + STORAGE),
    "blank-lines-which-are-no-records-with-the-same-ids": (CONDITIONS, r"\Z", "\n\n \n---+--+---\nx # a | b\n"),
    "ids-of-0-and-nothing-behind-them": (CONDITIONS, r"\Z", "E|M|0|0|0|0\n"),
    "the-longest-line-that-is-read-whole": (CONDITIONS, r"\Z", f"{'#':1022}\n"),
    "a-long-value-that-is-kept-and-listed-only": (CONDITIONS, "2012-11-05", "x" * 100),
}


@pytest.mark.parametrize("what", WELL.values(), ids=WELL)
def test_nothing_is_to_be_looked_at(good, what):
    change(good, *what)
    expect(simulated(good), 0, "ADAPTER *\n...\n  VM30550041, function 0, record 5: is10102-4.6.142.10.ufi")


CAUSES = {
    "storage-that-is-not-allowed": ((MAPPING, TITLE + WRONG),
        "*17, function 2: record 1 (line 21) allows DGC Marlovan_CX,CX4- and NRB Marlovan_SX1"),
    "any-model": ((CONDITIONS, r"DGC \| Marlovan_CX,.*", "HP | | x"), "*17, functions 2 and 3: * allows any HP"),
    # With a byte that would change a terminal.
    "a-LUN-before-the-judged-one": ((MAPPING, f"{TITLE}Vendor ID: N\x1bB\nFCP LUN: 0\nFCP LUN: 1\n{STORAGE}"),
        "*17, function 2: its report also names N?B , which record 1 (line 21) does not allow; *"),
    "another-product-before-it": ((MAPPING, TITLE + "Vendor ID: DGC\nProduct ID: X\n" + STORAGE), "*names DGC X, *"),
    "neither-storage-nor-record": ((lambda blade: (
        blade.edit("VM10250117_?_target_mapping.out", (r"(?s)^(Target.*?\n).*", r"\1")),
        blade.edit(CONDITIONS, (".*0714.*11C1.*\n", ""))),), "no record has 19A2:0714:1C3E:11C1; if its storage *"),
    "an-empty-report": ((MAPPING, ""), "*17, function 2: its target-mapping report has no title with *:11: *"),
    "another-ports-report": ((MAPPING, ":11$", ":12"), "*17, function 2: its target-mapping report has no title *"),
    "no-attributes-of-two-adapters": (("VM*_3_hba_attributes.out", "(?s).+", "ERROR"),
        "*02, function 3: its attributes report has no *\n  *17, function 3: its attributes report has no *"),
    "a-bad-id": (("VM10250117_3_hba_attributes.out", "0714", "071G"), "*17, function 3: *one that is not hexadecimal"),
    "a-subvendor-id-of-0": (("VM10250117_1_hba*", "1C3E", "0"), "*17, function 1: subvendor id 0: *"),
    "no-serial-number": ((LIST, "^(Serial.*)VM1.*", r"\1n/a"), "n/a, functions 2 and 3: no serial number, *"),
    "no-report": ((removed("VM10250117_0_hba*"),), "the inventory ended at blade//VM10250117_0_hba_attributes.out, *"),
    "vendor-and-device-id-exchanged": ((CONDITIONS, IDS, "0714 | 19A2 | 1C3E | 11C1"),
        "no record has 19A2:0714:1C3E:11C1; record 1 (line 21) has vendor and device id exchanged: correct it"),
    "subsystem-ids-exchanged": ((CONDITIONS, IDS, "19A2 | 0714 | 11C1 | 1C3E"), "*) has subvendor and subdevice id *"),
    "all-ids-exchanged": ((CONDITIONS, IDS, "0714 | 19A2 | 11C1 | 1C3E"), "*) has vendor * exchanged, and subvendor *"),
    "pairs-exchanged": ((CONDITIONS, IDS, "1C3E | 11C1 | 19A2 | 0714"), "*) has the two pairs of ids exchanged *"),
    "another-ports-ids-exchanged": ((lambda blade: (
        blade.edit(CONDITIONS, (IDS, "0714 | 19A2 | 1C3E | 11C1")),
        blade.edit("VM30550041_1*", ("19A2", "0714"), ("0712", "19A2"), ("11D0", "11C1"))),),
        "no record has 19A2:0714:1C3E:11C1; if its storage *"),
    "a-mistyped-id": ((CONDITIONS, "(0714.*)11C1", r"\g<1>11C7"), "*; record 1 (line 21) has the same vendor and *"),
    "another-model": ((CONDITIONS, "10102-F(?=.*0714.*11C1)", "9"),
        "record 1 (line 21) has the ids 19A2:0714:1C3E:11C1, but is for Emulex CNA-9, not *: correct it, or add one"),
    "no-record-but-another-ports": ((CONDITIONS, ".*0714.*11C1.*\n", ""),
        "no record has *C1; if *, add: Emulex Corporation | CNA-10102-FM | * | x | | | x | x | DGC | Marlovan_CX1 | x"),
    "two-records": ((CONDITIONS, r"\Z", "E | M | 19A2 | 0714 | 1C3E | 11C1 | x\n"),
        "record 1 (line 21) and record 6 (line 26) have the same four ids: *"),
    "a-function-twice": ((LIST, r"(18\nPCI Function *: )1", r"\g<1>0"), "VM30550041, function 0: * is listed twice: *"),
    "no-image": ((removed(IMAGE),), "*17, function 0: no file in blade/ is the firmware image * of record 3 *, so a "
        "flash ends with 20; the model's own directory, blade/CNA-10102-FM, is not there"),
    "another-models-directory": (("VM20713302_0_hba*", "11C2", "11C1"),
        "*02, function 0: no file in blade/CNA-10102-FX/ *"),
    "two-images": (("CNA-10102-FX/x.ufi", ""),
        "*02, function 0: blade/*.ufi and blade/*.ufi match the firmware *\n  *, function 0: *x.ufi, *, is empty, *"),
    "an-empty-image": ((IMAGE, ""), f"*17, function 0: blade/{IMAGE}, *, is empty, and *"),
    "a-directory": ((lambda blade: (blade.remove(IMAGE), blade.path(IMAGE).mkdir()),), "*, is no regular file, *"),
    "a-dead-link": ((lambda blade: (blade.remove(IMAGE), blade.path(IMAGE).symlink_to("x")),), "*, can't be read, *"),
    "one-image-twice": ((CONDITIONS, r"(0700.*fm10102- \|) ", r"\1 fm"), "*17, function 0: *as firmware and as BIOS*"),
    "a-flash-record-with-ids-exchanged": ((CONDITIONS, r"19A2 \| 0700(?=.*11C1)", "0700 | 19A2"),
        "no record has 19A2:0700:1C3E:11C1, so a flash writes nothing; record 3 *"),
    "a-flash-record-for-another-model": ((CONDITIONS, "10102-F(?=.*0700.*11C1)", "9"),
        "record 3 * has the ids *; a flash of the port takes its images *"),
    "a-flash-ports-ids-elsewhere": (("VM30550041_1*", "0712(?:.|\n)*11D0", "0700\nSub Device ID: 11C1"),
        "VM30550041, function 1: it has the ids of a flash port, 19A2:0700:1C3E:11C1: *"),
}


@pytest.mark.parametrize("what, note", CAUSES.values(), ids=CAUSES)
def test_a_cause_is_one_line(good, what, note):
    change(good, *what)
    expect(simulated(good), 1, f"{NOTES}  {note}")


def test_an_adapter_without_a_flash_port_is_noted_whatever_is_selected(good):
    good.edit(LIST, ("^(Serial.*VM1.*\nPort Number.*) .$", r"\1 3"))
    expect(simulated(good, "-p 19A2:0714:1C3E:11C2"), 1, f"{NOTES}  *17, functions 0, 1, 2 and 3: *no flash port*")


def test_no_fibre_channel_port_is_no_line(good):
    good.edit(LIST, ("^(Port Type.*: )FC$", r"\1NIC"))
    expect(simulated(good), 0, "...\nVM40019005*\n\nA flash would write:\n...")


def test_a_flash_that_lacks_an_image_is_not_listed(good):
    good.remove("CNA-10102-FX/*.grp")
    expect(simulated(good), 1, "...\nA flash would write:\n  *17, function 0*\n  *41, function 0*\n\nTo look at:\n"
           "  *02, function 0: no file in blade/CNA-10102-FX/ is the BIOS image *")


@pytest.mark.parametrize("serial", ["VM102", ""])
def test_adapters_that_count_as_one_are_noted(cli, serial):
    cli.edit(LIST, ("VM30550041", serial))
    note = f"the serial number '{serial}' is the beginning of 'VM10250117': *"
    expect(cli.run(LSCNA_STANDIN, "-C blade"), 1, f"{NOTES}...\n  {note}\n...")


MISTAKES = {
    "bytes-that-are-no-text": (
        "\xef\xbb\xbf#\r\n#\0\n#\r\n", ["2: NUL bytes*", "1: a byte order mark*", "1: a carriage return*"]),
    "long-line": ("# %01022d\n" % 0, ["1: a line of more than 1023 characters*", "1: no bar*"]),
    "number-sign": ("\n# a | b\n---+--+\nE | 1 # b\n", ["4: a number sign makes the whole line a comment*"]),
    "no-bar-and-no-ids": (
        "a line of words and no bar\n\nE|M|1|2|3\n", ["1: no bar*", "3: a record without all four ids*"]),
    "blank-beside-a-comma": (
        "E|M|1|2|3|4|x|x|f|b|x|x|D|A, B\nE|M|1|2|3|5|x|x|f|b|x|x|D|A|x|D|A ,B\n",
        ["1: a blank beside a comma becomes part of a model in 'A, B': *", "2: a blank * 'A ,B': *"]),
    "long-values": (
        "%020d|%020d|1|2|3|4|x|x|%080d|%080d|x|x|%010d\n" % (0, 0, 0, 0, 0),
        ["1: vendor '0*0' is longer than 19 characters", "1: model '0*' is longer than 19 characters",
         "1: firmware image '0*' is longer than 79 characters", "1: BIOS image '0*' is longer than 79 characters",
         "1: storage vendor '0*' is longer than 9 characters"]),
}


@pytest.mark.parametrize("content, notes", MISTAKES.values(), ids=MISTAKES)
def test_a_mistake_in_the_conditions_file_is_noted_with_its_line(blade, content, notes):
    blade.path(CONDITIONS).write_bytes(content.encode("latin-1"))
    expect(simulated(blade), 1, NOTES + "".join(f"  blade/{CONDITIONS}:{note}\n" for note in notes) + "...")


def test_a_refused_conditions_file_is_the_reason_of_every_port(good):
    good.edit(CONDITIONS, ("(0714.*)11C2", r"\g<1>11G2"))
    assert {port["verdict"] for port in found(good)["ports"]} == {None, "not judged"}
    expect(simulated(good), 1, f"""{NOTES}  blade/{CONDITIONS}:22: subdevice id '11G2' is not hexadecimal
  blade/{CONDITIONS}: cnatool refuses the file with 55, *""")


def test_the_records_that_are_shown_where_there_is_none_can_be_pasted(good):
    good.remove(CONDITIONS)
    notes = [note["text"] for note in found(good)["notes"]]
    assert [note[:45] for note in notes[2:]] == [f"no record has 19A2:0714:1C3E:11C{i}; if its sto" for i in "21"]
    good.write(CONDITIONS, "\n".join(note[note.index("add: ") + 5:] for note in notes[2:]))
    assert [port["verdict"] for port in found(good)["ports"] if port["verdict"]] == ["allowed"] * 4


def test_each_verdict_has_its_reason(good):
    """The other adapter's FCoE ports become functions 6 and 7 of this one: a check leaves out the middle ones."""
    for wwn, old, new in ("11", 2, 6), ("12", 3, 7):
        port = rf"(c9:b2:00:{wwn}\n(?:.+\n)*?Serial No. *: ).*((?:\n.+)*?Function *: ){old}"
        good.edit(LIST, (port, rf"\1VM10250117\g<2>{new}"))
        for report in "hba_attributes", "target_mapping":
            good.write(f"VM10250117_{new}_{report}.out", good.read(f"VM20713302_{old}_{report}.out"))
    good.write(MAPPING, TITLE)
    good.write("VM10250117_3_target_mapping.out")
    good.edit("VM10250117_7_target_mapping.out", ("DGC", "NRB"))
    ports = [port for port in found(good)["ports"] if port["type"] == "FCoE"]
    assert {port["fn"]: (port["verdict"], (port["reason"] or "")[:24]) for port in ports} == {
        "2": ("no storage", ""), "3": ("not known", "its target-mapping repor"),
        "6": ("not judged", "a check does not come to"), "7": ("not allowed", "record 2 (line 22) allow")}


def test_json_holds_what_is_known_whatever_bytes_the_reports_hold(blade):
    blade.remove("is*")
    # A backslash, a quotation mark (read as a blank), the first character of two bytes, no UTF-8, an overlong slash, a
    # surrogate, controls.
    vendor = b'\\\\"\xc2\x80\xff\xc0\xaf\xed\xa0\x80\x01\x7f'.decode("utf-8", "surrogateescape")
    blade.edit("VM20713302_2_target_mapping.out", ("NRB", vendor))
    blade.edit("VM20713302_2_hba_attributes.out", ("^(Operational FW.*) .*", r"\1"))
    blade.edit("VM20713302_1_hba_attributes.out", ("^(FW Version.*) .*", r"\1 old"), ("^(Sub Device.*) .*", r"\1 ?"))
    answer = found(blade)
    assert {key: answer[key] for key in answer if not isinstance(answer[key], list)} == {
        "format": 1, "version": VERSION, "status": 1, "error": None, "fibre-channel-ports": 1}
    fn1 = dict.fromkeys(["wwn", "pci-id", "storage", "record", "line", "verdict", "reason"]) | {
        "adapter": "VM20713302", "fn": "1", "port": "1", "type": "NIC", "model": "CNA-10102-FX",
        "mac": "00:00:c9:b2:00:02", "bus": "15", "firmware": "4.6.142.10"}
    assert answer["ports"][1:3] == [fn1, fn1 | {
        "fn": "2", "port": "0", "type": "FCoE", "wwn": "10:00:00:00:c9:b2:00:11", "mac": None, "record": 2, "line": 22,
        "storage": {"vendor": "\\ \x80\ufffd\ufffd\ufffd\ufffd\ufffd\ufffd\x01\x7f", "product": "Marlovan_SX1",
                    "version": "7.12"},
        "pci-id": "19A2:0714:1C3E:11C2", "verdict": "not allowed",
        "reason": "record 2 (line 22) allows DGC Marlovan_CX"}]
    image = "blade/CNA-10102-FX/fx-"
    assert answer["flashes"][::2] == [
        {"adapter": "VM20713302", "fn": "0", "record": 4,
         "firmware": {"pattern": "*.ufi", "files": [image + "4.6.142.10.ufi"]},
         "bios": {"pattern": "*.grp", "files": [image + "bios-4.6.141.grp"]}},
        {"adapter": "VM30550041", "fn": "0", "record": 5, "bios": None,
         "firmware": {"pattern": "is10102-", "files": []}}]
    assert answer["notes"][0] == {"adapter": "VM20713302", "functions": ["1"], "text": answer["notes"][0]["text"]}
    # A terminal gets no byte that could change it.
    screen = simulated(blade).output
    assert "\\ ?????????? Marlovan_SX1" in screen and not re.search("[^\n -~]", screen)


@pytest.mark.parametrize("words, status, notes", [
    ("-p 19A2:0714:1C3E:11C1,19A2:0712", 0, []),
    ("-p 19A2:0714,1:2:3:4", 1, ["--pci-id: no port has 1:2:3:4"]),
    ("-p 19A2:0714,,19A2:0700", 1, ["--pci-id: '19A2:0700' is not read: *"]),
    ("-p ,19A2:0700", 1, ["--pci-id: '19A2:0700' is not read: *", "--pci-id: no port has an empty group"]),
])
def test_a_selection_is_read_as_cnatool_reads_it(good, words, status, notes):
    shown = f"{NOTES}  " + "\n  ".join(notes) if notes else "ADAPTER*\n..."
    expect(simulated(good, words), status, shown)


def test_a_selection_lists_ports_without_ids_too_and_wants_a_record_for_each_flash_port(good):
    good.write("VM10250117_1_hba_attributes.out")
    good.write("VM10250117_3_hba_attributes.out")
    good.edit(CONDITIONS, (".*0700.*11C1.*\n", ""))
    answer = found(good, "-p 19A2:0700")
    assert [port["adapter"][-2:] + port["fn"] for port in answer["ports"]] == ["020", "021", "170", "171", "173"]
    assert answer["notes"][0]["text"].startswith("no record has 19A2:0700:1C3E:11C1, so a flash writes nothing; add, ")


def test_an_fcoe_flash_port_without_a_record_has_one_note(good):
    good.edit(LIST, (r"(VM10250117\nPort Number *: 0\n.*\nPCI Function *: 0\nPort Type *: )NIC", r"\1FCoE"))
    good.write("VM10250117_0_target_mapping.out", "Target Mapping for\n")
    good.edit(CONDITIONS, (".*0700.*11C1.*\n", ""))
    assert len(found(good, "-p 19A2:0700:1C3E:11C1")["notes"]) == 1


@pytest.mark.parametrize("words, status, text", [
    ("--version", 0, "lscna *.*.*.*"),
    ("-x", 2, "lscna: invalid option -- 'x'\nlscna: a bad call: *"),
    ("-s x", 2, "lscna: 'x' is no option"),
    ("-s -C ''", 2, "lscna: --conpath: the name of the directory is empty"),
    ("-C '' --json", 2, """lscna: --conpath: the name of the directory is empty
{
  "format": 1, "version": *, "status": 2, "error": "--conpath: the name of the directory is empty",
..."""),
    (f"-s -C {'x' * 1002}", 2, "lscna: --conpath: the name of the directory is too long"),
    ("-s -C gone", 2, "lscna: there is no directory gone/"),
    ("-s -C blade -p 19A2:07G0", 2, "lscna: --pci-id: not a list of *"),
    ("-s -C blade -p -1", 2, "lscna: --pci-id: the list begins with a minus sign"),
    (f"-s -C blade -p {'1' * 1024}", 2, "lscna: --pci-id: the list is too long"),
    ("-C blade", 2, "lscna: the vendor's CLI, /*, is not installed"),
], ids=["version", "unknown-option", "no-option", "empty-directory", "in-JSON", "long-directory", "no-directory",
        "no-list", "minus-sign", "long-list", "no-CLI"])
def test_the_command_line(blade, words, status, text):
    expect(blade.run(LSCNA, words), status, text)


@pytest.mark.parametrize("what, status, error", [
    ((removed(LIST),), 2, "the list of ports, blade//local_hba_list.out, can't be read"),
    ((LIST, "none"), 3, "the list of ports, blade//local_hba_list.out, names no port"),
    (("VM10250117_0_hba_attributes.out", "0700", "1" * 17), 2, "a report holds a number of more than 64 bits"),
], ids=["no-list", "empty-list", "long-number"])
def test_json_is_one_object_where_nothing_is_listed(blade, what, status, error):
    change(blade, *what)
    assert found(blade) == {"format": 1, "version": VERSION, "status": status, "error": error, "ports": [],
                            "fibre-channel-ports": 0, "flashes": [], "notes": []}
    assert f"lscna: {error}\n" in simulated(blade).output


def listed(cli, words=""):
    return cli.run(LSCNA_STANDIN, f"-C blade -p 19A2:0714:1C3E:11C1 {words}")


@pytest.mark.parametrize("command, action, ending", [
    ("hbaattributes", "cat cli/reports/VM10250117_2_hba*; exit 128", "exit status 128"),
    ("targetmapping", "cat cli/reports/VM10250117_2_t*; kill -9 $$", "signal 9"),
])
def test_a_port_whose_command_failed_is_not_known_though_its_report_looks_whole(cli, command, action, ending):
    for call in range(1, 12):
        cli.on(f"{command}{call}", f'[ "$2" != 10:00:00:00:c9:a1:00:11 ] || {{ {action}; }}')
    expect(listed(cli), 1, f"""...
VM10250117   2 *  not known
...
  VM10250117, function 2: the CLI's command {command} ended with {ending}, so *""")


def test_a_port_whose_command_could_not_be_run_is_not_known(cli):
    (cli.files / MAPPING).mkdir()
    expect(listed(cli), 1, f"""...
VM10250117   2 *  not known
...
  the inventory ended at blade//{MAPPING}, which can't be read: *
  VM10250117, function 2: the CLI's command targetmapping could not be run: *""")


def test_a_list_that_can_not_be_made(cli):
    cli.on("listhbas1", "exit 1")
    expect(listed(cli), 2, "lscna: the CLI's command listhbas failed: see what it says in blade//local_hba_list.out")


def test_another_run_is_waited_for_unless_no_wait_is_given(cli):
    with open(cli.directory / "hbacmd") as lock:
        fcntl.flock(lock, fcntl.LOCK_EX)
        for option in "-n", "--no-wait":
            expect(listed(cli, option), 2, "lscna: another run uses the vendor's CLI")
        # Someone at a terminal sees what is waited for.
        terminal = Terminal(cli, f"{shlex.quote(str(LSCNA_STANDIN))} -C blade")
        terminal.read_until(b"waiting for another run")
    seen = terminal.read_until(b"=1\r\n")
    assert b"adapter list" in seen and b"port 5 of 11: target mapping" in seen


@pytest.mark.parametrize("filled", [pytest.param(1, id="in the middle"), pytest.param(4096, id="at the end")])
def test_output_that_is_lost_ends_with_2(blade, filled):
    """A pipe without room for a whole block; in the middle there is some for the rest of the output."""
    reader, writer = os.pipe()
    fcntl.fcntl(writer, fcntl.F_SETPIPE_SZ, 4096)
    os.set_blocking(writer, False)
    os.write(writer, b"x" * filled)
    words = ["--simulate", "--json", "--conpath", "./" * 50 + "blade"] if filled == 1 else ["--version"]
    run = subprocess.run([LSCNA, *words], cwd=blade.directory, stdout=writer, stderr=subprocess.PIPE, text=True)
    assert (run.returncode, run.stderr) == (2, "lscna: standard output can't be written\n")
    os.close(reader), os.close(writer)


def test_completion_and_man_page_know_every_option_column_and_key(blade):
    usage = blade.run(LSCNA, "--help").output
    options = {word for pair in re.findall(r"^  (-\w), (--[\w-]+)", usage, re.MULTILINE) for word in pair}
    columns = set(re.findall(r"^  ([A-Z-]+) ", usage[usage.index("Columns:"):], re.MULTILINE))
    assert len(options) == 14 and len(columns) == 10
    script = f". {PROJECT}/completion/lscna; COMP_WORDS=(lscna -) COMP_CWORD=1; _lscna; echo ${{COMPREPLY[@]}}"
    assert set(blade.run("bash", ["-c", script]).output.split()) == options
    answer = found(blade)
    flash = answer["flashes"][0]
    keys = {*answer, *answer["ports"][0], *flash, *flash["bios"], *answer["notes"][0]}
    page = (PROJECT / "man/lscna.8.in").read_text().replace("\\-", "-")
    assert (options | columns | keys) - set(re.split(r'[\s",]+', page)) == set()
