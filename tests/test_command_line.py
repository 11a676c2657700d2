"""The command line: what informs, the levels, the order of the words, the selections, the directories."""

import shutil

import pytest

from conftest import BOTH, CNATOOL, CONDITIONS, FM, FX, expect

HELP = """\

name version *.*.*.*

USAGE:\t name [ options ]

Options

--ctrl-wide-identical  | --ctrl-vendor-wide-identical | --check-for-valid-subsystem

-v (1 ... 6 ) | -d (1 ... 6 )

-? | --help (-h)| --show-return-codes (-sr) | --version.



-pci-id "vendor-id:device-id[:subvendor-id:subdevice-id],[vendor-id:device-id[:...]]"
 <hex-value:hex-value[:hex-value[:hex-value]], ...>; (ex. "19A2:0710,19A2:0714").

--ctrl-wide-identical
   check, whether per controller only identical storage-sub-systems are attached.
   (ex. only NRB Marlovan_SX1 systems are attached?).
--ctrl-vendor-wide-identical
   check, whether all members of a controller-family are attached to identical
   storage-sub-systems (ex. all Emulex controller are attached to DGC Marlovan_CX1 systems?).
--check-for-valid-subsystem
   check, whether valid subsystems are attached.
   default (only if option --flash is not set).

--qmr-mode
   program exits with return-code 0 (OK) instead of return-code 13
   (No FC-controller installed).

--silent
   no output-data will be logged or printed (especially in combination with option -v or -d).

--conpath <path>
   path of directory in which FC_HBA_Conditions.txt is diposited.

--flash\t\t\tflash controller.

--show-return-codes\tshow return-code list.

--version\t\tshow version of this program.

--help\t\t\tshow help message.

-?\tshow help message.

-v (1,...,6)\tverbose-level (min, 1 to max, 6).

-d (1,...,6)\tdebug-level (min, 1 to max, 6; output can be found in Merlie_DLL.log).

Examples:

1) name -v 1 -pci-id "19A2:0700,19A2:0710:1C3E:11C1" -check-for-valid-subsystem

At least a pair of vendor-id and device-id must be given.
Also a pair of subvendor-id and subdevice-id can be added.
Each group of PCI-IDs represents a distinct PCI controller.
Different PIC-ID groups must be comma separated.

Checks, whether valid and supported storage-sub-systems are attached.


2) name -v 6 -pci-id "19A2:0714"  -ctrl-vendor-wide-identical

Checks, whether all Emulex FCoE controller are attached to valid, supported and
identical storage-sub-systems.

"""
BAD_VERBOSE = "Please enter a valid verbose-level (-v <verbose-level>; min 0 - max 6)!"
BAD_DEBUG = "Please enter a valid debug-level (-d <debug-level>; min 0 - max 6)!"


def missing_conditions(directory):
    path = f"{directory}/{CONDITIONS}"
    return f"Error: Could not open file {path}\n\nCann't access file {path}.\n"


# What only informs. A slash at the beginning counts as a dash.


@pytest.mark.parametrize("word", ["-?", "-h", "--help", "--hiddenhelp", "/h"])
def test_help_has_the_name_that_was_typed(blade, word):
    (blade.directory / "bin").mkdir()
    shutil.copy(CNATOOL, blade.directory / "bin/name")
    expect(blade.run("./bin/name", word), 0, HELP)


@pytest.mark.parametrize("words, text", [
    pytest.param("--info bogus", "\ncnatool version *.*.*.*", id="info"),
    pytest.param("--version bogus", "*.*.*.*", id="version"),
    # A unit test holds the list against the statuses.
    pytest.param("--show-return-codes bogus", "\nList of possible return codes\n...", id="return-codes"),
    pytest.param("--show-return-code bogus", "\nList of possible return codes\n...", id="return-code"),
    # The levels are read before everything else.
    pytest.param("--version /v 0", "", id="level-0"),
    pytest.param("--version -d 6", "", id="debug"),
    pytest.param("--silent -v 3 --version", "", id="silent-before-a-level"),
    pytest.param("-v 3 x--silent --version", "", id="silent-after-a-level"),
])
def test_information_ends_the_run(blade, words, text):
    expect(blade.run(CNATOOL, words), 0, text)


@pytest.mark.parametrize("words, text", [
    pytest.param("-h -v 7", BAD_VERBOSE, id="above-6"),
    pytest.param("-v", BAD_VERBOSE, id="missing"),
    pytest.param("-v 0x3", BAD_VERBOSE, id="hexadecimal"),
    pytest.param("-v3 4", BAD_VERBOSE, id="attached"),
    pytest.param("-d 7", BAD_DEBUG, id="debug-above-6"),
    pytest.param("--debug 3", BAD_DEBUG, id="debug-in-letters"),
    pytest.param("--silent -v 7", "", id="silent-before-it"),
    pytest.param("-v 7 x--silent", "", id="silent-after-it"),
    pytest.param("-v 3 --silent -d 7", "", id="silent-between"),
    pytest.param("-v 3 -d 3 --silent", "\nUsing options --debug and -v simultaneously is not supported!",
                 id="both-is-told-even-when-silent"),
])
def test_refused_level(blade, words, text):
    expect(blade.run(CNATOOL, words), 3, text)


def test_level_of_more_than_64_bits(blade):
    expect(blade.run(CNATOOL, "-v 29999999999999999999999999999"), 1, "strtoul: Numerical result out of range")


# The words in their order; the first that can't be used ends the run.


@pytest.mark.parametrize("word", ["", "bogus", "-v--version", "x-mod", "x--ctrl-vendor-wide-identical", "--flashx",
                                  "--simulatex", "x--qmr-mode"])
def test_invalid_argument(blade, word):
    expect(blade.run(CNATOOL, [word, "--info"]), 3, f"\n\nInvalid argument '{word}' !\n")


@pytest.mark.parametrize("words, status", [
    pytest.param(f"x{FM}", 0, id="pci-id"),
    pytest.param("x-vid 19A2 x-dev 714 x-subvid 1C3E x-subdev 11C1", 0, id="lists"),
    pytest.param("x-vn Emulex -model M", 12, id="names"),
    pytest.param("--qmr-modex", 0, id="qmr-mode"),
    pytest.param(f"x--check-for-valid-subsystem --flash {FX}", 4, id="check-for-valid-subsystem"),
    pytest.param(f"x--ctrl-wide-identical --flash {FX}", 4, id="ctrl-wide-identical"),
])
def test_a_word_need_only_contain_most_options(blade, words, status):
    expect(blade.run(CNATOOL, f"x--conpath blade --simulate --silent {words}"), status)


MISSING_VALUE = {
    "-subvid": 'at least one controller sub-vendor-id ("1A0F,2B03,...hex-value")!',
    "-vid": 'at least one controller vendor-id ("1A0F,2B03,...hex-value")!',
    "-mod": 'at least one controller-model string ("LPe11002-M4, RM480-TC31n, QLE2460... ")!',
    "-vn": 'at least one controller vendor-name ("Emulex, QLogic, ... ")!',
    "-dev": 'at least one controller device-id ("1A0F,2B03,...hex-value")!',
    "-subdev": 'at least one controller sub-device-id ("1A0F,2B03,...hex-value")!',
    "-pci-id": 'at least one pair of vendor- and device-id ("1A0F:2B03,...hex-value")!',
    "--conpath": "a path for file FC_HBA_Conditions.txt and/or HBA firmware!",
    # A word that contains two options is the one that is tried first.
    "-vid-subvid": 'at least one controller sub-vendor-id ("1A0F,2B03,...hex-value")!',
    "-v-vid": 'at least one controller vendor-id ("1A0F,2B03,...hex-value")!',
}
UNUSABLE_VALUE = MISSING_VALUE | {
    "-dev": 'at least one controller device-id ("hex-value")!',
    "-subdev": 'at least one controller sub-device-id ("hex-value")!',
    "-pci-id": 'at least one pair of vendor- and device-id ("1A0F:2B03,...hex-value")',
}


@pytest.mark.parametrize("value", [None, "", "-x", "/tmp"], ids=lambda value: "empty" if value == "" else value)
@pytest.mark.parametrize("option", MISSING_VALUE)
def test_option_without_a_value(blade, option, value):
    text = (MISSING_VALUE if value is None else UNUSABLE_VALUE)[option]
    expect(blade.run(CNATOOL, [option] if value is None else [option, value]), 3, f"Please enter {text}")


@pytest.mark.parametrize("words, name", [("-vid 1 -vn A -mod M", "-vn"), ("-dev 1 -vn A", "-vn"),
                                         ("-subvid 1 -mod M", "-mod"), ("-subdev 1 -mod M", "-mod")])
def test_ids_exclude_names(blade, words, name):
    expect(blade.run(CNATOOL, words), 3, '\n\nCombining options "-vid", "-subvid", "-dev", "-subdev" together with '
           f'option "{name}" is not supported.\t!')


@pytest.mark.parametrize("words, option, needed, values", [
    ("-mod M", "-mod", "-vn", "vendor-names"),
    ("-dev 1", "-dev", "-vid", "one or more vendor-ids"),
    ("-vid 1 -subvid 1", "-subvid", "-dev", "one or more device-ids"),
    ("-vid 1 -dev 1 -subdev 1", "-subdev", "-subvid", "one or more subvendor-ids"),
    ("-vid 1 -dev 1 -subvid 1", "-subvid", "-subdev", "one or more subdevice-ids"),
])
def test_option_needs_another(blade, words, option, needed, values):
    expect(blade.run(CNATOOL, words), 3,
           f'\n\nPlease, also specify {values} (option "{needed}")\n, if using option "{option}"!')


@pytest.mark.parametrize("words, told", [
    (f"--ctrl-wide-identical {FM}", "OverallSubSystemCheck returned: 0"),
    (f"--ctrl-vendor-wide-identical {BOTH}", "OverallSubSystemCheck returned: 0"),
    (f"--flash {FX}", "Look for firmware file"),
], ids=["ctrl-wide", "vendor-wide", "flash"])
def test_default_check_is_left_out_beside(blade, words, told):
    blade.edit("VM10250117_3_target_mapping.out", (": DGC", ": NRB"), ("_CX1", "_SX1"))
    assert told in blade.simulated(f"-v 3 {words}").output


# The selections.


@pytest.mark.parametrize("words, status", [
    pytest.param(f"-vid 1 {FM}", 0, id="ids-last"),
    pytest.param(f"{FM} -vid 1", 12, id="list-last"),
    pytest.param("-dev 1,714 -vid 10DF,19A2 -subdev 2,11C1 -subvid 3,1C3E", 0, id="lists-are-filled-side-by-side"),
    pytest.param("-vid 1,2 -dev 714 -vid 19A2", 0, id="second-list-overwrites-the-first"),
])
def test_selection(blade, words, status):
    expect(blade.simulated(f"--silent {words}"), status)


@pytest.mark.parametrize("words, text", [
    pytest.param("-v 2 -pci-id 1:2 -vid 1", "", id="at-level-2"),
    pytest.param("-v 5 -pci-id 1:2", '\nList of input pci-ids: "1:2"\n', id="at-level-5"),
    # Colons in a row are one, and two commas in a row end the list.
    pytest.param("-v 6 -pci-id 0x19a2::0710:1C3E:11C1:,,1:2", '\nList of input pci-ids: "*,,1:2"\n\n'
                 "\tVendor-Id 0x19a2\n\tDevice-Id 0x710\n\tSubVendor-Id 0x1c3e\n\tSubDevice-Id 0x11c1\n", id="at-level-6"),
    pytest.param("-v 6 -pci-id ,1:2", "\nList*\n\n*Id 0x0\n*Id 0x0\n*Id 0x0\n*Id 0x0\n", id="no-first-group"),
    pytest.param("-v 6 -pci-id 1:2:3:4,5:6 -pci-id 7:8,:,", '...\nList of input pci-ids: "7:8,:,"\n'
                 "\n* 0x7\n* 0x8\n* 0x3\n* 0x4\n\n* 0x5\n* 0x6\n* 0x0\n* 0x0\n", id="second-list-of-pci-ids"),
    pytest.param("-v 3 -vid ,10DF,,19A2 -dev 0714 -subvid 1C3E -subdev 11C1",
                 "List of input vendor-ids: ,10DF,,19A2\n0. Vendor-Id: 0x10df\n1. Vendor-Id: 0x19a2\n"
                 "List of input device-ids: 0714\n0. Device-Id: 0x714\n"
                 "List of input sub-vendor-ids: 1C3E\n0. SubVendor-Id: 0x1c3e\n"
                 "List of input sub-device-ids: 11C1\n0. SubDevice-Id: 0x11c1\n", id="lists-of-ids"),
    # Names keep their blanks and are cut to 19 characters.
    pytest.param("-v 3 -vn 'Emulex, QLogic' -mod 'more than 19 characters'",
                 "List of input vendor-names: Emulex, QLogic\n0. Vendor: Emulex\n1. Vendor:  QLogic\n"
                 "List of input controller-model strings: more*characters\n0. Model: more than 19 charac\n",
                 id="names"),
])
def test_selection_is_shown(blade, words, text):
    expect(blade.run(CNATOOL, f"{words} --version"), 0, f"{text}*.*.*.*")


@pytest.mark.parametrize("words, status, text", [
    pytest.param("-v 2 -pci-id 19A2:0710:1C3E", 3, "Error: List of PCI-IDs 19A2:0710:1C3E is incomplete!",
                 id="three-fields"),
    pytest.param("-pci-id 1:2,19A2", 3, "", id="incomplete-at-level-1"),
    pytest.param("-v 2 -pci-id 19A2:0710:1C3E:11C1:1", 55, "", id="five-fields"),
    pytest.param("-v 2 -pci-id '19A2:07G0  '", 55, "Error: Device-Id 07G0 is not a valid hex value!", id="pci-id"),
    pytest.param("-pci-id 19A2:07G0", 55, "", id="pci-id-at-level-1"),
    pytest.param("-vid 10DF,FFFFFFFF", 55, "Error: Vendor-Id FFFFFFFF is not a valid hex value!", id="vendor"),
    pytest.param("-dev ' '", 55, "Error: Device-Id  is not a valid hex value!", id="device"),
    pytest.param("-subvid 1x", 55, "Error: SubVendor-Id 1x is not a valid hex value!", id="subvendor"),
    pytest.param("-subdev 1,-1", 55, "Error: SubDevice-Id -1 is not a valid hex value!", id="subdevice"),
])
def test_refused_selection(blade, words, status, text):
    expect(blade.run(CNATOOL, words), status, text)


@pytest.mark.parametrize("option", ["-model", "-pci-id"])
def test_longest_value(blade, option):
    expect(blade.run(CNATOOL, [option, "0" * 1020 + "1:1", "--version"]), 0, "*.*.*.*")
    expect(blade.run(CNATOOL, [option, "0" * 1021 + "1:1"]), 3,
           f"\n\nValue of option '{option}' is too long (at most 1023 characters)!\n")


# The directories.


def test_longest_directory(blade):
    longest = "/".join(["0" * 200] * 5)[:1001]
    expect(blade.run(CNATOOL, ["--conpath", longest]), 15, missing_conditions(longest))
    expect(blade.run(CNATOOL, ["--conpath", f"{longest}0"]), 3,
           f"\n\nPath '{longest}0' is too long (at most 1001 characters)!\n")


# Beside the program as it was typed, or in the current directory when it was found by its bare name.
@pytest.mark.parametrize("command, status, text", [
    pytest.param("../blade/name", 15, missing_conditions("../blade"), id="beside-the-program"),
    pytest.param("name", 15, missing_conditions("*/here"), id="in-the-current-directory"),
    pytest.param("mkdir gone && cd gone && rmdir ../gone && name", 3,
                 "\n\nCannot determine the current directory: No such file or directory\n", id="no-current-directory"),
    pytest.param("mkdir -p $0/$0/$0/$0/$0 && cd $0/$0/$0/$0/$0 && name", 3,
                 "\n\nPath '*' is too long (at most 1001 characters)!\n", id="too-long"),
])
def test_files_are_looked_for(blade, command, status, text):
    (blade.directory / "here").mkdir()
    shutil.copy(CNATOOL, blade.directory / "blade/name")
    blade.remove(CONDITIONS)
    expect(blade.run("sh", ["-c", f"cd here && {command}", "0" * 200], {"PATH": f"{blade.files}:/usr/bin:/bin"}),
           status, text)


@pytest.mark.parametrize("env, text", [
    pytest.param({}, "Environment variable TMPDIR is not set.", id="unset"),
    pytest.param({"TMPDIR": ""}, "Environment variable TMPDIR is empty.", id="empty"),
    pytest.param({"TMPDIR": "/var/tmp"}, "Temporary directory is: /var/tmp.", id="set"),
])
def test_temporary_directory_is_told_at_level_3(blade, env, text):
    expect(blade.run(CNATOOL, "-v 2 --conpath none", env), 15, missing_conditions("none"))
    expect(blade.run(CNATOOL, "-v 3 --conpath none", env), 15,
           f"env: {text}\nHBA conditions file: none/{CONDITIONS}\n{missing_conditions('none')}")
