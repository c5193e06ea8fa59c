#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The Clock authors
# SPDX-License-Identifier: LGPL-2.1-or-later
"""Runs every command of the documentation as it stands there, in a home and on a bus of its own, where the programs of
the build are the ones that are started. What a page says a command prints is compared in form: numbers may differ.

    test_commands.py BUILD-FOLDER [PAGE...]
"""

import concurrent.futures
import os
import pathlib
import re
import shlex
import signal
import subprocess
import sys
import tempfile
import time
import unittest

import exceptions
import pages

BUILD = pathlib.Path(sys.argv[1]).resolve()
ASKED = sys.argv[2:]
SECONDS = 50  # for one command
FOLDER = tempfile.TemporaryDirectory(prefix="clock-docs-")
# A phone without a sound server or sound device, so that there is something for "alarmctl health" to tell.
SOUND = pathlib.Path(FOLDER.name) / "no-sound"


class Household:
    """A home and a bus. The bus starts the daemon and the ringer of the build; what it started ends with it."""

    def __init__(self, folder):
        self.environment = dict(
            os.environ, HOME=folder, XDG_DATA_HOME=f"{folder}/data", XDG_CONFIG_HOME=f"{folder}/config",
            XDG_CACHE_HOME=f"{folder}/cache", XDG_RUNTIME_DIR=f"{folder}/run", TIMED_BOOT_FOLDER=f"{folder}/boot",
            XDG_DATA_DIRS=f"{BUILD}/share:/usr/share", PATH=f"{BUILD}/bin:{os.environ['PATH']}",
            RINGER_PLUGIN_DIR=f"{BUILD}/lib/ringer", PULSE_SERVER=f"unix:{SOUND}", ALSA_CONFIG_PATH="/dev/null",
            LC_ALL="C.UTF-8",
            # The alarms of the pages, set for the early morning, are not to ring meanwhile.
            TZ="Asia/Tokyo" if 5 <= time.gmtime().tm_hour < 12 else "UTC", PYTHONDONTWRITEBYTECODE="1")
        for name in ("DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"):
            self.environment.pop(name, None)
        os.mkdir(f"{folder}/run", 0o700)
        os.mkdir(f"{folder}/boot")
        self._bus = subprocess.Popen(["dbus-daemon", "--session", "--nofork", "--print-address"], text=True,
                                     env=self.environment, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = self._bus.stdout.readline().strip()

    def run(self, command):
        """Status and output; for a command that does not end the status is a word."""
        process = subprocess.Popen(["sh", "-c", command], cwd=pages.TREE, env=self.environment, text=True,
                                   stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                                   start_new_session=True)
        try:
            output, _ = process.communicate(timeout=SECONDS)
            return process.returncode, output
        except subprocess.TimeoutExpired:
            os.killpg(process.pid, signal.SIGKILL)
            return f"none within {SECONDS} s", process.communicate()[0]

    def close(self):
        self._bus.terminate()
        self._bus.wait()
        self._bus.stdout.close()


def run_script(script):
    """What is wrong with the steps of a script, and the entries of the tables that were used."""
    problems, used = [], []
    with tempfile.TemporaryDirectory(prefix="clock-docs-", ignore_cleanup_errors=True) as folder:
        household = Household(folder)
        for step in script.steps:
            entry = exceptions.reason_not_to_run(step.command)
            if entry:
                used.append(entry)
                continue
            command, entries = exceptions.as_run(step.command, shlex.quote(str(BUILD)))
            used += entries
            begin = time.monotonic()
            status, output = household.run(command)
            print(f"{time.monotonic() - begin:5.1f} s  {script.page}:{script.line}  {command}", flush=True)
            problem = step.problem(status, output)
            if problem:
                problems.append(f"{script.page}:{script.line}: {step.command}\n  {problem}\n  run as: {command}\n"
                                f"{output}")
        household.close()
    return problems, used


class Commands(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.scripts = [script for path in pages.paths() if not ASKED or path.name in ASKED
                       for script in pages.read(path, BUILD).scripts]
        with concurrent.futures.ThreadPoolExecutor(max_workers=2) as pool:
            results = list(pool.map(run_script, cls.alone()))
        cls.problems = [problem for problems, _ in results for problem in problems]
        cls.used = [entry for _, used in results for entry in used]

    @classmethod
    def alone(cls):
        """A command that stands in several places by itself is run once."""
        seen = set()
        for script in cls.scripts:
            key = tuple((step.command, *step.output) for step in script.steps)
            if key not in seen:
                seen.add(key)
                yield script

    def test_every_command_does_what_its_page_says(self):
        self.assertGreater(len(self.scripts), 0)
        self.assertEqual([], self.problems, "\n" + "\n".join(self.problems))

    @unittest.skipIf(ASKED, "only some pages were asked for")
    def test_every_exception_still_occurs(self):
        for entry in exceptions.NOT_RUN + exceptions.RUN_AS:
            with self.subTest(command=entry.command):
                self.assertIn(entry, self.used, "no page has such a command any more")

    def test_what_is_not_run_here_is_run_elsewhere(self):
        for entry in exceptions.NOT_RUN:
            with self.subTest(command=entry.command):
                self.assertTrue(entry.reason)
                if entry.runner:
                    text = (pages.TREE / entry.runner).read_text(encoding="utf-8")
                    self.assertTrue(re.search(re.escape(entry.proof) if entry.proof else entry.command, text))


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1], verbosity=2)
