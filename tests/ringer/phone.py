# SPDX-FileCopyrightText: 2026 The Clock authors
# SPDX-License-Identifier: LGPL-2.1-or-later
"""A phone for tests: a display, a session bus that starts the staged services, and a loudspeaker that is listened to."""
import array
import collections
import os
import pathlib
import re
import shutil
import signal
import subprocess
import threading
import time

import dbus
import dbus.bus

SILENCE = 0.002  # of full scale

SINGLE_SHOT, KEEP_ALIVE, ALARM, REMINDER = 1, 2, 8, 32  # flags of events


def wait_for(condition, seconds, what):
    """Polls until the condition gives something true, and returns that."""
    end = time.monotonic() + seconds
    pause = threading.Event()
    while True:
        found = condition()
        if found:
            return found
        if time.monotonic() > end:
            raise AssertionError(f"not within {seconds} s: {what}")
        pause.wait(0.05)


def is_running(process):
    """Whether a process that is no child of ours runs, by its number."""
    try:
        state = pathlib.Path(f"/proc/{process}/stat").read_text(encoding="utf-8").rpartition(")")[2].split()[0]
    except FileNotFoundError:
        return False
    return state != "Z"


class Recorder:
    """What comes out of the sound server, in pieces of 20 ms with the moment at which they came."""

    RATE = 8000

    def __init__(self, environment):
        self._lock = threading.Lock()
        self._pieces = collections.deque(maxlen=5000)  # (epoch seconds, loudest sample 0..1)
        self._process = subprocess.Popen(
            ["parec", "-d", "null.monitor", "--format=s16le", "--channels=1", f"--rate={self.RATE}",
             "--latency-msec=10"], env=environment, stdout=subprocess.PIPE)
        self._thread = threading.Thread(target=self._listen, daemon=True)
        self._thread.start()

    def _listen(self):
        size = 2 * self.RATE // 50
        while piece := self._process.stdout.read(size):
            samples = array.array("h", piece[: len(piece) // 2 * 2])
            loudest = max(abs(sample) for sample in samples) / 32768
            with self._lock:
                self._pieces.append((time.time(), loudest))

    def loudest(self, seconds):
        """Of the last so many seconds; None before so much was heard."""
        with self._lock:
            pieces = list(self._pieces)[-round(seconds * 50):]
        return max(loudness for _, loudness in pieces) if len(pieces) >= round(seconds * 50) else None

    def is_silent(self, seconds=0.5):
        loudest = self.loudest(seconds)
        return loudest is not None and loudest < SILENCE

    def heard_since(self, moment):
        """When the first sound after a moment came, or None."""
        with self._lock:
            return next((when for when, loudness in self._pieces if when >= moment and loudness >= SILENCE), None)

    def close(self):
        self._process.kill()
        self._process.wait()
        self._thread.join()
        self._process.stdout.close()


class Phone:
    """Starts everything, with alarms of its own in a folder; close() ends it. Parts can be left out, plug-ins and
    environment be other ones."""

    def __init__(self, build, home, theme="dark", display=True, sound=True, ringer=True, plugins=None,
                 environment=None):
        self.build = pathlib.Path(build).resolve()
        socket = pathlib.Path(home) / "sound"
        self.environment = dict(
            os.environ, XDG_DATA_DIRS=f"{self.build}/share:/usr/share", XDG_DATA_HOME=f"{home}/data",
            CLOCK_THEME=theme, CLOCK_REDUCED_MOTION="1", PULSE_SERVER=f"unix:{socket}")
        self.environment.update(environment or {})
        for name in ("QT_QPA_PLATFORM", "WAYLAND_DISPLAY", "DISPLAY"):
            self.environment.pop(name, None)
        self._processes = []
        if display:
            self._start_display()
        self.sound = None
        if sound:
            self._start_sound(socket)
        if not ringer or plugins:
            self._stage_services(pathlib.Path(home), ringer, plugins)
        self._start_bus()

    def _stage_services(self, home, ringer, plugins):
        services = home / "share" / "dbus-1" / "services"
        services.mkdir(parents=True)
        staged = self.build / "share" / "dbus-1" / "services"
        for name in ("com.astel.timed", "com.astel.ringer.fallback"):
            shutil.copy(staged / f"{name}.service", services)
        if ringer:
            text = (staged / "com.astel.ringer.service").read_text(encoding="utf-8")
            text = re.sub(r"RINGER_PLUGIN_DIR=\S+", f"RINGER_PLUGIN_DIR={plugins}", text)
            (services / "com.astel.ringer.service").write_text(text, encoding="utf-8")
        self.environment["XDG_DATA_DIRS"] = f"{home}/share:{self.build}/share:/usr/share" if ringer \
            else f"{home}/share:/usr/share"

    def _start(self, command, **options):
        process = subprocess.Popen(command, env=self.environment, **options)
        self._processes.append(process)
        return process

    def _start_display(self):
        reader, writer = os.pipe()
        # Or it would start anew when its first client goes, and turn away whoever comes just then.
        self._display = self._start(["Xvfb", "-displayfd", str(writer), "-screen", "0", "480x854x24", "-nolisten", "tcp", "-noreset"],
                    pass_fds=[writer], stderr=subprocess.DEVNULL)
        os.close(writer)
        with os.fdopen(reader) as answer:
            self.environment["DISPLAY"] = ":" + answer.readline().strip()

    def _start_sound(self, socket):
        self.sound_server = self._start(
            ["pulseaudio", "-n", "--daemonize=no", "--use-pid-file=no", "--exit-idle-time=-1", "--log-level=error", "-L",
             "module-null-sink sink_name=null", "-L", f"module-native-protocol-unix auth-anonymous=1 socket={socket}"])
        wait_for(socket.exists, 10, "sound server")
        self.sound = Recorder(self.environment)
        wait_for(lambda: self.sound.loudest(0.1) is not None, 10, "recording")

    def _start_bus(self):
        process = self._start(["dbus-daemon", "--session", "--nofork", "--print-address"],
                              stdout=subprocess.PIPE, text=True)
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = process.stdout.readline().strip()
        self.bus = dbus.bus.BusConnection(self.environment["DBUS_SESSION_BUS_ADDRESS"])
        self.bus.set_exit_on_disconnect(False)

    def run(self, *command):
        return subprocess.run(command, env=self.environment, check=True, capture_output=True, text=True).stdout

    def alarmctl(self, *arguments):
        return self.run(str(self.build / "bin" / "alarmctl"), *arguments)

    def alarmctl_status(self, *arguments):
        """What it prints, and its exit code."""
        done = subprocess.run([str(self.build / "bin" / "alarmctl"), *arguments], env=self.environment, check=False,
                              capture_output=True, text=True)
        return done.stdout, done.returncode

    def timed(self, method, *arguments):
        timed = self.bus.get_object("com.astel.timed", "/com/astel/timed", introspect=False)
        return timed.get_dbus_method(method, "com.astel.timed")(*arguments)

    def add_event(self, title, due, snooze=600, **attributes):
        """An event straight on the bus, due at a second, whose button snoozes so many seconds."""
        event = dbus.Struct(
            (dbus.Int64(due), dbus.UInt32(SINGLE_SHOT | KEEP_ALIVE | ALARM | REMINDER), dbus.Int32(snooze),
             dbus.UInt32(3),
             dbus.Dictionary({"APPLICATION": "test", "TITLE": title, "PLUGIN": "libclockalarm", **attributes},
                             signature="ss"),
             dbus.Array([], signature="(utuuub)"),
             dbus.Array([(dbus.Int32(snooze), dbus.Dictionary({}, signature="ss"))], signature="(ia{ss})")),
            signature="xuiua{ss}a(utuuub)a(ia{ss})")
        return int(self.timed("add_event", event))

    def triggers(self):
        """The context property Alarm.Trigger: cookie to nanoseconds."""
        value = self.bus.get_object("com.astel.context.Alarm.Trigger", "/com/astel/context/Alarm/Trigger",
                                    introspect=False)
        found = value.get_dbus_method("get", "com.astel.context.Property")()
        return {int(cookie): int(moment) for cookie, moment in found.items()}

    def ring_window(self):
        """The number of the visible ring window, or None."""
        search = subprocess.run(["xdotool", "search", "--onlyvisible", "--class", "ringer"], env=self.environment,
                                capture_output=True, text=True, check=False)
        return search.stdout.split()[0] if search.returncode == 0 and search.stdout else None

    def press(self, x, y):
        self.run("xdotool", "mousemove", str(x), str(y), "click", "1")

    def drag(self, start, end):
        """A finger from one place to another."""
        way = [(round(start[0] + (end[0] - start[0]) * step / 4), round(start[1] + (end[1] - start[1]) * step / 4))
               for step in range(5)]
        command = ["xdotool", "mousemove", *map(str, way[0]), "mousedown", "1"]
        for x, y in way[1:]:
            command += ["mousemove", str(x), str(y), "sleep", "0.02"]
        self.run(*command, "mouseup", "1")

    def screenshot(self, name):
        folder = self.build / "screenshots"
        folder.mkdir(exist_ok=True)
        self.run("import", "-window", "root", str(folder / name))

    def kill(self, service):
        """Ends the program behind a bus name at once, if there is one."""
        if self.bus.name_has_owner(service):
            owner = self.bus.get_name_owner(service)
            os.kill(self.process_of(service), signal.SIGKILL)
            wait_for(lambda: not self.bus.name_has_owner(owner), 5, f"end of {service}")

    def process_of(self, service):
        """The number of the process behind a bus name."""
        return int(self.bus.get_object("org.freedesktop.DBus", "/").GetConnectionUnixProcessID(service))

    def end_display(self):
        self._display.kill()
        self._display.wait()

    def end_bus(self):
        """As at the end of a session."""
        self.bus.close()
        self._end(self._processes.pop())

    def close(self):
        if self.bus.get_is_connected():
            self.kill("com.astel.timed")
            self.kill("com.astel.ringer")
            self.bus.close()
        if self.sound:
            self.sound.close()
        for process in reversed(self._processes):
            self._end(process)

    @staticmethod
    def _end(process):
        process.terminate()
        process.wait()
        if process.stdout:
            process.stdout.close()
