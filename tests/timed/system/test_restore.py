# SPDX-FileCopyrightText: 2026 The Clock authors
# SPDX-License-Identifier: LGPL-2.1-or-later
"""A damaged store: what the user is told when the snapshot took its place."""

import os
import unittest

from daemoncase import DaemonCase, dbusmock, wait_for


class Restore(DaemonCase):
    def damage(self):
        folder = self.folder(".local/share/timed")
        for name in ("events.db-wal", "events.db-shm"):
            if os.path.exists(os.path.join(folder, name)):
                os.remove(os.path.join(folder, name))
        with open(os.path.join(folder, "events.db"), "r+b") as file:
            file.write(b"no database" * 100)

    def summaries(self):
        calls = self.server.GetMethodCalls("Notify", dbus_interface=dbusmock.MOCK_IFACE)
        return [str(arguments[3]) for _, arguments in calls]

    def start_server(self):
        self.server = self.mock("notification_daemon", {"capabilities": "body actions"})

    def restart_damaged(self):
        self.start_daemon()
        self.add_daily(7, "Wake up")
        self.stop_daemon()
        self.damage()
        self.start_daemon()
        self.assertTrue(self.fact("store_restored"))

    def test_restoration_is_told_once(self):
        self.start_server()
        self.restart_damaged()
        wait_for(self.summaries, "a notification")
        self.stop_daemon()
        self.start_daemon()
        wait_for(lambda: self.fact("notifications"), "the server seen")
        self.assertEqual(self.summaries(), ["Alarms were restored"])

    def test_restoration_is_told_when_somebody_can(self):
        self.restart_damaged()
        self.start_server()
        wait_for(self.summaries, "a notification")
        self.assertEqual(self.summaries(), ["Alarms were restored"])


if __name__ == "__main__":
    unittest.main()
