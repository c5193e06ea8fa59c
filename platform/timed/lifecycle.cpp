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

#include <algorithm>

namespace Astel::Timed {

namespace {

// For entries of the journal that are about all events.
constexpr quint32 NoCookie = 0;

const auto RingerGone = QStringLiteral("The ringer has gone and is called again");

} // namespace

LifeCycle::LifeCycle(EventBook &book, Schedule &schedule, Ringing &ringing, const Clock &clock, const ZoneSource &zone,
                     qint64 ringTime)
    : m_book(book)
    , m_schedule(schedule)
    , m_ringing(ringing)
    , m_clock(clock)
    , m_zone(zone)
    , m_transitions(clock, zone, ringTime)
    , m_doubt(book, clock, m_transitions)
{
    connect(&schedule, &Schedule::reached, this, &LifeCycle::reached);
    connect(&ringing, &Ringing::ringerSilent, this, [this](quint32 cookie, int calls) {
        note(cookie, "failed", QStringLiteral("no answer of the ringer to %1 calls, the fallback rings").arg(calls));
    });
    connect(&ringing, &Ringing::ringerGone, this, [this](quint32 cookie) {
        if (m_ringing.keepTrouble(cookie, RingerGone))
            note(cookie, "impaired", RingerGone);
    });
}

void LifeCycle::start()
{
    if (m_doubt.begin())
        qCWarning(lcTimed, "the clock is not set, keeping all moments as they are stored");
    else
        reconcileAll(Cause::Start);
    followAll();
}

AlarmEvent LifeCycle::fresh(quint32 cookie, const Wire::Event &wire) const
{
    Wire::Event kept = wire;
    // From the bus, every event comes with all its texts, which are most of what it takes.
    kept.attributes = m_book.sharing(wire.attributes);
    AlarmEvent event(cookie, kept);
    const qint64 now = m_clock.now();
    // A ticker that has just passed still rings, as any moment does.
    event.wait(momentAfter(wire, m_zone.zone(), wire.recurrences.isEmpty() ? now - MaximalLateness : now), now);
    return event;
}

AlarmEvent LifeCycle::restored(quint32 cookie, const Wire::Record &record) const
{
    AlarmEvent event = fresh(cookie, record.event);
    if (!event.has(Wire::SingleShot))
        return event;
    const qint64 now = m_clock.now();
    const auto due = qint64(record.moment / quint64(NanosecondsOfMillisecond));
    const bool waited = record.state == stateName(State::Waiting);
    if ((waited && due <= now - MaximalLateness) || (!waited && record.state != stateName(State::Inactive)))
        event.finish(now);
    else if (waited && due <= now)
        event.wait(due, now);
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
        note(cookie, "rang");
    return Done{};
}

Result<> LifeCycle::sounds(quint32 cookie, const QString &tone)
{
    const auto event = ringingEvent(cookie);
    if (!event)
        return event.error();
    if (m_ringing.acknowledgeSound(cookie))
        note(cookie, "sounded", tone);
    return Done{};
}

Result<> LifeCycle::impaired(quint32 cookie, const QString &trouble)
{
    const auto event = ringingEvent(cookie);
    if (!event)
        return event.error();
    if (m_ringing.keepTrouble(cookie, trouble))
        note(cookie, "impaired", trouble);
    return Done{};
}

Result<qint64> LifeCycle::snooze(quint32 cookie, quint32 seconds, const QString &by)
{
    const auto found = ringingEvent(cookie);
    if (!found)
        return found.error();
    const AlarmEvent &event = **found;
    const qint64 length = seconds > 0 ? seconds : Wire::firstSnooze(event.wire());
    if (length <= 0 || length > LongestSnooze)
        return Error{Wire::InvalidError, QStringLiteral("a snooze of %1 s is not possible").arg(length)};
    return snoozeFor(event, length, by);
}

Result<std::optional<qint64>> LifeCycle::press(quint32 cookie, quint32 button, const QString &by)
{
    const auto found = ringingEvent(cookie);
    if (!found)
        return found.error();
    const AlarmEvent &event = **found;
    const QList<Wire::Button> &buttons = event.wire().buttons;
    if (button == 0 || button > quint32(buttons.size()))
        return Error{Wire::InvalidError, QStringLiteral("alarm %1 has no button %2").arg(cookie).arg(button)};
    if (const qint64 length = buttons[button - 1].snooze; length > 0)
        return std::optional(snoozeFor(event, length, by));
    stop(event, by);
    return std::optional<qint64>();
}

Result<> LifeCycle::dismiss(quint32 cookie, const QString &by)
{
    const AlarmEvent *event = m_book.find(cookie);
    if (!event || (event->state() != State::Triggered && event->state() != State::Snoozed))
        return Error{Wire::UnknownError, QStringLiteral("alarm %1 neither rings nor snoozes").arg(cookie)};
    stop(*event, by);
    return Done{};
}

Result<> LifeCycle::ringNow(quint32 cookie)
{
    const auto event = m_book.findOrMissed(cookie);
    if (!event || event->state() == State::Triggered)
        return Error{Wire::UnknownError, QStringLiteral("alarm %1 cannot be rung again").arg(cookie)};
    AlarmEvent ringing = *event;
    ringing.ringNow(m_clock.now());
    apply({{ringing}, {}, {m_transitions.entry(cookie, "due", QStringLiteral("asked for after it was missed"))}, {}});
    emit changed();
    return Done{};
}

Result<> LifeCycle::ringLater(const AlarmEvent &stopped, qint64 seconds, const QString &by)
{
    const AlarmEvent *stored = m_book.find(stopped.cookie());
    const AlarmEvent event = stored ? *stored : stopped;
    if (stored && (event.state() == State::Triggered || event.state() == State::Snoozed))
        return Error{Wire::UnknownError, QStringLiteral("alarm %1 was not stopped").arg(event.cookie())};
    Change change;
    m_transitions.snooze(event, seconds, by, change);
    apply(change);
    emit changed();
    return Done{};
}

void LifeCycle::tell(const QList<Miss> &misses)
{
    Change change;
    for (const Miss &miss : misses) {
        change.missed.append(miss);
        change.missed.last().told = true;
    }
    apply(change);
}

void LifeCycle::clockSet()
{
    qCInfo(lcTimed, "the clock was set");
    note(NoCookie, "clock set");
    restartRingTimes();
    recomputeAll(Cause::Clock);
}

void LifeCycle::zoneChanged()
{
    qCInfo(lcTimed, "the time zone is %s", m_zone.zone().id().constData());
    note(NoCookie, "zone changed", QString::fromUtf8(m_zone.zone().id()));
    recomputeAll(Cause::Zone);
}

void LifeCycle::goesToSleep()
{
    m_asleep = true;
}

void LifeCycle::resumed()
{
    qCInfo(lcTimed, "resumed from sleep");
    note(NoCookie, "resumed");
    recomputeAll(Cause::Wake);
    m_asleep = false;
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

void LifeCycle::recomputeAll(Cause cause)
{
    Change change;
    if (m_doubt.resolve(change))
        apply(change);
    if (!m_doubt)
        reconcileAll(cause);
    // Also what stands as it did: its moment may have been reached by a clock that was wrong.
    followAll();
    m_schedule.rearm();
    emit changed();
    emit settingsChanged(cause == Cause::Clock);
}

void LifeCycle::reached(quint32 cookie, Purpose purpose)
{
    const AlarmEvent *event = m_book.find(cookie);
    if (!event)
        return;
    if (purpose == Purpose::Retry) {
        m_ringing.retry(cookie);
        return;
    }
    AlarmEvent coming = *event;
    if (m_doubt && purpose == Purpose::Due && event->state() == State::Waiting)
        coming.wait(std::min(*event->moment(), m_clock.now()), m_clock.now());
    Change change;
    // A timer that woke the device expires before anybody says that it is awake.
    const Cause cause = m_asleep ? Cause::Wake : Cause::Time;
    if (purpose == Purpose::Due)
        m_transitions.come(coming, cause, change);
    else
        m_transitions.endUnanswered(*event, m_clock.now(), cause, change);
    apply(change);
    emit changed();
}

void LifeCycle::apply(const Change &change)
{
    if (change.isEmpty())
        return;
    m_book.commitOrCarryOn(change);
    follow(change);
    if (std::any_of(change.missed.begin(), change.missed.end(), [](const Miss &miss) { return !miss.told; }))
        emit missed();
}

void LifeCycle::follow(const Change &change)
{
    for (const quint32 cookie : change.erased) {
        m_schedule.clear(cookie);
        m_ringing.end(cookie);
        emit left(cookie);
    }
    for (const AlarmEvent &event : change.put) {
        m_doubt.touch(event.cookie());
        follow(event);
    }
}

void LifeCycle::follow(const AlarmEvent &event)
{
    m_schedule.clear(event.cookie(), Purpose::Due);
    m_schedule.clear(event.cookie(), Purpose::RingEnd);
    if (event.state() == State::Triggered)
        m_schedule.set(event.cookie(), Purpose::RingEnd, m_transitions.ringEnd(event));
    else if (const auto moment = m_doubt.moment(event))
        m_schedule.set(event.cookie(), Purpose::Due, *moment);
    m_ringing.follow(event);
    emit followed(event);
}

void LifeCycle::followAll()
{
    for (const auto &[cookie, event] : m_book.events())
        follow(event);
}

qint64 LifeCycle::snoozeFor(const AlarmEvent &event, qint64 seconds, const QString &by)
{
    Change change;
    const qint64 until = m_transitions.snooze(event, seconds, by, change);
    apply(change);
    return until;
}

void LifeCycle::stop(const AlarmEvent &event, const QString &by)
{
    Change change;
    change.journal.append(m_transitions.entry(event.cookie(), "answered", QStringLiteral("stop by %1").arg(by)));
    const AlarmEvent before = event;
    m_transitions.serve(before, change);
    apply(change);
    emit stopped(before);
}

void LifeCycle::note(quint32 cookie, const QString &what, const QString &detail)
{
    apply({{}, {}, {m_transitions.entry(cookie, what, detail)}});
}

void LifeCycle::reconcileAll(Cause cause)
{
    Change change;
    for (const auto &[cookie, event] : m_book.events())
        m_transitions.reconcile(event, cause, change);
    apply(change);
}

Result<const AlarmEvent *> LifeCycle::ringingEvent(quint32 cookie) const
{
    const AlarmEvent *event = m_book.find(cookie);
    if (!event || event->state() != State::Triggered)
        return Error{Wire::UnknownError, QStringLiteral("alarm %1 does not ring").arg(cookie)};
    return event;
}

} // namespace Astel::Timed
