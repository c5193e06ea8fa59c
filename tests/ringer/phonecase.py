# SPDX-FileCopyrightText: 2026 The Clock authors
# SPDX-License-Identifier: LGPL-2.1-or-later
"""What the tests of a whole phone have in common: a home of their own, and questions to the daemon about its alarms."""
import pathlib
import sys
import tempfile
import unittest

import dbus

import phone

BUILD = sys.argv.pop(1)


class PhoneCase(unittest.TestCase):
    def setUp(self):
        home = tempfile.TemporaryDirectory()
        self.addCleanup(home.cleanup)
        self.home = pathlib.Path(home.name)

    def start(self, **how):
        self.phone = phone.Phone(BUILD, self.home, **how)
        self.addCleanup(self.phone.close)

    def state(self, cookie):
        return str(self.phone.timed("query_attributes", dbus.UInt32(cookie)).get("STATE", ""))

    def wait_for_state(self, cookie, state, seconds=10):
        phone.wait_for(lambda: self.state(cookie) == state, seconds, f"event {cookie} is {state}")

    def journal(self, cookie):
        return [(str(what), str(detail)) for _, of, what, detail in self.phone.timed("journal", dbus.Int64(0))
                if of == cookie]

    def words(self, cookie):
        return [what for what, _ in self.journal(cookie)]

    def wait_for_word(self, cookie, word, seconds=10):
        """Answers the details of the first such entry."""
        phone.wait_for(lambda: word in self.words(cookie), seconds, f"{word} in the journal")
        return next(detail for what, detail in self.journal(cookie) if what == word)

    def dismiss(self, cookie):
        self.phone.timed("dismiss", dbus.UInt32(cookie), "test")

    def wait_for_silence(self):
        phone.wait_for(lambda: not self.phone.ring_window(), 10, "ring window gone")
        if self.phone.sound:
            phone.wait_for(self.phone.sound.is_silent, 10, "silence")
