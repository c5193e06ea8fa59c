#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The Clock authors
# SPDX-License-Identifier: LGPL-2.1-or-later
"""plain_commands.py BUILD-FOLDER: writes BUILD-FOLDER/plain/compile_commands.json, the build's own without the
precompiled header and the count of lines, for the checks that read the sources another way than the compiler of the
build.
"""

import json
import pathlib
import shlex
import sys


def plain(command):
    """The command without launcher, precompiled header, count of lines, and what goes with them."""
    words = shlex.split(command)
    compiler = next(place for place, word in enumerate(words) if word.endswith(("/c++", "/g++")))
    kept = []
    rest = iter(words[compiler:])
    for word in rest:
        if word == "-include":
            next(rest)
        elif word not in ("-Winvalid-pch", "-fpch-preprocess", "--coverage", "-fprofile-update=atomic"):
            kept.append(word)
    return shlex.join(kept)


def main():
    build = pathlib.Path(sys.argv[1])
    entries = json.loads((build / "compile_commands.json").read_text())
    for entry in entries:
        entry["command"] = plain(entry["command"])
    (build / "plain").mkdir(exist_ok=True)
    (build / "plain" / "compile_commands.json").write_text(json.dumps(entries))


if __name__ == "__main__":
    main()
