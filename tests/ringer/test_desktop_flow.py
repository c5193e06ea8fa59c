#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The Clock authors
# SPDX-License-Identifier: LGPL-2.1-or-later
"""What a desktop is asked for while alarms ring: notifications with both answers, a display that stays on, vibration.

    test_desktop_flow.py BUILD-FOLDER
"""
import pathlib
import time
import unittest

import desktop
import household
import phone
from phonecase import PhoneCase


class DesktopCase(PhoneCase):
    SCREEN_SAVER = True

    def setUp(self):
        super().setUp()
        self.start()
        self.desktop = desktop.Desktop(self.phone, self.SCREEN_SAVER)
        self.addCleanup(self.desktop.close)

    def ring(self, title, **how):
        """Tells cookie and notification of an alarm that rings now."""
        cookie = self.phone.add_event(title, int(time.time()) + 1, **how)
        phone.wait_for(lambda: self.desktop.notices(title), 20, f"notification of {title}")
        [notice] = self.desktop.notices(title)
        phone.wait_for(self.phone.ring_window, 10, "ring window")
        return cookie, notice

    def wait_for_notices(self, title, count):
        """The latest notification of a title, once there have been so many, or some of them twice."""
        phone.wait_for(lambda: len(self.desktop.notices(title)) >= count, 10, f"{count} notifications of {title}")
        return self.desktop.notices(title)[-1]

    def wait_for_closed(self, number):
        phone.wait_for(lambda: number in self.desktop.closed(), 10, "notification gone")

    def kill_once_it_knows(self, program, number):
        """Kills a program that has shown a notification, once it was answered the number and has put it down. Nobody
        after it can know the number of one that it was not answered yet."""
        record = pathlib.Path(self.phone.environment["XDG_RUNTIME_DIR"], f"{program}.notices")
        phone.wait_for(lambda: record.exists() and f" {number}\n" in record.read_text(encoding="ascii"), 10,
                       f"{program} knows notification {number}")
        self.phone.kill(f"com.astel.{program}")


class DesktopFlow(DesktopCase):
    def test_the_notification_snoozes(self):
        cookie, (number, _, keys, hints) = self.ring("Wake up")
        self.assertEqual(list(keys), ["Snooze · 10 min", "Stop"])
        self.assertEqual((int(hints["urgency"]), str(hints["category"]), bool(hints["resident"])), (2, "alarm", True))
        self.desktop.choose(number, keys["Snooze · 10 min"])
        self.wait_for_state(cookie, "SNOOZED")
        self.wait_for_silence()
        self.wait_for_closed(number)

    def test_each_notification_stops_its_own_alarm(self):
        first, (one, _, _, _) = self.ring("Wake up")
        second, (two, _, keys, _) = self.ring("Take the pills", snooze=0)
        self.assertEqual(list(keys), ["Stop"])
        self.desktop.choose(two, keys["Stop"])
        self.wait_for_state(second, "FINISHED")
        self.wait_for_closed(two)
        self.assertNotIn(one, self.desktop.closed())
        self.assertEqual(self.state(first), "TRIGGERED")
        self.assertTrue(self.phone.ring_window())

    def test_an_answer_elsewhere_takes_the_notification_back(self):
        cookie, (number, _, _, _) = self.ring("Wake up")
        self.dismiss(cookie)
        self.wait_for_silence()
        self.wait_for_closed(number)

    def test_a_snooze_can_be_stopped_and_a_stop_be_taken_back(self):
        cookie, (number, _, keys, _) = self.ring("Wake up")
        self.desktop.choose(number, keys["Snooze · 10 min"])
        snoozed, body, keys, _ = self.wait_for_notices("Wake up", 2)
        self.assertRegex(body, r"^Snoozed, rings again at \d+:\d\d\s[AP]M\.$")
        self.phone.kill("com.astel.ringer")
        self.desktop.choose(snoozed, keys["Stop"])
        self.wait_for_state(cookie, "FINISHED")
        self.wait_for_closed(snoozed)
        offer, body, keys, _ = self.wait_for_notices("Wake up", 3)
        self.assertEqual(body, "Stopped.")
        self.desktop.choose(offer, keys["Ring again in 5 minutes"])
        self.wait_for_state(cookie, "SNOOZED")
        self.assertAlmostEqual(self.phone.triggers()[cookie] / 1e9, time.time() + 300, delta=20)

    def test_the_next_ringer_takes_back_what_a_killed_one_left(self):
        cookie, (number, _, _, _) = self.ring("Wake up")
        self.kill_once_it_knows("ringer", number)
        self.wait_for_closed(number)
        again, _, keys, _ = self.wait_for_notices("Wake up", 2)
        self.desktop.choose(again, keys["Stop"])
        self.wait_for_state(cookie, "FINISHED")
        self.wait_for_closed(again)

    def test_the_next_daemon_takes_back_what_a_killed_one_left(self):
        cookie, (number, _, keys, _) = self.ring("Wake up")
        self.desktop.choose(number, keys["Snooze · 10 min"])
        snoozed, _, _, _ = self.wait_for_notices("Wake up", 2)
        self.kill_once_it_knows("timed", snoozed)
        self.assertEqual(self.state(cookie), "SNOOZED")
        self.wait_for_closed(snoozed)
        again, _, keys, _ = self.wait_for_notices("Wake up", 3)
        self.desktop.choose(again, keys["Stop"])
        self.wait_for_state(cookie, "FINISHED")

    def test_the_display_is_on_and_it_vibrates_while_it_rings(self):
        cookie, _ = self.ring("Wake up")
        calls = self.desktop.calls
        [feedback] = phone.wait_for(lambda: calls(self.desktop.feedback, "TriggerFeedback"), 5, "vibration")
        self.assertEqual(str(feedback[1]), "alarm-clock-elapsed")
        self.assertEqual(int(feedback[3]), 0, "until it is ended")
        phone.wait_for(lambda: len(calls(self.desktop.screen_saver, "Inhibit")) == 1, 5, "display kept on")
        phone.wait_for(lambda: calls(self.desktop.screen_saver, "SimulateUserActivity"), 5, "display turned on")
        self.assertEqual(calls(self.desktop.feedback, "EndFeedback"), [])
        self.dismiss(cookie)
        phone.wait_for(lambda: calls(self.desktop.feedback, "EndFeedback") == [[9]], 5, "vibration ended")
        phone.wait_for(lambda: calls(self.desktop.screen_saver, "UnInhibit") == [[7]], 5, "display let go")


class DesktopWithoutScreenSaver(DesktopCase):
    SCREEN_SAVER = False

    def test_the_portal_keeps_the_display_on(self):
        cookie, _ = self.ring("Wake up")
        calls = self.desktop.calls
        [inhibit] = phone.wait_for(lambda: calls(self.desktop.portal, "Inhibit"), 5, "display kept on")
        self.assertEqual(int(inhibit[1]), 8, "going idle")
        self.assertEqual(calls(self.desktop.request, "Close"), [])
        self.dismiss(cookie)
        phone.wait_for(lambda: calls(self.desktop.request, "Close"), 5, "display let go")


if __name__ == "__main__":
    household.keep(lambda: unittest.main(verbosity=2))
