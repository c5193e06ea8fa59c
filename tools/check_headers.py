#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The Clock authors
# SPDX-License-Identifier: LGPL-2.1-or-later
"""check_headers.py BUILD-FOLDER [HEADER...]: compiles every header by itself, with the flags that the build compiles
sources with, as plain_commands.py has written them.

A header that includes one of PRECOMPILED, by itself or through headers of ours, is compiled after it: what it may use
stays the same, and to read it from a precompiled file takes a tenth of the time. As each of ours is compiled by itself,
none can lean on what another one includes before it.

A header that was checked and has not changed since, nor anything that was compiled with it, is passed over: the
compiler's dependency files are kept in BUILD-FOLDER/headers.
"""

import concurrent.futures
import json
import os
import pathlib
import re
import shlex
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
# Headers of Qt, the largest first, with others that include them.
PRECOMPILED = {
    "QGraphicsWidget": {"QGraphicsWidget", "QGraphicsProxyWidget"},
    "QObject": {"QObject", "QAbstractListModel", "QAbstractTableModel", "QAccessibleObject", "QAccessibleWidget", "QAction",
                "QApplication", "QDBusAbstractAdaptor", "QDBusConnection", "QDBusPendingReply", "QDBusVirtualObject",
                "QDateTime", "QGraphicsItem", "QGraphicsLayout", "QGraphicsObject", "QGraphicsView", "QJsonArray",
                "QJsonDocument", "QJsonObject", "QProcess", "QTemporaryDir", "QThread", "QTime", "QTranslator", "QVariant",
                "QVariantMap"},
    "QString": {"QString", "QHash", "QList", "QLoggingCategory", "QMap", "QPixmap", "QPointer", "QRectF", "QSizeF",
                "QStringList"},
}


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
            elif word.startswith("-I") and not word.endswith(("_autogen/include", ".dir")):
                # No header comes from moc's folders, and to look through those of all targets takes time.
                paths[("-isystem", word[2:])] = None
            elif word.startswith("-D"):
                definitions.setdefault(word.split("=")[0], word)
            elif not word.startswith("-I"):
                flags.append(word)
    # One library does without Qt's keywords beside GLib; the headers of the others use them.
    definitions.pop("-DQT_NO_KEYWORDS", None)
    # Our own root comes first and is held to the warnings.
    folders = [word for path in paths if path[1] != str(ROOT) for word in path]
    return [*flags, *definitions.values(), f"-I{ROOT}", *folders]


def included(header, seen):
    """The names of the headers of others that one of ours includes, or one of ours that it includes."""
    if header in seen or not header.is_file():
        return set()
    seen.add(header)
    # What stands behind a condition may not be included.
    text = header.read_text(encoding="utf-8").partition("\n#if")[0]
    ours = re.findall(r'^#include "([^"]+)"', text, re.M)
    return set(re.findall(r"^#include <([^>]+)>", text, re.M)).union(*(included(ROOT / name, seen) for name in ours))


def first_of(names):
    """What to read before a header that includes these, or nothing."""
    return next((name for name, users in PRECOMPILED.items() if users & names), None)


def is_fresh(dependencies):
    if not dependencies.exists():
        return False
    made = dependencies.stat().st_mtime
    names = dependencies.read_text().replace("\\\n", " ").split()[1:]
    return all(os.path.exists(name) and os.stat(name).st_mtime <= made for name in names)


class Check:
    def __init__(self, build):
        self.folder = build / "headers"
        self.flags = common_flags(build)
        self.pool = concurrent.futures.ThreadPoolExecutor(os.cpu_count())

    def compile(self, dependencies, *options, text=None):
        """The compiler's complaints."""
        command = [*self.flags, *options, "-MD", "-MF", str(dependencies), "-MT", "header"]
        done = subprocess.run(command, input=text, capture_output=True, text=True)
        if done.returncode != 0:
            dependencies.unlink(missing_ok=True)
            return done.stderr
        return ""

    def precompile(self, name):
        file = self.folder / "precompiled" / f"{name}.h"
        dependencies = file.with_suffix(".d")
        if not is_fresh(dependencies):
            file.parent.mkdir(parents=True, exist_ok=True)
            file.write_text(f"#include <{name}>\n")
            complaints = self.compile(dependencies, "-x", "c++-header", str(file), "-o", f"{file}.gch")
            if complaints:
                sys.exit(complaints)
        return ["-include", str(file)]

    def compile_alone(self, header, first):
        stamp = self.stamp(header)
        stamp.parent.mkdir(parents=True, exist_ok=True)
        complaints = self.compile(stamp, *first, "-x", "c++", "-fsyntax-only", "-", text=f'#include "{header}"\n')
        return f"{header.relative_to(ROOT)}:\n{complaints}" if complaints else ""

    def stamp(self, header):
        return self.folder / f"{header.relative_to(ROOT)}.d"

    def problems(self, headers):
        stale = [header for header in headers if not is_fresh(self.stamp(header))]
        names = {header: first_of(included(header, set())) for header in stale}
        precompiled = {name: self.pool.submit(self.precompile, name) for name in PRECOMPILED if name in names.values()}
        first = {name: job.result() for name, job in precompiled.items()}
        jobs = [self.pool.submit(self.compile_alone, header, first.get(names[header], [])) for header in stale]
        return [problem for problem in (job.result() for job in jobs) if problem]


def main():
    listed = sys.argv[2:] or subprocess.run(
        ["git", "ls-files", "--cached", "--others", "--exclude-standard", "*.h"], cwd=ROOT, capture_output=True,
        text=True, check=True).stdout.splitlines()
    headers = [path for path in (ROOT / name for name in listed) if path.exists()]
    problems = Check(pathlib.Path(sys.argv[1]).resolve()).problems(headers)
    print("\n".join(problems) if problems else f"{len(headers)} headers")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
