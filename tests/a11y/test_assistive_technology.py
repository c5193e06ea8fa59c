#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The Clock authors
# SPDX-License-Identifier: LGPL-2.1-or-later
"""The whole clock by assistive technology alone: the real program and daemon on a display and a bus of their own, found,
read, pressed and typed into over AT-SPI.

    test_assistive_technology.py BUILD-FOLDER
"""
import json
import os
import pathlib
import subprocess
import sys
import tempfile
import unittest

import dbus
from gi.repository import GLib

import household
import phone
from phone import wait_for

BUILD = pathlib.Path(sys.argv.pop(1)).resolve()
PATIENCE = 60  # seconds; far more than even a busy machine needs
ENOUGH = 240  # seconds for all of it
SLOWEST_ANSWER = 20000  # milliseconds, of a program that is busy


class AssistiveTechnology(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        home = tempfile.TemporaryDirectory()
        cls.addClassCleanup(home.cleanup)
        cls.phone = phone.Phone(BUILD, pathlib.Path(home.name), sound=False, ringer=False)
        cls.addClassCleanup(cls.phone.close)
        cls.atspi = cls.turn_accessibility_on()
        cls.phone.alarmctl("add", "07:30", "--title", "Work", "--days", "mon,tue")
        cls.program = cls.start_clock()

    @classmethod
    def turn_accessibility_on(cls):
        status = cls.phone.bus.get_object("org.a11y.Bus", "/org/a11y/bus")
        status.GetAddress(dbus_interface="org.a11y.Bus")
        status.Set("org.a11y.Status", "IsEnabled", True, dbus_interface=dbus.PROPERTIES_IFACE)
        # The library finds its bus when it is loaded, once for the process.
        os.environ.update(cls.phone.environment)
        import pyatspi
        return pyatspi

    @classmethod
    def start_clock(cls):
        clock = subprocess.Popen([str(BUILD / "bin" / "clock")], env=dict(
            cls.phone.environment, QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1", QT_QPA_PLATFORM="xcb"))
        cls.addClassCleanup(clock.wait)
        cls.addClassCleanup(clock.terminate)
        desktop = cls.atspi.Registry.getDesktop(0)
        cls.atspi.Atspi.set_timeout(SLOWEST_ANSWER, SLOWEST_ANSWER)
        # Always asked anew: nobody handles events here that would keep a cache true.
        desktop.set_cache_mask(cls.atspi.Atspi.Cache.NONE)
        return wait_for(lambda: cls.program_on(desktop, clock), PATIENCE, "the program on the accessibility bus")

    @classmethod
    def program_on(cls, desktop, process):
        if process.poll() is not None:
            raise AssertionError(f"the program ended with status {process.returncode}")
        return next((child for child in cls.children(desktop) if child.name == "clock"), None)

    @staticmethod
    def children(parent):
        found = (parent.getChildAtIndex(index) for index in range(parent.childCount))
        return [child for child in found if child is not None]

    def all_below(self, parent):
        for child in self.children(parent):
            yield child
            yield from self.all_below(child)

    def search(self, role, name):
        """The first whose name begins so, or None."""
        try:
            return next((found for found in self.all_below(self.program)
                         if found.getRole() == role and found.name.startswith(name)), None)
        except GLib.GError:
            # It went while it was asked.
            return None

    def find(self, role, name):
        return wait_for(lambda: self.search(role, name), PATIENCE, f"{role} {name}")

    def is_in(self, found, state):
        return found.getState().contains(state)

    def do(self, found, name):
        actions = found.queryAction()
        names = [actions.getName(index) for index in range(actions.nActions)]
        self.assertIn(name, names)
        self.assertTrue(actions.doAction(names.index(name)))

    def alarms(self):
        return json.loads(self.phone.alarmctl("list", "--json"))

    def test_reads_the_main_page_and_switches_an_alarm_off(self):
        atspi = self.atspi
        self.find(atspi.ROLE_FRAME, "Clock")
        alarms = self.find(atspi.ROLE_LIST, "")
        wait_for(lambda: alarms.queryTable().nRows == len(self.alarms()), PATIENCE, "the rows")
        row = self.find(atspi.ROLE_LIST_ITEM, "7:30")
        self.assertIn("Work, Mon, Tue", row.name)
        toggle = self.find(atspi.ROLE_CHECK_BOX, "7:30")
        self.assertTrue(self.is_in(toggle, atspi.STATE_CHECKED))
        self.do(toggle, "Toggle")
        wait_for(lambda: ("Work", False) in [(alarm["title"], alarm["enabled"]) for alarm in self.alarms()], PATIENCE,
                 "the alarm to be off")
        wait_for(lambda: not self.is_in(self.find(atspi.ROLE_CHECK_BOX, "7:30"), atspi.STATE_CHECKED), PATIENCE,
                 "the switch to be off")

    def test_makes_an_alarm(self):
        atspi = self.atspi
        button = self.find(atspi.ROLE_PUSH_BUTTON, "New alarm")
        self.assertTrue(self.is_in(button, atspi.STATE_FOCUSABLE))
        self.do(button, "Press")
        editor = self.find(atspi.ROLE_DIALOG, "New alarm")
        self.assertTrue(self.is_in(editor, atspi.STATE_MODAL))
        # All of it lies in the window, and none of it is there twice.
        self.assertEqual(self.program.childCount, 1)
        title = self.find(atspi.ROLE_TEXT, "Alarm name")
        self.type_into(title)
        self.set_the_time()
        self.do(self.find(atspi.ROLE_PUSH_BUTTON, "Save"), "Press")
        wait_for(lambda: len(self.alarms()) == 2, PATIENCE, "the alarm")
        self.find(atspi.ROLE_LIST_ITEM, "9:05 AM, Green tea")
        self.assertIn(("09:05", "Green tea"), [(alarm["time"], alarm["title"]) for alarm in self.alarms()])

    def gives_focus(self, title):
        # What a window manager would have done; the window may not take the focus the first time.
        self.phone.run("xdotool", "search", "--onlyvisible", "--class", "clock", "windowfocus")
        self.do(title, "SetFocus")
        return self.is_in(title, self.atspi.STATE_FOCUSED)

    def type_into(self, title):
        wait_for(lambda: self.gives_focus(title), PATIENCE, "the focus in the title")
        self.assertTrue(title.queryEditableText().insertText(0, "Geen tea", 8))
        text = title.queryText()
        self.assertEqual(text.getText(0, -1), "Geen tea")
        self.assertTrue(text.setCaretOffset(1))
        # What is missing comes from the keyboard.
        self.phone.run("xdotool", "key", "r")
        wait_for(lambda: text.getText(0, -1) == "Green tea", PATIENCE, "the key in the text")
        self.assertEqual(text.caretOffset, 2)

    def set_the_time(self):
        hour = self.find(self.atspi.ROLE_SPIN_BUTTON, "hour")
        minute = self.find(self.atspi.ROLE_SPIN_BUTTON, "minute")
        self.assertEqual((hour.queryValue().currentValue, minute.queryValue().currentValue), (8, 0))
        self.do(hour, "Increase")
        minute.queryValue().currentValue = 5
        self.find(self.atspi.ROLE_DIAL, "9:05")


if __name__ == "__main__":
    household.keep(lambda: unittest.main(warnings="ignore"), ENOUGH)
