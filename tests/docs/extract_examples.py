#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The Clock authors
# SPDX-License-Identifier: LGPL-2.1-or-later
"""extract_examples.py PAGE FOLDER: writes each example of a page, a code block that names a file, into the folder.

An example starts with ```LANGUAGE FILE and ends with ```. Files that have not changed are left alone.
"""

import pathlib
import re
import sys

page, folder = map(pathlib.Path, sys.argv[1:])
folder.mkdir(parents=True, exist_ok=True)
for name, text in re.findall(r"^```\w+ ([\w.]+)\n(.*?)^```$", page.read_text(), re.MULTILINE | re.DOTALL):
    example = folder / name
    if not example.exists() or example.read_text() != text:
        example.write_text(text)
