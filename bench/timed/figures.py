#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The Clock authors
# SPDX-License-Identifier: LGPL-2.1-or-later
"""figures.py TIMED [idle] [rings] [publishing] [--short]: figures of the running daemon that take a while: wake-ups
while nothing happens, the time from the moment an alarm is due to the ringer's call, the cost of publishing a change.
"--short" only tries whether they can be taken."""

import argparse
import pathlib
import statistics
import sys
import time

from gi.repository import Gio, GLib

sys.path.insert(0, str(pathlib.Path(__file__).parents[2] / "tests/timed/campaign"))
from harness import EVENT, KEEP_ALIVE, SECOND, SINGLE_SHOT, Bus, Call, Daemon, in_own_folder  # noqa: E402

RULE = (1 << 7, 1, 0x3e, 0xfffffffe, 0x1ffe, True)
ATTRIBUTES = {"APPLICATION": "clock", "TITLE": "Wake up", "enabled": "1", "sound": "", "snooze": "10",
              "alarmtime": "07:00", "PLUGIN": "libclockalarm"}


def event(ticker=-1):
    return GLib.Variant(EVENT, (ticker, KEEP_ALIVE | (SINGLE_SHOT if ticker > 0 else 0), 0, 0, ATTRIBUTES,
                                [RULE] if ticker < 0 else [], [(600, {}), (0, {})]))


def answered(bus, method, *arguments):
    call = Call(bus, method, GLib.Variant.new_tuple(*arguments))
    bus.serve_while(lambda: call.answered is None)
    if call.error:
        raise RuntimeError(call.error)
    return call.reply[0] if call.reply else None


def tasks(process):
    return pathlib.Path(f"/proc/{process}/task").iterdir()


def switches(process):
    return sum(int(line.split()[1]) for task in tasks(process)
               for line in (task / "status").read_text().splitlines() if "ctxt_switches" in line)


def worked(process):
    """Milliseconds of processor time so far."""
    return sum(int((task / "schedstat").read_text().split()[0]) for task in tasks(process)) / 1e6


def idle(bus, daemon, short):
    seconds = 1 if short else 120
    for _ in range(10):
        answered(bus, "add_event", event())
    # The thread that wrote the snapshot ends half a minute after it.
    bus.serve(1 if short else 40)
    before = switches(daemon.process.pid)
    bus.serve(seconds)
    woken = switches(daemon.process.pid) - before
    print(f"idle: {woken} wake-ups of all threads in {seconds} s")


def rings(bus, daemon, short):
    late = []
    moments = 2 if short else 100

    def called(cookie, due):
        late.append((time.time_ns() - due) / 1e6)
        Call(bus, "dismiss", GLib.Variant("(us)", (cookie, "user")))
    bus.ring_through(called)
    begin = time.time_ns() // SECOND + (2 if short else 5)
    for second in range(moments):
        for _ in range(2):
            answered(bus, "add_event", event(begin + second))
    bus.serve_while(lambda: len(late) < 2 * moments, 30 + moments)
    late.sort()
    percentile = late[-min(3, len(late))]
    print(f"rings: {len(late)} calls, median {statistics.median(late):.1f} ms, 99th percentile {percentile:.1f} ms,"
          f" last {late[-1]:.1f} ms after the moment")


def publishing(bus, daemon, short):
    published = []
    stored = 0
    for size in (10,) if short else (10, 100, 1000, 9999):
        while stored < size:
            cookie = answered(bus, "add_event", event())
            stored += 1
        bus.serve(1)
        # Not while the events are added: each change carries all of them.
        watch = bus.connection.signal_subscribe(
            None, "com.astel.context.Property", None, None, None, Gio.DBusSignalFlags.NONE,
            lambda *signal: published.append(time.time_ns()))
        latency, before = [], worked(daemon.process.pid)
        for _ in range(50):
            published.clear()
            call = Call(bus, "replace_event", GLib.Variant.new_tuple(event(), GLib.Variant("u", cookie)))
            bus.serve_while(lambda: call.answered is None or not published)
            cookie = call.reply[0]
            latency.append((published[0] - call.answered) / 1e6)
        bus.connection.signal_unsubscribe(watch)
        work = (worked(daemon.process.pid) - before) / len(latency)
        print(f"publishing {size} events: published {statistics.median(latency):.2f} ms after the answer,"
              f" {work:.2f} ms of processor time for the whole change")


def main():
    figures = {"idle": idle, "rings": rings, "publishing": publishing}
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("program")
    parser.add_argument("what", nargs="*", help=" ".join(figures))
    parser.add_argument("--short", action="store_true")
    arguments = parser.parse_args()
    for name in arguments.what or figures:
        def run(folder, part=figures[name]):
            bus = Bus(folder)
            daemon = Daemon(bus, arguments.program, folder)
            daemon.start()
            part(bus, daemon, arguments.short)
            daemon.terminate()
            bus.process.kill()
        in_own_folder(run)


if __name__ == "__main__":
    main()
