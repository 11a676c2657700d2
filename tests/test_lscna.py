"""What lscna lists, what it says is to be looked at, and how it ends."""

import fcntl
import json
import os
import re
import subprocess

import pytest
from conftest import CONDITIONS, LIST, LSCNA, LSCNA_STANDIN, PROJECT, expect

NOTES = "...\nTo look at:\n"
# The FM adapter's first FCoE port, the ids of both its FCoE ports, and the images of its flash port.
VERSION = "1.0.1.0"
MAPPING, TITLE = "VM10250117_2_target_mapping.out", "Target Mapping for 10:00:00:00:c9:a1:00:11\n\n\n\n"
FM_IDS, IMAGE = r"19A2 \| 0714 \| 1C3E \| 11C1", "fm10102-4.6.142.10.ufi"


def simulated(blade, words=""):
    return blade.run(LSCNA, f"--simulate --conpath blade {words}")


@pytest.fixture
def good(blade):
    """The example, but both adapters see storage that their records 1 and 2 (lines 21 and 22) allow."""
    blade.edit("VM20713302_*_target_mapping.out", (": NRB", ": DGC"), ("_SX1", "_CX1"))
    return blade


def edit(pattern, expression, text):
    return lambda blade: blade.edit(pattern, (expression, text))


def write(name, content):
    return lambda blade: blade.write(name, content)


def mapped(luns):
    return write(MAPPING, TITLE + luns)


@pytest.mark.parametrize("shown_in", ["README.md", "man/lscna.8.in"])
def test_the_examples_screen_is_the_one_that_is_shown(blade, shown_in):
    text = (PROJECT / shown_in).read_text().replace(r"\-", "-")
    expect(simulated(blade), 1, text[text.index("ADAPTER     FN"):text.index("allows DGC Marlovan_CX\n")] + "allows DGC Marlovan_CX")


@pytest.mark.parametrize("change", [
    pytest.param(lambda blade: None, id="all storage is allowed"),
    pytest.param(mapped("no target\n"), id="no storage"),
    pytest.param(mapped("Vendor ID: DGC\nProduct ID: CX4-9\nVendor ID: DGC\nProduct ID: Marlovan_CX1\n"), id="an allowed LUN before the judged one"),
    pytest.param(edit(CONDITIONS, r"\Z", "\n\n \n---+--+---\n# a | b\n"), id="blank lines are no records with the same ids"),
    pytest.param(edit(CONDITIONS, "2012-11-05", "a value that is longer than its column, but kept and listed only"), id="a value that does not select is cut"),
])
def test_nothing_is_to_be_looked_at(good, change):
    change(good)
    expect(simulated(good), 0, "ADAPTER *\n...\n  VM30550041, function 0, record 5: is10102-4.6.142.10.ufi")


PORTS = [
    # Storage.
    ("storage that is not allowed", mapped("Vendor ID: NRB\nProduct ID: X\n"),
     "VM10250117, function 2: record 1 (line 21) allows DGC Marlovan_CX,CX4- and NRB Marlovan_SX1"),
    ("a LUN before the judged one", mapped("Vendor ID: NRB\nProduct ID: X\nVendor ID: DGC\nProduct ID: Marlovan_CX1\n"),
     "VM10250117, function 2: its report also names NRB X, which record 1 (line 21) does not allow; *last LUN"),
    ("an empty mapping report", write(MAPPING, ""), "VM10250117, function 2: its target-mapping report has no title with 10:00:00:00:c9:a1:00:11: *"),
    ("another port's mapping report", edit(MAPPING, ":11$", ":12"), "VM10250117, function 2: its target-mapping report has no title with *:11: *"),
    ("no attributes", write("VM10250117_3_hba_attributes.out", "ERROR"), "VM10250117, function 3: its attributes report has no title*"),
    ("a bad id", edit("VM10250117_3_hba_attributes.out", "0714", "071G"), "VM10250117, function 3: *a PCI id, or has one that is not hexadecimal"),
    ("no serial number", edit(LIST, "^(Serial.*)VM1.*", r"\1n/a"), "n/a, functions 2 and 3: no serial number*"),
    ("the inventory breaks off", lambda blade: blade.remove("VM10250117_0_hba*"), "the inventory ended at blade//VM10250117_0_hba_attributes.out, *"),
    # Records: the nearest one, but never another port's.
    ("device ids exchanged", edit(CONDITIONS, FM_IDS, "0714 | 19A2 | 1C3E | 11C1"),
     "no record has 19A2:0714:1C3E:11C1; record 1 (line 21) has vendor and device id exchanged: correct it"),
    ("subsystem ids exchanged", edit(CONDITIONS, FM_IDS, "19A2 | 0714 | 11C1 | 1C3E"), "*; record 1 (line 21) has subvendor and subdevice id exchanged: *"),
    ("all ids exchanged", edit(CONDITIONS, FM_IDS, "0714 | 19A2 | 11C1 | 1C3E"), "*; record 1 (line 21) has vendor and device id exchanged, and sub*"),
    ("pairs exchanged", edit(CONDITIONS, FM_IDS, "1C3E | 11C1 | 19A2 | 0714"), "*; record 1 (line 21) has the two pairs of ids exchanged *"),
    ("a mistyped id", edit(CONDITIONS, "(0714.*)11C1", r"\g<1>11C7"), "*; record 1 (line 21) has the same vendor and device id only: *"),
    ("another model", edit(CONDITIONS, "10102-F(?=.*0714.*11C1)", "9"), "record 1 (line 21) has the ids 19A2:0714:1C3E:11C1, but is for Emulex CNA-9, not *; a flash *"),
    ("no record", edit(CONDITIONS, ".*0714.*11C1.*\n", ""),
     "no record has 19A2:0714:1C3E:11C1; *, add: Emulex Corporation | CNA-10102-FM | 19A2 | 0714 | 1C3E | 11C1 | x | x | | | x | x | DGC | Marlovan_CX1 | x"),
    ("the same ids", edit(CONDITIONS, r"\Z", "E | M | 19A2 | 0714 | 1C3E | 11C1 | x\n"), "record 1 (line 21) and record 6 (line 26) have the same four ids: *"),
    # Adapters.
    ("no flash port", edit(LIST, "^(Serial.*VM1.*\nPort Number.*) .$", r"\1 3"), "VM10250117, functions 0, 1, 2 and 3: the adapter has no flash port*"),
    ("a function twice", edit(LIST, r"(18\nPCI Function *: )1", r"\g<1>0"), "VM30550041, function 0: the function is listed twice: *"),
    # The images.
    ("an image is missing", lambda blade: blade.remove(IMAGE), "VM10250117, function 0: no file in blade/ is the firmware image 'fm10102-' of record 3 (line 23), *20"),
    ("two images fit", write("CNA-10102-FX/x.ufi", "x"), "VM20713302, function 0: blade/*.ufi and blade/*.ufi match the firmware image *"),
    ("an empty image", write(IMAGE, ""), "VM10250117, function 0: blade/fm*.ufi, the firmware image 'fm10102-' of record 3 (line 23), is empty: *"),
    ("a directory as image", lambda blade: (blade.remove(IMAGE), blade.path(IMAGE).mkdir()), "*.ufi, *, is no regular file: *"),
    ("an image that can't be read", lambda blade: (blade.remove(IMAGE), blade.path(IMAGE).symlink_to("gone")), "*.ufi, *, can't be read: *"),
    ("an image as firmware and as BIOS", edit(CONDITIONS, r"(0700.*fm10102- \|) ", r"\1 fm"), "VM10250117, function 0: *would be written as firmware and as BIOS*"),
    ("a flash record with ids exchanged", edit(CONDITIONS, r"19A2 \| 0700(?=.*11C1)", "0700 | 19A2"), "no record has 19A2:0700:1C3E:11C1, so a flash writes nothing; record 3 *"),
    ("a flash record for another model", edit(CONDITIONS, "10102-F(?=.*0700.*11C1)", "9"), "record 3 (line 23) has the ids 19A2:0700:1C3E:11C1, but is for *"),
]


@pytest.mark.parametrize("change, note", [row[1:] for row in PORTS], ids=[row[0] for row in PORTS])
def test_a_cause_is_one_line(good, change, note):
    change(good)
    expect(simulated(good), 1, NOTES + f"  {note}")


@pytest.mark.parametrize("serial", ["VM102", ""])
def test_adapters_that_count_as_one_are_noted(cli, serial):
    cli.edit(LIST, ("VM30550041", serial))
    expect(cli.run(LSCNA_STANDIN, "-C blade"), 1, f"{NOTES}...\n  the serial number '{serial}' is the beginning of 'VM10250117': *\n...")


@pytest.mark.parametrize("content, notes", [
    pytest.param("\xef\xbb\xbf#\r\n#\0\n#\r\n", ["2: NUL bytes*", "1: a byte order mark*", "1: a carriage return*"], id="the whole file"),
    pytest.param("# %01022d\n" % 0, ["1: a line of more than 1023 characters*", "1: no bar*"], id="a long line"),
    pytest.param("\n# a | b\n---+--+\nE | 1 # b\n", ["4: a number sign makes the whole line a comment*"], id="a number sign behind a record"),
    pytest.param("E|M|1|2|3\n\nE M\n", ["1: a record without all four ids*", "3: no bar*"], id="no ids"),
    pytest.param("E|M|1|2|3|4|x|x|f|b|x|x|D|A, B\nE|M|1|2|3|5|x|x|f|b|x|x|D|A|x|D|A ,B\n",
                 ["1: a blank beside a comma becomes part of a model in 'A, B': *", "2: a blank * 'A ,B': *"], id="a blank in a model list"),
    pytest.param("E|M|1|2|3|g|x\n", ["1: subdevice id 'g' is not hexadecimal"], id="an id that is not hexadecimal"),
    pytest.param("%020d|M|1|2|3|4|x|x|f|b|x|x|%010d\n" % (0, 0), ["1: vendor '0*0' is longer than 19 characters", "1: storage vendor '0*' is longer than 9 characters"],
                 id="values that select and do not fit"),
])
def test_a_mistake_in_the_conditions_file_is_noted_with_its_line(blade, content, notes):
    blade.path(CONDITIONS).write_bytes(content.encode("latin-1"))
    expect(simulated(blade), 1, NOTES + "".join(f"  blade/{CONDITIONS}:{note}\n" for note in notes) + "...")


def test_a_refused_conditions_file_is_the_reason_of_every_port(good):
    good.edit(CONDITIONS, ("(0714.*)11C1", r"\g<1>11G1"))
    expect(simulated(good), 1, f"""...
VM10250117   2     0  FCoE   CNA-10102-FM  19A2:0714:1C3E:11C1  4.6.142.10  DGC Marlovan_CX1       -  not judged
...
To look at:
  blade/{CONDITIONS}:21: subdevice id '11G1' is not hexadecimal
  blade/{CONDITIONS}: cnatool refuses the file with 55, *""")


def test_the_records_that_are_hinted_at_can_be_pasted(good):
    good.remove(CONDITIONS)
    without = simulated(good)
    expect(without, 1, f"{NOTES}  blade/{CONDITIONS}: can't be opened: *\n  blade/{CONDITIONS}: no record, *\n  no record *C2; *\n  no record *C1; *")
    good.write(CONDITIONS, "\n".join(re.findall("add: (.*)", without.output)))
    assert [port["verdict"] for port in found(good)["ports"] if port["verdict"]] == ["allowed"] * 4


def test_another_ports_record_is_never_called_wrong(good):
    good.edit(CONDITIONS, (".*0714.*11C1.*\n", ""))
    assert "record 1" not in simulated(good).output


def found(blade, words="", status=None):
    result = simulated(blade, f"--json {words}")
    answer = json.loads(result.output.encode("utf-8", "surrogateescape"))
    assert answer["status"] == result.status if status is None else status
    return answer


def test_each_verdict_has_its_reason(good):
    """The other adapter's FCoE ports become functions 6 and 7 of this one: a fourth takes the third one's place in a check."""
    for wwn, old, new in ("11", 2, 6), ("12", 3, 7):
        good.edit(LIST, (rf"(c9:b2:00:{wwn}\n(?:.+\n)*?Serial No. *: ).*((?:\n.+)*?Function *: ){old}", rf"\1VM10250117\g<2>{new}"))
        for report in "hba_attributes", "target_mapping":
            good.write(f"VM10250117_{new}_{report}.out", good.read(f"VM20713302_{old}_{report}.out"))
    good.write(MAPPING, TITLE)
    good.write("VM10250117_3_target_mapping.out")
    good.edit("VM10250117_7_target_mapping.out", ("DGC", "NRB"))
    verdicts = {port["fn"]: (port["verdict"], (port["reason"] or "")[:24]) for port in found(good)["ports"] if port["type"] == "FCoE"}
    assert verdicts == {"2": ("no storage", ""), "3": ("not known", "its target-mapping repor"),
                        "6": ("not judged", "a check does not come to"), "7": ("not allowed", "record 2 (line 22) allow")}


def test_json_holds_what_is_known_whatever_bytes_the_reports_hold(blade):
    blade.remove("is*")
    # A backslash, a quotation mark (read as a blank), a letter of two bytes, no UTF-8, an overlong slash, a control character.
    blade.edit("VM20713302_2_target_mapping.out", ("NRB", b'\\\\"\xc3\xa4\xff\xc0\xaf\x01'.decode("utf-8", "surrogateescape")))
    blade.edit("VM20713302_2_hba_attributes.out", ("^(Operational FW.*) .*", r"\1"))
    blade.edit("VM20713302_1_hba_attributes.out", ("^(FW Version.*) .*", r"\1 old"), ("^(Sub Device ID.*) .*", r"\1 ?"))
    answer = found(blade)
    assert [answer[key] for key in ("format", "version", "status", "error", "fibre-channel-ports")] == [1, VERSION, 1, None, 1]
    network, fcoe = answer["ports"][1:3]
    assert network == {
        "adapter": "VM20713302", "fn": "1", "port": "1", "type": "NIC", "model": "CNA-10102-FX", "pci-id": None, "wwn": None,
        "mac": "00:00:c9:b2:00:02", "bus": "15", "firmware": "4.6.142.10", "storage": None, "record": None, "line": None,
        "verdict": None, "reason": None}
    assert fcoe == network | {
        "fn": "2", "port": "0", "type": "FCoE", "pci-id": "19A2:0714:1C3E:11C2", "wwn": "10:00:00:00:c9:b2:00:11", "mac": None,
        "storage": {"vendor": "\\ \xe4\ufffd\ufffd\ufffd\x01", "product": "Marlovan_SX1", "version": "7.12"}, "record": 2, "line": 22,
        "verdict": "not allowed", "reason": "record 2 (line 22) allows DGC Marlovan_CX"}
    image = "blade/CNA-10102-FX/fx-"
    assert answer["flashes"][0] == {
        "adapter": "VM20713302", "fn": "0", "record": 4, "firmware": {"pattern": "*.ufi", "files": [image + "4.6.142.10.ufi"]},
        "bios": {"pattern": "*.grp", "files": [image + "bios-4.6.141.grp"]}}
    assert answer["flashes"][2] == {
        "adapter": "VM30550041", "fn": "0", "record": 5, "firmware": {"pattern": "is10102-", "files": []}, "bios": None}
    assert answer["notes"][0] == {"adapter": "VM20713302", "functions": ["1"], "text": answer["notes"][0]["text"]}
    # A terminal gets no byte that could change it.
    assert "\\ ?????? Marlovan_SX1" in simulated(blade).output


@pytest.mark.parametrize("words, status, notes", [
    ("-p 19A2:0714:1C3E:11C1,19A2:0712", 0, []),
    ("-p 19A2:0714,1:2:3:4", 1, ["--pci-id: no port has 1:2:3:4"]),
    ("-p 19A2:0714,,19A2:0700", 1, ["--pci-id: '19A2:0700' is not read: *"]),
    ("-p ,19A2:0700", 1, ["--pci-id: '19A2:0700' is not read: *", "--pci-id: no port has an empty group"]),
])
def test_the_selection(good, words, status, notes):
    expect(simulated(good, words), status, "...\nTo look at:" * bool(notes) + "".join(f"\n  {note}" for note in notes) if notes else "ADAPTER*\n...")


def test_a_selection_lists_ports_without_ids_too_and_misses_records(good):
    good.write("VM10250117_3_hba_attributes.out")
    good.edit(CONDITIONS, (".*0700.*11C1.*\n", ""))
    answer = found(good, "-p 19A2:0700")
    assert [(port["adapter"], port["fn"]) for port in answer["ports"]] == [
        ("VM20713302", "0"), ("VM20713302", "1"), ("VM10250117", "0"), ("VM10250117", "1"), ("VM10250117", "3")]
    assert re.match("no record has 19A2:0700:1C3E:11C1, so a flash writes nothing; add, ", answer["notes"][0]["text"])


def test_an_fcoe_flash_port_without_a_record_has_one_note(good):
    good.edit(LIST, (r"(VM10250117\nPort Number *: 0\n.*\nPCI Function *: 0\nPort Type *: )NIC", r"\1FCoE"))
    good.write("VM10250117_0_target_mapping.out", "Target Mapping for\n")
    good.edit(CONDITIONS, (".*0700.*11C1.*\n", ""))
    assert len(found(good, "-p 19A2:0700:1C3E:11C1")["notes"]) == 1


@pytest.mark.parametrize("words, status, text", [
    ("--version", 0, "lscna *.*.*.*"),
    ("-x", 2, "lscna: invalid option -- 'x'\nlscna: a bad call: *"),
    ("--conpath", 2, "lscna: option '--conpath' requires an argument\n..."),
    ("-s x", 2, "lscna: 'x' is no option"),
    ("-s -C ''", 2, "lscna: --conpath: the name of the directory is empty"),
    (f"-s -C {'x' * 1002}", 2, "lscna: --conpath: the name of the directory is too long"),
    ("-s -C gone", 2, "lscna: there is no directory gone/"),
    ("-s -C blade -p 19A2:07G0", 2, "lscna: --pci-id: not a list of *"),
    ("-s -C blade -p -1", 2, "lscna: --pci-id: the list begins with a minus sign"),
    (f"-s -C blade -p {'1' * 1024}", 2, "lscna: --pci-id: the list is too long"),
    ("-C blade", 2, "lscna: the vendor's CLI, /*, is not installed"),
])
def test_a_bad_call_says_why(blade, words, status, text):
    expect(blade.run(LSCNA, words), status, text)


@pytest.mark.parametrize("change, status, error", [
    (lambda blade: blade.remove(LIST), 2, "the list of ports, blade//local_hba_list.out, can't be read"),
    (lambda blade: blade.write(LIST, "none"), 3, "the list of ports, blade//local_hba_list.out, names no port"),
    (lambda blade: blade.edit("VM10250117_0_hba_attributes.out", ("0700", "1" * 17)), 2, "a report holds a number of more than 64 bits"),
])
def test_json_is_one_object_where_nothing_is_listed(blade, change, status, error):
    change(blade)
    result = simulated(blade, "--json")
    answer = json.loads(result.output[result.output.index("{"):])
    assert answer == {"format": 1, "version": VERSION, "status": status, "error": error, "ports": [], "fibre-channel-ports": 0, "flashes": [], "notes": []}
    assert result.status == status and f"lscna: {error}\n" in result.output


def listed(cli, words=""):
    return cli.run(LSCNA_STANDIN, f"-C blade -p 19A2:0714:1C3E:11C1 {words}")


@pytest.mark.parametrize("action, ending", [
    ("echo Target Mapping for 10:00:00:00:c9:a1:00:11; exit 3", "exit status 3"),
    ("cat cli/reports/VM10250117_2_t*; kill -9 $$", "signal 9"),
])
def test_a_port_whose_command_failed_is_not_known(cli, action, ending):
    """Its report may be cut anywhere: one that is whole is no proof."""
    cli.on("targetmapping3", action)
    expect(listed(cli), 1, f"...\nVM10250117   2 *  not known\n...\n  VM10250117, function 2: the CLI's command targetmapping ended with {ending}, *")


def test_a_command_that_could_not_be_run_makes_its_port_not_known(cli):
    (cli.files / MAPPING).mkdir()
    expect(listed(cli), 1, f"""...
VM10250117   2 *  not known
...
  the inventory ended at blade//{MAPPING}, which can't be read: *
  VM10250117, function 2: the CLI's command targetmapping could not be run: *""")


def test_the_list_can_not_be_made(cli):
    cli.on("listhbas1", "exit 1")
    expect(listed(cli), 2, "lscna: the CLI's command listhbas failed: see what it says in blade//local_hba_list.out")


def test_no_wait_ends_where_another_run_uses_the_cli_and_else_it_is_waited_for(cli):
    with open(cli.directory / "hbacmd") as lock:
        fcntl.flock(lock, fcntl.LOCK_EX)
        expect(listed(cli, "--no-wait"), 2, "lscna: another run uses the vendor's CLI")
        # Someone at a terminal sees what is waited for.
        waiting = cli.start("script", ["-qec", f"{LSCNA_STANDIN} -C blade", "/dev/null"])
        seen = b""
        while b"waiting for another run" not in seen:
            seen += os.read(waiting.stdout.fileno(), 1000)
    seen = waiting.communicate(timeout=60)[0].decode()
    assert "adapter list" in seen and "port 5 of 11: target mapping" in seen and waiting.returncode == 1


@pytest.mark.parametrize("lost", ["in the middle", "at the end"])
def test_output_that_is_lost_ends_with_2(blade, lost):
    """A pipe that has no room for a whole block, but for the rest of the output."""
    reader, writer = os.pipe()
    fcntl.fcntl(writer, fcntl.F_SETPIPE_SZ, 4096)
    os.set_blocking(writer, False)
    os.write(writer, b"x" * (1 if lost == "in the middle" else 4096))
    words = ["--simulate", "--conpath", "./" * 50 + "blade", *(["--json"] if lost == "in the middle" else [])]
    run = subprocess.run([LSCNA, *words], cwd=blade.directory, stdout=writer, stderr=subprocess.PIPE, text=True)
    assert (run.returncode, run.stderr) == (2, "lscna: standard output can't be written\n")
    os.close(reader), os.close(writer)


def test_completion_and_man_page_know_every_option_column_and_key(blade):
    help_text = blade.run(LSCNA, "--help").output
    options = re.findall(r"^  (-\w), (--[\w-]+)", help_text, re.MULTILINE)
    columns = re.findall(r"^  ([A-Z-]+) ", help_text[help_text.index("Columns:"):], re.MULTILINE)
    assert len(options) == 7 and len(columns) == 10
    script = f". {PROJECT}/completion/lscna; COMP_WORDS=(lscna -) COMP_CWORD=1; _lscna; echo ${{COMPREPLY[@]}}"
    assert set(blade.run("bash", ["-c", script]).output.split()) == {word for pair in options for word in pair}
    page = (PROJECT / "man/lscna.8.in").read_text().replace("\\-", "-")
    answer = found(blade)
    keys = {key for part in (answer, answer["ports"][0], answer["flashes"][0], answer["notes"][0], answer["flashes"][0]["bios"]) for key in part}
    words = re.split(r'[\s",]+|\\f.', page)
    assert [word for word in [*(word for pair in options for word in pair), *columns, *keys] if word not in words] == []
