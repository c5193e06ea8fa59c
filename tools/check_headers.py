#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The Clock authors
# SPDX-License-Identifier: LGPL-2.1-or-later
"""check_headers.py BUILD-FOLDER: compiles every header by itself, with the flags that the build compiles sources with,
as plain_commands.py has written them.

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


def common_flags(build):
    """The flags of a source file with the include paths and definitions of all of them."""
    flags = []
    definitions = {}
    paths = {}
    for entry in json.loads((build / "plain" / "compile_commands.json").read_text()):
        words = iter(shlex.split(entry["command"]))
        flags = []
        for word in words:
            if word in ("-o", "-c"):
                next(words)
            elif word == "-isystem":
                paths[("-isystem", next(words))] = None
            elif word.startswith("-I") and not word.endswith("_autogen/include"):
                # No header comes from moc's folders, and to look through those of all targets takes longer than the rest.
                paths[("-isystem", word[2:])] = None
            elif word.startswith("-D"):
                definitions.setdefault(word.split("=")[0], word)
            elif not word.startswith("-I"):
                flags.append(word)
    # One library does without Qt's keywords beside GLib; the headers of the others use them.
    definitions.pop("-DQT_NO_KEYWORDS", None)
    # Our own root comes first and is held to the warnings.
    return [*flags, *definitions.values(), f"-I{ROOT}", *(word for path in paths if path[1] != str(ROOT) for word in path)]


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
    flags = common_flags(build)
    listed = subprocess.run(["git", "ls-files", "--cached", "--others", "--exclude-standard", "*.h"], cwd=ROOT,
                            capture_output=True, text=True, check=True).stdout.split()
    jobs = []
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        for name in listed:
            header = ROOT / name
            stamp = build / "headers" / (name + ".d")
            jobs.append(pool.submit(compile_alone, header, flags, stamp))
    problems = [problem for problem in (job.result() for job in jobs) if problem]
    print("\n".join(problems) if problems else f"{len(jobs)} headers")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
