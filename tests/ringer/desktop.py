# SPDX-FileCopyrightText: 2026 The Clock authors
# SPDX-License-Identifier: LGPL-2.1-or-later
"""Stand-ins for the services of a desktop on the phone's bus, which write down what they are asked for."""
import subprocess
import sys

import dbus
import dbusmock

import phone

NOTIFICATIONS = "org.freedesktop.Notifications"
SCREEN_SAVER = "org.freedesktop.ScreenSaver"
FEEDBACK = "org.sigxcpu.Feedback"
PORTAL = "org.freedesktop.portal.Desktop"
PORTAL_PATH = "/org/freedesktop/portal/desktop"
REQUEST_PATH = f"{PORTAL_PATH}/request/1"


class Desktop:
    """Notifications, screen saver, or the portal in its place, and feedback daemon; close() ends them."""

    def __init__(self, of_phone, screen_saver=True):
        self.phone = of_phone
        self._processes = []
        self.notifications = self._start(NOTIFICATIONS, "/org/freedesktop/Notifications", "-t", "notification_daemon")
        if screen_saver:
            self._start_screen_saver()
        else:
            self._start_portal()
        self.feedback = self._start(FEEDBACK, "/org/sigxcpu/Feedback", FEEDBACK, "/org/sigxcpu/Feedback", FEEDBACK)
        self._add(self.feedback, FEEDBACK, ("TriggerFeedback", "ssa{sv}i", "u", "ret = 9"),
                  ("EndFeedback", "u", "", ""))

    def _start_screen_saver(self):
        self.screen_saver = self._start(SCREEN_SAVER, "/org/freedesktop/ScreenSaver",
                                        SCREEN_SAVER, "/org/freedesktop/ScreenSaver", SCREEN_SAVER)
        self._add(self.screen_saver, SCREEN_SAVER, ("Inhibit", "ss", "u", "ret = 7"), ("UnInhibit", "u", "", ""),
                  ("SimulateUserActivity", "", "", ""))

    def _start_portal(self):
        inhibit = "org.freedesktop.portal.Inhibit"
        self.portal = self._start(PORTAL, PORTAL_PATH, PORTAL, PORTAL_PATH, inhibit)
        self._add(self.portal, inhibit, ("Inhibit", "sua{sv}", "o", f"ret = dbus.ObjectPath('{REQUEST_PATH}')"))
        self.portal.AddObject(REQUEST_PATH, "org.freedesktop.portal.Request", {}, [("Close", "", "", "")],
                              dbus_interface=dbusmock.MOCK_IFACE)
        self.request = self.phone.bus.get_object(PORTAL, REQUEST_PATH)

    def _start(self, name, path, *arguments):
        self._processes.append(
            subprocess.Popen([sys.executable, "-m", "dbusmock", "--session", *arguments],
                             env=self.phone.environment, stdout=subprocess.DEVNULL))
        phone.wait_for(lambda: self.phone.bus.name_has_owner(name), 20, name)
        return self.phone.bus.get_object(name, path)

    @staticmethod
    def _add(service, interface, *methods):
        for name, takes, gives, code in methods:
            service.AddMethod(interface, name, takes, gives, code, dbus_interface=dbusmock.MOCK_IFACE)

    @staticmethod
    def calls(service, method):
        """The arguments of each call so far."""
        return [list(arguments) for _, arguments in
                service.GetMethodCalls(method, dbus_interface=dbusmock.MOCK_IFACE)]

    def notices(self, summary):
        """The notifications of a title so far: number, body, labels of the actions to their keys, hints."""
        found = []
        for number, arguments in enumerate(self.calls(self.notifications, "Notify"), 1):
            if str(arguments[3]) == summary:
                keys = {str(label): str(key) for key, label in zip(arguments[5][::2], arguments[5][1::2])}
                found.append((number, str(arguments[4]), keys, arguments[6]))
        return found

    def closed(self):
        """The numbers of the notifications that were taken back."""
        return [int(number) for [number] in self.calls(self.notifications, "CloseNotification")]

    def choose(self, number, key):
        """As if the user pressed an action of a notification."""
        self.notifications.EmitSignal(NOTIFICATIONS, "ActionInvoked", "us", [dbus.UInt32(number), key],
                                      dbus_interface=dbusmock.MOCK_IFACE)

    def close(self):
        for process in self._processes:
            process.terminate()
            process.wait()
