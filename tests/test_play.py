"""The role in contrib/ansible, on this machine as hosts with a directory each."""

import os
import re
import shutil
import subprocess

import pytest

from conftest import CNATOOL_STANDIN, CONDITIONS, DGC_FOR_NRB, LSCNA_STANDIN, NRB_FOR_DGC, PROJECT, Standin

pytestmark = pytest.mark.slow

# The first batch of the example play has two hosts, the second one five.
HOSTS = ["good", "typo", "storage", "away", "bare", "halfway", "lost", "late"]
NEW, OLD = "4.6.142.10", "4.6.100.0"


@pytest.fixture
def fleet(tmp_path):
    """Blades with old firmware: the first download replaces it on FM, the second one on FX."""
    blades = {}
    for host in HOSTS:
        (tmp_path / host).mkdir()
        blades[host] = blade = Standin(tmp_path / host)
        blade.edit("*_target_mapping.out", *DGC_FOR_NRB)
        blade.edit("VM*_attributes.out", (NEW, OLD))
        blade.on("download1", f"sed -i s/{OLD}/{NEW}/ cli/reports/VM10250117*")
        blade.on("download2", f"sed -i s/{OLD}/{NEW}/ cli/reports/VM20713302*")
        shutil.copy(CNATOOL_STANDIN, blade.directory / "cnatool")
        shutil.copy(LSCNA_STANDIN, blade.directory / "lscna")
    shutil.copytree(blades["good"].files, tmp_path / "sets/first")
    shutil.copytree(blades["good"].files, tmp_path / "sets/other")
    for blade in blades.values():
        shutil.rmtree(blade.files)
    return blades


def play(directory, *words, **variables):
    """Runs the example play. Returns its status, the columns of the table for each host, and what it says."""
    hosts = "".join(f"{host} {variables.get(host, '')}\n" for host in HOSTS)
    (directory / "inventory").write_text(f"""[blades]\n{hosts}[blades:vars]
ansible_connection=local
ansible_become=false
ansible_python_interpreter=/usr/bin/python3
cnatool_home={directory}/{{{{ inventory_hostname }}}}
cnatool_set={directory}/sets/first
cnatool_results={directory}
""")
    command = ["ansible-playbook", "-i", "inventory", PROJECT / "contrib/ansible/site.yml", *words]
    run = subprocess.run(command, cwd=directory, stdin=subprocess.DEVNULL, capture_output=True, text=True, timeout=600,
                         env={"PATH": os.environ["PATH"], "HOME": directory, "LC_ALL": "C.UTF-8"})
    table, = directory.glob("cnatool-*.txt")
    head, *lines = table.read_text().splitlines()
    table.unlink()
    starts = [word.start() for word in re.finditer(r"\S+", head)]
    rows = [[line[a:b].strip() for a, b in zip(starts, [*starts[1:], None])] for line in lines]
    return run.returncode, {row[0]: row[1:] for row in rows}, run.stdout


def outcomes(table):
    return {host: row[0] for host, row in table.items()}


def exchange_adapter(blade):
    for file in blade.find("*.out"):
        file.write_text(file.read_text().replace("VM10250117", "VM10250118"))
        file.rename(file.with_name(file.name.replace("VM10250117", "VM10250118")))


def test_play(fleet, tmp_path):
    typo = tmp_path / "sets/other" / CONDITIONS
    typo.write_text(typo.read_text().replace("| 0700", "| O700"))
    fleet["storage"].edit("VM20713302_3_target_mapping.out", (": DGC", ": NRB"))
    fleet["bare"].write("local_hba_list.out")
    fleet["halfway"].on("download3", "echo Error 7; exit 7")
    # What the play sees of a host that is lost: nobody tells how its flash has ended.
    real = (fleet["lost"].directory / "cnatool").rename(fleet["lost"].directory / "real")
    program = fleet["lost"].directory / "cnatool"
    program.write_text('#!/bin/sh\ncase $* in *--sim*|*--ctrl*) exec ./real "$@"; esac\nkill -9 $PPID')
    program.chmod(0o755)
    faults = {"typo": f"cnatool_set={typo.parent}", "bare": "cnatool_adapters_required=false",
              "away": "ansible_remote_tmp=/proc/none"}

    status, table, _ = play(tmp_path, "--check", **faults)
    assert status == 4 and set(outcomes(table).values()) == {"not begun"}
    assert not any((blade.directory / "first").exists() for blade in fleet.values())

    status, table, _ = play(tmp_path, **faults)
    reasons = {host: row.pop() for host, row in table.items()}
    assert status != 0 and table == {
        "good": ["flashed", "0", "0", "3 of 3", OLD, NEW],
        "typo": ["failed", "55", "", "", OLD, ""],
        "storage": ["left out", "4", "", "", OLD, ""],
        "away": ["not reached", "", "", "", "", ""],
        "bare": ["left out", "13", "", "", "", ""],
        "halfway": ["failed", "0", "10", "2 of 3", OLD, NEW],
        "lost": ["lost during its flash", "0", "", "? of 3", OLD, ""],
        "late": ["not begun", "", "", "", "", ""],
    }
    for host, reason in {
        "typo": "FC_HBA_Conditions.txt:.* 'O700'", "bare": "no adapters", "lost": "do not restart",
        "storage": "VM20713302, function 3 sees NRB Marlovan_CX1, .* allows DGC Marlovan_CX",
        "halfway": "VM20713302, function 0: .*fx-bios-.* code 1792.* ends with: Error 7",
    }.items():
        assert re.search(reason, reasons[host])

    # What is repaired is flashed, what is well stays as it is.
    fleet["storage"].edit("VM20713302_3_target_mapping.out", (": NRB", ": DGC"))
    shutil.copy(fleet["good"].path("local_hba_list.out"), fleet["bare"].path("local_hba_list.out"))
    real.rename(program)
    status, table, said = play(tmp_path)
    assert status == 0 and outcomes(table) == {"good": "up to date"} | dict.fromkeys(HOSTS[1:], "flashed")
    assert re.search(r"^good .*changed=0 ", said, re.M)

    # A set with another image, a set whose files differ, storage that differs in the two ways, a spare adapter that is
    # only checked, and one whose image changes after the plan.
    typo.write_text((tmp_path / "sets/first" / CONDITIONS).read_text())
    (typo.parent / "fm10102-4.6.142.10.ufi").write_text("newer")
    (fleet["typo"].directory / "first/fm10102-4.6.142.10.ufi").write_text("other")
    (fleet["typo"].directory / "first/old.ufi").write_text("old")
    for host, ports in ("bare", "3"), ("storage", "?"):
        fleet[host].edit(f"VM10250117_{ports}_target_mapping.out", *NRB_FOR_DGC)
    exchange_adapter(fleet["late"])
    exchange_adapter(fleet["lost"])
    (fleet["late"].directory / "cli/calls.log").unlink()
    fleet["late"].on("download1", ":")
    fleet["late"].on("listhbas3", "mv first/fm*.ufi first/fm10102-new")
    status, table, _ = play(tmp_path, "--limit", "!halfway", good=f"cnatool_set={typo.parent}",
                            lost="cnatool_flash=false", storage="cnatool_check=--ctrl-vendor-wide-identical")
    assert outcomes(table) == {"good": "flashed", "typo": "failed", "storage": "left out", "away": "up to date",
                               "bare": "left out", "lost": "checked", "late": "failed"}
    for host, reason in {
        "typo": "(?=.* ./fm10102-4.6.142.10.ufi)(?=.* ./old.ufi).* differ, give",
        "late": "not as planned: .*fm10102-new", "bare": "VM10250117, function 3 sees NRB Marlovan_SX1",
        "storage": "VM10250117, function 2 sees NRB Marlovan_SX1",
    }.items():
        assert re.search(reason, table[host][-1])
    assert not (fleet["late"].directory / "flashed").exists()
