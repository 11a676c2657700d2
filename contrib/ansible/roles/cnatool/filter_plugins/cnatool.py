"""What the role takes from lscna's JSON object, called a survey, and the closing table."""

import csv
import io
import os
import re


def image_set(directory):
    """The paths below a directory of the control node; those of directories end with "/"."""
    paths = []
    for where, directories, files in os.walk(directory):
        names = files + [name + "/" for name in directories]
        paths += [os.path.relpath(os.path.join(where, name), directory) + "/" * name.endswith("/") for name in names]
    return sorted(paths)


def images(survey):
    """The images that a flash would write: for each the files that match its name."""
    return [image["files"] for flash in survey["flashes"] for image in (flash["firmware"], flash["bios"]) if image]


def stray_images(survey, home, paths):
    """The files of a host that a flash could take and that are not in the set."""
    return sorted({os.path.relpath(path, home) for files in images(survey) for path in files} - set(paths))


def flash_ports(survey):
    ports = {(port["adapter"], port["fn"]): port for port in survey["ports"]}
    return [ports[flash["adapter"], flash["fn"]] for flash in survey["flashes"]]


def firmware(survey):
    return "; ".join("%s %s" % (port["adapter"], port["firmware"] or "?") for port in flash_ports(survey))


def up_to_date(survey, wanted):
    """Whether all adapters have the wanted firmware: one version, or one for each model."""
    ports = flash_ports(survey)
    versions = wanted if isinstance(wanted, dict) else {port["model"]: wanted for port in ports}
    return bool(ports) and all(str(versions.get(port["model"])) == port["firmware"] for port in ports)


def seen(survey):
    """What the ports see whose storage is not allowed or, when there is none, all that see some."""
    ports = [port for port in survey["ports"] if port["storage"]]
    return "; ".join("%s, function %s sees %s %s" % (port["adapter"], port["fn"], port["storage"]["vendor"] or "?", port["storage"]["product"] or "?")
                     + (", " + port["reason"] if port["reason"] else "")
                     for port in [port for port in ports if port["verdict"] == "not allowed"] or ports)


def said(result):
    """The last message of a program."""
    lines = [line.strip() for line in (result.get("stdout") or result.get("stderr") or "").split("\n") if line.strip()]
    return lines[-1] if lines else result.get("msg") or "ended with %s" % result.get("rc")


def status(result, names):
    """A run's exit status with the name that the program's list gives it."""
    if "rc" not in result:
        return "unknown" if result.get("unreachable") else ""
    name = re.search(r"(\w+) +%d$" % result["rc"], names.get("stdout", ""), re.MULTILINE)
    return "%d %s" % (result["rc"], name.group(1)) if name else str(result["rc"])


def fleet(rows, hosts, answering):
    """The closing table: a row of each host, also of those that the role has not come to."""
    known = {row[0]: row for row in rows}
    head = ["host", "outcome", "check", "flash", "images", "firmware before", "firmware after", "reason"]
    return [head] + [known.get(host, [host, "not begun" if host in answering else "lost"] + [""] * 6) for host in hosts]


def to_csv(rows):
    out = io.StringIO()
    csv.writer(out, lineterminator="\n").writerows(rows)
    return out.getvalue()


def to_lines(rows):
    """Columns for a screen; what is too long for it is whole in the CSV."""
    cells = [[str(cell)[:100] for cell in row] for row in rows]
    widths = [max(map(len, column)) for column in zip(*cells)]
    return ["  ".join(cell.ljust(width) for cell, width in zip(row, widths)).rstrip() for row in cells]


class FilterModule:
    def filters(self):
        return {"cnatool_" + function.__name__: function for function in (
            image_set, images, stray_images, firmware, up_to_date, seen, said, status, fleet, to_csv, to_lines)}
