# SPDX-FileCopyrightText: 2026 The Clock authors
# SPDX-License-Identifier: LGPL-2.1-or-later
"""A daemon whose program is replaced while it runs."""

import os
import shutil
import signal
import subprocess
import time
import unittest

import daemoncase
from daemoncase import DaemonCase, dbus, dbusmock, wait_for

ORIGINAL = daemoncase.TIMED


class Upgrade(DaemonCase):
    with_system_bus = False

    def setUp(self):
        super().setUp()
        self.program = os.path.join(self.folder("installed"), "timed")
        shutil.copy(ORIGINAL, self.program)
        daemoncase.TIMED = self.program

    def replace_program(self):
        """As a package manager does: the new file takes the place of the old one."""
        shutil.copy(ORIGINAL, self.program + ".new")
        os.rename(self.program + ".new", self.program)

    def owner(self):
        try:
            return str(self.bus.get_name_owner(daemoncase.SERVICE))
        except dbus.DBusException:
            return ""

    def running_file(self):
        return os.readlink(f"/proc/{self.daemon.pid}/exe")

    def restart_by_signal(self):
        before = self.owner()
        self.daemon.send_signal(signal.SIGHUP)
        wait_for(lambda: self.owner() not in ("", before), "the daemon on the bus again")
        self.meet_daemon()

    def test_the_same_process_runs_the_new_program(self):
        self.start_daemon()
        self.replace_program()
        self.assertEqual(self.running_file(), self.program + " (deleted)")
        self.restart_by_signal()
        self.assertEqual(self.running_file(), self.program)
        self.assertIsNone(self.daemon.poll())

    def test_alarms_are_kept_and_armed(self):
        self.start_daemon()
        cookies = [self.add_daily(7, "Work"), self.add(int(time.time()) + 3600)]
        before = self.timed.next_triggers(2)
        self.replace_program()
        self.restart_by_signal()
        self.assertEqual([self.state(cookie) for cookie in cookies], ["WAITING", "WAITING"])
        self.assertEqual(self.timed.next_triggers(2), before)

    def test_what_rings_is_rung_again(self):
        name, path = "com.astel.ringer", "/com/astel/ringer"
        self.processes.append(self.spawn_server(name, path, name, stdout=subprocess.DEVNULL))
        ringer = dbus.Interface(self.bus.get_object(name, path), dbusmock.MOCK_IFACE)
        ringer.AddMethod(name, "ring", "u(xuiua{ss}a(utuuub)a(ia{ss}))t", "", "")
        self.start_daemon()
        cookie = self.add(int(time.time()) + 1)
        wait_for(lambda: ringer.GetMethodCalls("ring"), "the alarm rung")
        self.replace_program()
        ringer.ClearCalls()
        self.restart_by_signal()
        calls = wait_for(lambda: ringer.GetMethodCalls("ring"), "the alarm rung again")
        self.assertEqual(int(calls[0][1][0]), cookie)
        self.assertEqual(self.state(cookie), "TRIGGERED")

    def test_without_a_program_it_ends(self):
        self.start_daemon()
        os.remove(self.program)
        self.daemon.send_signal(signal.SIGHUP)
        self.assertEqual(self.daemon.wait(), 1)
        self.daemon = None


if __name__ == "__main__":
    unittest.main()
