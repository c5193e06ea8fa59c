#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The Clock authors
# SPDX-License-Identifier: LGPL-2.1-or-later
"""What a desktop is asked for while alarms ring: notifications with both answers, a display that stays on, vibration.

    test_desktop_flow.py BUILD-FOLDER
"""
import sys
import tempfile
import time
import unittest

import dbus

import desktop
import phone

BUILD = sys.argv.pop(1)


class DesktopFlow(unittest.TestCase):
    def setUp(self):
        home = tempfile.TemporaryDirectory()
        self.addCleanup(home.cleanup)
        self.phone = phone.Phone(BUILD, home.name)
        self.addCleanup(self.phone.close)
        self.desktop = desktop.Desktop(self.phone)
        self.addCleanup(self.desktop.close)

    def state(self, cookie):
        return str(self.phone.timed("query_attributes", dbus.UInt32(cookie)).get("STATE", ""))

    def ring(self, title, **how):
        """Tells cookie and notification of an alarm that rings now."""
        cookie = self.phone.add_event(title, int(time.time()) + 1, **how)
        phone.wait_for(lambda: self.desktop.notices(title), 20, f"notification of {title}")
        [notice] = self.desktop.notices(title)
        phone.wait_for(self.phone.ring_window, 10, "ring window")
        return cookie, notice

    def wait_for_end(self):
        phone.wait_for(lambda: not self.phone.ring_window(), 10, "ring window gone")
        phone.wait_for(self.phone.sound.is_silent, 10, "silence")

    def test_the_notification_snoozes(self):
        cookie, (number, _, keys, hints) = self.ring("Wake up")
        self.assertEqual(list(keys), ["Snooze · 10 min", "Stop"])
        self.assertEqual((int(hints["urgency"]), str(hints["category"]), bool(hints["resident"])), (2, "alarm", True))
        self.desktop.choose(number, keys["Snooze · 10 min"])
        phone.wait_for(lambda: self.state(cookie) == "SNOOZED", 10, "snoozed")
        self.wait_for_end()
        phone.wait_for(lambda: number in self.desktop.closed(), 5, "notification gone")

    def test_each_notification_stops_its_own_alarm(self):
        first, (one, _, _, _) = self.ring("Wake up")
        second, (two, _, keys, _) = self.ring("Take the pills", snooze=0)
        self.assertEqual(list(keys), ["Stop"])
        self.desktop.choose(two, keys["Stop"])
        phone.wait_for(lambda: self.state(second) == "FINISHED", 10, "stopped")
        phone.wait_for(lambda: two in self.desktop.closed(), 5, "notification gone")
        self.assertNotIn(one, self.desktop.closed())
        self.assertEqual(self.state(first), "TRIGGERED")
        self.assertTrue(self.phone.ring_window())

    def test_an_answer_elsewhere_takes_the_notification_back(self):
        cookie, (number, _, _, _) = self.ring("Wake up")
        self.phone.timed("dismiss", dbus.UInt32(cookie), "test")
        self.wait_for_end()
        phone.wait_for(lambda: number in self.desktop.closed(), 5, "notification gone")

    def test_a_snooze_can_be_stopped_and_a_stop_be_taken_back(self):
        cookie, (number, _, keys, _) = self.ring("Wake up")
        self.desktop.choose(number, keys["Snooze · 10 min"])
        phone.wait_for(lambda: len(self.desktop.notices("Wake up")) == 2, 10, "notification of the snooze")
        snoozed, body, keys, _ = self.desktop.notices("Wake up")[1]
        self.assertRegex(body, r"^Snoozed, rings again at \d+:\d\d\s[AP]M\.$")
        self.phone.kill("com.astel.ringer")
        self.desktop.choose(snoozed, keys["Stop"])
        phone.wait_for(lambda: self.state(cookie) == "FINISHED", 10, "stopped")
        phone.wait_for(lambda: snoozed in self.desktop.closed(), 5, "notification of the snooze gone")
        phone.wait_for(lambda: len(self.desktop.notices("Wake up")) == 3, 10, "offer to take it back")
        offer, body, keys, _ = self.desktop.notices("Wake up")[2]
        self.assertEqual(body, "Stopped.")
        self.desktop.choose(offer, keys["Ring again in 5 minutes"])
        phone.wait_for(lambda: self.state(cookie) == "SNOOZED", 10, "rings again")
        self.assertAlmostEqual(self.phone.triggers()[cookie] / 1e9, time.time() + 300, delta=20)

    def test_the_display_is_on_and_it_vibrates_while_it_rings(self):
        cookie, _ = self.ring("Wake up")
        calls = self.desktop.calls
        [feedback] = phone.wait_for(lambda: calls(self.desktop.feedback, "TriggerFeedback"), 5, "vibration")
        self.assertEqual(str(feedback[1]), "alarm-clock-elapsed")
        self.assertEqual(int(feedback[3]), 0, "until it is ended")
        phone.wait_for(lambda: len(calls(self.desktop.screen_saver, "Inhibit")) == 1, 5, "display kept on")
        phone.wait_for(lambda: calls(self.desktop.screen_saver, "SimulateUserActivity"), 5, "display turned on")
        self.assertEqual(calls(self.desktop.feedback, "EndFeedback"), [])
        self.phone.timed("dismiss", dbus.UInt32(cookie), "test")
        phone.wait_for(lambda: calls(self.desktop.feedback, "EndFeedback") == [[9]], 5, "vibration ended")
        phone.wait_for(lambda: calls(self.desktop.screen_saver, "UnInhibit") == [[7]], 5, "display let go")


if __name__ == "__main__":
    unittest.main(verbosity=2)
