"""What the role reads out of the conditions file, the images and the reports."""

import csv
import io
import os
import re

from ansible.errors import AnsibleFilterError

IDENTITY = ("Vendor Spec ID", "Device ID", "Sub Vendor ID", "Sub Device ID")
FIRMWARE = ("FW Version", "Operational FW")
# What lies beside the images and is none, whatever a pattern says.
KEPT = re.compile(r"cnatool$|FC_HBA_Conditions\.txt$|.*\.(out|log)$")


def records(conditions):
    """The columns of each line, split as the program does it."""
    for line in conditions.split("\n"):
        if "#" not in line and "--+--" not in line:
            columns = re.split(r"\|+", line.lstrip("|"))
            yield [re.sub(r'["\t]', " ", column).strip(" ") for column in columns]


def patterns(conditions):
    """The names of images: leading parts, or "*." and an extension."""
    named = {name[:79] for columns in records(conditions) for name in columns[8:10]}
    return sorted(named - {""})


def fits(name, pattern):
    if name.startswith("."):
        return False
    if pattern.startswith("*."):
        return "." in name and name[name.rindex("."):].startswith(pattern[1:])
    return name.startswith(pattern)


def image_set(directory):
    """The paths below a directory of this machine; those of directories end with "/"."""
    if not os.path.isdir(directory):
        raise AnsibleFilterError("There is no directory of images %s" % directory)
    paths = []
    for where, directories, files in os.walk(directory):
        names = files + [name + "/" for name in directories]
        paths += [os.path.relpath(os.path.join(where, name), directory) + "/" * name.endswith("/") for name in names]
    return sorted(paths)


def below(found, home):
    """The same for what the module "find" found below a directory of a host."""
    return [os.path.relpath(one["path"], home) + "/" * one["isdir"] for one in found]


def clashes(paths, conditions):
    """What is wrong with a set: files that would replace others than images, and
    patterns that fit two names of one directory, of which the program would take either."""
    found = ["%s is no image" % path for path in paths if KEPT.match(os.path.basename(path))]
    for where in sorted({os.path.dirname(path.rstrip("/")) for path in paths}):
        names = [path.rstrip("/") for path in paths if os.path.dirname(path.rstrip("/")) == where]
        for pattern in patterns(conditions):
            fitting = [name for name in names if fits(os.path.basename(name), pattern)]
            if len(fitting) > 1:
                found.append("'%s' fits %s: give each model a directory" % (pattern, " and ".join(fitting)))
    return found


def stale_images(there, paths, conditions):
    """The files among those of a host that fit a pattern and are not in the set."""
    used = [""] + [path.rstrip("/") for path in paths if path.endswith("/")]
    wanted = patterns(conditions)
    return [path for path in there if path not in paths and not path.endswith("/")
            and os.path.dirname(path) in used and not KEPT.match(os.path.basename(path))
            and any(fits(os.path.basename(path), pattern) for pattern in wanted)]


def unused_models(there, paths, conditions):
    """The directories of a host that the program could take for a model's, not in the set."""
    models = {columns[1] for columns in records(conditions) if len(columns) > 1} - {""}
    return [path[:-1] for path in there if path.endswith("/") and path not in paths and "/" not in path[:-1]
            and ".old" not in path and any(path.startswith(model) for model in models)]


def value(line):
    return line.partition(":")[2].strip()


def selected(ids, selection):
    """Whether a port's four ids are among the groups of two or four of a selection."""
    for group in selection.split(","):
        wanted = [int(number, 16) for number in group.split(":")]
        if ids[:len(wanted)] == wanted:
            return True
    return False


def firmware(reports, selection):
    """The versions that the reports of the selected ports say, and "?" for a port without.

    The reports are lines "file:line" of those of all ports and of the list of ports.
    Ports that are not on the list are those of adapters that have gone.
    """
    files = {}
    for line in reports.split("\n"):
        found = re.match(r".*?(local_hba_list|[^/]*_hba_attributes)\.out:(.*)", line)
        if found:
            files.setdefault(found.group(1), []).append(found.group(2))
    versions, serial = set(), ""
    for entry in files.get("local_hba_list", []):
        if entry.startswith("Serial No."):
            serial = value(entry)
        if not entry.startswith("PCI Function"):
            continue
        lines = files.get("%s_%s_hba_attributes" % (serial, value(entry)), [])
        ids = [value(line) for label in IDENTITY for line in lines if line.startswith(label)]
        said = {value(line) for line in lines if line.startswith(FIRMWARE)} - {""}
        if len(ids) != 4 or not all(re.match("(0[xX])?[0-9A-Fa-f]+$", number) for number in ids):
            versions.add("?")
        elif selected([int(number, 16) for number in ids], selection):
            versions |= said or {"?"}
    return sorted(versions)


def status(result, names):
    """A run's status with the name that the program's list gives it."""
    if "rc" not in result:
        return "unknown" if result.get("unreachable") else ""
    name = re.search(r"(\w+) +%d$" % result["rc"], names.get("stdout", ""), re.MULTILINE)
    return "%d %s" % (result["rc"], name.group(1)) if name else str(result["rc"])


def fleet(rows, hosts, answering):
    """The closing table: a row of each host, also of those that the role has not come to."""
    known = {row[0]: row for row in rows}
    table = [["host", "outcome", "check", "flash", "firmware before", "firmware after", "reason"]]
    for host in hosts:
        missing = "not begun" if host in answering else "lost"
        table.append(known.get(host, [host, missing, "", "", "", "", ""]))
    return table


def to_csv(rows):
    out = io.StringIO()
    csv.writer(out, lineterminator="\n").writerows(rows)
    return out.getvalue()


def to_lines(rows):
    """Columns for a screen; what is too long for it stands in the CSV."""
    cells = [[str(cell)[:100] for cell in row] for row in rows]
    widths = [max(map(len, column)) for column in zip(*cells)]
    return ["  ".join(cell.ljust(width) for cell, width in zip(row, widths)).rstrip() for row in cells]


class FilterModule:
    def filters(self):
        return {"cnatool_" + function.__name__: function for function in (
            image_set, below, clashes, stale_images, unused_models, firmware, status, fleet, to_csv, to_lines)}
