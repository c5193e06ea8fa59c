# SPDX-FileCopyrightText: 2026 The Clock authors
# SPDX-License-Identifier: LGPL-2.1-or-later
"""Sees to it that no process outlives a test, whatever becomes of the test itself."""
import ctypes
import faulthandler
import os
import pathlib
import signal
import threading

SET_DEATH_SIGNAL, SET_CHILD_SUBREAPER = 1, 36  # of prctl()
ENOUGH = 340  # seconds, before the end that whoever runs the tests sets


def children():
    """The numbers of our child processes, orphans of theirs among them."""
    found = []
    for status in pathlib.Path("/proc").glob("[0-9]*/stat"):
        try:
            fields = status.read_text(encoding="utf-8").rpartition(")")[2].split()
        except (FileNotFoundError, ProcessLookupError):
            continue
        if int(fields[1]) == os.getpid():
            found.append(int(status.parent.name))
    return found


def end_children():
    """Kills them, then theirs, until there is none."""
    while left := children():
        for process in left:
            try:
                os.kill(process, signal.SIGKILL)
                os.waitpid(process, 0)
            except (ProcessLookupError, ChildProcessError):
                pass


def give_up(*_):
    raise KeyboardInterrupt


def keep(run, seconds=ENOUGH):
    """Runs something. Afterwards, or after so many seconds, or when whoever runs us is gone, all processes end."""
    library = ctypes.CDLL(None)
    library.prctl(SET_CHILD_SUBREAPER, 1, 0, 0, 0)
    library.prctl(SET_DEATH_SIGNAL, signal.SIGTERM, 0, 0, 0)
    signal.signal(signal.SIGTERM, give_up)
    # Says where it hangs; without its other processes it does not hang any longer.
    faulthandler.dump_traceback_later(seconds)
    watch = threading.Timer(seconds, end_children)
    watch.daemon = True
    watch.start()
    try:
        run()
    finally:
        watch.cancel()
        faulthandler.cancel_dump_traceback_later()
        end_children()
