#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The Clock authors
# SPDX-License-Identifier: LGPL-2.1-or-later
"""Whatever goes wrong on a phone, an alarm is heard or at least seen, and the journal knows.

    test_failure_flow.py BUILD-FOLDER
"""
import os
import pathlib
import signal
import sys
import time
import unittest

import dbus

import desktop
import household
import phone
from phonecase import BUILD, PhoneCase


class FailureFlow(PhoneCase):
    def ring(self, **how):
        return self.phone.add_event("Wake up", int(time.time()) + 1, **how)

    def sounded(self, cookie):
        """When a ringer said that it is heard, each time."""
        return [moment / 1000 for moment, of, what, _ in self.phone.timed("journal", dbus.Int64(0))
                if of == cookie and what == "sounded"]

    def wait_for_sound(self, since, seconds=15):
        return phone.wait_for(lambda: self.phone.sound.heard_since(since), seconds, "sound")

    def test_a_ringer_that_is_killed_ten_times_rings_again_each_time(self):
        self.start()
        cookie = self.ring()
        phone.wait_for(lambda: self.sounded(cookie), 15, "heard")
        times = []
        for kill in range(1, 11):
            killed = time.time()
            self.phone.kill("com.astel.ringer")
            phone.wait_for(lambda count=kill + 1: len(self.sounded(cookie)) == count, 15, f"heard after {kill} kills")
            again = self.sounded(cookie)[-1]
            self.wait_for_sound(again)
            times.append(again - killed)
        print("rings again after", ", ".join(f"{1000 * each:.0f}" for each in times), "ms", file=sys.stderr)
        self.assertLess(max(times), 2)
        self.assertEqual(self.state(cookie), "TRIGGERED")
        self.dismiss(cookie)
        self.wait_for_silence()
        self.assertEqual(self.state(cookie), "FINISHED")
        self.assertNotIn("failed", self.words(cookie))
        self.assertEqual(self.words(cookie).count("impaired"), 1)

    def test_a_killed_ringer_leaves_no_output_open(self):
        self.start()
        muted = lambda: self.phone.run("pactl", "get-sink-mute", "null").strip()
        self.phone.run("pactl", "set-sink-mute", "null", "1")
        cookie = self.ring()
        phone.wait_for(lambda: muted() == "Mute: no", 15, "opened for the alarm")
        phone.wait_for(lambda: self.sounded(cookie), 15, "heard")
        self.phone.kill("com.astel.ringer")
        phone.wait_for(lambda: len(self.sounded(cookie)) == 2, 15, "heard again")
        phone.wait_for(lambda: muted() == "Mute: no", 5, "opened again")
        self.dismiss(cookie)
        phone.wait_for(lambda: muted() == "Mute: yes", 5, "as it was")

    def test_a_display_that_goes_takes_no_sound_along(self):
        self.start()
        cookie = self.ring()
        phone.wait_for(lambda: self.sounded(cookie), 15, "heard")
        gone = time.time()
        self.phone.end_display()
        phone.wait_for(lambda: len(self.sounded(cookie)) == 2, 10, "heard without a display")
        self.wait_for_sound(gone + 1)
        self.assertIn("No display: heard, not seen", [detail for _, detail in self.journal(cookie)])
        self.dismiss(cookie)
        phone.wait_for(self.phone.sound.is_silent, 5, "silence")

    def test_a_ringer_that_hangs_while_it_rings(self):
        self.start()
        cookie = self.ring()
        phone.wait_for(lambda: self.sounded(cookie), 15, "heard")
        ringer = self.phone.process_of("com.astel.ringer")
        os.kill(ringer, signal.SIGSTOP)
        self.addCleanup(os.kill, ringer, signal.SIGCONT)
        self.wait_for_word(cookie, "failed", 30)
        phone.wait_for(lambda: len(self.sounded(cookie)) == 2, 10, "the fallback heard")
        self.wait_for_sound(self.sounded(cookie)[-1])

    def test_a_sound_server_that_hangs_is_no_reason_to_be_unseen(self):
        self.start()
        self.phone.sound_server.send_signal(signal.SIGSTOP)
        self.addCleanup(self.phone.sound_server.send_signal, signal.SIGCONT)
        cookie = self.ring()
        self.wait_for_word(cookie, "rang", 10)
        self.assertRegex(self.wait_for_word(cookie, "impaired", 20), "the sound server hangs")
        self.assertTrue(self.phone.ring_window())
        self.phone.sound_server.send_signal(signal.SIGCONT)
        self.wait_for_word(cookie, "sounded", 10)
        self.assertNotIn("failed", self.words(cookie))

    def test_a_plug_in_that_is_missing(self):
        self.start()
        cookie = self.ring(PLUGIN="libmissing")
        self.wait_for_word(cookie, "sounded")
        phone.wait_for(self.phone.ring_window, 5, "plain screen")
        self.assertIn("rang", self.words(cookie))
        self.assertIn("libmissing", dict(self.journal(cookie))["impaired"])

    def test_a_plug_in_that_crashes(self):
        self.start(plugins=pathlib.Path(BUILD).resolve() / "tests" / "ringer-plugins")
        cookie = self.ring(PLUGIN="libcrashing")
        self.wait_for_word(cookie, "failed", 40)
        self.wait_for_word(cookie, "sounded", 20)
        self.dismiss(cookie)
        phone.wait_for(self.phone.sound.is_silent, 10, "silence")

    def test_a_ringer_without_its_bus_name(self):
        self.start()
        self.phone.bus.request_name("com.astel.ringer")
        cookie = self.ring()
        self.wait_for_word(cookie, "failed", 40)
        self.wait_for_word(cookie, "sounded", 20)
        self.assertIn("beeps", dict(self.journal(cookie))["sounded"])
        self.phone.bus.release_name("com.astel.ringer")

    def test_without_a_sound_server_the_alarm_is_seen(self):
        self.start(sound=False)
        cookie = self.ring()
        phone.wait_for(self.phone.ring_window, 15, "ring window")
        self.wait_for_word(cookie, "rang")
        self.assertRegex(self.wait_for_word(cookie, "impaired"), "^Nothing can be heard: no sound server")
        self.assertNotIn("sounded", self.words(cookie))

    def test_without_a_display_the_alarm_is_heard(self):
        self.start(display=False)
        due = int(time.time()) + 1
        cookie = self.ring()
        self.wait_for_sound(due)
        self.assertEqual(self.wait_for_word(cookie, "impaired"), "No display: heard, not seen")
        self.dismiss(cookie)
        phone.wait_for(self.phone.sound.is_silent, 5, "silence")

    def test_unanswered_it_snoozes_three_times_and_is_missed(self):
        self.start(environment={"TIMED_RING_TIME": "2"})
        with_notices = desktop.Desktop(self.phone)
        self.addCleanup(with_notices.close)
        cookie = self.ring(snooze=2)
        self.wait_for_word(cookie, "missed", 60)
        self.assertEqual([what for what in self.words(cookie) if what not in ("rang", "sounded")],
                         ["due", "answered"] * 3 + ["due", "missed"])
        self.assertEqual(self.words(cookie).count("sounded"), 4)
        self.assertEqual([detail for what, detail in self.journal(cookie) if what == "answered"],
                         ["timeout, snooze of 2 s"] * 3)
        self.assertEqual(self.state(cookie), "FINISHED")
        phone.wait_for(lambda: with_notices.notices("Missed alarm"), 10, "notice of the miss")
        self.wait_for_silence()


if __name__ == "__main__":
    household.keep(lambda: unittest.main(verbosity=2))
