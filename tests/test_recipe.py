"""The shell recipe of docs/automation.md: what it makes of statuses, and of faults that would go unnoticed."""

import os
import re
import signal

import pytest

from conftest import CONDITIONS, DGC_FOR_NRB, LIST, LSCNA_STANDIN, PROJECT, REAL, wait_until

RECIPE = re.search("^```sh\n(.*?)^```$", (PROJECT / "docs/automation.md").read_text(), re.M | re.S)[1]
IMAGES = ["fm10102-4.6.142.10.ufi", "fx-4.6.142.10.ufi", "fx-bios-4.6.141.grp"]
REPORT = "blade/VM20713302_3_target_mapping.out"


@pytest.fixture
def blade(cli):
    """The blade with the stand-in, storage that is allowed and the same in the reports of an earlier run."""
    cli.edit("*_target_mapping.out", *DGC_FOR_NRB)
    for report in cli.reports.iterdir():
        (cli.files / report.name).write_bytes(report.read_bytes())
    (cli.directory / "recipe").write_text(RECIPE)
    (cli.directory / "tmp").mkdir()
    program(cli, "real", f'exec {REAL} "$@"')
    program(cli, "tool", 'exec ./real "$@"')
    program(cli, "list", f'exec {LSCNA_STANDIN} --conpath blade "$@"')
    return cli


def program(cli, name, text):
    (cli.directory / name).write_text(f"#!/bin/sh\n{text}\n")
    (cli.directory / name).chmod(0o755)


def start(cli, adapters="optional", words="sh recipe"):
    return cli.start("env", words, {"TOOL": "./tool", "LSCNA": "./list", "ADAPTERS": adapters, "TMPDIR": "tmp"})


def end(cli, process):
    """The recipe's status, its last line and the images that it has written; it leaves no temporary files."""
    output, _ = process.communicate(timeout=60)
    assert not os.listdir(cli.directory / "tmp")
    calls = cli.calls if (cli.directory / "cli/calls.log").exists() else []
    images = [call.split("/")[-1].rstrip("]") for call in calls if call.startswith("download")]
    return process.returncode, os.fsdecode(output).splitlines()[-1], images


ALL_WELL = 0, "go on: all ports judged, all images written", IMAGES
NOT_JUDGED = 3, "set-up: the check ended with 0, ./list with 1", []


def storage(status):
    return 1, f"storage: status {status}, leave this blade out", []


def flash(status, images):
    return 2, f"flash: status {status}, do not restart, stop the fleet", images


@pytest.mark.parametrize("shell", ["sh", "bash", "busybox sh"])
def test_blade_is_checked_and_flashed(blade, shell):
    assert end(blade, start(blade, words=f"{shell} recipe")) == ALL_WELL


@pytest.mark.parametrize("tool, statuses", [
    ("--ctrl*) exit {}", {1: 1, 2: 1, 3: 3, 4: 1, 12: 3, 13: 3, 15: 3, 22: 3, 54: 3, 55: 3, 127: 3, 143: 3}),
    ("--flash*) exit {}", {0: 3, 10: 3, 12: 3, 13: 3, 54: 3, 143: 3}),
    ('--flash*) ./real "$@"; exit {}', {10: 2, 12: 2, 20: 2, 21: 2, 54: 2, 143: 2}),
], ids=["check", "flash-that-has-written-nothing", "flash-that-has-written"])
def test_statuses(blade, tool, statuses):
    came = {}
    program(blade, "list", "")
    for status in statuses:
        program(blade, "tool", f'case $* in {tool.format(status)};; *--ctrl*) ;; *) ./real "$@";; esac')
        came[status], last, _ = end(blade, start(blade))
        assert last.startswith(("storage: ", "flash: ", "set-up: ")[came[status] - 1])
    assert came == statuses


def test_blade_without_adapters(blade):
    blade.write(LIST)
    assert end(blade, start(blade)) == (0, "go on: no adapters", [])
    assert end(blade, start(blade, "required")) == (3, "set-up: the check ended with 13, ./list with 3", [])


FAULTS = {
    "storage": (storage(4), lambda b: b.edit("VM20713302_3_target_mapping.out", (": DGC", ": NRB"))),
    "storage-that-the-first-check-can't-see": (storage(1), lambda b: (
        b.edit("VM20713302_3_target_mapping.out", (": DGC", ": NRB")), b.on("targetmapping1", "exit 1"),
        b.edit(CONDITIONS, (r"Marlovan_CX \|", r"Marlovan_CX | x | NRB | |")))),
    "number-of-more-than-64-bits": ((3, "set-up: the check ended with 1, ./list with 0", []),
                                    lambda b: program(b, "tool", "echo strtoul: >&2; exit 1")),
    "no-lscna": ((3, "set-up: there is no program ./list", []), lambda b: (b.directory / "list").unlink()),
    "CLI-that-fails": ((3, "set-up: the check ended with 13, ./list with 2", []),
                       lambda b: program(b, "hbacmd", "exit 1")),
    "no-record": (NOT_JUDGED, lambda b: b.edit(CONDITIONS, ("0714", "0715"))),
    "earlier-report-stays": (NOT_JUDGED, lambda b: b.on("targetmapping1", f"rm {REPORT}; mkdir -p {REPORT}/x")),
    "storage-is-cut": (NOT_JUDGED, lambda b: b.on("targetmapping6", "head -n 13 cli/reports/VM20713302_2_t*; exit 1")),
    "second-image-behind-lscna": (NOT_JUDGED, lambda b: program(
        b, "list", f'{LSCNA_STANDIN} --conpath blade "$@" || exit; echo >blade/fm10102-new')),
    "other-image-behind-lscna": ((3, "set-up: files or ports change meanwhile", []), lambda b: program(
        b, "list", f'{LSCNA_STANDIN} --conpath blade "$@"; mv blade/fm10102-4* blade/fm10102-new || :')),
    "other-image-in-the-flash": (flash(0, [IMAGES[0], "x.ufi", IMAGES[2]]), lambda b: b.on(
        "listhbas3", "mv blade/*FX/*.ufi blade/CNA-10102-FX/x.ufi")),
    "no-directory-in-the-flash": (flash(20, IMAGES[:1]), lambda b: b.on("listhbas3", "rm -r blade/*FX")),
    "no-BIOS-in-the-flash": (flash(0, IMAGES[:2]), lambda b: b.on("download2", "rm blade/*FX/*.grp")),
}


@pytest.mark.parametrize("ends, fault", FAULTS.values(), ids=FAULTS)
def test_fault(blade, ends, fault):
    fault(blade)
    assert end(blade, start(blade)) == ends


def test_messages_that_are_lost(blade):
    """Without room for what the flash says nobody knows whether it has begun."""
    program(blade, "tool", 'case $* in --flash*) printf %099999d 0; exit 13;; esac; exec ./real "$@"')
    status, last, _ = end(blade, start(blade, words="sh -c 'ulimit -f 99; . ./recipe'"))
    assert status == 2 and last.endswith(", its messages lost, do not restart, stop the fleet")


@pytest.mark.parametrize("call, send, ends", [
    ("targetmapping1", os.killpg, (3, "set-up: a signal, nothing is flashed", [])),
    ("download1", os.killpg, flash(143, IMAGES[:1])),
    ("download1", os.kill, ALL_WELL),
], ids=["check", "download", "download-recipe-alone"])
def test_signal(blade, call, send, ends):
    os.mkfifo(blade.directory / "go-on")
    blade.on(call, "touch reached; read -r _ <go-on")
    process = start(blade)
    wait_until((blade.directory / "reached").exists, process)
    send(process.pid, signal.SIGTERM)
    with open(blade.directory / "go-on", "r+b", buffering=0) as go_on:
        go_on.write(b"\n")
        assert end(blade, process) == ends
