#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The Clock authors
# SPDX-License-Identifier: LGPL-2.1-or-later
"""What the test of the documentation's commands does otherwise than typing them. Every entry must still occur in the
pages, and every program that is said to run a command must name it."""

import re
from typing import NamedTuple


class NotRun(NamedTuple):
    """Commands that cannot be run within a test, as a whole."""

    command: str  # a regular expression
    reason: str
    runner: str  # the file that runs it instead; empty where nothing can
    proof: str = ""  # what that file says, where it is not the command


class RunAs(NamedTuple):
    """Commands that are run with other words; replaced from the first entry to the last."""

    command: str  # a regular expression, of a part
    replacement: str
    reason: str


NOT_RUN = [
    NotRun(r"\./test", "it runs this test", ".ci/run"),
    NotRun(r"tools/lint\.sh", "takes minutes in a tree that it has not seen; ./test runs it before the tests", "test"),
    NotRun(r"tools/coverage\.py build/dev", "counts the lines of the very run that this test is part of", "test"),
    NotRun(r"tools/package", "builds everything once more, optimised, which takes minutes", "tools/bareroot"),
    NotRun(r"sudo apt-get install .*", "installs", "tools/packaging/trial/trial", "apt-get install -y"),
    NotRun(r"sudo apt-get purge clock", "removes", "tools/packaging/trial/trial", "apt-get purge -y -qq clock"),
    NotRun(r"sudo setcap .*", "needs root", "tools/packaging/debian/postinst.in",
           "setcap cap_wake_alarm=ep /usr/bin/timed"),
]

# Until the window is there; it would stay.
START = ("tools/start {build} >$HOME/said &"
         " until grep -q 'The clock runs' $HOME/said; do kill -0 $! && sleep 0.1 || exit; done; kill $!")
# That there is such a test; ./test runs it by itself. Another ctest would write over the log of the one that runs this.
IS_TEST = r"grep -rqE 'add_test....[a-z0-9_]*\1' --include=CTestTestfile.cmake {build}"

RUN_AS = [
    RunAs(r"\./run", START, "it installs and builds; then it is this"),
    RunAs(r"tools/start build/\w+", START, "it runs until it is ended"),
    RunAs(r"cmake --preset (\w+)(?: -\S+)*", "cmake --list-presets | grep -q '\"\\1\"'",
          "the build runs the test, so it is not made anew within it"),
    RunAs(r"cmake --build --preset (\w+)", "cmake --build --list-presets | grep -q '\"\\1\"'", "the same"),
    RunAs(r"sudo (cmake --install build/\w+ --component clock)", r"\1 --prefix $HOME/installed", "needs root"),
    RunAs(r"clang-format-14 -i", "clang-format-14 --dry-run --Werror", "the tree stays as it is"),
    RunAs(r"\./test -R (\w+)", IS_TEST, "./test runs it, and this test"),
    RunAs(r"ctest --preset dev -R (\w+)", IS_TEST, "the same"),
    RunAs(r"\bbench/startup\.py --runs \d+", "bench/startup.py --runs 1 --alarms 10 --build {build}", "time"),
    RunAs(r"(build/\w+/tools/gallery/gallery .*)", r"QT_QPA_PLATFORM=offscreen \1", "there is no display"),
    RunAs(r"tools/tones/make_tones\.py data/sounds/ring-tones", "tools/tones/make_tones.py $HOME", "the same"),
    RunAs(r"(bench/peers/peers\.py .*)", r"\1 --help", "needs another clock, from the package gnome-clocks"),
    RunAs(r"tools/bareroot$", "tools/bareroot --help", "needs root and package sources, and builds everything anew"),
    RunAs(r"tools/campaign$", "CLOCK_KILLS=1 CLOCK_CALLS=50 CLOCK_YEARS='2026 2026' tools/campaign --build {build}",
          "it takes twelve minutes"),
    RunAs(r"bench_alarmlist$", "bench_alarmlist 10", "time"),
    RunAs(r"bench-list$", "bench-list 1", "time"),
    RunAs(r"bench-editor$", "bench-editor 1", "time"),
    RunAs(r"bench_tones$", "bench_tones 20", "time"),
    RunAs(r"bench_daemon( --benchmark_filter=addEvent)$", r"bench_daemon\1 --commits 10", "time"),
    RunAs(r"bench_daemon$", "bench_daemon --benchmark_filter=startWithManyEvents/0/", "time"),
    RunAs(r"bench_nextmoment$", "bench_nextmoment --benchmark_min_time=0.01", "time"),
    RunAs(r"(bench/timed/figures\.py .*)", r"\1 --short", "time"),
    RunAs(r"(bench/ringer/figures\.py \S+) cold warm rise --runs \d+", r"\1 warm --runs 1", "time"),
]


def reason_not_to_run(command):
    return next((entry for entry in NOT_RUN if re.fullmatch(entry.command, command)), None)


def as_run(command, build):
    """The command that is run in place of the one that stands there, and the entries that had a part in it."""
    used = []
    parts = []
    for part in command.split(" && "):
        for entry in RUN_AS:
            replaced = re.sub(entry.command, entry.replacement.replace("{build}", str(build)), part)
            if replaced != part:
                used.append(entry)
                part = replaced
                break
        parts.append(part)
    text = " && ".join(parts)
    text = re.sub(r"\$PWD/build/\w+", str(build), text)
    return re.sub(r"(?<![\w/.-])build/(?:dev|release|asan)\b", str(build), text), used
