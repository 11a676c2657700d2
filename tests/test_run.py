"""What a run meets: other runs, signals, its caller's settings, files that are no plain files, a terminal, odd text."""

import fcntl
import os
import re
import signal
import subprocess
from pathlib import Path

import pytest

from conftest import (BOTH, CNATOOL, CNATOOL_STANDIN, CONDITIONS, FLASH_FM, FLASH_FX, FM, FX, LIST, MAPPING, REAL,
                      SIMULATED, Terminal, expect, wait_until)

REPORT = "VM10250117_0_hba_attributes.out"  # of FM's flash port
TRACE = "FWtrace.out"
LOG = "Merlie_DLL.log"


# Runs that start the CLI take turns; the CLI's file is the lock.

# What has the stand-in tell of a call in which another run could take the turn.
TELL_FREE_TURN = "! flock -n hbacmd true || echo $hook >&2"


@pytest.fixture
def turn(cli):
    """Another run has the turn, until this is closed."""
    with open(cli.directory / "hbacmd") as lock:
        fcntl.flock(lock, fcntl.LOCK_EX)
        yield lock


def test_run_keeps_its_turn_from_its_first_command_to_its_last(cli):
    for call in "listhbas1", "hbaattributes1", "download1":
        cli.on(call, TELL_FREE_TURN)
    expect(cli.real(f"--silent {FLASH_FM}"), 0)


def test_simulated_run_does_not_wait_for_its_turn(cli, turn):
    expect(cli.run(CNATOOL_STANDIN, "--simulate --conpath blade -v 0"), 13)


def test_daemon_of_the_cli_does_not_keep_the_turn(cli):
    cli.on("hbaattributes1", "sleep 60 >/dev/null 2>&1 & echo $! >daemon")
    expect(cli.real(f"--silent {FLASH_FM}"), 0)
    try:
        with open(cli.directory / "hbacmd") as lock:
            fcntl.flock(lock, fcntl.LOCK_EX | fcntl.LOCK_NB)
    finally:
        os.kill(int((cli.directory / "daemon").read_text()), signal.SIGKILL)


def test_wait_for_a_turn_comes_after_what_was_said_and_ends_with_ctrl_c(cli, turn):
    run = cli.start(CNATOOL_STANDIN, "--conpath blade -v 3")
    wait_until(lambda: re.search(rf"-> FLOCK .* {run.pid} ", Path("/proc/locks").read_text()), run)
    os.set_blocking(run.stdout.fileno(), False)
    assert b"HBA conditions file: " in (run.stdout.read() or b"")
    run.send_signal(signal.SIGINT)
    assert run.wait(60) == -signal.SIGINT


# Signals. A download holds all but SIGCHLD, which would look like a signal that waits.


def signals(line):
    """The numbers of the signals that are set in a line of /proc/PID/status."""
    mask = int(line.split()[1], 16)
    return {number for number in range(1, 32) if mask >> (number - 1) & 1}


def test_every_signal_waits_for_the_download(cli):
    cli.on("download1", "grep SigBlk /proc/$tool/status >signals")
    expect(cli.shell(f"export tool=$$; exec {REAL} --silent {FLASH_FM}"), 0)
    never = {signal.SIGKILL, signal.SIGSTOP, signal.SIGCHLD}
    assert signals((cli.directory / "signals").read_text()) == set(range(1, 32)) - never


# As /bin/sh bash keeps the signal mask that it starts with; dash does not.
BASH_AS_SH = "mount --bind /bin/bash /bin/sh"


def test_signals_that_the_cli_ignores_and_holds(cli):
    namespace = ["unshare", "-m" if os.geteuid() == 0 else "-rm", "sh", "-c"]
    if subprocess.run([*namespace, BASH_AS_SH], stderr=subprocess.DEVNULL, timeout=60).returncode != 0:
        pytest.skip("Nothing can be mounted here.")
    for call in "hbaattributes1", "download1":
        cli.on(call, "grep -E 'Sig(Blk|Ign)' /proc/self/status >>signals")
    expect(cli.run(namespace[0], [*namespace[1:], f"{BASH_AS_SH} && exec {REAL} --silent {FLASH_FM}"]), 0)
    assert [signals(line) for line in (cli.directory / "signals").read_text().splitlines()] == [
        set(), set(),
        set(), {signal.SIGHUP, signal.SIGINT, signal.SIGQUIT, signal.SIGTERM, signal.SIGPIPE, signal.SIGXCPU,
                signal.SIGXFSZ}]


@pytest.mark.parametrize("call", ["listhbas1", "download1"])
def test_ctrl_c_ends_a_run_whose_reader_has_stopped_reading(cli, call):
    os.mkfifo(cli.directory / "pipe")
    reader = os.open(cli.directory / "pipe", os.O_RDWR)
    cli.on(call, "dd if=/dev/zero of=pipe oflag=nonblock 2>/dev/null || :")
    run = cli.start("sh", ["-c", f"exec {REAL} {FLASH_FX} >pipe"])
    # The number of the call and its arguments: it waits in a call on descriptor 1.
    wait_until(lambda: Path(f"/proc/{run.pid}/syscall").read_text().split()[1:2] == ["0x1"], run)
    run.send_signal(signal.SIGINT)
    assert run.wait(30) == -signal.SIGINT
    os.close(reader)


# What the caller hands down.


@pytest.mark.parametrize("command", [
    pytest.param(f"exec {SIMULATED} -v 6 {FX} >/dev/full", id="full-disk"),
    pytest.param(f"ulimit -f 1; exec {SIMULATED} -v 6 {FX} >out", id="limit-of-the-file-size"),
    pytest.param(f"exec {SIMULATED} -v 6 {FX} <&- >&- 2>&-", id="closed"),
])
def test_output_that_is_lost_does_not_change_the_status(blade, command):
    expect(blade.shell(command), 4)


def test_closed_streams_are_open_for_the_cli(cli):
    cli.on("listhbas1", "readlink /proc/$$/fd/0 /proc/$$/fd/2 >streams")
    expect(cli.shell(f"exec {REAL} {FLASH_FM} <&- >&- 2>&-"), 0)
    assert (cli.directory / "streams").read_text() == "/dev/null\n" * 2


@pytest.mark.parametrize("umask, mode", [("0", 0o644), ("077", 0o600)])
def test_reports_and_trace_are_not_writable_by_others(cli, umask, mode):
    expect(cli.shell(f"umask {umask}; exec {REAL} --silent {FLASH_FM}"), 0)
    for name in LIST, REPORT, TRACE:
        assert (cli.files / name).stat().st_mode & 0o777 == mode, name


def test_no_variable_changes_what_the_shell_does(cli):
    cli.on("hbaattributes1", "env >environment")
    variables = {"SHELLOPTS": "noexec", "BASHOPTS": "x", "OPTIND": "x"}
    expect(cli.real(f"--silent {FLASH_FM}", variables), 0)
    assert not re.findall("^(?:SHELLOPTS|BASHOPTS|OPTIND)=", (cli.directory / "environment").read_text(), re.MULTILINE)


def test_caller_who_ignores_ended_children(cli):
    expect(cli.shell(f"exec env --ignore-signal=CHLD {REAL} --silent {FLASH_FX}"), 0)
    assert cli.calls[-1].startswith("download")


# Files that are no plain files, or no longer what they were.


@pytest.mark.parametrize("make", [
    pytest.param(Path.symlink_to, id="link"),
    pytest.param(Path.hardlink_to, id="hard-link"),
    pytest.param(lambda file, secret: os.mkfifo(file), id="fifo"),
])
@pytest.mark.parametrize("name, status", [
    pytest.param(REPORT, 0, id="report-is-replaced"),
    pytest.param(TRACE, 10, id="trace-is-left-alone"),
    pytest.param(LOG, 0, id="log-is-left-out"),
])
def test_nothing_is_written_through(cli, make, name, status):
    secret = cli.directory / "secret"
    secret.write_text("precious")
    secret.chmod(0o644)
    make(cli.files / name, secret)
    expect(cli.real(f"-d 6 {FLASH_FM}"), status)
    assert secret.read_text() == "precious" and secret.stat().st_mode & 0o777 == 0o644
    assert cli.calls[-1].startswith("download") == (status == 0)


def test_directory_in_the_place_of_a_report(cli):
    (cli.files / REPORT).mkdir()
    expect(cli.real(FLASH_FM), 12, f"Error: Could not open file blade//{REPORT}\n...")


def test_report_that_cannot_be_emptied_does_not_count(cli):
    # A running program can't be written to.
    report = cli.files / "VM20713302_2_target_mapping.out"
    report.write_bytes(Path("/bin/sleep").read_bytes() + b"\n" + cli.path(report.name).read_bytes())
    report.chmod(0o755)
    with subprocess.Popen([report, "60"]) as program:
        result = cli.real(FX)
        program.kill()
    expect(result, 0, f"...\nError: Could not open file blade//{report.name}\n...")


def in_a_long_directory(blade, length):
    directory = Path("/".join([250 * "d"] * 3 + [(length - 753) * "d"]))
    (blade.directory / directory).parent.mkdir(parents=True)
    blade.files.rename(blade.directory / directory)
    return str(directory)


@pytest.mark.parametrize("length, code, calls", [
    pytest.param(936, 0, 17, id="1023-characters"),
    pytest.param(937, -1, 12, id="1024-characters"),
])
def test_report_of_a_command_that_is_too_long_is_empty(cli, length, code, calls):
    """The commands of the target mapping are the longest ones."""
    report = "VM20713302_2_target_mapping.out"
    (cli.files / report).write_text(cli.read(report))
    directory = in_a_long_directory(cli, length)
    result = cli.run(CNATOOL_STANDIN, ["--conpath", directory, "-v", "6", *FX.split()])
    assert f'targetmapping 10:00:00:00:c9:b2:00:11" command returned code {code}.' in result.output
    assert f"Could not open file {directory}//{report}" not in result.output
    assert len(cli.calls) == calls and bool((cli.directory / directory / report).read_text()) == (code == 0)


@pytest.mark.parametrize("length, status, text", [
    pytest.param(1000, 0, "...\n\tNow start flashing the firmware.\n...", id="1023-characters"),
    pytest.param(1001, 20, "...\n\tNo BIOS- or firmware-image was found in fm10102-!", id="1024-characters"),
])
def test_image_whose_path_is_too_long_is_passed_over(blade, length, status, text):
    directory = in_a_long_directory(blade, length)
    expect(blade.run(CNATOOL, ["--simulate", "--conpath", directory, *FLASH_FM.split()]), status, text)


@pytest.mark.parametrize("name, status, text", [
    pytest.param(CONDITIONS, 55, "Error: Fatal error!", id="conditions"),
    pytest.param(MAPPING, 0, f"Error: Could not open file blade//{MAPPING}\n...", id="report"),
])
def test_file_that_cannot_be_read_to_its_end(blade, name, status, text):
    """A process's memory can be opened, but its beginning can't be read."""
    blade.remove(name)
    blade.path(name).symlink_to("/proc/self/mem")
    expect(blade.simulated(FM), status, text)


# The log of a debug run.


def test_log_is_written_anew_up_to_an_early_end(blade):
    blade.write(LOG, 99 * "old")
    blade.path(LOG).chmod(0o644)
    blade.remove(LIST)
    expect(blade.simulated("-d 1"), 13)
    assert blade.read(LOG) == \
        f"Error: Could not open file blade//{LIST}\n\nNo Blade Engine was found in this system.\n\n"
    assert blade.path(LOG).stat().st_mode & 0o777 == 0o600


@pytest.mark.parametrize("words", ["-d 0", "-d 6 --silent", "-v 6"])
def test_no_log_without_a_level_of_debugging(blade, words):
    assert blade.simulated(f"{words} {FM}").status == 0
    assert not blade.path(LOG).exists()


@pytest.mark.skipif(os.geteuid() != 0, reason="Only root can make a file that belongs to somebody else.")
def test_log_of_another_user_is_left_alone(blade):
    blade.write(LOG, "precious")
    os.chown(blade.path(LOG), 65534, -1)
    expect(blade.simulated(f"-d 6 {FM}"), 0)
    assert blade.read(LOG) == "precious"


# The line at a terminal, which tells what the tool waits for.


def test_line_at_the_terminal_and_the_turn_after_the_wait(cli, turn):
    cli.on("listhbas1", TELL_FREE_TURN)
    terminal = Terminal(cli, f"{REAL} {FLASH_FX}")
    text = terminal.read_until(b"waiting for another run\r")
    assert not (cli.directory / "cli/calls.log").exists()
    turn.close()
    text += terminal.read_until(b"=0\r\n")
    lines = re.findall(rb"\r([^\r]+)\r\r( +)\r", text)
    assert text == b"".join(b"\r%s\r\r%s\r" % (line, len(line) * b" ") for line, _ in lines) + b"=0\r\n"
    assert [line for line, _ in lines] == [
        b"waiting for another run", b"adapter list",
        *(b"port %d of 11: attributes" % port for port in range(1, 12)),
        *(b"port %d of 11: target mapping" % port for port in (1, 2, 3, 4, 5)),
        b"download of the firmware, Ctrl-C takes effect at its end",
        b"download of the BIOS, Ctrl-C takes effect at its end"]


@pytest.mark.parametrize("command", [
    pytest.param(f"{REAL} {FLASH_FM} --silent", id="silent"),
    pytest.param(f"{REAL} {FLASH_FM} -v 0", id="level-0"),
    pytest.param(f"{REAL} {FLASH_FM} -d 1", id="debug-run"),
    pytest.param(f"set -m; {REAL} {FLASH_FM} & wait $!", id="in-the-background"),
])
def test_no_line_at_the_terminal(cli, command):
    assert Terminal(cli, command).read_until(b"=0\r\n") == b"=0\r\n"


# What a report says starts nothing and leads nowhere outside of the directory.


def name_the_ports(blade, serial, identifier, function="2"):
    blade.edit(LIST, ("^(Serial No.*: ).*", lambda found: found[1] + serial),
               ("^(Port WWN.*: ).*", lambda found: found[1] + identifier),
               ("^(PCI Function.*: )2", lambda found: found[1] + function))


def assert_nothing_is_outside(cli):
    assert sorted(os.listdir(cli.directory)) == ["blade", "cli", "hbacmd"]


def test_text_of_a_report_arrives_whole(cli):
    text = "it's|$(touch pwned)"
    name_the_ports(cli, text, text)
    word, file = r"'it'\''s|$(touch pwned)'", r"'blade//it'\''s|$(touch pwned)_2_hba_attributes.out'"
    expect(cli.real(f"-v 6 {BOTH}"), 12, f"...\n\t\t./hbacmd hbaattributes {word} > {file}\n...")
    assert {f"hbaattributes [{text}]", f"targetmapping [{text}]"} <= set(cli.calls)
    assert_nothing_is_outside(cli)


@pytest.mark.parametrize("serial, function", [
    pytest.param("../pwned", "2", id="serial-number"),
    pytest.param("x", "../y", id="function"),
    pytest.param("n/a/../../pwned", "2", id="behind-a-missing-serial-number"),
])
def test_report_outside_of_the_directory_is_not_made(cli, serial, function):
    name_the_ports(cli, serial, "x", function)
    expect(cli.real(f"-v 6 {BOTH}"), 12, '...\n\t\tFail, "hbacmd hbaattributes x" command returned code -1.\n...')
    assert_nothing_is_outside(cli)


@pytest.mark.parametrize("make, code", [
    # The shell says that there is no such directory.
    pytest.param(lambda file: None, 512, id="in-no-directory"),
    pytest.param(Path.touch, -1, id="in-a-file"),
])
def test_report_of_a_port_without_a_serial_number(cli, make, code):
    make(cli.files / "n")
    name_the_ports(cli, "n/a", "x")
    expect(cli.real(f"-v 6 {BOTH}"), 12, f'...\n\t\tFail, "hbacmd hbaattributes x" command returned code {code}.\n...')


def test_report_outside_of_the_directory_is_not_read(blade):
    blade.edit(LIST, ("VM1", "../blade/VM1"))
    expect(blade.simulated(FM), 12, "Error: Could not open file blade//../blade/VM10250117_2_hba_attributes.out\n...")
