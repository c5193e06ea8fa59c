#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The Clock authors
# SPDX-License-Identifier: LGPL-2.1-or-later
"""calls.py TIMED CALLS [SEED]: random calls, well-formed and not, against the real daemon, best one built with the
sanitizers. Every call must be answered or refused with a named error; the daemon must not end, must not touch events
that no call names, must say nothing about errors or leaks, and must end well. The same seed makes the same calls."""

import random
import re
import sys
import time

from gi.repository import GLib

from harness import EVENT, SERVICE, Bus, Call, Daemon, in_own_folder

NAMED = re.compile(r"com\.astel\.timed\.Error\.(Invalid|Limit|Unknown)"
                   r"|org\.freedesktop\.DBus\.Error\."
                   r"(UnknownMethod|UnknownObject|UnknownInterface|UnknownProperty|InvalidArgs|InvalidSignature"
                   r"|PropertyReadOnly)")
REPORT = re.compile(r"Sanitizer|runtime error|Assertion|ASSERT|terminate called")
AT_ONCE = 40
MOST_EVENTS = 150
GUARDED = 5

SIGNATURES = {
    "add_event": f"({EVENT})", "replace_event": f"({EVENT}u)", "cancel": "(u)", "query": "(a{sv})",
    "query_attributes": "(u)", "rings": "(u)", "sounds": "(us)", "impaired": "(us)", "snooze": "(uus)", "press": "(uus)",
    "dismiss": "(us)", "backup_events": "()", "restore_events": f"(a({EVENT}st))",
    "next_triggers": "(u)", "journal": "(x)", "health": "()",
}
RANGES = {"y": (0, 255), "n": (-1 << 15, (1 << 15) - 1), "q": (0, (1 << 16) - 1), "i": (-1 << 31, (1 << 31) - 1),
          "u": (0, (1 << 32) - 1), "x": (-1 << 63, (1 << 63) - 1), "t": (0, (1 << 64) - 1)}
NAMES = ["TITLE", "PLUGIN", "APPLICATION", "STATE", "", "a/b", "\u202e", "n" * 128, "n" * 129]
VALUES = ["", "1", "clock", "libclockalarm", "../../evil", "/etc/passwd", ".", "a\nb", "\x01\x7f\ufeff\uffff", "%s%n",
          "'; DROP TABLE events; --", "\U0001f570" * 500, "v" * 4096, "v" * 4097, "v" * 100000]


class Caller:
    def __init__(self, choice):
        self.choice = choice
        self.cookies = []
        self.guarded = set()

    def number(self, kind):
        low, high = RANGES[kind]
        choice = self.choice
        number = min(high, max(low, choice.choice((
            0, 1, -1, 2, low, high, high - 1, choice.randint(low, high), choice.randint(0, 200), 1 << choice.randrange(64),
            int(time.time()) + choice.randint(-700, 5)))))
        return self.number(kind) if number in self.guarded else number

    def cookie(self):
        if self.cookies and self.choice.random() < 0.7:
            return self.choice.choice(self.cookies)
        return self.number("u")

    def attributes(self):
        count = self.choice.choice((0, 1, 2, 3, 5, 16, 17, 64, 65, 200) if self.choice.random() < 0.1 else (0, 1, 2, 3))
        made = {self.choice.choice(NAMES) if self.choice.random() < 0.3 else f"name {i}": self.choice.choice(VALUES[:11])
                for i in range(count)}
        if self.choice.random() < 0.02:
            made["long"] = self.choice.choice(VALUES)
        return made

    def event(self):
        choice = self.choice
        def some(*usual):
            return choice.choice(usual) if choice.random() < 0.95 else None
        def or_any(kind, *usual):
            value = some(*usual)
            return self.number(kind) if value is None else value
        count = or_any("y", 0, 0, 1, 2)
        recurrences = [(or_any("u", 1 << 7, (1 << 24) - 1), or_any("t", 1, (1 << 60) - 1), or_any("u", 0x3e, 0x7f),
                        or_any("u", 0xfffffffe, 1 << 31), or_any("u", 0x1ffe, 1 << 2), choice.random() < 0.5)
                       for _ in range(count)]
        buttons = [(or_any("i", 0, 60, 600), self.attributes()) for _ in range(or_any("y", 0, 1, 2))]
        now = int(time.time())
        return (or_any("x", -1, 0, now, now + 1, now + 100000), or_any("u", 0, 1, 2, 3, 11, 255), or_any("i", 0, 60, 1),
                or_any("u", 0, 1, 3), self.attributes(), recurrences, buttons)

    def anything(self, depth=0):
        """A value of any type at all."""
        kind = self.choice.choice("ynqiuxtdsbogasmavr" if depth < 3 else "ynqiuxtdsb")
        if kind in RANGES:
            return GLib.Variant(kind, self.number(kind))
        if kind == "d":
            return GLib.Variant("d", self.choice.choice((0.0, -1.5, float("nan"), float("inf"))))
        if kind == "b":
            return GLib.Variant("b", self.choice.random() < 0.5)
        if kind == "o":
            return GLib.Variant("o", "/com/astel/timed")
        if kind == "g":
            return GLib.Variant("g", "a{sv}")
        if kind == "a":
            return GLib.Variant("as", [self.choice.choice(VALUES) for _ in range(self.choice.randrange(4))])
        if kind == "m":
            return GLib.Variant("a{sv}", {self.choice.choice(NAMES): self.anything(depth + 1) for _ in range(3)})
        if kind == "v":
            return GLib.Variant("v", self.anything(depth + 1))
        if kind == "r":
            return GLib.Variant.new_tuple(*(self.anything(depth + 1) for _ in range(self.choice.randint(1, 4))))
        return GLib.Variant("s", self.choice.choice(VALUES))

    def arguments(self, method):
        text = self.choice.choice(VALUES)
        if method in ("add_event", "replace_event"):
            if len(self.cookies) > MOST_EVENTS:
                return "cancel", GLib.Variant("(u)", (self.cookies.pop(0),))
            event = GLib.Variant(EVENT, self.event())
            rest = [GLib.Variant("u", self.cookie())] if method == "replace_event" else []
            return method, GLib.Variant.new_tuple(event, *rest)
        if method == "restore_events":
            if len(self.cookies) > MOST_EVENTS:
                return "cancel", GLib.Variant("(u)", (self.cookies.pop(0),))
            records = [(self.event(), self.choice.choice(("WAITING", "FINISHED", "SNOOZED", text[:10])),
                        self.number("t")) for _ in range(self.choice.randrange(3))]
            return method, GLib.Variant(SIGNATURES[method], (records,))
        if method == "query":
            return method, GLib.Variant("(a{sv})", ({name: self.anything() for name in self.attributes()},))
        if method in ("sounds", "impaired"):
            return method, GLib.Variant("(us)", (self.cookie(), text))
        if method == "snooze":
            return method, GLib.Variant("(uus)", (self.cookie(), self.number("u"), text))
        if method == "press":
            button = self.choice.randrange(4) if self.choice.random() < 0.8 else self.number("u")
            return method, GLib.Variant("(uus)", (self.cookie(), button, text))
        if method == "dismiss":
            return method, GLib.Variant("(us)", (self.cookie(), text))
        if method == "journal":
            return method, GLib.Variant("(x)", (self.number("x") if self.choice.random() < 0.2 else int(time.time() * 1000),))
        if method == "next_triggers":
            return method, GLib.Variant("(u)", (self.number("u") if self.choice.random() < 0.1 else 3,))
        return method, GLib.Variant("(u)", (self.cookie(),)) if SIGNATURES[method] == "(u)" else None

    def call(self, bus):
        method = self.choice.choice(list(SIGNATURES))
        if self.choice.random() < 0.7:
            return Call(bus, *self.arguments(method))
        if self.choice.random() < 0.1:
            method = self.choice.choice(("Introspect", "GetAll", "Set", "idle", "deleteLater", "settings_changed", "publish"))
        values = GLib.Variant.new_tuple(*(self.anything() for _ in range(self.choice.randrange(4))))
        path = self.choice.choice(("/com/astel/timed",) * 9 + ("/", "/com", "/com/astel/context"))
        interface = self.choice.choice((SERVICE,) * 9 + ("org.freedesktop.DBus.Properties", "com.example"))
        return Call(bus, method, values, path, interface)


def wait_for(bus, calls):
    for call in calls:
        bus.serve_while(lambda: call.answered is None, 60)


def ask(bus, method, arguments):
    call = Call(bus, method, arguments)
    wait_for(bus, [call])
    return call.reply[0]


def fuzz(folder, program, count, seed):
    bus = Bus(folder)
    daemon = Daemon(bus, program, folder)
    bus.ring_through(lambda cookie, due: None)
    daemon.start()
    caller = Caller(random.Random(seed))
    guard = GLib.Variant(EVENT, (-1, 2, 0, 0, {"NAME": "guarded"}, [(1, 1, 1, 2, 2, True)], []))
    caller.guarded = {ask(bus, "add_event", GLib.Variant.new_tuple(guard)) for _ in range(GUARDED)}
    answers = {}
    for done in range(0, count, AT_ONCE):
        calls = [caller.call(bus) for _ in range(min(AT_ONCE, count - done))]
        wait_for(bus, calls)
        for call in calls:
            answer = call.error or "answered"
            answers[answer] = answers.get(answer, 0) + 1
            if call.error and not NAMED.fullmatch(call.error):
                raise AssertionError(f"seed {seed}: {call.method} {str(call.arguments)[:500]} ends in {call.error}\n"
                                     f"{daemon.output.read_text(errors='replace')[-3000:]}")
        known = ask(bus, "query", GLib.Variant("(a{sv})", ({},)))
        caller.cookies = [cookie for cookie in known if cookie not in caller.guarded]
        if not caller.guarded <= set(known):
            raise AssertionError(f"seed {seed}: {caller.guarded - set(known)} are gone")
    for cookie in caller.guarded:
        found = ask(bus, "query_attributes", GLib.Variant("(u)", (cookie,)))
        if found != {"NAME": "guarded", "STATE": "WAITING"}:
            raise AssertionError(f"seed {seed}: {cookie} became {found}")
    code = daemon.terminate()
    bus.process.kill()
    output = daemon.output.read_text(errors="replace")
    if code != 0 or REPORT.search(output):
        raise AssertionError(f"seed {seed}: the daemon ends with {code}\n{output[-5000:]}")
    for answer, times in sorted(answers.items()):
        print(f"{times:7} {answer}")


def main():
    program, count = sys.argv[1], int(sys.argv[2])
    seed = sys.argv[3] if len(sys.argv) > 3 else str(random.SystemRandom().randrange(1 << 32))
    print(f"seed {seed}", flush=True)
    in_own_folder(lambda folder: fuzz(folder, program, count, seed))


if __name__ == "__main__":
    main()
