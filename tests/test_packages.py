"""The packages: what is in them, whose it is, and that one commit gives the same bytes."""

import gzip
import re
import subprocess
from pathlib import Path

import pytest

pytestmark = pytest.mark.slow
PROJECT = Path(__file__).resolve().parent.parent
DOCUMENTS = "usr/share/doc/cnatool"


def output(*command):
    return subprocess.run(command, check=True, stdout=subprocess.PIPE, text=True).stdout


@pytest.fixture(scope="module")
def built(tmp_path_factory):
    """A directory with both packages, made by someone whose umask is strict, and the .deb unpacked in "root"."""
    directory = tmp_path_factory.mktemp("packages")
    subprocess.run([PROJECT / "script/package", directory], check=True, umask=0o027)
    output("dpkg-deb", "-x", next(directory.glob("*.deb")), directory / "root")
    return directory


def listing(built, kind):
    """The mode and the owner of each file and directory of a package."""
    package = next(built.glob("*" + kind))
    if kind == ".deb":
        lines = [line.split() for line in output("dpkg-deb", "-c", package).splitlines()]
        return {words[5].strip("./"): " ".join(words[:2]) for words in lines}
    query = "[%{FILENAMES} %{FILEMODES:perms} %{FILEUSERNAME}/%{FILEGROUPNAME}\n]"
    lines = [line.split() for line in output("rpm", "-qp", "--qf", query, package).splitlines()]
    return {words[0].strip("/"): " ".join(words[1:]) for words in lines}


@pytest.mark.parametrize("kind, more", [
    (".deb", {f"{DOCUMENTS}/changelog.Debian.gz", "usr/share/lintian/overrides/cnatool"}),
    (".rpm", set()),
])
def test_everything_is_there_and_nothing_else_and_all_is_of_root(built, kind, more):
    source = [path for folder in ("contrib", "docs", "examples") for path in (PROJECT / folder).rglob("*")]
    wanted = {f"{DOCUMENTS}/{path.relative_to(PROJECT)}" for path in source
              if path.is_file() and path.parent.name != "__pycache__"}
    wanted |= {f"{DOCUMENTS}/{name}" for name in ("CHANGELOG.md", "README.md", "copyright")} | more
    wanted |= {"usr/share/man/man5/FC_HBA_Conditions.txt.5.gz"}
    for program in "cnatool", "lscna":
        wanted |= {f"usr/share/man/man8/{program}.8.gz", f"usr/share/bash-completion/completions/{program}"}
    came = listing(built, kind)
    assert {name: entry for name, entry in came.items() if entry[0] != "d"} == \
        dict.fromkeys(wanted, "-rw-r--r-- root/root") | \
        dict.fromkeys(["opt/cnatool/cnatool", "opt/cnatool/lscna"], "-rwxr-xr-x root/root")
    assert {entry for entry in came.values() if entry[0] == "d"} == {"drwxr-xr-x root/root"}


def test_the_changelog_gives_the_release_and_nothing_but_a_shell_is_needed(built):
    deb, rpm = next(built.glob("*.deb")), next(built.glob("*.rpm"))
    newest = re.search("^## (.*)", (PROJECT / "CHANGELOG.md").read_text(), re.MULTILINE)[1]
    assert output("dpkg-deb", "-f", deb, "Version", "Depends") == f"Version: {newest}\n"
    assert output("rpm", "-qp", "--qf", "%{VERSION}-%{RELEASE}", rpm) == newest
    needs = output("rpm", "-qpR", rpm).splitlines()
    assert {need for need in needs if not need.startswith("rpmlib(")} == {"/bin/sh"}


def test_the_documents_name_what_is_there(built):
    root = built / "root"
    documents = root / DOCUMENTS
    for document in [documents / "README.md", *documents.glob("docs/*.md")]:
        paths = r"(?<=\]\()[^)]+|\b(?:contrib|docs|examples|packaging)/[\w./-]*\w"
        for name in re.findall(paths, document.read_text()):
            assert (documents / name).exists(), f"{document.name}: {name}"
    for page in root.glob("usr/share/man/*/*.gz"):
        for name in re.findall(r"/(usr/share/doc/[\w./]*\w)", gzip.open(page, "rt").read()):
            assert (root / name).exists(), f"{page.name}: {name}"


def test_another_path_gives_the_same_bytes(built, tmp_path):
    elsewhere = tmp_path / "Jack & Jill"
    elsewhere.mkdir()
    copy = 'tar -C "$0" --exclude=./build -c . | tar -C "$1" -xm'
    subprocess.run(["sh", "-c", copy, PROJECT, elsewhere], check=True)
    subprocess.run([elsewhere / "script/package", tmp_path], check=True)
    for package in [*built.glob("*.deb"), *built.glob("*.rpm")]:
        assert package.read_bytes() == (tmp_path / package.name).read_bytes(), package.name
