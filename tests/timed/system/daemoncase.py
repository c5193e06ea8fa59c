# SPDX-FileCopyrightText: 2026 The Clock authors
# SPDX-License-Identifier: LGPL-2.1-or-later
"""The real alarm daemon on private buses, among mocks of the services of a system."""

import os
import shutil
import subprocess
import sys
import time

import dbus
import dbus.mainloop.glib
import dbusmock
from gi.repository import GLib

dbus.mainloop.glib.DBusGMainLoop(set_as_default=True)

SERVICE = "com.astel.timed"
PATH = "/com/astel/timed"
SINGLE_SHOT = 1 << 0
KEEP_ALIVE = 1 << 1
BOOT = 1 << 2

TIMED = sys.argv.pop(1)


def wait_for(condition, what, seconds=10):
    """Runs the main loop until the condition holds, and answers its value."""
    end = time.monotonic() + seconds
    context = GLib.MainContext.default()
    while True:
        result = condition()
        if result:
            return result
        if time.monotonic() > end:
            raise AssertionError(f"not within {seconds} s: {what}")
        tick = GLib.timeout_add(20, lambda: True)
        context.iteration(True)
        GLib.source_remove(tick)


class DaemonCase(dbusmock.DBusTestCase):
    """Each test has buses of its own; the home is that of the whole program, emptied of events."""

    with_system_bus = True

    def setUp(self):
        self.start_session_bus()
        if self.with_system_bus:
            self.start_system_bus()
        self.bus = self.get_dbus()
        self.environment = dict(os.environ, TIMED_BOOT_FOLDER=self.folder("boot"))
        self.processes = []
        self.daemon = None
        self.settings = []

    def tearDown(self):
        self.stop_daemon()
        for process in self.processes:
            process.terminate()
            process.wait()
        # By its own name: it looks for the buses where it noted them, not in a class derived from it.
        data = os.path.dirname(self.get_services_dir())
        dbusmock.DBusTestCase.tearDownClass()
        shutil.rmtree(data)
        for name in os.listdir(self.folder(".local/share/timed")):
            os.remove(os.path.join(self.folder(".local/share/timed"), name))

    @classmethod
    def tearDownClass(cls):
        """The buses end with each test."""

    @staticmethod
    def folder(name):
        path = os.path.join(os.environ["HOME"], name)
        os.makedirs(path, exist_ok=True)
        return path

    def mock(self, template, parameters=None):
        process, mock = self.spawn_server_template(template, parameters or {}, subprocess.DEVNULL)
        self.processes.append(process)
        return mock

    def end_mock(self):
        process = self.processes.pop()
        process.terminate()
        process.wait()

    def start_daemon(self):
        self.daemon = subprocess.Popen([TIMED], env=self.environment)
        wait_for(lambda: self.bus.name_has_owner(SERVICE), "the daemon on the bus", 20)
        self.meet_daemon()

    def meet_daemon(self):
        self.timed = dbus.Interface(self.bus.get_object(SERVICE, PATH), SERVICE)
        self.timed.connect_to_signal("settings_changed", self.note_settings)

    def note_settings(self, info, time_changed):
        self.settings.append((str(info[0]), bool(time_changed)))

    def stop_daemon(self):
        if self.daemon:
            self.daemon.terminate()
            self.daemon.wait()
            self.daemon = None
            wait_for(lambda: not self.bus.name_has_owner(SERVICE), "the end of the daemon")

    def add(self, ticker, flags=SINGLE_SHOT | KEEP_ALIVE, title="", recurrences=()):
        attributes = dbus.Dictionary({"TITLE": title} if title else {}, signature="ss")
        event = (dbus.Int64(ticker), dbus.UInt32(flags), dbus.Int32(0), dbus.UInt32(0), attributes,
                 dbus.Array(recurrences, signature="(utuuub)"), dbus.Array([], signature="(ia{ss})"))
        return int(self.timed.add_event(event))

    def add_daily(self, hour, title=""):
        every = ((1 << 24) - 1, (1 << 60) - 1, (1 << 7) - 1, 0xfffffffe, 0x1ffe)
        rule = dbus.Struct((dbus.UInt32(1 << hour), dbus.UInt64(1), dbus.UInt32(every[2]), dbus.UInt32(every[3]),
                            dbus.UInt32(every[4]), dbus.UInt32(1)), signature=None)
        return self.add(-1, KEEP_ALIVE, title, [rule])

    def fact(self, name):
        return self.timed.health().get(name)

    def state(self, cookie):
        return str(self.timed.query_attributes(cookie).get("STATE", ""))

    def words(self, cookie):
        return [str(what) for _, about, what, _ in self.timed.journal(dbus.Int64(0)) if about == cookie]
