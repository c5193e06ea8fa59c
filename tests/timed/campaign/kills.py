#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The Clock authors
# SPDX-License-Identifier: LGPL-2.1-or-later
"""kills.py TIMED KILLS [SEED]: adds, replaces, cancels, rings, snoozes and stops alarms on the real daemon, which is
killed at random points: within a call, around the moment at which an alarm is due, while it starts. After every start
each acknowledged change must be there; no alarm may ring again once it was answered, and none may be left out. The
same seed makes the same choices."""

import dataclasses
import random
import sys
import time

from gi.repository import GLib

from harness import (EVENT, KEEP_ALIVE, SECOND, SINGLE_SHOT, Bus, Call, Daemon, in_own_folder)

MINUTE = 60 * SECOND
MOST_ALARMS = 30
# Shorter than the daemon's patience with a ringer, so that a second call does not hide that the first one is missing.
GRACE = 4 * SECOND
ALL = (1 << 24) - 1, (1 << 60) - 1, 0x7f, 0xfffffffe, 0x1ffe, False
STOP = 4
BUTTONS = [(1, {}), (2, {}), (3, {}), (0, {})]  # the numbers of the first three are their seconds


def next_minute(moment):
    return (moment // MINUTE + 1) * MINUTE


@dataclasses.dataclass
class Alarm:
    name: str
    every_minute: bool
    ticker: int  # seconds
    state: str = "WAITING"
    due: tuple = (0, 0)  # the first and the last moment that may come with the ring
    run: int = -1  # of the daemon that called the ringer last
    called: int = 0
    acknowledged: bool = False
    rings: int = 0

    def wait(self, first, last):
        self.state = "WAITING"
        self.due = (next_minute(first), next_minute(last)) if self.every_minute else (self.ticker * SECOND,) * 2

    def served(self, first, last):
        if self.every_minute:
            self.wait(first, last)
        else:
            self.state = "FINISHED"

    def snoozed(self, until):
        self.state, self.due = "SNOOZED", until

    def variant(self):
        event = (-1 if self.every_minute else self.ticker, KEEP_ALIVE | (0 if self.every_minute else SINGLE_SHOT), 0, 0,
                 {"NAME": self.name}, [ALL] if self.every_minute else [], BUTTONS)
        return GLib.Variant(EVENT, event)


class Campaign:
    def __init__(self, folder, program, seed):
        self.seed = seed
        self.bus = Bus(folder)
        self.daemon = Daemon(self.bus, program, folder)
        self.alarms = {}
        self.gone = set()
        self.answers = []
        self.unhandled = []
        self.pending = None
        self.settled = False
        self.run = 0
        self.started = 0
        self.names = 0
        self.counts = dict.fromkeys(("kills", "acknowledged", "lost in a kill", "rings", "resumed", "answered"), 0)
        self.bus.ring_through(self.rung)

    def fail(self, text):
        # Also called from where exceptions do not get through.
        self.bus.problem = f"seed {self.seed}, after {self.counts['kills']} kills: {text}"
        raise AssertionError(self.bus.problem)

    # What the ringer sees.

    def rung(self, cookie, due, now=None):
        now = now or time.time_ns()
        if not self.settled:
            self.unhandled.append((cookie, due, now))
            return
        self.take_answer()
        alarm = self.alarms.get(cookie)
        if alarm is None:
            self.fail(f"{cookie} rings, which {'was cancelled' if cookie in self.gone else 'nobody added'}")
        if alarm.state == "FINISHED":
            self.fail(f"{cookie} rings again, after it was answered")
        if not alarm.due[0] <= due <= alarm.due[1]:
            self.fail(f"{cookie} ({alarm.state}) rings for {due} instead of {alarm.due}")
        if now < due:
            self.fail(f"{cookie} rings {due - now} ns early")
        if alarm.state == "TRIGGERED" and alarm.run == self.run and (alarm.acknowledged or now - alarm.called < GRACE):
            self.fail(f"{cookie} rings twice at once")
        self.counts["resumed" if alarm.state == "TRIGGERED" else "rings"] += 1
        alarm.rings += alarm.state != "TRIGGERED"
        alarm.state, alarm.due, alarm.run, alarm.called, alarm.acknowledged = "TRIGGERED", (due, due), self.run, now, False
        choice = random.Random(f"{self.seed} {alarm.name} {alarm.rings}")
        self.answers.append((time.monotonic() + choice.uniform(0, 0.5), cookie, choice.random()))

    def nothing_is_left_out(self):
        now = time.time_ns()
        if now < self.started + GRACE and self.started:
            return
        for cookie, alarm in self.alarms.items():
            if alarm.state in ("WAITING", "SNOOZED") and now > alarm.due[1] + GRACE:
                self.fail(f"{cookie} ({alarm.state}) was due at {alarm.due}, and does not ring")
            if alarm.state == "TRIGGERED" and alarm.run != self.run:
                self.fail(f"{cookie} does not ring on")

    # What is asked of the daemon. Each step sends a call and answers it and what its success means.

    def add(self, choice):
        self.names += 1
        alarm = Alarm(str(self.names), choice.random() < 0.2, time.time_ns() // SECOND + choice.randint(1, 4))
        return Call(self.bus, "add_event", GLib.Variant.new_tuple(alarm.variant())), ("add", alarm, None)

    def replace(self, choice):
        cookie = choice.choice(sorted(self.alarms))
        self.names += 1
        alarm = Alarm(str(self.names), choice.random() < 0.2, time.time_ns() // SECOND + choice.randint(1, 4))
        call = Call(self.bus, "replace_event", GLib.Variant.new_tuple(alarm.variant(), GLib.Variant("u", cookie)))
        return call, ("replace", alarm, cookie)

    def cancel(self, choice):
        cookie = choice.choice(sorted(self.alarms))
        return Call(self.bus, "cancel", GLib.Variant("(u)", (cookie,))), ("cancel", None, cookie)

    def answer(self, cookie, how):
        if how < 0.1:
            return Call(self.bus, "press", GLib.Variant("(uus)", (cookie, STOP, "user"))), ("dismiss", None, cookie)
        if how < 0.5:
            return Call(self.bus, "dismiss", GLib.Variant("(us)", (cookie, "user"))), ("dismiss", None, cookie)
        seconds = 1 + int(how * 10) % 3
        if how > 0.8:
            return Call(self.bus, "press", GLib.Variant("(uus)", (cookie, seconds, "user"))), ("snooze", seconds, cookie)
        return Call(self.bus, "snooze", GLib.Variant("(uus)", (cookie, seconds, "user"))), ("snooze", seconds, cookie)

    def change(self, choice):
        now = time.monotonic()
        for answer in self.answers:
            when, cookie, how = answer
            alarm = self.alarms.get(cookie)
            if when > now:
                continue
            self.answers.remove(answer)
            if alarm is None or alarm.state != "TRIGGERED":
                continue
            if how < 0.8:
                acknowledged = Call(self.bus, "rings", GLib.Variant("(u)", (cookie,)))
                self.finish(acknowledged)
                alarm.acknowledged = acknowledged.error is None
            # Some are left to ring on for a while, and answered the other way.
            if how > 0.85:
                self.answers.append((now + 1, cookie, 1 - how))
                break
            return self.answer(cookie, how)
        many = len(self.alarms) >= MOST_ALARMS
        act = choice.choices((self.add, self.replace, self.cancel),
                             (0 if many else 5, 2 * bool(self.alarms), (6 if many else 1) * bool(self.alarms)))[0]
        return act(choice)

    def finish(self, call):
        self.bus.serve_while(lambda: call.answered is None)

    def take_answer(self):
        """Of the call under way, if it is answered by now."""
        if self.pending and self.pending[0].reply is not None:
            pending, self.pending = self.pending, None
            self.acknowledge(*pending)

    def acknowledge(self, call, meaning):
        what, detail, cookie = meaning
        self.counts["acknowledged"] += 1
        value = call.reply[0] if call.reply else None
        if what in ("add", "replace"):
            if value in self.alarms or value in self.gone:
                self.fail(f"cookie {value} is given again")
            detail.wait(call.sent, call.answered)
            self.alarms[value] = detail
        if what in ("replace", "cancel"):
            del self.alarms[cookie]
            self.gone.add(cookie)
        if what == "dismiss":
            self.counts["answered"] += 1
            self.alarms[cookie].served(call.sent, call.answered)
        if what == "snooze":
            self.counts["answered"] += 1
            self.alarms[cookie].snoozed((value, value))

    # A kill, and what is found after it.

    def cycle(self, number):
        choice = random.Random(f"{self.seed} {number}")
        how = choice.choice(("call", "call", "due", "idle", "start"))
        if how == "start":
            if self.running():
                self.killed()
            self.run += 1
            self.daemon.spawn()
            self.bus.serve(choice.uniform(0, 0.06))
            self.killed()
        self.start()
        for _ in range(choice.randint(0, 16)):
            self.pending = self.change(choice)
            self.finish(self.pending[0])
            self.take_answer()
            self.bus.serve(choice.uniform(0, 0.05))
            if self.pending:
                self.fail(f"{self.pending[1][0]} answers {self.pending[0].error}")
            self.nothing_is_left_out()
        if how == "due":
            coming = [alarm.due[0] for alarm in self.alarms.values() if alarm.state in ("WAITING", "SNOOZED")]
            ahead = min((due for due in coming if due > time.time_ns()), default=time.time_ns()) - time.time_ns()
            self.bus.serve(min(ahead / SECOND, 3) + choice.uniform(-0.003, 0.015))
        else:
            self.pending = self.change(choice)
            self.bus.serve(choice.uniform(0, 0.006) if how == "call" else choice.uniform(0, 0.3))
        self.killed()

    def running(self):
        return self.daemon.process is not None and self.daemon.process.poll() is None

    def killed(self):
        self.daemon.kill()
        self.counts["kills"] += 1
        if self.pending:
            self.finish(self.pending[0])
        self.take_answer()
        if self.pending:
            pending, self.pending = self.pending, None
            self.counts["lost in a kill"] += 1
            self.start(*pending)

    def ask(self, method, arguments=None):
        call = Call(self.bus, method, arguments)
        self.finish(call)
        if call.error:
            self.fail(f"{method} answers {call.error}")
        return call.reply[0]

    def start(self, call=None, meaning=None):
        if self.running():
            return
        self.settled = False
        self.run += 1
        self.daemon.start()
        self.started = time.time_ns()
        found = {cookie: self.ask("query_attributes", GLib.Variant("(u)", (cookie,)))
                 for cookie in self.ask("query", GLib.Variant("(a{sv})", ({},)))}
        if meaning:
            self.resolve(call, meaning, found)
        if set(found) != set(self.alarms):
            self.fail(f"missing {set(self.alarms) - set(found)}, unknown {set(found) - set(self.alarms)}")
        for cookie, alarm in self.alarms.items():
            if found[cookie]["NAME"] != alarm.name:
                self.fail(f"{cookie} is {found[cookie]['NAME']} instead of {alarm.name}")
            if (found[cookie]["STATE"] == "FINISHED") != (alarm.state == "FINISHED"):
                self.fail(f"{cookie} is {found[cookie]['STATE']} instead of {alarm.state}")
        self.settled = True
        unhandled, self.unhandled = self.unhandled, []
        for ring in unhandled:
            self.rung(*ring)

    def resolve(self, call, meaning, found):
        """A call that the kill cut off has taken effect as a whole, or not at all."""
        what, detail, cookie = meaning
        now = time.time_ns()
        new = set(found) - set(self.alarms)
        if what in ("add", "replace") and len(new) == 1 and found[min(new)]["NAME"] == detail.name:
            if what == "replace" and cookie in found:
                self.fail(f"{cookie} is there beside its replacement")
            detail.wait(call.sent, now)
            self.alarms[min(new)] = detail
        elif what == "replace" and cookie not in found:
            self.fail(f"{cookie} is gone without a replacement")
        if what in ("replace", "cancel") and cookie not in found:
            del self.alarms[cookie]
            self.gone.add(cookie)
        if what == "dismiss" and found[cookie]["STATE"] in ("FINISHED", "WAITING"):
            self.alarms[cookie].served(call.sent, now)
        alarm = self.alarms.get(cookie)
        if what == "dismiss" and found[cookie]["STATE"] == "TRIGGERED" and alarm.every_minute:
            alarm.due = alarm.due[0], next_minute(now)
        if what == "snooze" and found[cookie]["STATE"] in ("SNOOZED", "TRIGGERED"):
            until = call.sent + (detail - 1) * SECOND, now + detail * SECOND
            # Rings again by now, or still.
            alarm.snoozed(until if found[cookie]["STATE"] == "SNOOZED" else (alarm.due[0], until[1]))

    def end(self):
        """Everything that is still ahead rings."""
        self.start()
        end = time.monotonic() + 10
        for cookie in [cookie for cookie, alarm in self.alarms.items() if alarm.every_minute]:
            self.ask("cancel", GLib.Variant("(u)", (cookie,)))
            del self.alarms[cookie]
            self.gone.add(cookie)
        while time.monotonic() < end:
            self.bus.serve(0.1)
            self.nothing_is_left_out()
        left = [cookie for cookie, alarm in self.alarms.items() if alarm.state in ("WAITING", "SNOOZED")]
        if left:
            self.fail(f"{left} never rang")
        if self.daemon.terminate() != 0:
            self.fail("the daemon does not end well")


def main():
    program, kills = sys.argv[1], int(sys.argv[2])
    seed = sys.argv[3] if len(sys.argv) > 3 else str(random.SystemRandom().randrange(1 << 32))
    print(f"seed {seed}", flush=True)

    def run(folder):
        campaign = Campaign(folder, program, seed)
        number = 0
        try:
            while campaign.counts["kills"] < kills:
                campaign.cycle(number)
                number += 1
            campaign.end()
        finally:
            if campaign.running():
                campaign.daemon.process.kill()
            campaign.bus.process.kill()
        print(", ".join(f"{name}: {count}" for name, count in campaign.counts.items()))
    in_own_folder(run)


if __name__ == "__main__":
    main()
