"""What the tests share: the programs, a blade to run them on, and the comparison of what they say."""

import difflib
import itertools
import os
import re
import select
import shlex
import shutil
import signal
import subprocess
import time
from collections import namedtuple
from pathlib import Path

import pytest

PROJECT = Path(__file__).resolve().parent.parent
# The programs as they are shipped, and the same code with ./hbacmd as the vendor's CLI.
CNATOOL = Path(os.environ.get("CNATOOL", PROJECT / "build/release/cnatool")).absolute()
CNATOOL_STANDIN = Path(os.environ.get("CNATOOL_STANDIN", PROJECT / "build/release/tests/cnatool_standin")).absolute()
LSCNA = CNATOOL.with_name("lscna")
LSCNA_STANDIN = CNATOOL_STANDIN.with_name("lscna_standin")
for program in CNATOOL, CNATOOL_STANDIN, LSCNA, LSCNA_STANDIN:
    if not program.exists():
        pytest.exit(f"There is no {program}: build the project with its tests first.", returncode=4)

# cnatool on "blade", as words of a shell.
REAL = f"{shlex.quote(str(CNATOOL_STANDIN))} --conpath blade"
SIMULATED = f"{shlex.quote(str(CNATOOL))} --simulate --conpath blade"

# The example's adapters: FM (VM10250117) sees DGC storage, which its record allows, FX (VM20713302) NRB, which its
# record does not allow. A check selects their FCoE ports (functions 2 and 3), a flash their flash ports (function 0).
# Two ids select both adapters; the device's first record is FM's.
FM, FX, BOTH = "-pci-id 19A2:0714:1C3E:11C1", "-pci-id 19A2:0714:1C3E:11C2", "-pci-id 19A2:0714"
FLASH_FM, FLASH_FX = "--flash -pci-id 19A2:0700:1C3E:11C1", "--flash -pci-id 19A2:0700:1C3E:11C2"
FLASH_BOTH = "--flash -pci-id 19A2:0700"
CONDITIONS, LIST = "FC_HBA_Conditions.txt", "local_hba_list.out"
MAPPING = "VM10250117_2_target_mapping.out"  # of FM's first FCoE port
# Changes of target mappings: the ports see storage of the other vendor.
DGC_FOR_NRB, NRB_FOR_DGC = [(": NRB", ": DGC"), ("_SX1", "_CX1")], [(": DGC", ": NRB"), ("_CX1", "_SX1")]
# What gives the records of the FCoE ports images as well, so that a selection of these ports flashes.
FCOE_IMAGES = [(r"(11C1 \| FCoE.*PCIe \|) +", r"\1 fm10102- "),
               (r"(11C2 \| FCoE.*PCIe \|) +\| +", r"\1 *.ufi | *.grp ")]

ENVIRONMENT = {
    "PATH": "/usr/bin:/bin", "LC_ALL": "C",
    # A report of a sanitizer must not look like a status of the tool.
    "ASAN_OPTIONS": "exitcode=99", "UBSAN_OPTIONS": "halt_on_error=1:exitcode=99:print_stacktrace=1",
}


# The status is negative when a signal ended the program. The output is standard output and standard error.
Result = namedtuple("Result", "status output")


class Blade:
    """The example as "blade" in a directory of its own, which is the current one of the programs that run on it.

    Its files are called by their names in "blade", or by patterns such as "VM10250117_*.out"."""

    def __init__(self, directory):
        self.directory = directory
        self.files = self.reports = directory / "blade"
        self.processes = []
        shutil.copytree(PROJECT / "examples/blade", self.files)

    def path(self, name):
        return (self.reports if name.endswith(".out") else self.files) / name

    def find(self, pattern):
        found = sorted(self.path(pattern).parent.glob(Path(pattern).name))
        assert found, f"The blade has no file {pattern}."
        return found

    def read(self, name):
        return os.fsdecode(self.path(name).read_bytes())

    def write(self, name, content=""):
        self.path(name).write_bytes(os.fsencode(content))

    def remove(self, pattern):
        for file in self.find(pattern):
            file.unlink()

    def edit(self, pattern, *changes):
        """Changes the files: (regular expression, what replaces it), ... Each must be found in one of them."""
        for expression, replacement in changes:
            count = 0
            for file in self.find(pattern):
                text, found = re.subn(expression, replacement, os.fsdecode(file.read_bytes()), flags=re.MULTILINE)
                file.write_bytes(os.fsencode(text))
                count += found
            assert count, f"Nothing in {pattern} fits {expression!r}."

    def start(self, program, words, env={}):
        """Starts a program with words as a shell would split them (or a list), and nothing of the caller's environment.

        It leads a process group, so its process id names the group, too."""
        words = shlex.split(words) if isinstance(words, str) else words
        # pytest shows this where the test fails.
        print(Path(program).name, shlex.join(words))
        self.processes.append(subprocess.Popen(
            ["env", "--default-signal", program, *words], cwd=self.directory, env=ENVIRONMENT | env, umask=0o022,
            stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, start_new_session=True))
        return self.processes[-1]

    def run(self, program, words, env={}):
        process = self.start(program, words, env)
        output, _ = process.communicate(timeout=60)
        return Result(process.returncode, os.fsdecode(output))

    def shell(self, command):
        return self.run("sh", ["-c", command])

    def simulated(self, words, env={}):
        """Runs cnatool on the reports in "blade"."""
        return self.run(CNATOOL, f"--simulate --conpath blade {words}", env)

    def kill_what_hangs(self):
        for process in self.processes:
            if process.poll() is None:
                os.killpg(process.pid, signal.SIGKILL)


class Standin(Blade):
    """The blade with the stand-in for the vendor's CLI, tests/hbacmd, whose reports lie in cli/reports."""

    def __init__(self, directory):
        super().__init__(directory)
        self.reports = directory / "cli/reports"
        self.reports.mkdir(parents=True)
        for report in self.files.glob("*.out"):
            report.rename(self.reports / report.name)
        shutil.copy(PROJECT / "tests/hbacmd", directory)

    def on(self, call, action):
        """Has the N-th call of a command do what is given in shell, as in on("download1", "exit 7")."""
        (self.directory / "cli" / call).write_text(action + "\n")

    @property
    def calls(self):
        """The calls that came, in the order in which they came, as in "targetmapping [10:00:00:00:c9:a1:00:11]"."""
        return (self.directory / "cli/calls.log").read_text().splitlines()

    def real(self, words, env={}):
        """Runs cnatool, which has the stand-in make the reports in "blade"."""
        return self.run(CNATOOL_STANDIN, f"--conpath blade {words}", env)


@pytest.fixture
def blade(tmp_path):
    yield (blade := Blade(tmp_path))
    blade.kill_what_hangs()


@pytest.fixture
def cli(tmp_path):
    yield (cli := Standin(tmp_path))
    cli.kill_what_hangs()


def wait_until(happened, process):
    deadline = time.monotonic() + 30
    while not happened():
        assert process.poll() is None, f"The program has ended with {process.returncode} before."
        assert time.monotonic() < deadline, "What this test waits for has not happened."
        time.sleep(0.01)


class Terminal:
    """The standard error of a shell that it controls, which runs a command and then shows its status there."""

    def __init__(self, cli, command):
        self.screen, terminal = os.openpty()
        self.shell = cli.start("sh", ["-c", f"exec 2<>{os.ttyname(terminal)}; {command}; echo =$? >&2; read -r _ <&2"])

    def read_until(self, end):
        text = b""
        while end not in text:
            ended = re.search(rb"=\d+\r\n", text)
            assert not ended and select.select([self.screen], [], [], 30)[0], f"{end!r} does not come, but {text!r}."
            text += os.read(self.screen, 4096)
        return text


def expect(result, status, text=""):
    """Compares a result with a status and with all that is printed; without a text that is nothing.

    In a line of the text a single "*" stands for any text; a line "..." stands for any lines. The newline that ends
    the output is not part of the text."""
    __tracebackhide__ = True
    told = difference(text, result.output)
    if result.status != status:
        told.insert(0, f"status: wanted {status}, came {result.status}")
    if told:
        pytest.fail("\n".join(told))


def difference(text, output):
    """Tells the first wanted line that did not come, and what came at the nearest place; nothing if all came."""
    came = ["\n(begin)", *output.split("\n")]
    came[-1] += "\n(end)"
    wanted = ["\n(begin)", *(text.split("\n") if text else []), "\n(end)"]
    at = 0
    for block in [list(lines) for dots, lines in itertools.groupby(wanted, "...".__eq__) if not dots]:
        counts = [fitting(block, came[place:]) for place in range(at, len(came))]
        count = max(counts)
        ends = [at + place + count for place, other in enumerate(counts) if other == count]
        if count < len(block):
            at = max(ends, key=lambda end: difflib.SequenceMatcher(None, block[count], came[end]).ratio())
            shown = [repr(line).replace(r"'\n(end)'", "the end").replace(r"\n(end)", "")[:200]
                     for line in (block[count], *came[at:at + 3])]
            return [f"line {at} of {len(came) - 1}:", f"  wanted: {shown[0]}", f"  came:   {shown[1]}",
                    *(f"          {line}" for line in shown[2:])]
        at = ends[0]
    return []


def fitting(block, lines):
    """How many lines of the block come first among the lines."""
    def fits(line, wanted):
        return re.fullmatch(".*".join(map(re.escape, re.split(r"(?<!\*)\*(?!\*)", wanted))), line)
    return len(list(itertools.takewhile(lambda pair: fits(*pair), zip(lines, block))))
