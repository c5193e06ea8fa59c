#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The Clock authors
# SPDX-License-Identifier: LGPL-2.1-or-later
"""coverage.py BUILD-FOLDER: how many of our lines the last test run in BUILD-FOLDER went through, folder by folder.

The build has counted them (-DCLOCK_COVERAGE=ON); gcovr reads the counts. Ends with status 1 where the application or
the platform has fallen below its share.
"""

import collections
import json
import pathlib
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
APPLICATION = ("app", "mainview", "alarms", "alarmlist", "editor", "backup")
# Percent of the lines: of the application's folders together, and of the platform's.
GOALS = {"application": 90, "platform": 85}


def counted(build):
    """Every source file of ours with its lines that could run and those that did, as (file, lines, run)."""
    folders = [build / name for name in (*APPLICATION, "platform", "alarmctl")]
    scratch = build / "coverage"
    scratch.mkdir(exist_ok=True)
    # A process that a test kills may leave counts of calls below 0, which gcovr takes for a broken file. Counts of lines,
    # all that is read here, are not touched. With -j its threads wait for each other at every file, and for ever where one
    # gives up.
    command = ["gcovr", "--root", str(ROOT), "--filter", f"{ROOT}/({'|'.join((*APPLICATION, 'platform', 'alarmctl'))})/",
               "--object-directory", str(scratch), "--gcov-ignore-parse-errors", "--json-summary", "-",
               *map(str, folders)]
    report = subprocess.run(command, cwd=scratch, capture_output=True, text=True, check=False, timeout=600)
    if report.returncode != 0:
        sys.exit(report.stderr)
    return [(file["filename"], file["line_total"], file["line_covered"])
            for file in json.loads(report.stdout)["files"]]


def folder_of(name):
    parts = pathlib.Path(name).parts
    return "/".join(parts[:2]) if parts[0] == "platform" else parts[0]


def main():
    build = pathlib.Path(sys.argv[1]).resolve()
    folders = collections.defaultdict(lambda: [0, 0])
    houses = collections.defaultdict(lambda: [0, 0])
    for name, lines, run in counted(build):
        folder = folder_of(name)
        house = "application" if folder in APPLICATION else folder.split("/")[0]
        for sums in (folders[folder], houses[house]):
            sums[0] += lines
            sums[1] += run
    if not folders:
        sys.exit("no counts: was the build configured with -DCLOCK_COVERAGE=ON, and has a test run?")
    for folder, (lines, run) in sorted(folders.items()):
        print(f"{100 * run / lines:6.1f} %  {run:6} of {lines:6}  {folder}")
    shares = {house: 100 * run / lines for house, (lines, run) in houses.items()}
    low = [house for house, goal in GOALS.items() if shares.get(house, 0) < goal]
    print("Lines that ran: " + ", ".join(
        f"{house} {share:.1f} %" + (f" (at least {GOALS[house]} %)" if house in GOALS else "")
        for house, share in sorted(shares.items())))
    if low:
        print("Too few: " + " and ".join(low))
    sys.exit(1 if low else 0)


if __name__ == "__main__":
    main()
