#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The Clock authors
# SPDX-License-Identifier: LGPL-2.1-or-later
"""alarmctl tells whether the next alarm will ring, and what happened to the last ones, on a whole phone: the real
daemon and ringer on a bus of their own, with and without a sound server.

    test_health_flow.py BUILD-FOLDER
"""
import json
import pathlib
import re
import sys
import tempfile
import time
import unittest

import dbus

import household
import phone

BUILD = sys.argv.pop(1)

HOUR = 3600
BUILT_IN_TONE = "sounds/ring-tones/Clock alert 1.aac"


class HealthFlow(unittest.TestCase):
    def setUp(self):
        home = tempfile.TemporaryDirectory()
        self.addCleanup(home.cleanup)
        self.home = pathlib.Path(home.name)

    def start(self, **how):
        self.phone = phone.Phone(BUILD, self.home, **{"display": False, **how})
        self.addCleanup(self.phone.close)

    def health(self):
        """Exit code, verdict, and the findings: subject to (mark, text). Lines and JSON must say the same."""
        lines, code = self.phone.alarmctl_status("health")
        report, json_code = self.phone.alarmctl_status("health", "--json")
        found = json.loads(report)
        self.assertEqual(code, json_code)
        self.assertEqual(lines.splitlines()[0], found["verdict"]["text"])
        for finding in found["findings"]:
            # The time that is left differs.
            self.assertIn(f"{finding['mark']:7}  {finding['subject']}: {finding['text']}".split(", in ")[0], lines)
        return code, found["verdict"]["text"], {finding["subject"]: (finding["mark"], finding["text"])
                                                for finding in found["findings"]}

    def in_an_hour(self, **attributes):
        return self.phone.add_event("Work", int(time.time()) + HOUR, **attributes)

    def test_nothing_is_in_the_way(self):
        self.start(display=True)
        cookie = self.in_an_hour()
        code, verdict, findings = self.health()
        self.assertEqual(code, 0)
        self.assertTrue(verdict.startswith("Yes, the next alarm will ring"), verdict)
        self.assertIn(f'"Work" ({cookie}), ', findings["next alarm"][1])
        self.assertEqual(findings["armed"][0], "ok")
        self.assertEqual(findings["sound output"], ("ok", "Null Output, volume 100 %"))
        self.assertEqual(findings["tone"][0], "ok")
        self.assertTrue(findings["tone"][1].endswith(BUILT_IN_TONE), findings["tone"])
        self.assertEqual(findings["ringer"], ("ok", "installed"))
        self.assertEqual(findings["ring screen"], ("ok", "libclockalarm"))
        self.assertEqual(findings["storage"], ("ok", "sound"))
        self.assertEqual(findings["missed alarms"], ("ok", "none untold"))
        self.assertEqual(findings["wakes from off"], ("warning", "no, this alarm does not ask for it"))
        self.assertIsNone(self.phone.sound.heard_since(0), "a check is not heard")

    def test_the_sound_output_is_judged(self):
        self.start()
        self.in_an_hour()
        self.phone.run("pactl", "set-sink-mute", "null", "1")
        code, _, findings = self.health()
        self.assertEqual((code, findings["sound output"]),
                         (0, ("warning", "Null Output, muted: is opened while an alarm rings")))
        self.phone.run("pactl", "set-sink-mute", "null", "0")
        self.phone.run("pactl", "set-sink-volume", "null", "0%")
        code, _, findings = self.health()
        self.assertEqual((code, findings["sound output"]),
                         (0, ("warning", "Null Output, volume 0 %: is raised while an alarm rings")))
        self.phone.run("pactl", "set-sink-volume", "null", "80%")
        code, _, findings = self.health()
        self.assertEqual((code, findings["sound output"]), (0, ("ok", "Null Output, volume 80 %")))

    def test_without_a_sound_server_nothing_is_heard(self):
        self.start(sound=False)
        self.assertEqual(self.health()[:2], (0, "No alarm is set."))
        self.in_an_hour()
        code, _, findings = self.health()
        self.assertEqual((code, findings["sound output"][0]), (1, "bad"))
        self.assertEqual(findings["tone"][0], "ok", "the tone is there all the same")

    def test_a_missing_tone_is_named_with_what_is_heard_instead(self):
        self.start()
        self.in_an_hour(sound="/nowhere/tone.aac")
        code, _, findings = self.health()
        self.assertEqual((code, findings["tone"][0]), (0, "warning"))
        self.assertTrue(findings["tone"][1].startswith("/nowhere/tone.aac is missing; heard instead: /"))
        self.assertTrue(findings["tone"][1].endswith(BUILT_IN_TONE), findings["tone"])

    def test_a_missing_plugin_is_a_warning(self):
        self.start()
        self.in_an_hour(PLUGIN="libmissing")
        code, _, findings = self.health()
        self.assertEqual((code, findings["ring screen"][0]), (0, "warning"))
        self.assertIn('the plain one, as "libmissing" does not load', findings["ring screen"][1])

    def test_without_a_ringer_no_alarm_is_heard(self):
        self.start(ringer=False)
        self.in_an_hour()
        code, verdict, findings = self.health()
        self.assertEqual((code, findings["ringer"][0]), (1, "bad"))
        self.assertTrue(verdict.startswith("No, the next alarm would not be heard: ringer: does not start: "), verdict)

    def test_a_ringing_alarm_is_left_alone_and_told_afterwards(self):
        self.start()
        due = int(time.time()) + 2
        cookie = self.phone.add_event("Tea", due)
        phone.wait_for(lambda: self.phone.sound.heard_since(due), 10, "sound")
        code, verdict, _ = self.health()
        self.assertEqual((code, verdict), (0, "An alarm rings now; no other is set."))
        self.assertEqual(str(self.phone.timed("query_attributes", dbus.UInt32(cookie))["STATE"]), "TRIGGERED")
        later = time.time()
        phone.wait_for(lambda: self.phone.sound.heard_since(later), 5, "sound that goes on")
        self.phone.timed("dismiss", dbus.UInt32(cookie), "test")
        phone.wait_for(self.phone.sound.is_silent, 5, "silence")

        lines = self.phone.alarmctl("health").splitlines()
        self.assertIn("last rings:", lines)
        self.assertTrue(lines[-1].endswith(f'"Tea" ({cookie}): stop by test'), lines[-1])
        line, = self.phone.alarmctl("journal").splitlines()
        line, troubles = re.subn(r", impaired \+\d\.\d s \(No display: heard, not seen\)", "", line)
        self.assertEqual(troubles, 1)
        self.assertRegex(line, rf'"Tea" \({cookie}\): due \(\d+ ms late\), rang \+\d\.\d s, '
                               rf'sounded \+\d\.\d s \(.*{BUILT_IN_TONE}\), answered \+\d+\.\d s \(stop by test\)$')
        self.assertEqual(self.phone.alarmctl("journal", "--since", "2126-01-01"), "")
        entries = json.loads(self.phone.alarmctl("journal", "--json", "--count", "1"))
        self.assertEqual([entry["what"] for entry in entries if entry["what"] != "impaired"],
                         ["due", "rang", "sounded", "answered"])
        self.assertEqual({entry["cookie"] for entry in entries}, {cookie})


if __name__ == "__main__":
    household.keep(lambda: unittest.main(verbosity=2))
