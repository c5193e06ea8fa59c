// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timed/lifecycle.h"

#include "platform/timed/clock.h"
#include "platform/timed/lateness.h"
#include "platform/timed/logging.h"
#include "platform/timed/moments.h"
#include "platform/timed/ringing.h"
#include "platform/timed/schedule.h"
#include "platform/timed/validator.h"
#include "platform/timed/zonesource.h"

namespace Astel::Timed {

namespace {

constexpr qint64 MillisecondsOfSecond = 1000;
constexpr qint64 MillisecondsOfMinute = 60000;
// The start of 2026, when this was written: a device without a battery for its clock starts earlier.
constexpr qint64 EarliestPlausible = Q_INT64_C(1767225600000);

qint64 snoozeEnd(const AlarmEvent &event, qint64 from, qint64 seconds)
{
    const qint64 end = from + seconds * MillisecondsOfSecond;
    if (!event.has(Wire::AlignedSnooze))
        return end;
    return (end + MillisecondsOfMinute - 1) / MillisecondsOfMinute * MillisecondsOfMinute;
}

qint64 firstSnooze(const Wire::Event &event)
{
    for (const Wire::Button &button : event.buttons) {
        if (button.snooze > 0)
            return button.snooze;
    }
    return 0;
}

} // namespace

LifeCycle::LifeCycle(EventBook &book, Schedule &schedule, Ringing &ringing, const Clock &clock, const ZoneSource &zone,
                     qint64 ringTime)
    : m_book(book)
    , m_schedule(schedule)
    , m_ringing(ringing)
    , m_clock(clock)
    , m_zone(zone)
    , m_ringTime(ringTime)
{
    connect(&schedule, &Schedule::reached, this, &LifeCycle::reached);
    connect(&ringing, &Ringing::ringerSilent, this, [this](quint32 cookie, int calls) {
        if (const AlarmEvent *event = m_book.find(cookie))
            apply(
                {{}, {}, {entry(*event, "failed", QStringLiteral("no answer of the ringer to %1 calls").arg(calls))}});
    });
}

void LifeCycle::start()
{
    if (m_clock.now() < EarliestPlausible)
        qCWarning(lcTimed, "the clock is not set, keeping all moments as they are stored");
    else
        reconcileAll();
    for (const auto &[cookie, event] : m_book.events())
        follow({{event}, {}, {}});
}

AlarmEvent LifeCycle::fresh(quint32 cookie, const Wire::Event &wire) const
{
    AlarmEvent event(cookie, wire);
    const qint64 now = m_clock.now();
    // A ticker that has just passed still rings, as any moment does.
    event.wait(momentAfter(wire, m_zone.zone(), wire.recurrences.isEmpty() ? now - MaximalLateness : now), now);
    return event;
}

Result<> LifeCycle::commit(const Change &change)
{
    auto committed = m_book.commit(change);
    if (committed)
        follow(change);
    return committed;
}

Result<> LifeCycle::rings(quint32 cookie)
{
    const auto event = ringingEvent(cookie);
    if (!event)
        return event.error();
    if (m_ringing.acknowledge(cookie))
        apply({{}, {}, {entry(**event, "rang", "")}});
    return Done{};
}

Result<> LifeCycle::sounds(quint32 cookie, const QString &tone)
{
    const auto event = ringingEvent(cookie);
    if (!event)
        return event.error();
    apply({{}, {}, {entry(**event, "sounded", tone)}});
    return Done{};
}

Result<qint64> LifeCycle::snooze(quint32 cookie, quint32 seconds, const QString &by)
{
    const auto found = ringingEvent(cookie);
    if (!found)
        return found.error();
    AlarmEvent event = **found;
    const qint64 length = seconds > 0 ? seconds : firstSnooze(event.wire());
    if (length <= 0 || length > LongestSnooze)
        return Error{Wire::InvalidError, QStringLiteral("a snooze of %1 s is not possible").arg(length)};
    const qint64 until = snoozeEnd(event, m_clock.now(), length);
    event.snooze(until, m_clock.now());
    apply({{event}, {}, {entry(event, "answered", QStringLiteral("snooze of %1 s by %2").arg(length).arg(by))}});
    return until;
}

Result<> LifeCycle::dismiss(quint32 cookie, const QString &by)
{
    const AlarmEvent *event = m_book.find(cookie);
    if (!event || (event->state() != State::Triggered && event->state() != State::Snoozed))
        return Error{Wire::UnknownError, QStringLiteral("alarm %1 neither rings nor snoozes").arg(cookie)};
    Change change;
    change.journal.append(entry(*event, "answered", QStringLiteral("stop by %1").arg(by)));
    serve(*event, change);
    apply(change);
    return Done{};
}

void LifeCycle::clockSet()
{
    qCInfo(lcTimed, "the clock was set");
    restartRingTimes();
    recomputeAll(true);
}

void LifeCycle::zoneChanged()
{
    qCInfo(lcTimed, "the time zone is %s", m_zone.zone().id().constData());
    recomputeAll(false);
}

void LifeCycle::restartRingTimes()
{
    // The new clock does not tell how long it has been ringing, and nobody's alarm is cut short.
    Change change;
    for (const auto &[cookie, event] : m_book.events()) {
        if (event.state() != State::Triggered)
            continue;
        change.put.append(event);
        change.put.last().trigger(m_clock.now());
    }
    apply(change);
    m_ringing.clockSet();
}

void LifeCycle::recomputeAll(bool timeChanged)
{
    reconcileAll();
    m_schedule.rearm();
    emit changed();
    emit settingsChanged(timeChanged);
}

void LifeCycle::reached(quint32 cookie, Purpose purpose)
{
    const AlarmEvent *event = m_book.find(cookie);
    if (!event)
        return;
    if (purpose == Purpose::Retry) {
        m_ringing.callAgain(cookie);
        return;
    }
    Change change;
    if (purpose == Purpose::Due)
        come(*event, change);
    else
        endUnanswered(*event, m_clock.now(), change);
    apply(change);
    emit changed();
}

void LifeCycle::apply(const Change &change)
{
    if (change.isEmpty())
        return;
    m_book.commitOrCarryOn(change);
    follow(change);
}

void LifeCycle::follow(const Change &change)
{
    for (const quint32 cookie : change.erased) {
        m_schedule.clear(cookie);
        m_ringing.end(cookie);
    }
    for (const AlarmEvent &event : change.put) {
        m_schedule.clear(event.cookie(), Purpose::Due);
        m_schedule.clear(event.cookie(), Purpose::RingEnd);
        if (event.state() == State::Triggered)
            m_schedule.set(event.cookie(), Purpose::RingEnd, event.standing().since + m_ringTime);
        else if (event.moment())
            m_schedule.set(event.cookie(), Purpose::Due, *event.moment());
        m_ringing.follow(event);
    }
}

void LifeCycle::reconcileAll()
{
    Change change;
    for (const auto &[cookie, event] : m_book.events())
        reconcile(event, change);
    apply(change);
}

void LifeCycle::reconcile(AlarmEvent event, Change &change)
{
    switch (event.state()) {
    case State::Inactive:
        refresh(event, change);
        break;
    case State::Waiting:
        if (lateness(*event.moment(), m_clock.now()) == Lateness::Ahead)
            refresh(event, change);
        else
            come(event, change);
        break;
    case State::Triggered:
        reconcileRinging(event, change);
        break;
    case State::Snoozed:
        reconcileSnooze(event, change);
        break;
    case State::Finished:
        break;
    }
}

void LifeCycle::reconcileRinging(AlarmEvent event, Change &change)
{
    const qint64 now = m_clock.now();
    const qint64 end = event.standing().since + m_ringTime;
    if (now >= end) {
        endUnanswered(event, end, change);
    } else if (now < event.standing().since) {
        event.trigger(now);
        change.put.append(event);
    }
}

void LifeCycle::reconcileSnooze(AlarmEvent event, Change &change)
{
    const qint64 now = m_clock.now();
    const qint64 length = *event.moment() - event.standing().since;
    if (now < event.standing().since) {
        // The clock went back behind the answer: the snooze keeps its length, not its moment.
        event.snooze(now + length, now);
        change.put.append(event);
    } else if (lateness(*event.moment(), now) != Lateness::Ahead) {
        come(event, change);
    }
}

void LifeCycle::refresh(AlarmEvent event, Change &change)
{
    const auto moment = nextMoment(event);
    if (moment == event.moment())
        return;
    event.wait(moment, m_clock.now());
    change.put.append(event);
}

void LifeCycle::come(AlarmEvent event, Change &change)
{
    const qint64 now = m_clock.now();
    const qint64 moment = event.moment().value_or(now);
    switch (lateness(moment, now)) {
    case Lateness::Ahead:
        change.put.append(event);
        break;
    case Lateness::Now:
        event.trigger(now);
        change.journal.append(entry(event, "due", QStringLiteral("%1 ms late").arg(now - moment)));
        change.put.append(event);
        break;
    case Lateness::Missed:
        miss(event, QStringLiteral("its moment passed %1 min ago").arg((now - moment) / MillisecondsOfMinute), change);
        break;
    case Lateness::Absurd:
        qCWarning(lcTimed, "the clock jumped far over the moment of alarm %u, which waits on", event.cookie());
        event.wait(nextMoment(event), now);
        change.put.append(event);
        break;
    }
}

void LifeCycle::endUnanswered(AlarmEvent event, qint64 end, Change &change)
{
    const Wire::Event &wire = event.wire();
    if (wire.timeoutSnooze <= 0 || event.standing().timeoutSnoozes >= wire.maximalTimeoutSnoozeCounter) {
        miss(event, QStringLiteral("nobody answered"), change);
        return;
    }
    event.snoozeUnanswered(snoozeEnd(event, end, wire.timeoutSnooze), end);
    change.journal.append(entry(event, "answered", QStringLiteral("timeout, snooze of %1 s").arg(wire.timeoutSnooze)));
    // After a time without the daemon, the end of this snooze may have passed as well.
    if (lateness(*event.moment(), m_clock.now()) == Lateness::Ahead)
        change.put.append(event);
    else
        come(event, change);
}

void LifeCycle::miss(const AlarmEvent &event, const QString &why, Change &change)
{
    qCWarning(lcTimed, "alarm %u was missed: %ls", event.cookie(), qUtf16Printable(why));
    change.journal.append(entry(event, "missed", why));
    serve(event, change);
}

void LifeCycle::serve(AlarmEvent event, Change &change)
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

std::optional<qint64> LifeCycle::nextMoment(const AlarmEvent &event) const
{
    const qint64 now = m_clock.now();
    qint64 after = now;
    // A clock set back a little does not ring the same moment again.
    if (const auto last = event.standing().lastDue; last && *last > now && *last - now <= MaximalLateness)
        after = *last;
    return momentAfter(event.wire(), m_zone.zone(), after);
}

Result<const AlarmEvent *> LifeCycle::ringingEvent(quint32 cookie) const
{
    const AlarmEvent *event = m_book.find(cookie);
    if (!event || event->state() != State::Triggered)
        return Error{Wire::UnknownError, QStringLiteral("alarm %1 does not ring").arg(cookie)};
    return event;
}

Wire::JournalEntry LifeCycle::entry(const AlarmEvent &event, const QString &what, const QString &detail) const
{
    return {m_clock.now(), event.cookie(), what, detail};
}

} // namespace Astel::Timed
