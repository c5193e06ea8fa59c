# SPDX-FileCopyrightText: 2026 The Clock authors
# SPDX-License-Identifier: LGPL-2.1-or-later
"""From an alarm that turns the device on to the alarm of the hardware clock, set at shutdown."""

import os
import subprocess
import time
import unittest

from daemoncase import BOOT, KEEP_ALIVE, SINGLE_SHOT, TIMED, DaemonCase

CLOCK_RTC = os.path.join(os.path.dirname(TIMED), "clock-rtc")


class Boot(DaemonCase):
    with_system_bus = False

    def setUp(self):
        super().setUp()
        self.clock = os.path.join(self.folder("rtc"), "rtc0")
        self.alarm = os.path.join(self.clock, "wakealarm")
        os.makedirs(self.clock, exist_ok=True)
        with open(self.alarm, "w", encoding="ascii"):
            pass
        self.environment["TIMED_RTC_FOLDER"] = self.folder("rtc")

    def shut_down(self):
        """Ends the session and does what the system's unit does then; answers the hardware clock's alarm."""
        self.stop_daemon()
        subprocess.run([CLOCK_RTC, "--moments", self.folder("boot"), "--rtc", self.clock], check=True)
        with open(self.alarm, encoding="ascii") as file:
            return file.read()

    def test_next_alarm_with_the_flag_turns_the_device_on(self):
        self.start_daemon()
        self.assertTrue(self.fact("boot_ready"))
        now = int(time.time())
        self.add(now + 3600)
        self.add(now + 10800, KEEP_ALIVE | BOOT)
        self.add(now + 7200, SINGLE_SHOT | BOOT)
        self.assertEqual(self.fact("boot_moment"), (now + 7200) * 10**9)
        self.assertEqual(self.shut_down(), f"{now + 7080}\n")

    def test_without_such_an_alarm_nothing_is_set(self):
        self.start_daemon()
        cookie = self.add(int(time.time()) + 7200, SINGLE_SHOT | BOOT)
        self.add(int(time.time()) + 3600)
        self.timed.cancel(cookie)
        self.assertNotIn("boot_moment", self.timed.health())
        self.assertEqual(self.shut_down(), "")

    def test_missing_folder_is_told(self):
        self.environment["TIMED_BOOT_FOLDER"] = "/nonexistent"
        self.start_daemon()
        self.assertFalse(self.fact("boot_ready"))
        self.assertIn("/nonexistent", self.fact("boot_reason"))

    def test_missing_hardware_clock_is_told(self):
        os.remove(self.alarm)
        self.start_daemon()
        self.assertFalse(self.fact("boot_ready"))
        self.assertFalse(self.fact("timer_wakes"))
        self.assertIn("hardware clock", self.fact("boot_reason"))


if __name__ == "__main__":
    unittest.main()
