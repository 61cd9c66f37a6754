#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Everything measured, in one table: table.py LUMIVANE PROGRAMS [BEFORE [RUNS [SECONDS]]], where PROGRAMS is the folder
of the benchmarks, and BEFORE another build of Lumivane to have beside it, or "". Times are medians; a program that is
not installed has no column, and a line that says how to get it."""

import json
import os
import shutil
import subprocess
import sys

import tray_programs

OTHERS = ("kteatime", "copyq", "flameshot")
DAY = "a day's rises, sets and twilight"
ENGINE = {"Calculate": DAY, "FindLunation": "lunation of a moment", "GetPhase": "phase of a moment",
          "GetAlmanacIndex": "name of the next full moon", "WholeTable": "the whole table of lunations",
          "LoadTable": "loading that table", "MoonImage": "the Moon's picture"}
PANEL = {"Refresh": "one refresh of the panel, painted", "MakePanel": "making the panel"}


def say(text):
    print(text, file=sys.stderr, flush=True)


def benchmarks(program, rows, runs):
    """The medians of a Google Benchmark program, by row."""
    say("Measuring with %s ..." % os.path.basename(program))
    output = subprocess.run(
        [program, "--benchmark_repetitions=%d" % runs, "--benchmark_min_time=0.05", "--benchmark_format=json",
         "--benchmark_report_aggregates_only=true"], env=dict(os.environ, QT_QPA_PLATFORM="offscreen"),
        check=True, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL).stdout
    return {rows[entry["run_name"]]: (entry["cpu_time"], entry["time_unit"])
            for entry in json.loads(output)["benchmarks"] if entry["aggregate_name"] == "median"}


def pyephem():
    say("Measuring with PyEphem ...")
    program = os.path.join(os.path.dirname(os.path.abspath(__file__)), "pyephem.py")
    return {DAY: (float(subprocess.run(["/usr/bin/python3", program], check=True, stdout=subprocess.PIPE).stdout), "us")}


def text(value, unit):
    """A value to three digits, in the unit that suits it."""
    units = ("ns", "us", "ms", "s")
    if unit in units:
        place = units.index(unit)
        while value >= 1000 and place < 3:
            value, place = value / 1000, place + 1
        unit = "µs" if units[place] == "us" else units[place]
    number = "%d" % round(value) if value >= 100 or value == int(value) else "%.*f" % (1 if value >= 10 else 2, value)
    return (number + " " + unit).strip()


def print_table(columns):
    rows = []
    for figures in columns.values():
        rows += [row for row in figures if row not in rows]
    lines = [["", *columns]]
    for row in rows:
        lines.append([row, *(text(*figures[row]) if row in figures else "" for figures in columns.values())])
    widths = [max(len(line[i]) for line in lines) for i in range(len(lines[0]))]
    lines.insert(1, ["-" * widths[0], *("-" * (width - 1) + ":" for width in widths[1:])])
    for line in lines:
        print("| " + " | ".join([line[0].ljust(widths[0]), *map(str.rjust, line[1:], widths[1:])]) + " |")


def main():
    lumivane, programs = map(os.path.abspath, sys.argv[1:3])
    before = sys.argv[3] if len(sys.argv) > 3 else ""
    runs = int(sys.argv[4]) if len(sys.argv) > 4 else 15
    seconds = int(sys.argv[5]) if len(sys.argv) > 5 else 60
    columns = {"Lumivane": {**benchmarks(programs + "/bench_engine", ENGINE, runs),
                            **benchmarks(programs + "/bench_panel", PANEL, runs)},
               "libnova": benchmarks(programs + "/bench_libnova", {"LibnovaDay": DAY}, runs), "PyEphem": pyephem()}
    ours = {"Lumivane": lumivane, **({"before": os.path.abspath(before)} if before else {})}
    commands = {**ours, "20 lines of Qt": programs + "/tray_baseline"}
    commands.update((name, shutil.which(name)) for name in OTHERS if shutil.which(name))
    say("Measuring on a virtual desktop, some minutes ...")
    figures = tray_programs.measure(commands, runs, seconds, ours)
    for name, rows in figures.items():
        columns[name] = {**columns.get(name, {}), **rows}
    print_table(columns)
    for name in OTHERS:
        if name not in commands:
            print("%s is not installed (apt-get install %s)." % (name, name))
        elif name not in figures:
            print("%s shows no icon here." % name)


main()
