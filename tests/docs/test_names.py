#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The Clock authors
# SPDX-License-Identifier: LGPL-2.1-or-later
"""What the documentation links to and mentions is there: pages and headings, files and folders of the tree, functions
of classes."""

import functools
import re
import subprocess
import unittest

import pages

# Paths that are not of this tree: on the user's system, or made by a build.
ELSEWHERE = re.compile(r"[/$~<]|build/|share/|sounds/ring-tones$|Korvo/|com\.astel\.")
PATH = re.compile(r"[\w.*-]+(?:/[\w.*-]+)+/?|[\w.-]+/")
MEMBER = re.compile(r"(?:\w+::)*([A-Z]\w+)::(~?\w+)(?:\(.*\))?")


@functools.cache
def sources():
    """The text of every source, without comments."""
    names = subprocess.run(["git", "ls-files", "--cached", "--others", "--exclude-standard", "*.h", "*.cpp"],
                           cwd=pages.TREE, check=True, capture_output=True, text=True).stdout.splitlines()
    return [re.sub(r"/\*.*?\*/|//[^\n]*", "", path.read_text(encoding="utf-8"), flags=re.DOTALL)
            for path in map(pages.TREE.joinpath, names) if path.exists()]


def is_member(owner, name):
    """Whether a class, structure, enumeration or namespace of this name has something of that name."""
    return any(f"{owner}::{name}" in text
               or (re.search(rf"\b(?:class|struct|enum|namespace) (?:\w+::)*{owner}\b[^;]*{{", text)
                   and re.search(rf"\b{re.escape(name)}\b", text))
               for text in sources())


def unknown_names(page):
    for line, target in page.links:
        name, _, anchor = target.partition("#")
        if "://" in target:
            continue
        path = (pages.TREE / page.name).parent / name if name else pages.TREE / page.name
        if not path.exists():
            yield f"{page.name}:{line}: {target} is not there"
        elif anchor and anchor not in pages.read(path).anchors:
            yield f"{page.name}:{line}: {target} has no such heading"
    for line, code in page.spans:
        member = MEMBER.fullmatch(code)
        if PATH.fullmatch(code) and not ELSEWHERE.match(code) and not any(pages.TREE.glob(code.rstrip("/"))):
            yield f"{page.name}:{line}: there is no {code}"
        if member and not is_member(*member.groups()) and member[1] != "Qt":
            yield f"{page.name}:{line}: there is no {code}"


class Names(unittest.TestCase):
    def test_everything_that_is_named_is_there(self):
        self.assertEqual([], [problem for path in pages.paths() for problem in unknown_names(pages.read(path))])


if __name__ == "__main__":
    unittest.main(verbosity=2)
