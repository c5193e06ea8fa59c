# SPDX-FileCopyrightText: 2026 The Clock authors
# SPDX-License-Identifier: LGPL-2.1-or-later
"""Missed alarms: what the desktop's notification server is told of them, and when."""

import os
import sqlite3
import time
import unittest

from daemoncase import SINGLE_SHOT, DaemonCase, dbus, dbusmock, wait_for

SERVER = "org.freedesktop.Notifications"


class Missed(DaemonCase):
    def start_server(self, capabilities="body actions"):
        self.server = self.mock("notification_daemon", {"capabilities": capabilities})

    def notices(self):
        calls = self.server.GetMethodCalls("Notify", dbus_interface=dbusmock.MOCK_IFACE)
        return [{"summary": str(args[3]), "body": str(args[4]), "actions": [str(text) for text in args[5]]}
                for _, args in calls]

    def let_pass(self, late):
        """The daemon is off while what it waits for passes by."""
        self.stop_daemon()
        with sqlite3.connect(os.path.join(self.folder(".local/share/timed"), "events.db")) as database:
            database.execute("UPDATE events SET moment = ?", ((int(time.time()) - late) * 1000,))
        database.close()
        self.start_daemon()

    def test_start_tells_everything_at_once_and_only_once(self):
        self.start_server()
        self.start_daemon()
        self.add_daily(7, "Wake up")
        self.add_daily(8, "Get up")
        self.let_pass(3600)
        wait_for(self.notices, "a notification")
        wait_for(lambda: self.fact("missed_untold") == 0, "all told")
        [notice] = self.notices()
        self.assertEqual(notice["summary"], "2 missed alarms")
        when = time.strftime("%-I", time.gmtime(time.time() - 3600))
        for title in ("Wake up", "Get up"):
            self.assertRegex(notice["body"], rf"{title} \(\w+, \w+ \d+, {when}:\d\d\s[AP]M\): the device was off")
        self.stop_daemon()
        self.start_daemon()
        wait_for(lambda: self.fact("notifications"), "the server seen")
        self.assertEqual(len(self.notices()), 1)

    def test_ring_now_rings_again(self):
        self.start_server()
        self.start_daemon()
        cookie = self.add_daily(7, "Wake up")
        self.let_pass(3600)
        wait_for(self.notices, "a notification")
        [notice] = self.notices()
        self.assertEqual(notice["summary"], "Missed alarm")
        self.assertEqual(notice["actions"][1:], ["Ring now"])
        self.assertEqual(self.state(cookie), "WAITING")
        self.server.EmitSignal(SERVER, "ActionInvoked", "us", [dbus.UInt32(1), notice["actions"][0]],
                               dbus_interface=dbusmock.MOCK_IFACE)
        wait_for(lambda: self.state(cookie) == "TRIGGERED", "ringing again")
        self.assertEqual(self.words(cookie)[:2], ["missed", "due"])
        self.timed.dismiss(cookie, "user")
        self.assertEqual(self.state(cookie), "WAITING")

    def test_later_misses_are_told_one_by_one(self):
        self.environment["TIMED_RING_TIME"] = "1"
        self.start_server()
        self.start_daemon()
        for title in ("One", "Two"):
            self.add(int(time.time()), SINGLE_SHOT, title)
        wait_for(lambda: len(self.notices()) == 2, "two notifications")
        self.assertEqual([notice["body"].split(" (")[0] for notice in self.notices()], ["One", "Two"])
        self.assertTrue(all("it rang, but nobody answered" in notice["body"] for notice in self.notices()))

    def test_nothing_is_said_into_the_void(self):
        self.start_daemon()
        self.add_daily(7, "Wake up")
        self.let_pass(3600)
        self.assertEqual(self.fact("missed_untold"), 1)
        self.assertFalse(self.fact("notifications"))
        # A restart does not lose it either.
        self.stop_daemon()
        self.start_daemon()
        self.assertEqual(self.fact("missed_untold"), 1)
        self.start_server()
        wait_for(self.notices, "a notification")
        wait_for(lambda: self.fact("missed_untold") == 0, "told")
        self.assertEqual(len(self.notices()), 1)

    def test_title_is_no_markup(self):
        self.start_server("body body-markup")
        self.start_daemon()
        self.add_daily(7, "<b>Up & away</b>")
        self.let_pass(3600)
        wait_for(self.notices, "a notification")
        self.assertIn("&lt;b&gt;Up &amp; away&lt;/b&gt;", self.notices()[0]["body"])


if __name__ == "__main__":
    unittest.main()
