#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The Clock authors
# SPDX-License-Identifier: LGPL-2.1-or-later
"""The reader of the documentation finds every command, wherever it stands, and the checks see what is wrong."""

import pathlib
import tempfile
import unittest

import exceptions
import pages
import test_names


def read(text):
    with tempfile.TemporaryDirectory() as folder:
        path = pathlib.Path(folder, "page.md")
        path.write_text(text, encoding="utf-8")
        return pages.read(path)


def commands(text):
    return [[step.command for step in script.steps] for script in read(text).scripts]


class Pages(unittest.TestCase):
    def test_commands_are_found_wherever_they_stand(self):
        for text, expected in [
            ("```sh\nalarmctl list # all\n# nothing\nalarmctl \\\n next\n```\n", [["alarmctl list", "alarmctl  next"]]),
            ("    ./run   # starts\n    ./test\n", [["./run", "./test"]]),
            ("Say `alarmctl\nnext --count 3` aloud.\n", [["alarmctl next --count 3"]]),
            ("| a | b |\n|---|---|\n| x | `X=1 bench/startup.py --runs 9` |\n", [["X=1 bench/startup.py --runs 9"]]),
            ("- `tools/lint.sh` and `git log`\n", [["tools/lint.sh"], ["git log"]]),
            ("`tools/cmake`, `alarmctl`, `timed`, `tests/flow`, `rings(cookie)`, `minimumSize`\n", []),
            ("```json x.json\n{ \"alarmctl\": 1 }\n```\n\n    [Stop]\n    gesture=slide\n", []),
        ]:
            with self.subTest(text=text):
                self.assertEqual(commands(text), expected)

    def test_unknown_programs_are_commands_that_fail(self):
        self.assertEqual(commands("`figures.py ... rings`, `tests/none --all`\n"),
                         [["figures.py ... rings"], ["tests/none --all"]])

    def test_comments_tell_the_exit_status(self):
        [script] = read("    alarmctl health   # will it ring? exit status 1\n    alarmctl list # 2\n").scripts
        self.assertEqual([step.status for step in script.steps], [1, 0])

    def test_output_belongs_to_its_command(self):
        [script] = read("```console\n$ alarmctl list\none\ntwo\n$ alarmctl next\n```\n").scripts
        self.assertEqual([step.output for step in script.steps], [["one", "two"], []])

    def test_what_a_command_prints_is_compared_in_form(self):
        step = pages.Step("alarmctl health", 1, ["No, it will not.", "ok  next: 2026-11-23 07:30, in 2 d 16 h", "bad"])
        said = "No, it will not.\nok   next: 2027-01-01 18:05, in 45 min\nok   armed\nbad\n"
        self.assertIsNone(step.problem(1, said))
        upside_down = "\n".join(reversed(said.splitlines()))
        for status, output in [(0, said), (1, ""), (1, said.replace("not", "")), (1, upside_down)]:
            with self.subTest(status=status, output=output):
                self.assertIsNotNone(step.problem(status, output))

    def test_commands_among_other_lines_are_refused(self):
        with self.assertRaises(ValueError):
            read("    Yes, it will ring.\n    alarmctl list\n")

    def test_the_build_under_test_takes_the_place_of_the_others(self):
        for command, expected in [
            ("build/release/bin/timed", "/b/bin/timed"),
            ("XDG_DATA_DIRS=$PWD/build/release/share:/usr/share build/dev/x", "XDG_DATA_DIRS=/b/share:/usr/share /b/x"),
            ("bench/x build/release", "bench/x /b"),
        ]:
            with self.subTest(command=command):
                self.assertEqual(exceptions.as_run(command, "/b")[0], expected)

    def test_names_that_are_not_there_are_told(self):
        page = read("[a](nowhere.md) `platform/no.cpp` `docs/*.md` `/etc/x` `LifeCycle::commit` `LifeCycle::nothing`\n")
        page.name = "README.md"
        self.assertEqual([problem.split(": ")[1] for problem in test_names.unknown_names(page)],
                         ["nowhere.md is not there", "there is no platform/no.cpp",
                          "there is no LifeCycle::nothing"])


if __name__ == "__main__":
    unittest.main(verbosity=2)
