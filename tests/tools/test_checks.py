#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The Clock authors
# SPDX-License-Identifier: LGPL-2.1-or-later
"""The checks of tools/lint.sh find what they are there for."""

import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest
from unittest import mock

TREE = pathlib.Path(__file__).resolve().parents[2]
BUILD = pathlib.Path(sys.argv.pop(1)).resolve()
sys.path.insert(0, str(TREE / "tools"))
import check_functions  # noqa: E402  (found by the line above)
import check_includes  # noqa: E402
import coverage  # noqa: E402
import plain_commands  # noqa: E402


class Folder(unittest.TestCase):
    parent = None

    def setUp(self):
        folder = tempfile.TemporaryDirectory(dir=self.parent)
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)

    def write(self, name, text):
        path = self.folder / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text, encoding="utf-8")
        return path


class Headers(Folder):
    """In a folder of the tree, where all headers are."""

    parent = TREE / "build"

    @classmethod
    def setUpClass(cls):
        cls.parent.mkdir(exist_ok=True)
        subprocess.run([TREE / "tools/plain_commands.py", BUILD], check=True)

    def setUp(self):
        super().setUp()
        self.addCleanup(shutil.rmtree, BUILD / "headers" / self.folder.relative_to(TREE), ignore_errors=True)

    def complaints(self, *headers):
        command = [TREE / "tools/check_headers.py", BUILD, *(path.relative_to(TREE) for path in headers)]
        done = subprocess.run(command, capture_output=True, text=True, check=False)
        self.assertEqual(done.returncode, 0 if f"{len(headers)} headers" in done.stdout else 1, done)
        return [path.name for path in headers if f"{path.relative_to(TREE)}:\n" in done.stdout]

    def test_headers_that_lean_on_what_others_include_are_told(self):
        widget = "#include <QGraphicsWidget>\n"
        leaning = self.write("leaning.h", "#pragma once\nQGraphicsWidget *leaning();\n")
        behind = self.write("behind.h", f'#pragma once\n{widget}#include "{leaning.relative_to(TREE)}"\n')
        whole = self.write("whole.h", f"#pragma once\n{widget}inline QGraphicsWidget *whole() {{ return nullptr; }}\n")
        text = self.write("text.h", "#pragma once\n#include <QString>\nQString text(const QGraphicsWidget &widget);\n")
        self.assertEqual(self.complaints(leaning, behind, whole, text), ["leaning.h", "text.h"])

    def test_headers_that_are_mended_are_compiled_anew(self):
        header = self.write("mended.h", "#pragma once\nQString mended();\n")
        self.assertEqual(self.complaints(header), ["mended.h"])
        self.write("mended.h", "#pragma once\n#include <QString>\nQString mended();\n")
        self.assertEqual(self.complaints(header), [])


class Functions(unittest.TestCase):
    def test_lengths_are_those_of_the_bodies(self):
        self.assertEqual(list(check_functions.cpp_functions("void f()\n{\n    a();\n    b();\n}\n\nstruct S\n{\n};\n")),
                         [(1, 2)])
        self.assertEqual(list(check_functions.python_functions("x = 1\ndef f():\n    a()\n    b()\n")), [(2, 2)])


class Includes(Folder):
    def test_what_the_table_does_not_allow_is_told(self):
        rows = {"platform/sound": set(), "editor": {"alarms"}}
        with mock.patch.object(check_includes, "ROOT", self.folder):
            for folder, name, expected in [
                ("editor", "alarms/qmalarm.h", []),
                ("editor", "editor/own_p.h", []),
                ("editor", "app/settings.h", []),
                ("editor", "alarms/other_p.h", ["alarms/other_p.h is private to alarms"]),
                ("editor", "platform/sound/probe.h", ["editor may not use platform/sound"]),
                ("platform/sound", "app/settings.h", ["platform/sound may not use app"]),
            ]:
                with self.subTest(folder=folder, name=name):
                    path = self.write(f"{folder}/source.cpp", f'#include "{name}"\n')
                    told = [text.split(": ", 1)[1] for text in check_includes.breaches(path, rows)]
                    self.assertEqual(told, expected)


class Commands(unittest.TestCase):
    def test_plain_ones_have_neither_precompiled_header_nor_counts(self):
        self.assertEqual(plain_commands.plain("cmake -E env X=1 ccache /usr/bin/c++ -DA -include pch.hxx -Winvalid-pch "
                                              "-fpch-preprocess --coverage -fprofile-update=atomic -o a.o -c a.cpp"),
                         "/usr/bin/c++ -DA -o a.o -c a.cpp")


class Coverage(unittest.TestCase):
    def test_a_share_below_its_goal_fails(self):
        for alarms, platform, expected in [(90, 85, 0), (89, 100, 1), (100, 84, 1)]:
            lines = [("alarms/a.cpp", 100, alarms), ("platform/toolkit/b.cpp", 100, platform), ("alarmctl/c.cpp", 9, 0)]
            with self.subTest(alarms=alarms, platform=platform), mock.patch.object(coverage, "counted", lambda _: lines), \
                    mock.patch.object(sys, "argv", ["coverage.py", "."]), mock.patch("builtins.print") as said:
                with self.assertRaises(SystemExit) as end:
                    coverage.main()
                self.assertEqual(end.exception.code, expected)
                self.assertIn(f"application {alarms}.0 % (at least 90 %), platform {platform}.0 % (at least 85 %)",
                              "\n".join(str(call.args[0]) for call in said.call_args_list))


if __name__ == "__main__":
    unittest.main(verbosity=2)
