"""The conditions file: how its lines become records, how those are listed, what is refused."""

import os

import pytest

from conftest import CONDITIONS, FM, expect


def row(*values):
    """A record as it is shown while the file is read."""
    widths = [18, 16, 6, 6, 6, 6, 12, 12, 12, 12, 12, 12] + [12, 18, 12] * 2
    return "".join(f" {value:>{width}}" + (" |" if column not in (14, 17) else "")
                   for column, (value, width) in enumerate(zip(values, widths)))


def test_lines_become_records(blade):
    blade.write(CONDITIONS, """\
# a comment
Emulex | "ModelA" | 19a2 | 0714 | 1C3E | 11C1 | c6 | c7 | fw | bios | c10 | c11 | DGC | A,B | x | NRB | C | x
|Emulex||Model||0x19A2||000000714|1|1|\tcolumn 6 is wider than its field

Emulex|M|1|2|3|4|5|6|7|8|9|10|V|M # hidden
----+--+---
||
A|B\0 nothing after a NUL counts, no bar|either
""" + f"{'C|a long line':1023}| its rest\n||")
    records = "\n".join([
        row("Emulex", "ModelA", "19a2", "0714", "1C3E", "11C1", "c6", "c7", "fw", "bios", "c10", "c11",
            "DGC", "A,B", "x", "NRB", "C", "x"),
        row("Emulex", "Model", "0x19A2", "000000714", "1", "1", "column 6 is wider than its field"),
        row(""), row(""), row("A", "B"), row("C", "a long line"), row("its rest")])
    expect(blade.simulated("-v 5"), 12, f"...\nHBA conditions file: *\n{records}\n\n*+\n...")


def test_records_are_listed_with_their_storage(blade):
    ids = "|1" * 10
    blade.write(CONDITIONS, f"Emulex|Model{ids}|DGC|A,B|x|NRB|more than 19 letters|x|\n\nA|B{ids}| |C|x|9 letters|D\n")
    # Models are cut; storage without a vendor is left out.
    expect(blade.simulated("-v 4"), 12, f"""\
...
List of allowed Fibre-Channel-Controller and Online-Storage-System combinations:

{'Emulex':10} {'Model':16}
\t\t1) {'DGC':10} {'A,B':16}
\t\t2) {'NRB':10} more than 19 letter

{'':10} {'':16}

{'A':10} {'B':16}
\t\t1) {'9 letters':10} {'D':16}


*+
...""")


def test_ids_are_numbers_of_the_whole_values(blade):
    blade.write(CONDITIONS, "E|C|000019A2|000000714|0x1c3e|11c1\n")
    expect(blade.simulated(f"-v 6 {FM}"), 4, "...\n\t\tvendor-id: 00001, device-id: 00000\n"
           "\t\tsubvendor-id: 0x1c3, subdevice-id: 11c1\n\t\tCorrespondig data: vendor: E; model: C\n...")


@pytest.mark.parametrize("column, value", [
    pytest.param(2, "x", id="no-number"),
    pytest.param(3, " ", id="empty"),
    pytest.param(4, "80000000", id="too-large"),
    pytest.param(5, "11C1\r", id="with-the-carriage-return-of-its-line"),
])
def test_refused_id(blade, column, value):
    blade.write(CONDITIONS, "|".join([*"xx1111"[:column], value]) + "\n")
    expect(blade.simulated(""), 55)
    expect(blade.simulated("-d 1"), 55)


# A value that selects is refused: cut, it would select more.
@pytest.mark.parametrize("column, name, most", [(0, "Vendor", 19), (1, "Model", 19), (8, "Firmware-Image", 79),
                                                (9, "BIOS-Image", 79), (12, "Storage-Vendor", 9)])
def test_longest_value(blade, column, name, most):
    def write(value):
        blade.write(CONDITIONS, "#\n" + "|".join([*"xx1111xxxxxxxxx"[:column], value]))
    write("y" * most)
    expect(blade.simulated("--silent"), 12)
    write("y" * (most + 1))
    expect(blade.simulated(""), 55, f"\nError line 2: {name} '{'y' * (most + 1)}' is too long "
           f"(at most {most} characters)!\nError: Fatal error!")


# One that is only listed is cut, and models are kept whole.
@pytest.mark.parametrize("column", [6, 7, 10, 11, 13, 14])
def test_value_of_any_length(blade, column):
    values = "Emulex|CNA|19A2|0714|1C3E|11C1|6|7|fw|bios|10|11|DGC|Marlovan|x".split("|")
    values[column] = "y" * 900 + ",Marlovan"
    blade.write(CONDITIONS, "|".join(values))
    expect(blade.simulated(f"--silent {FM}"), 0)


@pytest.mark.parametrize("lay", [lambda path: None, os.mkdir, os.mkfifo], ids=["nothing", "directory", "fifo"])
def test_no_file_in_its_place(blade, lay):
    blade.remove(CONDITIONS)
    lay(blade.path(CONDITIONS))
    expect(blade.simulated(""), 15, "Error: Could not open file blade/FC_HBA_Conditions.txt\n\n"
           "Cann't access file blade/FC_HBA_Conditions.txt.\n")
