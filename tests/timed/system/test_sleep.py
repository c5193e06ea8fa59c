# SPDX-FileCopyrightText: 2026 The Clock authors
# SPDX-License-Identifier: LGPL-2.1-or-later
"""Sleep: the delay that the login manager hands out, and what is done after it."""

import time
import unittest

from daemoncase import DaemonCase, dbusmock, wait_for

MANAGER = "org.freedesktop.login1.Manager"


class Sleep(DaemonCase):
    def setUp(self):
        super().setUp()
        self.logind = self.mock("logind")

    def inhibitors(self):
        return self.logind.ListInhibitors(dbus_interface=MANAGER)

    def prepare_for_sleep(self, begins):
        self.logind.EmitSignal(MANAGER, "PrepareForSleep", "b", [begins], dbus_interface=dbusmock.MOCK_IFACE)

    def start_with_logind(self):
        self.start_daemon()
        wait_for(lambda: self.fact("logind"), "the login manager seen")

    def test_sleep_is_delayed_while_an_alarm_is_set(self):
        self.start_with_logind()
        self.assertEqual(len(self.inhibitors()), 0)
        asked = []
        self.logind.connect_to_signal("MethodCalled", lambda name, args: asked.append((str(name), list(args))),
                                      dbus_interface=dbusmock.MOCK_IFACE)
        self.add(int(time.time()) + 3600)
        wait_for(lambda: any(name == "Inhibit" for name, _ in asked), "a delay asked for")
        arguments = next(args for name, args in asked if name == "Inhibit")
        self.assertEqual((arguments[0], arguments[3]), ("sleep", "delay"))
        self.assertTrue(arguments[2])
        wait_for(lambda: not self.inhibitors(), "the delay given back")
        wait_for(lambda: self.fact("sleep_delay") == "none", "the delay given back")

    def test_sleep_is_delayed_while_an_alarm_rings(self):
        self.start_with_logind()
        cookie = self.add(int(time.time()))
        wait_for(lambda: self.state(cookie) == "TRIGGERED", "ringing")
        wait_for(lambda: len(self.inhibitors()) == 1, "the delay taken")
        self.assertEqual([str(text) for text in self.inhibitors()[0][:2]], ["sleep", "timed"])
        wait_for(lambda: self.fact("sleep_delay") == "held", "the delay taken")
        self.timed.dismiss(cookie, "user")
        wait_for(lambda: not self.inhibitors(), "the delay given back")

    def test_ringing_that_began_without_a_login_manager_is_guarded_by_the_next(self):
        self.end_mock()
        self.start_daemon()
        self.assertFalse(self.fact("logind"))
        cookie = self.add(int(time.time()))
        wait_for(lambda: self.state(cookie) == "TRIGGERED", "ringing")
        self.assertEqual(self.fact("sleep_delay"), "none")
        self.logind = self.mock("logind")
        wait_for(lambda: len(self.inhibitors()) == 1, "the delay taken")
        self.end_mock()
        wait_for(lambda: not self.fact("logind"), "the login manager missed")
        self.assertEqual(self.fact("sleep_delay"), "none")

    def test_waking_recomputes_and_tells(self):
        self.start_with_logind()
        self.prepare_for_sleep(True)
        self.prepare_for_sleep(False)
        wait_for(lambda: self.settings, "the settings told")
        self.assertEqual(self.settings, [("UTC", False)])
        self.assertEqual(self.words(0), ["resumed"])

    def test_sleep_ends_with_the_login_manager(self):
        self.start_with_logind()
        self.prepare_for_sleep(True)
        self.end_mock()
        wait_for(lambda: self.settings, "the settings told")
        cookie = self.add(int(time.time()))
        wait_for(lambda: self.state(cookie) == "TRIGGERED", "ringing")
        self.assertNotIn("woke", self.words(cookie))

    def test_alarm_that_woke_the_device_says_so(self):
        self.start_with_logind()
        cookie = self.add(int(time.time()) + 2)
        self.prepare_for_sleep(True)
        wait_for(lambda: self.state(cookie) == "TRIGGERED", "ringing")
        self.prepare_for_sleep(False)
        wait_for(lambda: self.words(0), "awake")
        self.assertEqual(self.words(cookie)[:2], ["due", "woke"])
        second = self.add(int(time.time()))
        wait_for(lambda: self.state(second) == "TRIGGERED", "ringing")
        self.assertNotIn("woke", self.words(second))


class SleepWithoutSystemBus(DaemonCase):
    with_system_bus = False

    def test_alarm_rings_all_the_same(self):
        self.start_daemon()
        self.assertFalse(self.fact("logind"))
        cookie = self.add(int(time.time()))
        wait_for(lambda: self.state(cookie) == "TRIGGERED", "ringing")


if __name__ == "__main__":
    unittest.main()
