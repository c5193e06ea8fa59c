#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The Clock authors
# SPDX-License-Identifier: LGPL-2.1-or-later
"""Holds the includes of every folder to the may-use table of docs/architecture.md.

A folder may include its own headers and the public ones of the folders in its row. tests/ and bench/ may include
everything. Prints a line for each breach and exits with 1 where there is one.
"""

import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
FREE = {"tests", "bench", "tools"}
SETTINGS = "app/settings.h"
APPLICATION = {"app", "mainview", "alarms", "alarmlist", "alarmlist/notices", "editor", "backup", "alarmctl"}


def may_use():
    rows = {}
    for line in (ROOT / "docs/architecture.md").read_text().splitlines():
        cells = [cell.strip() for cell in line.split("|")[1:-1]]
        if len(cells) == 3 and cells[0].startswith("`"):
            rows[cells[0].strip("`")] = set(re.findall(r"`([^`]+)`", cells[2]))
    return rows


def breaches(path, rows):
    folder = str(path.parent.relative_to(ROOT))
    for number, line in enumerate(path.read_text().splitlines(), 1):
        found = re.match(r'\s*#include "([^"]+)"', line)
        # Generated code is included by its bare name.
        if not found or "/" not in found[1]:
            continue
        used = str(pathlib.PurePosixPath(found[1]).parent)
        if used == folder:
            continue
        where = f"{path.relative_to(ROOT)}:{number}: "
        if found[1] == SETTINGS and folder in APPLICATION:
            continue
        if used not in rows.get(folder, set()):
            yield f"{where}{folder} may not use {used}"
        elif found[1].endswith("_p.h"):
            yield f"{where}{found[1]} is private to {used}"


def main():
    rows = may_use()
    problems = []
    for path in sorted([*ROOT.rglob("*.h"), *ROOT.rglob("*.cpp")]):
        top = path.relative_to(ROOT).parts[0]
        if top in FREE or top == "build" or top.startswith("."):
            continue
        folder = str(path.parent.relative_to(ROOT))
        if folder not in rows:
            problems.append(f"{path.relative_to(ROOT)}: {folder} has no row in docs/architecture.md")
        else:
            problems.extend(breaches(path, rows))
    if not rows:
        problems.append("docs/architecture.md: no may-use table found")
    print("\n".join(problems))
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
