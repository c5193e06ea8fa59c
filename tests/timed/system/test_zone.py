# SPDX-FileCopyrightText: 2026 The Clock authors
# SPDX-License-Identifier: LGPL-2.1-or-later
"""The time zone, as the system's service for it and the localtime file tell it."""

import os
import unittest

from daemoncase import DaemonCase, wait_for

TIMEDATE = "org.freedesktop.timedate1"
HOUR = 3600 * 10**9


class Zone(DaemonCase):
    def setUp(self):
        super().setUp()
        self.environment.pop("TZ", None)
        self.environment["TIMED_LOCALTIME"] = self.localtime = os.path.join(self.folder("etc"), "localtime")

    def link(self, zone):
        os.symlink("/usr/share/zoneinfo/" + zone, self.localtime + ".new")
        os.replace(self.localtime + ".new", self.localtime)

    def tearDown(self):
        super().tearDown()
        if os.path.lexists(self.localtime):
            os.remove(self.localtime)

    def moment(self):
        return int(self.timed.next_triggers(1)[0][1])

    def test_zone_of_the_service_is_followed(self):
        timedate = self.mock("timedated", {"Timezone": "Etc/UTC"})
        self.start_daemon()
        self.add_daily(7)
        before = self.moment()
        timedate.SetTimezone("Pacific/Kiritimati", False, dbus_interface=TIMEDATE)
        wait_for(lambda: self.fact("zone") == "Pacific/Kiritimati", "the other zone")
        wait_for(lambda: self.settings, "the settings told")
        self.assertEqual(self.settings, [("Pacific/Kiritimati", False)])
        self.assertEqual((before - self.moment()) % (24 * HOUR), 14 * HOUR)
        self.assertEqual(self.words(0), ["zone changed"])

    def test_link_wins_over_the_service(self):
        self.link("Europe/Berlin")
        timedate = self.mock("timedated", {"Timezone": "Etc/UTC"})
        self.start_daemon()
        timedate.SetTimezone("Asia/Tokyo", False, dbus_interface=TIMEDATE)
        self.link("America/New_York")
        wait_for(lambda: self.settings, "the settings told")
        self.assertEqual(self.settings, [("America/New_York", False)])


if __name__ == "__main__":
    unittest.main()
