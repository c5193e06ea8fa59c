#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The Clock authors
# SPDX-License-Identifier: LGPL-2.1-or-later
"""Holds functions to a length at which they can be read: none of the tree's has more lines than the limit.

Leans on the format of the code: the brace that begins a C++ function stands alone in its line, the one that ends it
below, at the same depth. Python functions are measured by their syntax.
"""
import ast
import pathlib
import re
import subprocess
import sys

LIMIT = 60
ROOT = pathlib.Path(__file__).resolve().parent.parent


def cpp_functions(text):
    """Pairs of the line before the body, and the number of lines within it."""
    lines = text.splitlines()
    begins = {}
    for number, line in enumerate(lines, start=1):
        brace = re.fullmatch(r"( *)([{}];?)", line)
        if not brace:
            continue
        depth, mark = len(brace[1]), brace[2]
        if mark == "{":
            begins[depth] = number
        elif depth in begins:
            begin = begins.pop(depth)
            # Types end with a semicolon.
            if mark == "}":
                yield begin - 1, number - begin - 1


def python_functions(text):
    for node in ast.walk(ast.parse(text)):
        if isinstance(node, (ast.FunctionDef, ast.AsyncFunctionDef)):
            yield node.lineno, node.end_lineno - node.lineno


def main():
    listed = subprocess.run(["git", "ls-files", "--cached", "--others", "--exclude-standard", "*.cpp", "*.h", "*.py"],
                            cwd=ROOT, capture_output=True, text=True, check=True).stdout.split("\n")
    too_long = 0
    for name in filter(None, listed):
        file = ROOT / name
        if not file.exists():
            continue
        find = python_functions if file.suffix == ".py" else cpp_functions
        for line, length in find(file.read_text(encoding="utf-8")):
            if length > LIMIT:
                print(f"{name}:{line}: {length} lines, more than {LIMIT}")
                too_long += 1
    return 1 if too_long else 0


if __name__ == "__main__":
    sys.exit(main())
