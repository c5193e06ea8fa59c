#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The Clock authors
# SPDX-License-Identifier: LGPL-2.1-or-later
"""Whatever goes wrong on a phone, an alarm is heard or at least seen, and the journal knows.

    test_failure_flow.py BUILD-FOLDER
"""
import pathlib
import sys
import tempfile
import time
import unittest

import dbus

import desktop
import phone

BUILD = sys.argv.pop(1)


class FailureFlow(unittest.TestCase):
    def setUp(self):
        home = tempfile.TemporaryDirectory()
        self.addCleanup(home.cleanup)
        self.home = pathlib.Path(home.name)

    def start(self, **how):
        self.phone = phone.Phone(BUILD, self.home, **how)
        self.addCleanup(self.phone.close)

    def ring(self, **how):
        return self.phone.add_event("Wake up", int(time.time()) + 1, **how)

    def state(self, cookie):
        return str(self.phone.timed("query_attributes", dbus.UInt32(cookie)).get("STATE", ""))

    def journal(self, cookie):
        return [(str(what), str(detail)) for _, of, what, detail in self.phone.timed("journal", dbus.Int64(0))
                if of == cookie]

    def words(self, cookie):
        return [what for what, _ in self.journal(cookie)]

    def sounded(self, cookie):
        """When a ringer said that it is heard, each time."""
        return [moment / 1000 for moment, of, what, _ in self.phone.timed("journal", dbus.Int64(0))
                if of == cookie and what == "sounded"]

    def wait_for_sound(self, since, seconds=15):
        return phone.wait_for(lambda: self.phone.sound.heard_since(since), seconds, "sound")

    def wait_for_word(self, cookie, word, seconds=10):
        phone.wait_for(lambda: word in self.words(cookie), seconds, f"{word} in the journal")

    def wait_for_silence(self):
        phone.wait_for(lambda: not self.phone.ring_window(), 5, "ring window gone")
        phone.wait_for(self.phone.sound.is_silent, 5, "silence")

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
        self.phone.timed("dismiss", dbus.UInt32(cookie), "test")
        self.wait_for_silence()
        self.assertEqual(self.state(cookie), "FINISHED")
        self.assertNotIn("failed", self.words(cookie))

    def test_a_plug_in_that_is_missing(self):
        self.start()
        cookie = self.ring(PLUGIN="libmissing")
        self.wait_for_word(cookie, "sounded")
        phone.wait_for(self.phone.ring_window, 5, "plain screen")
        self.assertIn("rang", self.words(cookie))

    def test_a_plug_in_that_crashes(self):
        self.start(plugins=pathlib.Path(BUILD).resolve() / "tests" / "ringer-plugins")
        cookie = self.ring(PLUGIN="libcrashing")
        self.wait_for_word(cookie, "failed", 40)
        self.wait_for_word(cookie, "sounded", 20)
        self.phone.timed("dismiss", dbus.UInt32(cookie), "test")
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
        self.assertNotIn("sounded", self.words(cookie))

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
    unittest.main(verbosity=2)
