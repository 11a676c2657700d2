"""The man page, the README, the completion and the program agree; what the completion offers."""

import gzip
import re

import pytest

from conftest import CNATOOL, CONDITIONS, PROJECT, expect

with gzip.open(CNATOOL.parent / "packaging/cnatool.8.gz", "rt") as page:
    MAN_PAGE = page.read().replace("\\", "")
# The lines that begin with an option in bold and head what is said of it.
OPTIONS = sorted(word for head in re.findall(r"^\.TP\n\.B[IR]? (-.*)", MAN_PAGE, re.MULTILINE)
                 for word in head.split() if word.startswith("-"))


def completed(blade, words):
    """What bash offers for the last of the words, which it breaks at colons."""
    script = f'source {PROJECT}/completion/cnatool; COMP_WORDS=("$@") COMP_CWORD=$(($# - 1)); _cnatool; ' \
        'printf "%s\\n" "${COMPREPLY[@]}"'
    words = [part for word in words.split(" ") for part in re.findall("[^:]+|:", word) or [""]]
    result = blade.run("bash", ["-c", script, "bash", "cnatool", *words])
    assert result.status == 0
    return result.output.split()


def test_completion_offers_the_options_of_the_man_page(blade):
    assert len(OPTIONS) > 20
    assert sorted(completed(blade, "")) == OPTIONS


@pytest.mark.parametrize("option", OPTIONS)
def test_program_knows_the_option(blade, option):
    assert f"Invalid argument '{option}'" not in blade.simulated(f"{option} 1").output


def statuses(blade):
    return dict(re.findall(r"^ +(RET_\w+) +(\d+)$", blade.run(CNATOOL, "--show-return-codes").output, re.MULTILINE))


def test_man_page_has_the_statuses_of_the_program(blade):
    heads = re.findall(r"^\.TP\n(\d+) (RET_\w+)$", MAN_PAGE, re.MULTILINE)
    assert statuses(blade) == {name: number for number, name in heads}


def test_chart_of_the_readme_has_the_statuses_that_end_a_run(blade):
    never = re.findall(r"^(\d+) RET_\w+\nNever ends a run", MAN_PAGE, re.MULTILINE)
    nodes = re.findall(r'\(\["(.*)"\]\)', (PROJECT / "README.md").read_text())
    # 54 can end any phase, so it is none's.
    assert {*re.findall(r"\d+", " ".join(nodes)), "54", *never} == set(statuses(blade).values())


def test_man_page_has_the_version_of_the_program(blade):
    version = re.search(r'^\.TH CNATOOL 8 \S+ "cnatool (.*?)"', MAN_PAGE, re.MULTILINE)[1]
    expect(blade.run(CNATOOL, "--version"), 0, version)


# What a word on the line excludes is not offered, nor is anything twice; information stands alone.

INFORMATION = {"-?", "-h", "--help", "--hiddenhelp", "--info", "--version", "--show-return-codes", "--show-return-code"}


@pytest.mark.parametrize("words, offered", [
    pytest.param("-v 2 --flash -vid 1 ", {*OPTIONS} - INFORMATION - {"-v", "-d", "--flash", "-vid", "-vn", "-mod"},
                 id="ids"),
    pytest.param("-vn Emulex ", {*OPTIONS} - INFORMATION - {"-vn", "-vid", "-dev", "-subvid", "-subdev"}, id="names"),
    pytest.param("--help ", [], id="information"),
    pytest.param("-d 6 --s", ["--silent", "--simulate"], id="option"),
    pytest.param("-v ", list("0123456"), id="level"),
    pytest.param("--conpath b", ["blade"], id="directory"),
    pytest.param("--conpath /", [], id="no-absolute-directory"),
    pytest.param("-vid 1", [], id="no-list"),
    pytest.param("-pci-id 1", [], id="no-conditions-in-the-current-directory"),
    pytest.param("--conpath blade -pci-id 19a2:0714:", ["1C3E:11C1", "1C3E:11C2"], id="identities-of-the-conditions"),
    pytest.param("--conpath blade -pci-id 19A2:0714:1C3E:11C1,19A2:0714:", ["1C3E:11C2"], id="nothing-twice"),
])
def test_completion(blade, words, offered):
    blade.edit(CONDITIONS, (r"\A", "# A comment|x|19A2|0714|1C3E|11C9|\n"))
    assert sorted(completed(blade, words)) == sorted(offered)
