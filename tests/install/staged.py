# SPDX-FileCopyrightText: 2026 The Clock authors
# SPDX-License-Identifier: LGPL-2.1-or-later
"""What was built, installed into a folder that goes with the test."""

import os
import pathlib
import subprocess
import sys
import tempfile
import time
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
CMAKE, BUILD, PREFIX, LIBDIR, LIBEXECDIR = sys.argv[1:6]
del sys.argv[1:]


def run(*command, **options):
    """The output of a command that has to succeed."""
    done = subprocess.run([str(word) for word in command], capture_output=True, text=True, check=False, **options)
    if done.returncode != 0:
        raise AssertionError(f"{command}: status {done.returncode}\n{done.stdout[-2000:]}{done.stderr}")
    return done.stdout


def wait_for(condition, what, seconds=20):
    end = time.monotonic() + seconds
    while not condition():
        if time.monotonic() > end:
            raise AssertionError(f"not within {seconds} s: {what}")


class StagedCase(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(folder.cleanup)
        cls.folder = pathlib.Path(folder.name)
        cls.stage = cls.folder / "stage"
        run(CMAKE, "--install", BUILD, "--prefix", cls.stage)
        cls.bin = cls.stage / "bin"
        cls.libexec = cls.stage / LIBEXECDIR / "clock"
        cls.share = cls.stage / "share"
        cls.lib = cls.stage / LIBDIR

    def start_bus(self):
        """A session bus that can start nothing, and the environment of a session that has just what is installed."""
        bus = subprocess.Popen(["dbus-daemon", "--session", "--nofork", "--print-address", "--address=unix:tmpdir=/tmp"],
                               stdout=subprocess.PIPE, text=True, env=dict(os.environ, XDG_DATA_DIRS=str(self.folder)))
        self.addCleanup(self.end, bus)
        self.environment = dict(os.environ, DBUS_SESSION_BUS_ADDRESS=bus.stdout.readline().strip(),
                                XDG_DATA_DIRS=f"{self.share}:/usr/share", XDG_DATA_HOME=str(self.folder / self.id()),
                                RINGER_PLUGIN_DIR=str(self.lib / "clock" / "ringer"))

    @staticmethod
    def end(process):
        process.terminate()
        process.wait()
        if process.stdout:
            process.stdout.close()

    def start(self, program, name):
        """Starts a program and waits for its name on the bus."""
        process = subprocess.Popen([program], env=self.environment)
        self.addCleanup(self.end, process)
        wait_for(lambda: "true" in self.call("org.freedesktop.DBus", "/", "org.freedesktop.DBus.NameHasOwner", name),
                 f"{program} on the bus")
        return process

    def call(self, service, path, method, *arguments):
        return run("gdbus", "call", "--session", "--dest", service, "--object-path", path, "--method", method,
                   *arguments, env=self.environment)
