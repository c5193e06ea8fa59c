# SPDX-FileCopyrightText: 2026 The Clock authors
# SPDX-License-Identifier: LGPL-2.1-or-later
"""Snoozed alarms: what the desktop's notification server is told of them."""

import time
import unittest

from daemoncase import DaemonCase, dbus, dbusmock, wait_for


class Snooze(DaemonCase):
    def notices(self):
        """The titles of all notifications so far."""
        calls = self.server.GetMethodCalls("Notify", dbus_interface=dbusmock.MOCK_IFACE)
        return [str(arguments[3]) for _, arguments in calls]

    def snooze(self, title):
        cookie = self.add(int(time.time()), title=title)
        wait_for(lambda: self.state(cookie) == "TRIGGERED", "ringing")
        self.timed.snooze(cookie, dbus.UInt32(600), "test")

    def test_each_start_tells_a_snooze_once(self):
        self.server = self.mock("notification_daemon", {"capabilities": "body actions"})
        self.start_daemon()
        self.snooze("One")
        wait_for(self.notices, "a notification")
        self.stop_daemon()
        self.start_daemon()
        wait_for(lambda: self.notices() == ["One", "One"], "told by the next daemon")
        # Whatever was sent before it has arrived as well.
        self.snooze("Two")
        wait_for(lambda: "Two" in self.notices(), "told of another one")
        self.assertEqual(self.notices(), ["One", "One", "Two"])

    def test_a_server_that_is_back_is_told_again(self):
        self.server = self.mock("notification_daemon", {"capabilities": "body actions"})
        self.start_daemon()
        self.snooze("One")
        wait_for(self.notices, "a notification")
        self.end_mock()
        self.server = self.mock("notification_daemon", {"capabilities": "body actions"})
        wait_for(lambda: self.notices() == ["One"], "told again")


if __name__ == "__main__":
    unittest.main()
