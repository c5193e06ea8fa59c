#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The Clock authors
# SPDX-License-Identifier: LGPL-2.1-or-later
"""The unit files as the service manager reads them.

    test_units.py TIMED-UNIT RTC-UNIT
"""
import os
import pathlib
import re
import subprocess
import sys
import tempfile
import unittest

RTC_UNIT = pathlib.Path(sys.argv.pop())
TIMED_UNIT = pathlib.Path(sys.argv.pop())
# Out of ten: the manager's own audit. A daemon of a user's has no mount namespace, which counts for much.
MOST_EXPOSED = {"timed.service": 7.0, "clock-rtc.service": 4.0}


class Units(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        self.environment = dict(os.environ, XDG_RUNTIME_DIR=folder.name)

    def installed(self, unit):
        """The unit, with a program that is there in place of the one that is not installed yet."""
        text, programs = re.subn(r"^(Exec\w+)=\S+", r"\1=/bin/true", unit.read_text(encoding="utf-8"), flags=re.M)
        self.assertEqual(programs, 1)
        path = self.folder / unit.name
        path.write_text(text, encoding="utf-8")
        return path

    def analyze(self, *arguments):
        done = subprocess.run(["systemd-analyze", *map(str, arguments)], env=self.environment, capture_output=True,
                              text=True, check=False)
        self.assertEqual((done.returncode, done.stderr), (0, ""), done.stdout)
        return done.stdout

    def check(self, unit, *scope):
        path = self.installed(unit)
        self.analyze("verify", *scope, path)
        audit = self.analyze("security", *scope, "--offline=true", "--no-pager", path)
        exposure = float(re.search(r"exposure level for \S+: ([0-9.]+)", audit)[1])
        self.assertLessEqual(exposure, MOST_EXPOSED[unit.name])

    def test_unit_of_the_daemon(self):
        self.check(TIMED_UNIT, "--user")

    def test_unit_that_turns_the_device_on(self):
        self.check(RTC_UNIT)


if __name__ == "__main__":
    unittest.main(verbosity=2)
