#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The Clock authors
# SPDX-License-Identifier: LGPL-2.1-or-later
"""startup.py [--build BUILD-FOLDER] [--runs N] [--alarms N]: what the clock costs, whole process by whole process.

Prints the time from the start of the application to its mapped window (from the X server's MapNotify), its
proportional set size once it is idle, the time that a second start takes to hand over and end, then the same start
and sizes of application and daemon with that many alarms. Runs on a display, a bus and in a home of its own. Needs
Xvfb, xev, dbus-daemon and python3-dbus.
"""

import argparse
import contextlib
import os
import pathlib
import select
import statistics
import subprocess
import tempfile
import time

import dbus


def environment(build, home):
    env = dict(os.environ, HOME=home, XDG_RUNTIME_DIR=home, LANG="C.UTF-8", LC_ALL="C.UTF-8", QT_QPA_PLATFORM="xcb",
               XDG_DATA_DIRS=f"{build}/share:/usr/share", PATH=f"{build}/bin:{os.environ['PATH']}")
    for name in ("XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME"):
        env.pop(name, None)
    return env


@contextlib.contextmanager
def process(command, **options):
    running = subprocess.Popen(command, **options)
    try:
        yield running
    finally:
        running.terminate()
        running.wait()


def proportional_set_size(pid):
    """In MB, as the kernel accounts for it."""
    for line in pathlib.Path(f"/proc/{pid}/smaps_rollup").read_text().splitlines():
        if line.startswith("Pss:"):
            return int(line.split()[1]) / 1024
    raise RuntimeError(f"no Pss for process {pid}")


def wait_until(condition, seconds=10):
    end = time.monotonic() + seconds
    while not condition():
        if time.monotonic() > end:
            raise TimeoutError(condition)
        time.sleep(0.01)


class MappedWindows:
    """The windows that the X server maps, as it tells of them."""

    def __init__(self, env, stack):
        # Line by line, or the moment would be that of a full buffer.
        self.events = stack.enter_context(process(["stdbuf", "-oL", "xev", "-root", "-event", "substructure"],
                                                  env=env, stdout=subprocess.PIPE, bufsize=0)).stdout

    def forget(self):
        while select.select([self.events], [], [], 0.5)[0]:
            os.read(self.events.fileno(), 65536)

    def wait(self, seconds=10):
        seen = b""
        end = time.monotonic() + seconds
        while b"MapNotify" not in seen:
            if not select.select([self.events], [], [], max(0.0, end - time.monotonic()))[0]:
                raise TimeoutError("no window was mapped")
            seen += os.read(self.events.fileno(), 65536)


def time_to_mapped_window(env, windows, program="clock"):
    """Seconds from the start of the process to its first window, and the process's set size once it is idle."""
    windows.forget()
    started = time.monotonic()
    with process([program], env=env, stderr=subprocess.DEVNULL) as running:
        windows.wait()
        elapsed = time.monotonic() - started
        wait_until(lambda: is_idle(running.pid))
        return elapsed, proportional_set_size(running.pid)


def seconds_to_hand_over(env):
    """Seconds from the second start to its end, while the application runs and is idle."""
    started = time.monotonic()
    subprocess.run(["clock"], env=env, stderr=subprocess.DEVNULL, check=True)
    return time.monotonic() - started


def second_starts(env, windows, runs):
    windows.forget()
    with process(["clock"], env=env, stderr=subprocess.DEVNULL) as clock:
        windows.wait()
        wait_until(lambda: is_idle(clock.pid))
        return [seconds_to_hand_over(env) for _ in range(runs)]


def is_idle(pid):
    """True when the process has used no processor time for half a second."""
    def ticks():
        fields = pathlib.Path(f"/proc/{pid}/stat").read_text().rsplit(")", 1)[1].split()
        return int(fields[11]) + int(fields[12])
    before = ticks()
    time.sleep(0.5)
    return ticks() - before <= 1


def add_alarms(bus, count):
    timed = dbus.Interface(bus.get_object("com.astel.timed", "/com/astel/timed"), "com.astel.timed")
    for number in range(count):
        recurrence = (dbus.UInt32(1 << number % 24), dbus.UInt64(1 << number % 60), dbus.UInt32(127),
                      dbus.UInt32(0xFFFFFFFE), dbus.UInt32(0x1FFE), True)
        attributes = {"APPLICATION": "clock", "TITLE": f"Alarm number {number}", "enabled": "1", "snooze": "10",
                      "alarmtime": f"{number % 24:02}:{number % 60:02}", "sound": "/tone.aac", "trigger": "0",
                      "recurrence": "0123456", "PLUGIN": "libclockalarm"}
        timed.add_event((dbus.Int64(-1), dbus.UInt32(0b11111110), dbus.Int32(600), dbus.UInt32(3),
                         dbus.Dictionary(attributes, signature="ss"), dbus.Array([recurrence], signature="(utuuub)"),
                         dbus.Array([(dbus.Int32(600), dbus.Dictionary({}, signature="ss"))], signature="(ia{ss})")))


def report(name, values, unit):
    print(f"{name:<44} median {statistics.median(values):7.1f} {unit}   (min {min(values):.1f}, max {max(values):.1f})")


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--build", default=pathlib.Path(__file__).resolve().parent.parent / "build/release")
    parser.add_argument("--runs", type=int, default=11)
    parser.add_argument("--alarms", type=int, default=1000)
    arguments = parser.parse_args()
    with tempfile.TemporaryDirectory() as home, contextlib.ExitStack() as stack:
        env = environment(pathlib.Path(arguments.build).resolve(), home)
        read, write = os.pipe()
        stack.enter_context(process(["Xvfb", "-displayfd", str(write), "-screen", "0", "480x854x24"], pass_fds=[write],
                                    stderr=subprocess.DEVNULL))
        env["DISPLAY"] = ":" + os.read(read, 16).decode().strip()
        bus_daemon = stack.enter_context(process(["dbus-daemon", "--session", "--nofork", "--print-address"], env=env,
                                                 stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True))
        env["DBUS_SESSION_BUS_ADDRESS"] = bus_daemon.stdout.readline().strip()
        bus = dbus.bus.BusConnection(env["DBUS_SESSION_BUS_ADDRESS"])
        # The first call starts the daemon.
        add_alarms(bus, 3)
        timed = bus.get_object("org.freedesktop.DBus", "/").GetConnectionUnixProcessID("com.astel.timed")
        windows = MappedWindows(env, stack)
        time_to_mapped_window(env, windows)
        starts = [time_to_mapped_window(env, windows) for _ in range(arguments.runs)]
        report("clock: start to mapped window", [1000 * start for start, _ in starts], "ms")
        report("clock: proportional set size", [size for _, size in starts], "MB")
        report("clock: second start, to its end",
               [1000 * seconds for seconds in second_starts(env, windows, arguments.runs)], "ms")
        add_alarms(bus, arguments.alarms - 3)
        wait_until(lambda: is_idle(timed))
        loaded = [time_to_mapped_window(env, windows) for _ in range(arguments.runs)]
        report(f"clock: start to mapped window, {arguments.alarms} alarms", [1000 * start for start, _ in loaded], "ms")
        report(f"clock: proportional set size, {arguments.alarms} alarms", [size for _, size in loaded], "MB")
        report(f"timed: proportional set size, {arguments.alarms} alarms", [proportional_set_size(timed)], "MB")


if __name__ == "__main__":
    main()
