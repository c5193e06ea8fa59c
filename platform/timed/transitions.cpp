// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timed/transitions.h"

#include "platform/timed/clock.h"
#include "platform/timed/lateness.h"
#include "platform/timed/logging.h"
#include "platform/timed/moments.h"
#include "platform/timed/zonesource.h"

namespace Astel::Timed {

namespace {

constexpr qint64 MillisecondsOfMinute = 60000;

qint64 snoozeEnd(const AlarmEvent &event, qint64 from, qint64 length)
{
    const qint64 end = from + length;
    if (!event.has(Wire::AlignedSnooze))
        return end;
    return (end + MillisecondsOfMinute - 1) / MillisecondsOfMinute * MillisecondsOfMinute;
}

MissReason reasonOf(Cause cause)
{
    switch (cause) {
    case Cause::Start:
        return MissReason::Off;
    case Cause::Wake:
        return MissReason::Slept;
    case Cause::Clock:
        return MissReason::ClockSet;
    case Cause::Time:
    case Cause::Zone:
        break;
    }
    return MissReason::Late;
}

} // namespace

Transitions::Transitions(const Clock &clock, const ZoneSource &zone, qint64 ringTime)
    : m_clock(clock)
    , m_zone(zone)
    , m_ringTime(ringTime)
{ }

void Transitions::reconcile(AlarmEvent event, Cause cause, Change &change) const
{
    if (resumesSnooze(event)) {
        resumeSnooze(event, cause, change);
        return;
    }
    switch (event.state()) {
    case State::Inactive:
        refresh(event, change);
        break;
    case State::Waiting:
        if (lateness(*event.moment(), m_clock.now()) == Lateness::Ahead)
            refresh(event, change);
        else
            come(event, cause, change);
        break;
    case State::Triggered:
        reconcileRinging(event, cause, change);
        break;
    case State::Snoozed:
        reconcileSnooze(event, cause, change);
        break;
    case State::Finished:
        break;
    }
}

void Transitions::reconcileRinging(AlarmEvent event, Cause cause, Change &change) const
{
    const qint64 now = m_clock.now();
    if (now >= ringEnd(event)) {
        endUnanswered(event, ringEnd(event), cause, change);
    } else if (now < event.standing().since) {
        event.trigger(now);
        change.put.append(event);
    }
}

void Transitions::reconcileSnooze(const AlarmEvent &event, Cause cause, Change &change) const
{
    const qint64 now = m_clock.now();
    // Where the clock went back behind the answer, the snooze keeps its length, not its moment.
    if (now < event.standing().since)
        restartSnooze(event, change);
    else if (lateness(*event.moment(), now) != Lateness::Ahead)
        come(event, cause, change);
}

bool Transitions::resumesSnooze(const AlarmEvent &event) const
{
    const auto snooze = event.standing().passedOver;
    return snooze && lateness(snooze->until, m_clock.now()) != Lateness::Absurd;
}

void Transitions::resumeSnooze(AlarmEvent event, Cause cause, Change &change) const
{
    event.resumeSnooze();
    if (m_clock.now() < event.standing().since)
        restartSnooze(event, change);
    else
        come(event, cause, change);
}

void Transitions::restartSnooze(AlarmEvent event, Change &change) const
{
    const qint64 now = m_clock.now();
    event.moveSnooze(snoozeEnd(event, now, *event.moment() - event.standing().since), now);
    change.put.append(event);
}

void Transitions::refresh(AlarmEvent event, Change &change) const
{
    const auto moment = nextMoment(event);
    if (moment == event.moment())
        return;
    event.wait(moment, m_clock.now());
    change.put.append(event);
}

void Transitions::come(AlarmEvent event, Cause cause, Change &change) const
{
    const qint64 now = m_clock.now();
    const qint64 moment = event.moment().value_or(now);
    switch (lateness(moment, now)) {
    case Lateness::Ahead:
        change.put.append(event);
        break;
    case Lateness::Now:
        event.trigger(now);
        change.journal.append(entry(event.cookie(), "due", QStringLiteral("%1 ms late").arg(now - moment)));
        if (cause == Cause::Wake)
            change.journal.append(entry(event.cookie(), "woke", QStringLiteral("the device slept before")));
        change.put.append(event);
        break;
    case Lateness::Missed:
        passBy(event, cause, change);
        break;
    case Lateness::Absurd:
        waitOn(event, change);
        break;
    }
}

void Transitions::waitOn(AlarmEvent event, Change &change) const
{
    qCWarning(lcTimed, "the clock jumped far over the moment of alarm %u, which waits on", event.cookie());
    // An alarm that was answered rings for its snooze when the clock is right again, and for no other moment.
    if (event.state() == State::Snoozed && event.has(Wire::SingleShot))
        return;
    if (event.state() == State::Snoozed)
        event.waitOverSnooze(nextMoment(event), m_clock.now());
    else
        event.wait(nextMoment(event), m_clock.now());
    change.put.append(event);
}

void Transitions::passBy(const AlarmEvent &event, Cause cause, Change &change) const
{
    const MissReason reason = reasonOf(cause);
    const qint64 minutes = (m_clock.now() - event.moment().value_or(0)) / MillisecondsOfMinute;
    miss(event, reason, QStringLiteral("%1, its moment passed %2 min ago").arg(missReasonName(reason)).arg(minutes),
         change);
}

void Transitions::endUnanswered(AlarmEvent event, qint64 end, Cause cause, Change &change) const
{
    const Wire::Event &wire = event.wire();
    if (wire.timeoutSnooze <= 0 || event.standing().timeoutSnoozes >= wire.maximalTimeoutSnoozeCounter) {
        miss(event, MissReason::Unanswered, QStringLiteral("unanswered"), change);
        return;
    }
    event.snoozeUnanswered(snoozeEnd(event, end, wire.timeoutSnooze * MillisecondsOfSecond), end);
    change.journal.append(
        entry(event.cookie(), "answered", QStringLiteral("timeout, snooze of %1 s").arg(wire.timeoutSnooze)));
    // After a time without the daemon, the end of this snooze may have passed as well.
    if (lateness(*event.moment(), m_clock.now()) == Lateness::Ahead)
        change.put.append(event);
    else
        come(event, cause, change);
}

qint64 Transitions::snooze(AlarmEvent event, qint64 length, const QString &by, Change &change) const
{
    const qint64 until = snoozeEnd(event, m_clock.now(), length * MillisecondsOfSecond);
    event.snooze(until, m_clock.now());
    change.put.append(event);
    change.journal.append(
        entry(event.cookie(), "answered", QStringLiteral("snooze of %1 s by %2").arg(length).arg(by)));
    return until;
}

void Transitions::miss(const AlarmEvent &event, MissReason reason, const QString &why, Change &change) const
{
    qCWarning(lcTimed, "alarm %u was missed: %ls", event.cookie(), qUtf16Printable(why));
    const qint64 now = m_clock.now();
    // When it rang in vain, or snoozed, the user thinks of the moment at which it was due first.
    const auto due = event.state() == State::Waiting ? event.moment() : event.standing().lastDue;
    change.missed.append({event.cookie(), due.value_or(now), now, reason, false, event.wire()});
    change.journal.append(entry(event.cookie(), "missed", why));
    serve(event, change);
}

void Transitions::serve(AlarmEvent event, Change &change) const
{
    const auto next = event.has(Wire::SingleShot) ? std::nullopt : nextMoment(event);
    if (next)
        event.wait(next, m_clock.now());
    else
        event.finish(m_clock.now());
    if (next || event.has(Wire::KeepAlive))
        change.put.append(event);
    else
        change.erased.append(event.cookie());
}

std::optional<qint64> Transitions::nextMoment(const AlarmEvent &event) const
{
    const qint64 now = m_clock.now();
    qint64 after = now;
    // A clock set back a little does not ring the same moment again.
    if (const auto last = event.standing().lastDue; last && *last > now && *last - now <= MaximalLateness)
        after = *last;
    return momentAfter(event.wire(), m_zone.zone(), after);
}

Wire::JournalEntry Transitions::entry(quint32 cookie, const QString &what, const QString &detail) const
{
    return {m_clock.now(), cookie, what, detail};
}

} // namespace Astel::Timed
