#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The Clock authors
# SPDX-License-Identifier: LGPL-2.1-or-later
"""peers.py [--build BUILD-FOLDER] [--runs N]: the clock beside GNOME Clocks, in turn in one run.

Prints for both the time from the start of the process to its mapped window and its proportional set size once it is
idle, and what part of the peer's ours is: wanted are at most half its time and a third of its memory. Both run on one
display, one bus and in one home of their own. Needs what startup.py needs, and the peer, which nothing else here uses:

    apt-get install --no-install-recommends gnome-clocks
"""

import argparse
import contextlib
import os
import pathlib
import shutil
import statistics
import subprocess
import sys
import tempfile

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent))
import startup  # noqa: E402  (found by the line above)

WANTED_TIME = 1 / 2
WANTED_MEMORY = 1 / 3
PROGRAMS = ("clock", "gnome-clocks")


def measure(stack, arguments, home):
    env = startup.environment(pathlib.Path(arguments.build).resolve(), home)
    env.update(GDK_BACKEND="x11", GSETTINGS_BACKEND="memory", NO_AT_BRIDGE="1")
    read, write = os.pipe()
    stack.enter_context(startup.process(["Xvfb", "-displayfd", str(write), "-screen", "0", "1280x1024x24"],
                                        pass_fds=[write], stderr=subprocess.DEVNULL))
    env["DISPLAY"] = ":" + os.read(read, 16).decode().strip()
    bus = stack.enter_context(startup.process(["dbus-daemon", "--session", "--nofork", "--print-address"], env=env,
                                              stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True))
    env["DBUS_SESSION_BUS_ADDRESS"] = bus.stdout.readline().strip()
    windows = startup.MappedWindows(env, stack)
    figures = {program: [] for program in PROGRAMS}
    for run in range(arguments.runs + 1):
        for program in PROGRAMS:
            figure = startup.time_to_mapped_window(env, windows, program)
            # The first of each reads its files from the disk.
            if run > 0:
                figures[program].append(figure)
    return figures


def compare(what, unit, values, wanted):
    ours, peers = (statistics.median(values[program]) for program in PROGRAMS)
    for program in PROGRAMS:
        startup.report(f"{program}: {what}", values[program], unit)
    verdict = "met" if ours <= wanted * peers else "NOT MET"
    print(f"{what}: {ours / peers:.2f} of the peer's, wanted at most {wanted:.2f}: {verdict}")
    return ours <= wanted * peers


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--build", default=pathlib.Path(__file__).resolve().parent.parent.parent / "build/release")
    parser.add_argument("--runs", type=int, default=9)
    arguments = parser.parse_args()
    if not shutil.which("gnome-clocks"):
        sys.exit("GNOME Clocks is not installed: apt-get install --no-install-recommends gnome-clocks")
    with tempfile.TemporaryDirectory() as home, contextlib.ExitStack() as stack:
        figures = measure(stack, arguments, home)
    times = {program: [1000 * seconds for seconds, _ in figures[program]] for program in PROGRAMS}
    sizes = {program: [size for _, size in figures[program]] for program in PROGRAMS}
    met = [compare("start to mapped window", "ms", times, WANTED_TIME),
           compare("proportional set size", "MB", sizes, WANTED_MEMORY)]
    return 0 if all(met) else 1


if __name__ == "__main__":
    sys.exit(main())
