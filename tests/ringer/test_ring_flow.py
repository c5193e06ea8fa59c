#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The Clock authors
# SPDX-License-Identifier: LGPL-2.1-or-later
"""Alarms ring on a whole phone: daemon and ringer started by the bus, a real display and a real sound server.

    test_ring_flow.py BUILD-FOLDER
"""
import datetime
import json
import sys
import time
import unittest
import wave

import household
import phone
from phonecase import PhoneCase

# Where the buttons of the ring screen are on a display of 480 × 854, and the way of the knob that stops.
SNOOZE = (240, 566)
STOP = (60, 790), (420, 790)


class RingFlow(PhoneCase):
    def answer(self, how, cookie, state):
        """Answers until it is taken: for a moment after an alarm came up, it takes no answer."""
        def is_answered():
            how()
            return self.state(cookie) == state

        phone.wait_for(is_answered, 5, f"event {cookie} is {state}")

    def snooze(self, cookie):
        self.answer(lambda: self.phone.press(*SNOOZE), cookie, "SNOOZED")

    def stop(self, cookie):
        self.answer(lambda: self.phone.drag(*STOP), cookie, "FINISHED")

    def wait_for_ring(self, due, seconds):
        """Until an alarm is seen and heard."""
        phone.wait_for(self.phone.ring_window, seconds, "ring window")
        return self.wait_for_sound(due, 5)

    def wait_for_sound(self, due, seconds):
        """Tells how many seconds after a moment the first sound came."""
        heard = phone.wait_for(lambda: self.phone.sound.heard_since(due), seconds, "sound")
        phone.wait_for(lambda: (self.phone.sound.loudest(0.5) or 0) > 0.02, 5, "sound well above silence")
        print(f"first sound {1000 * (heard - due):.0f} ms after the moment", file=sys.stderr)
        return heard - due

    def test_alarms_of_the_command_line_ring(self):
        self.start()
        minute = datetime.datetime.now() + datetime.timedelta(seconds=65)
        due = minute.replace(second=0, microsecond=0).timestamp()
        snoozed, stopped = (int(self.phone.alarmctl("add", minute.strftime("%H:%M"), "--title", title))
                            for title in ("Wake up", "Take the pills"))
        self.assertEqual(self.phone.triggers(), {snoozed: due * 1e9, stopped: due * 1e9})
        phone.wait_for(self.phone.sound.is_silent, 5, "silence before the alarm")

        self.wait_for_ring(due, 70)
        self.assertEqual([self.state(snoozed), self.state(stopped)], ["TRIGGERED", "TRIGGERED"])
        self.phone.screenshot("ring-dark.png")
        self.snooze(snoozed)
        self.stop(stopped)
        self.wait_for_silence()

        triggers = self.phone.triggers()
        self.assertEqual(list(triggers), [snoozed])
        self.assertGreater(triggers[snoozed], time.time() * 1e9)
        alarms = {alarm["cookie"]: alarm for alarm in json.loads(self.phone.alarmctl("list", "--json"))}
        self.assertIsNotNone(alarms[snoozed]["nextTrigger"])
        self.assertFalse(alarms[stopped]["enabled"])
        self.assertIsNone(alarms[stopped]["nextTrigger"])

    def test_a_snoozed_alarm_rings_again_and_stop_ends_it(self):
        self.start()
        due = int(time.time()) + 2
        cookie = self.phone.add_event("Tea", due, snooze=3)
        self.wait_for_ring(due, 10)
        self.snooze(cookie)
        self.wait_for_silence()

        again = self.phone.triggers()[cookie] / 1e9
        self.assertLess(again, time.time() + 3)
        self.wait_for_ring(again, 10)
        self.stop(cookie)
        self.wait_for_silence()
        self.assertEqual(self.phone.triggers(), {})
        self.assertEqual(self.words(cookie), ["due", "rang", "sounded", "answered"] * 2)

    def test_two_alarms_are_answered_one_by_one(self):
        self.start(theme="light")
        due = int(time.time()) + 2
        first = self.phone.add_event("Wake up", due)
        second = self.phone.add_event("Take the pills", due)
        self.wait_for_ring(due, 10)
        self.wait_for_state(second, "TRIGGERED")
        phone.wait_for(lambda: ("rang" in dict(self.journal(second))), 5, "the second alarm is seen as well")
        self.phone.screenshot("ring-light-two-alarms.png")
        self.stop(first)
        phone.wait_for(lambda: ("sounded" in dict(self.journal(second))), 5, "the second alarm is heard")
        self.assertEqual(self.state(second), "TRIGGERED")
        self.assertTrue(self.phone.ring_window())
        self.stop(second)
        self.wait_for_silence()

    def test_a_ringer_that_is_killed_rings_again(self):
        self.start()
        due = int(time.time()) + 2
        cookie = self.phone.add_event("Wake up", due)
        self.wait_for_ring(due, 10)
        self.phone.kill("com.astel.ringer")
        phone.wait_for(lambda: self.phone.bus.name_has_owner("com.astel.ringer"), 5, "another ringer")
        self.wait_for_ring(time.time(), 10)
        self.stop(cookie)
        self.wait_for_silence()

    def test_a_silent_tone_gives_way_to_the_built_in_one(self):
        self.start()
        silent = self.home / "silent.wav"
        with wave.open(str(silent), "wb") as out:
            out.setparams((1, 2, 8000, 0, "NONE", "not compressed"))
            out.writeframes(bytes(2 * 8000 * 10))
        due = int(time.time()) + 2
        cookie = self.phone.add_event("Tea", due, sound=str(silent))
        # The two seconds of the tone, and the start of the ringer.
        self.assertLess(self.wait_for_ring(due, 10), 2.5)
        sounded = phone.wait_for(lambda: dict(self.journal(cookie)).get("sounded"), 5, "journal says what is heard")
        self.assertTrue(sounded.endswith("sounds/ring-tones/Clock alert 1.aac"), sounded)

    def test_daemon_and_ringer_end_with_their_session(self):
        self.start()
        due = int(time.time()) + 2
        cookie = self.phone.add_event("Wake up", due)
        self.wait_for_ring(due, 10)
        self.stop(cookie)
        self.wait_for_silence()
        processes = [self.phone.process_of(name) for name in ("com.astel.timed", "com.astel.ringer")]
        self.phone.end_bus()
        for process in processes:
            phone.wait_for(lambda number=process: not phone.is_running(number), 5, "end of daemon and ringer")


if __name__ == "__main__":
    household.keep(lambda: unittest.main(verbosity=2))
