# SPDX-FileCopyrightText: 2026 The Clock authors
# SPDX-License-Identifier: LGPL-2.1-or-later
"""The real alarm daemon on a bus and with a store of its own, for the programs of the campaign."""

import os
import pathlib
import signal
import subprocess
import tempfile
import time

from gi.repository import Gio, GLib

SERVICE, PATH = "com.astel.timed", "/com/astel/timed"
RINGER, RINGER_PATH = "com.astel.ringer", "/com/astel/ringer"
EVENT = "(xuiua{ss}a(utuuub)a(ia{ss}))"
SINGLE_SHOT, KEEP_ALIVE = 1, 2
SECOND = 1_000_000_000

BUS_CONFIGURATION = """<busconfig><type>session</type><listen>unix:dir={folder}</listen>
<policy context="default"><allow send_destination="*" eavesdrop="true"/><allow eavesdrop="true"/><allow own="*"/></policy>
<limit name="max_replies_per_connection">50000</limit></busconfig>"""

RINGER_XML = pathlib.Path(__file__).parents[3] / "platform/timedclient/com.astel.ringer.xml"


class Bus:
    """A bus that ends with the program, and our connection to it."""

    def __init__(self, folder):
        self.problem = None
        configuration = pathlib.Path(folder, "bus.conf")
        configuration.write_text(BUS_CONFIGURATION.format(folder=folder))
        self.process = subprocess.Popen(
            ["dbus-daemon", f"--config-file={configuration}", "--nofork", "--print-address"], stdout=subprocess.PIPE,
            stderr=subprocess.DEVNULL)
        self.address = self.process.stdout.readline().decode().strip()
        self.connection = Gio.DBusConnection.new_for_address_sync(
            self.address,
            Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION, None, None)
        self.connection.set_exit_on_close(False)

    def ask(self, method, *arguments):
        return self.connection.call_sync("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
                                         method, *arguments, None, Gio.DBusCallFlags.NONE, 5000, None).unpack()

    def ring_through(self, rings):
        """Answers as the ringer; "rings" is told the cookie and the due moment of each call."""
        def called(connection, sender, path, interface, method, arguments, invocation):
            invocation.return_value(None)
            if method == "ring":
                rings(arguments[0], arguments[2])
        node = Gio.DBusNodeInfo.new_for_xml(RINGER_XML.read_text())
        self.connection.register_object(RINGER_PATH, node.interfaces[0], called, None, None)
        self.ask("RequestName", GLib.Variant("(su)", (RINGER, 4)))

    def serve_until(self, moment):
        """Handles what comes until a moment of the monotonic clock, in seconds."""
        context = GLib.MainContext.default()
        if self.problem:
            raise AssertionError(self.problem)
        while time.monotonic() < moment:
            left = moment - time.monotonic()
            if left > 0.002:
                source = GLib.timeout_add(max(1, int(left * 1000) - 1), lambda: GLib.SOURCE_REMOVE)
                context.iteration(True)
                if (found := context.find_source_by_id(source)) is not None:
                    found.destroy()
            else:
                context.iteration(False)

    def serve_pending(self):
        context = GLib.MainContext.default()
        while context.pending():
            context.iteration(False)

    def serve(self, seconds):
        self.serve_until(time.monotonic() + seconds)

    def serve_while(self, condition, seconds=20):
        end = time.monotonic() + seconds
        while condition():
            if time.monotonic() > end:
                raise TimeoutError
            self.serve(0.001)


class Call:
    """A call under way: "reply" or "error" is set once it is answered."""

    def __init__(self, bus, method, arguments, path=PATH, interface=SERVICE):
        self.method, self.arguments = method, arguments
        self.reply = self.error = None
        self.sent = time.time_ns()
        self.answered = None
        bus.connection.call(SERVICE, path, interface, method, arguments, None, Gio.DBusCallFlags.NO_AUTO_START, 60000,
                            None, self.finished)

    def finished(self, connection, result):
        self.answered = time.time_ns()
        try:
            self.reply = connection.call_finish(result).unpack()
        except GLib.Error as error:
            self.error = Gio.DBusError.get_remote_error(error) or error.message


class Daemon:
    def __init__(self, bus, program, home):
        self.bus, self.program, self.home = bus, program, home
        self.process = None
        self.output = pathlib.Path(home, "output")

    def spawn(self):
        environment = dict(os.environ, DBUS_SESSION_BUS_ADDRESS=self.bus.address, XDG_DATA_HOME=str(self.home), TZ="UTC",
                           DBUS_SYSTEM_BUS_ADDRESS="unix:path=/nonexistent")
        with self.output.open("ab") as output:
            self.process = subprocess.Popen([self.program], env=environment, stderr=output, stdout=output)

    def owned(self):
        return self.bus.ask("NameHasOwner", GLib.Variant("(s)", (SERVICE,)))[0]

    def start(self):
        self.spawn()
        self.bus.serve_while(lambda: self.process.poll() is None and not self.owned())
        if self.process.poll() is not None:
            raise RuntimeError(f"the daemon ended: {self.output.read_text()}")

    def kill(self):
        self.process.send_signal(signal.SIGKILL)
        self.process.wait()
        self.bus.serve_while(self.owned)
        # What it said before is here by now.
        self.bus.serve_pending()

    def terminate(self):
        """Its exit code."""
        self.process.terminate()
        return self.process.wait(60)


def in_own_folder(run):
    """Calls run(folder) with a folder that is removed after it; answers what it answers."""
    with tempfile.TemporaryDirectory(prefix="campaign") as folder:
        return run(folder)
