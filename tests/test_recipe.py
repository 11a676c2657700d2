"""The shell recipe of docs/automation.md: what it makes of statuses, and of faults that would go unnoticed."""

import os
import re
import signal
import time

import pytest

from conftest import CNATOOL_STANDIN, CONDITIONS, LSCNA_STANDIN, PROJECT

RECIPE = re.search("^```sh\n(.*?)^```$", (PROJECT / "docs/automation.md").read_text(), re.M | re.S)[1]
REPORT = "blade/VM20713302_3_target_mapping.out"
ALL_WELL = (0, "go on: all ports judged, all images written")


@pytest.fixture
def blade(cli):
    """The blade with the stand-in, storage that is allowed and the same in the reports of an earlier run."""
    cli.edit("*_target_mapping.out", (": NRB", ": DGC"), ("_SX1", "_CX1"))
    for report in cli.reports.iterdir():
        (cli.files / report.name).write_bytes(report.read_bytes())
    (cli.directory / "recipe").write_text(RECIPE)
    (cli.directory / "tmp").mkdir()
    program(cli, "tool", f'exec {CNATOOL_STANDIN} --conpath blade "$@"')
    program(cli, "list", f'exec {LSCNA_STANDIN} --conpath blade "$@"')
    return cli


def program(cli, name, text):
    (cli.directory / name).write_text(f"#!/bin/sh\n{text}\n")
    (cli.directory / name).chmod(0o755)


def start(cli, adapters="required", shell="sh recipe"):
    return cli.start("env", shell, {"TOOL": "./tool", "LSCNA": "./list", "ADAPTERS": adapters, "TMPDIR": "tmp"})


def end(cli, process):
    """The recipe's status and last line; it leaves nothing in the temporary directory."""
    output, _ = process.communicate(timeout=60)
    assert not os.listdir(cli.directory / "tmp")
    return process.returncode, os.fsdecode(output).splitlines()[-1]


def downloads(cli):
    return [call.split("/")[-1].rstrip("]") for call in cli.calls if call.startswith("download")]


@pytest.mark.parametrize("shell", ["sh", "bash", "busybox sh"])
def test_blade_is_checked_and_flashed(blade, shell):
    assert end(blade, start(blade, shell=f"{shell} recipe")) == ALL_WELL
    assert downloads(blade) == ["fm10102-4.6.142.10.ufi", "fx-4.6.142.10.ufi", "fx-bios-4.6.141.grp"]


@pytest.mark.parametrize("tool, statuses", [
    pytest.param("--ctrl*) exit {}", {1: 1, 2: 1, 3: 3, 4: 1, 12: 3, 13: 3, 15: 3, 22: 3, 54: 3, 55: 3, 127: 3, 143: 3},
                 id="check"),
    pytest.param("--flash*) exit {}", {0: 3, 10: 3, 12: 3, 13: 3, 54: 3, 143: 3}, id="flash-that-has-written-nothing"),
    pytest.param('--flash*) ./real "$@"; exit {}', {10: 2, 12: 2, 20: 2, 21: 2, 54: 2, 143: 2},
                 id="flash-that-has-written"),
])
def test_statuses(blade, tool, statuses):
    came = {}
    (blade.directory / "tool").rename(blade.directory / "real")
    program(blade, "list", "")
    for status in statuses:
        program(blade, "tool", f'case $* in {tool.format(status)};; *--ctrl*) ;; *) ./real "$@";; esac')
        came[status], last = end(blade, start(blade, "optional"))
        assert last.startswith(("storage: ", "flash: ", "set-up: ")[came[status] - 1])
    assert came == statuses


# A fault, whether the blade may be without adapters, how the recipe ends and how many images are written by then.
NOT_JUDGED, LEFT_OUT = "set-up: the check ended with 0, ./list with 1", "storage: status 4, leave this blade out"
FLASH = "flash: status {}, do not restart, stop the fleet"


@pytest.mark.parametrize("fault, adapters, status, last, images", [
    pytest.param(lambda b: b.edit("VM20713302_3_target_mapping.out", (": DGC", ": NRB")), "required",
                 1, LEFT_OUT, 0, id="storage-that-is-not-allowed"),
    pytest.param(lambda b: program(b, "tool", "echo strtoul: >&2; exit 1"), "required",
                 3, "set-up: the check ended with 1, ./list with 0", 0, id="number-of-more-than-64-bits"),
    pytest.param(lambda b: (b.directory / "list").unlink(), "required",
                 3, "set-up: there is no program ./list", 0, id="no-lscna"),
    # The CLI that lists no port, and one that fails over the list of an earlier run.
    pytest.param(lambda b: b.write("local_hba_list.out"), "optional", 0, "go on: no adapters", 0, id="no-adapters"),
    pytest.param(lambda b: b.write("local_hba_list.out"), "required",
                 3, "set-up: the check ended with 13, ./list with 3", 0, id="no-adapters-but-required"),
    pytest.param(lambda b: program(b, "hbacmd", "exit 1"), "optional",
                 3, "set-up: the check ended with 13, ./list with 2", 0, id="failing-CLI"),
    # What status 0 of a check does not tell.
    pytest.param(lambda b: b.edit(CONDITIONS, ("0714", "0715")), "required", 3, NOT_JUDGED, 0, id="no-record"),
    pytest.param(lambda b: b.on("targetmapping1", f"rm {REPORT}; mkdir -p {REPORT}/x"), "required",
                 3, NOT_JUDGED, 0, id="report-of-an-earlier-run-stays"),
    pytest.param(lambda b: b.on("targetmapping6", "head -n 1 cli/reports/VM20713302_2_t*; exit 1"), "required",
                 3, NOT_JUDGED, 0, id="storage-is-cut-off-at-its-title"),
    pytest.param(lambda b: b.on("targetmapping6", "head -n 13 cli/reports/VM20713302_2_t*; exit 1"), "required",
                 3, NOT_JUDGED, 0, id="storage-is-cut-off-at-its-first-LUN"),
    pytest.param(lambda b: (b.edit("VM20713302_3_target_mapping.out", (": DGC", ": NRB")),
                            b.edit(CONDITIONS, (r"Marlovan_CX \|", r"Marlovan_CX | x | NRB | |")),
                            b.on("targetmapping1", "exit 1")), "required",
                 1, "storage: status 1, leave this blade out", 0, id="storage-that-differs-is-seen-later"),
    pytest.param(lambda b: b.write("fm10102-old"), "required", 3, NOT_JUDGED, 0, id="two-images-of-one-name"),
    pytest.param(lambda b: program(b, "list", f'{LSCNA_STANDIN} --conpath blade "$@" || exit; touch blade/fm10102-old'),
                 "required", 3, NOT_JUDGED, 0, id="second-image-comes-behind-lscna"),
    pytest.param(lambda b: program(b, "list", f'''{LSCNA_STANDIN} --conpath blade "$@" || exit
                                   mkdir -p blade/CNA-10102-FM; echo >blade/CNA-10102-FM/fm10102-new'''),
                 "required", 3, "set-up: files or ports change meanwhile", 0, id="other-image-comes-behind-lscna"),
    # A flash that does not write what was planned.
    pytest.param(lambda b: b.on("listhbas3", "rm cli/reports/VM10250117_[01]*"), "required",
                 2, FLASH.format(0), 2, id="adapter-is-left-out"),
    pytest.param(lambda b: b.on("listhbas3", "mv blade/*FX/* blade; rmdir blade/*FX"), "required",
                 2, FLASH.format(0), 3, id="images-from-beside-the-directory-of-the-model"),
    pytest.param(lambda b: b.on("listhbas3", "rm -r blade/*FX"), "required",
                 2, FLASH.format(20), 1, id="directory-of-the-model-is-gone"),
    pytest.param(lambda b: b.on("download2", "rm blade/*FX/*.grp"), "required",
                 2, FLASH.format(0), 2, id="image-of-the-BIOS-is-gone"),
    pytest.param(lambda b: b.on("download3", "exit 7"), "required", 2, FLASH.format(10), 3, id="failing-download"),
])
def test_fault(blade, fault, adapters, status, last, images):
    fault(blade)
    assert end(blade, start(blade, adapters)) == (status, last)
    assert len(downloads(blade) if (blade.directory / "cli/calls.log").exists() else []) == images


def test_messages_that_are_lost(blade):
    """Without room for what the flash says nobody knows whether it has begun."""
    (blade.directory / "tool").rename(blade.directory / "real")
    program(blade, "tool", 'case $* in --flash*) printf %099999d 0; exit 13;; esac; exec ./real "$@"')
    status, last = end(blade, start(blade, shell="sh -c 'ulimit -f 99; . ./recipe'"))
    assert status == 2 and last.endswith(", its messages lost, do not restart, stop the fleet")


# A signal in a check ends the recipe; in a download it ends the tool, at the download's end.


@pytest.mark.parametrize("call, to_all, ends", [
    pytest.param("targetmapping1", True, (3, "set-up: a signal, nothing is flashed"), id="check"),
    pytest.param("targetmapping1", False, (3, "set-up: a signal, nothing is flashed"), id="check-recipe-alone"),
    pytest.param("download1", True, (2, FLASH.format(143)), id="first-download"),
    pytest.param("download1", False, ALL_WELL, id="first-download-recipe-alone"),
])
def test_signal(blade, call, to_all, ends):
    blade.on(call, "touch reached; sleep 0.5")
    process = start(blade)
    while not (blade.directory / "reached").exists() and process.poll() is None:
        time.sleep(0.01)
    (os.killpg if to_all else os.kill)(process.pid, signal.SIGTERM)
    assert end(blade, process) == ends
    assert len(downloads(blade) if call == "download1" else []) == (1 if ends[0] == 2 else 3 if ends[0] == 0 else 0)
