#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The Clock authors
# SPDX-License-Identifier: LGPL-2.1-or-later
"""figures.py BUILD-FOLDER [cold] [warm] [rise] [--runs N]: from the moment an alarm is due to its first audible sample, as
recorded from the sound server; cold without a ringer, warm with one that was started ahead. "rise" records how the
level goes up in the first 35 seconds. To be run by Debian's own Python, under tests/support/in-own-home."""

import argparse
import math
import pathlib
import statistics
import sys
import tempfile
import time

import dbus

sys.path.insert(0, str(pathlib.Path(__file__).parents[2] / "tests/ringer"))
import phone  # noqa: E402


def first_sample(on_phone):
    """Milliseconds from the moment to the sound of one alarm, which is then stopped."""
    due = int(time.time()) + 2
    cookie = on_phone.add_event("Wake up", due)
    heard = phone.wait_for(lambda: on_phone.sound.heard_since(due), 20, "sound")
    on_phone.timed("dismiss", dbus.UInt32(cookie), "bench")
    phone.wait_for(on_phone.sound.is_silent, 10, "silence")
    return 1000 * (heard - due)


def tell(what, times):
    times.sort()
    late = times[min(len(times) - 1, math.ceil(0.99 * len(times)) - 1)]
    print(f"{what}: median {statistics.median(times):.0f} ms, 99th percentile {late:.0f} ms, longest {times[-1]:.0f} ms, "
          f"{len(times)} alarms")


def cold(on_phone, runs):
    times = []
    for _ in range(runs):
        on_phone.kill("com.astel.ringer")
        times.append(first_sample(on_phone))
    tell("cold", times)


def warm(on_phone, runs):
    first_sample(on_phone)
    tell("warm", [first_sample(on_phone) for _ in range(runs)])


def rise(on_phone, _):
    due = int(time.time()) + 2
    cookie = on_phone.add_event("Wake up", due)
    heard = phone.wait_for(lambda: on_phone.sound.heard_since(due), 20, "sound")
    levels = []
    for second in range(1, 36):
        phone.wait_for(lambda end=heard + second: time.time() >= end, 5, "the next second")
        levels.append(on_phone.sound.loudest(1))
    print("rise: loudest sample of each second:", " ".join(f"{level:.2f}" for level in levels))
    on_phone.timed("dismiss", dbus.UInt32(cookie), "bench")


def main():
    figures = {"cold": cold, "warm": warm, "rise": rise}
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("build")
    parser.add_argument("what", nargs="*", help=" ".join(figures))
    parser.add_argument("--runs", type=int, default=100)
    arguments = parser.parse_args()
    with tempfile.TemporaryDirectory() as home:
        on_phone = phone.Phone(arguments.build, home)
        try:
            for name in arguments.what or figures:
                figures[name](on_phone, arguments.runs)
        finally:
            on_phone.close()


main()
