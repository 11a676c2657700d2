"""The command line: what informs, the levels, the order of the words, the selections, the directories."""

import shutil

import pytest

from conftest import CNATOOL, CONDITIONS, FM, FX, expect

# The help's head, a line of each of its parts, and its end.
HELP = """\

name version *.*.*.*

USAGE:\t name [ options ]
...
--flash\t\t\tflash controller.
...
1) name -v 1 -pci-id "19A2:0700,19A2:0710:1C3E:11C1" -check-for-valid-subsystem
...
2) name -v 6 -pci-id "19A2:0714"  -ctrl-vendor-wide-identical
...
identical storage-sub-systems.

"""
STATUSES = """
List of possible return codes

   Valid return codes

   RET_OK                                   0
...
   RET_FATAL_ERROR                         55
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
    result = blade.run("./bin/name", word)
    expect(result, 0, HELP)
    # The tabs, lines and words of all of it.
    assert (result.output.count("\t"), result.output.count("\n"), len(result.output.split())) == (13, 70, 251)


@pytest.mark.parametrize("words, text", [
    pytest.param("--info bogus", "\ncnatool version *.*.*.*", id="info"),
    pytest.param("--version bogus", "*.*.*.*", id="version"),
    pytest.param("--show-return-codes bogus", STATUSES, id="return-codes"),
    # The levels are read before everything else.
    pytest.param("--version /v 0", "", id="level-0"),
    pytest.param("--version -d 6", "", id="debug"),
    pytest.param("--silent -v 3 --version", "", id="silent"),
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
    pytest.param("-v 7 x--silent", "", id="silent-after-it"),
    pytest.param("-v 3 --silent -d 7", "", id="silent-between"),
    pytest.param("-v 3 -d 3 --silent", "\nUsing options --debug and -v simultaneously is not supported!",
                 id="both-is-told-even-when-silent"),
])
def test_refused_level(blade, words, text):
    expect(blade.run(CNATOOL, words), 3, text)


# The words in their order; the first that can't be used ends the run.


@pytest.mark.parametrize("word", ["", "bogus", "-v--version", "x-mod", "x--ctrl-vendor-wide-identical", "--flashx",
                                  "--simulatex", "x--qmr-mode"])
def test_invalid_argument(blade, word):
    expect(blade.run(CNATOOL, [word, "--info"]), 3, f"\n\nInvalid argument '{word}' !\n")


def test_message_is_cut_to_4095_characters(blade):
    assert blade.run(CNATOOL, ["x" * 5000]) == (3, "\n\nInvalid argument '" + "x" * 4075)


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


HEX = '("1A0F,2B03,...hex-value")!'


@pytest.mark.parametrize("option, missing, unusable", [
    ("-subvid", f"at least one controller sub-vendor-id {HEX}", None),
    ("-vid", f"at least one controller vendor-id {HEX}", None),
    ("-mod", 'at least one controller-model string ("LPe11002-M4, RM480-TC31n, QLE2460... ")!', None),
    ("-vn", 'at least one controller vendor-name ("Emulex, QLogic, ... ")!', None),
    ("-dev", f"at least one controller device-id {HEX}", 'at least one controller device-id ("hex-value")!'),
    ("-subdev", f"at least one controller sub-device-id {HEX}", 'at least one controller sub-device-id ("hex-value")!'),
    ("-pci-id", 'at least one pair of vendor- and device-id ("1A0F:2B03,...hex-value")!',
     'at least one pair of vendor- and device-id ("1A0F:2B03,...hex-value")'),
    ("--conpath", "a path for file FC_HBA_Conditions.txt and/or HBA firmware!", None),
    # A word that contains two options is the one that is tried first.
    ("-vid-subvid", f"at least one controller sub-vendor-id {HEX}", None),
])
def test_option_without_a_value(blade, option, missing, unusable):
    expect(blade.run(CNATOOL, [option]), 3, f"Please enter {missing}")
    for value in "", "-x", "/tmp":
        expect(blade.run(CNATOOL, [option, value]), 3, f"Please enter {unusable or missing}")


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


# The selections.


@pytest.mark.parametrize("words, status", [
    pytest.param(f"-vid 1 {FM}", 0, id="ids-last"),
    pytest.param("-pci-id '19A2:0714:1C3E:11C1 \n'", 0, id="ids-and-a-newline"),
    pytest.param(f"{FM} -vid 1", 12, id="list-last"),
    pytest.param("-dev 1,714 -vid 10DF,19A2 -subdev 2,11C1 -subvid 3,1C3E", 0, id="lists-are-filled-side-by-side"),
    pytest.param("-vid 1,2 -dev 714 -vid 19A2", 0, id="second-list-overwrites-the-first"),
])
def test_selection(blade, words, status):
    expect(blade.simulated(f"--silent {words}"), status)


@pytest.mark.parametrize("words, text", [
    pytest.param("-v 2 -pci-id 1:2 -vid 1", "", id="at-level-2"),
    # Colons in a row are one, and two commas in a row end the list.
    pytest.param("-v 6 -pci-id 0x19a2::0710:1C3E:11C1:,,1:2", '\nList of input pci-ids: "*,,1:2"\n\n'
                 "\tVendor-Id 0x19a2\n\tDevice-Id 0x710\n\tSubVendor-Id 0x1c3e\n\tSubDevice-Id 0x11c1\n", id="first"),
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
    pytest.param("-vid 10DF,FFFFFFFF", 55, "Error: Vendor-Id FFFFFFFF is not a valid hex value!", id="list"),
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
