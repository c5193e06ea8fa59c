#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The Clock authors
# SPDX-License-Identifier: LGPL-2.1-or-later
"""check_headers.py BUILD-FOLDER: compiles every header by itself, with the flags of a source file of its folder.

A header that was checked and has not changed since, nor anything that was compiled with it, is passed over: the
compiler's dependency files are kept in BUILD-FOLDER/headers.
"""

import concurrent.futures
import json
import os
import pathlib
import shlex
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent


def flags_by_folder(build):
    flags = {}
    for entry in json.loads((build / "compile_commands.json").read_text()):
        folder = pathlib.Path(entry["file"]).parent
        words = shlex.split(entry["command"])
        named = {index + 1 for index, word in enumerate(words) if word in ("-o", "-c")}
        kept = [word for index, word in enumerate(words) if index not in named and word not in ("-o", "-c")]
        flags.setdefault(folder, [word for word in kept if not word.endswith("/ccache")])
    return flags


def is_fresh(stamp):
    if not stamp.exists():
        return False
    made = stamp.stat().st_mtime
    names = stamp.read_text().replace("\\\n", " ").split()[1:]
    return all(os.path.exists(name) and os.stat(name).st_mtime <= made for name in names)


def compile_alone(header, flags, stamp):
    if is_fresh(stamp):
        return ""
    stamp.parent.mkdir(parents=True, exist_ok=True)
    command = [*flags, "-x", "c++", "-fsyntax-only", "-MD", "-MF", str(stamp), "-MT", "header", "-"]
    done = subprocess.run(command, input=f'#include "{header}"\n', capture_output=True, text=True)
    if done.returncode != 0:
        stamp.unlink(missing_ok=True)
        return f"{header.relative_to(ROOT)}:\n{done.stderr}"
    return ""


def main():
    build = pathlib.Path(sys.argv[1]).resolve()
    flags = flags_by_folder(build)
    listed = subprocess.run(["git", "ls-files", "--cached", "--others", "--exclude-standard", "*.h"], cwd=ROOT,
                            capture_output=True, text=True, check=True).stdout.split()
    jobs = []
    problems = []
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        for name in listed:
            header = ROOT / name
            if header.parent not in flags:
                problems.append(f"{name}: no source file of its folder is compiled")
                continue
            stamp = build / "headers" / (name + ".d")
            jobs.append(pool.submit(compile_alone, header, flags[header.parent], stamp))
    problems += [problem for problem in (job.result() for job in jobs) if problem]
    print("\n".join(problems) if problems else f"{len(jobs)} headers")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
