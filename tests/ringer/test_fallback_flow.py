#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The Clock authors
# SPDX-License-Identifier: LGPL-2.1-or-later
"""Alarms of a phone without a ringer, and without a display: beeps and notifications take its place.

    test_fallback_flow.py BUILD-FOLDER
"""
import os
import pathlib
import subprocess
import sys
import time
import unittest

import dbus
import dbusmock

import household
import phone
from phonecase import PhoneCase

SERVER = "org.freedesktop.Notifications"


class FallbackCase(PhoneCase):
    SOUND = True

    def setUp(self):
        super().setUp()
        self.start(display=False, sound=self.SOUND, ringer=False)
        server = subprocess.Popen([sys.executable, "-m", "dbusmock", "--session", "-t", "notification_daemon"],
                                  env=self.phone.environment, stdout=subprocess.DEVNULL)
        self.addCleanup(server.wait)
        self.addCleanup(server.terminate)
        phone.wait_for(lambda: self.phone.bus.name_has_owner(SERVER), 10, "notification server")
        self.server = self.phone.bus.get_object(SERVER, "/org/freedesktop/Notifications")

    def ring(self):
        due = int(time.time()) + 1
        cookie = self.phone.add_event("Wake up", due)
        # Where there is no ringer at all, nothing is to be waited for.
        phone.wait_for(lambda: self.phone.sound.heard_since(due), 5, "beeps")
        self.wait_for_word(cookie, "sounded")
        return cookie

    def choose(self, action):
        calls = self.server.GetMethodCalls("Notify", dbus_interface=dbusmock.MOCK_IFACE)
        [arguments] = [arguments for _, arguments in calls]
        self.assertEqual(str(arguments[3]), "Wake up")
        self.assertEqual([str(text) for text in arguments[5][1::2]], ["Snooze · 10 min", "Stop"])
        key = {str(label): key for key, label in zip(arguments[5][::2], arguments[5][1::2])}[action]
        self.server.EmitSignal(SERVER, "ActionInvoked", "us", [dbus.UInt32(1), key],
                               dbus_interface=dbusmock.MOCK_IFACE)

    def closed_notices(self):
        return len(self.server.GetMethodCalls("CloseNotification", dbus_interface=dbusmock.MOCK_IFACE))

    def wait_for_end(self):
        if self.phone.sound:
            phone.wait_for(self.phone.sound.is_silent, 10, "silence")
        phone.wait_for(lambda: not self.phone.bus.name_has_owner("com.astel.ringer.fallback"), 10, "end of the program")


class FallbackFlow(FallbackCase):
    def test_snooze_of_the_notification(self):
        cookie = self.ring()
        self.choose("Snooze · 10 min")
        self.wait_for_state(cookie, "SNOOZED")
        self.wait_for_end()
        self.assertEqual(self.words(cookie), ["due", "failed", "sounded", "answered"])
        self.assertEqual(self.closed_notices(), 1)

    def test_stop_of_the_notification(self):
        cookie = self.ring()
        self.choose("Stop")
        self.wait_for_state(cookie, "FINISHED")
        self.wait_for_end()

    def test_it_takes_back_what_a_killed_ringer_left(self):
        number = self.server.Notify("Clock", dbus.UInt32(0), "", "Left", "", [], {}, 0, dbus_interface=SERVER)
        owner = self.phone.bus.get_name_owner(SERVER)
        (pathlib.Path(os.environ["XDG_RUNTIME_DIR"]) / "ringer.notices").write_text(f"{owner} {number}\n")
        self.ring()
        closed = self.server.GetMethodCalls("CloseNotification", dbus_interface=dbusmock.MOCK_IFACE)
        self.assertEqual([int(arguments[0]) for _, arguments in closed], [int(number)])

    def test_it_ends_with_the_daemon(self):
        self.ring()
        self.phone.kill("com.astel.timed")
        self.wait_for_end()
        # Its buttons would do nothing any more.
        self.assertEqual(self.closed_notices(), 1)


class FallbackWithoutSound(FallbackCase):
    SOUND = False

    def test_it_is_seen_and_answered(self):
        cookie = self.phone.add_event("Wake up", int(time.time()) + 1)
        phone.wait_for(lambda: self.server.GetMethodCalls("Notify", dbus_interface=dbusmock.MOCK_IFACE), 40, "notice")
        # Time to try each output more than once: what nobody hears is not called heard.
        self.assertRaises(AssertionError, phone.wait_for, lambda: "sounded" in self.words(cookie), 4, "sound")
        self.choose("Stop")
        self.wait_for_state(cookie, "FINISHED")
        self.wait_for_end()
        self.assertEqual(self.words(cookie), ["due", "failed", "impaired", "answered"])
        self.assertRegex(dict(self.journal(cookie))["impaired"], "^Nothing can be heard: no sound server")


if __name__ == "__main__":
    household.keep(lambda: unittest.main(verbosity=2))
