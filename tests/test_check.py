"""The checks of the attached storage."""

import pytest

from conftest import BOTH, FM, FX, expect


@pytest.mark.parametrize("words, status", [
    pytest.param(f"--silent --ctrl-wide-identical {BOTH}", 0, id="each-adapter-alone-is-consistent"),
    pytest.param(f"--silent --ctrl-vendor-wide-identical {BOTH}", 2, id="adapters-differ"),
    pytest.param(f"--silent {FX}", 4, id="storage-not-allowed"),
])
def test_status(blade, words, status):
    expect(blade.simulated(words), status)


def test_second_port_is_compared_with_the_reference(blade):
    blade.edit("VM10250117_3_target_mapping.out", (": DGC", ": NRB"), ("_CX1", "_SX1"))
    expect(blade.simulated(f"-v 2 --ctrl-wide-identical {FM}"), 1, """\
...
\t\tThis sub-system differs from controller specific reference-sub-system.
\t\t\tVendor: *PCI function: 3

vendor specific reference-sub-system 0 >DGC< >DGC<.
\t\tAt least one*
...""")
