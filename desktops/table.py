#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Tries the program in the real shells and prints the table of what was observed; the reasons of what is wrong go
below it: table.py PROGRAM PICTURES [SHELL...]. Fails if anything is wrong."""

import json
import os
import shutil
import subprocess
import sys
import tempfile

from shells import SHELLS

SESSIONS = 5
COLUMNS = {"first_start": "icon at the first start", "panel_at_icon": "panel at the icon",
           "not_listed": "in no task list", "menu": "menu complete", "copy": "copies", "tool_tip": "tool tip",
           "tray_restart": "icon after the tray's restart", "minimised": "minimised window comes back"}
HERE = os.path.dirname(os.path.abspath(__file__))


def observe(shell, program, pictures, extent):
    """What one session shows; an empty answer when the shell itself fails."""
    picture = os.path.join(pictures, shell + ".png")
    run = subprocess.run(["/usr/bin/python3", "-W", "ignore", os.path.join(HERE, "session.py"), shell, program, picture,
                          extent], stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True)
    if run.returncode:
        print(run.stderr, file=sys.stderr)
        return {}
    return json.loads(run.stdout)


def try_shell(shell, program, pictures):
    """The shell's row, and the reasons of its noes."""
    seen, icons, reasons = {}, 0, []
    for number in range(SESSIONS):
        # The other columns need an icon, and are tried in the first session that has one.
        answers = observe(shell, program, pictures, "icon" if seen else "all")
        there, reason = answers.pop("first_start", (False, "the shell does not start"))
        icons += there
        if not there:
            reasons.append("first start %d: %s" % (number + 1, reason))
        seen = seen or answers
    row = ["%s, %d of %d" % ("yes" if icons == SESSIONS else "no", icons, SESSIONS)]
    for name in list(COLUMNS)[1:]:
        yes, figure = seen.get(name, (None, None))
        row.append("" if yes is None else "no" if not yes else "yes, " + figure if figure else "yes")
        if yes is False:
            reasons.append(COLUMNS[name] + ": " + figure)
    return row, reasons


def print_table(rows):
    lines = [["", *COLUMNS.values()], *([shell, *row] for shell, row in rows.items())]
    widths = [max(len(line[i]) for line in lines) for i in range(len(lines[0]))]
    lines.insert(1, ["-" * width for width in widths])
    for line in lines:
        print("| " + " | ".join(map(str.ljust, line, widths)) + " |")


def main():
    program, destination, *names = sys.argv[1:]
    unknown = set(names) - set(SHELLS)
    if unknown:
        sys.exit("no shell %s; there are %s" % (", ".join(unknown), ", ".join(SHELLS)))
    rows, reasons = {}, []
    with tempfile.TemporaryDirectory(prefix="lumivane-pictures-") as pictures:
        os.chmod(pictures, 0o777)  # the sessions' user is another one
        for shell in names or SHELLS:
            rows[shell], why = try_shell(shell, program, pictures)
            reasons += [shell + ", " + reason for reason in why]
            print(shell + ":", "; ".join(filter(None, rows[shell])), file=sys.stderr, flush=True)
        shutil.copytree(pictures, destination, dirs_exist_ok=True)
    print_table(rows)
    print(*reasons, sep="\n")
    sys.exit(bool(reasons))


main()
