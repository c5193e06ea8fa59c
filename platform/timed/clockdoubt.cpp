// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timed/clockdoubt.h"

#include "platform/timed/clock.h"
#include "platform/timed/lateness.h"
#include "platform/timed/transitions.h"

#include <algorithm>

namespace Astel::Timed {

namespace {

// The start of 2026, when this was written: no clock that was ever set is behind it.
constexpr qint64 EarliestPlausible = Q_INT64_C(1767225600000);

} // namespace

ClockDoubt::ClockDoubt(const EventBook &book, const Clock &clock, const Transitions &transitions)
    : m_book(book)
    , m_clock(clock)
    , m_transitions(transitions)
{ }

bool ClockDoubt::begin()
{
    m_exists = isBehind();
    return m_exists;
}

bool ClockDoubt::resolve(Change &change)
{
    if (!m_exists || isBehind())
        return false;
    m_exists = false;
    // Their moments were computed by the wrong clock: nothing was missed.
    for (const quint32 cookie : m_touched) {
        const AlarmEvent *event = m_book.find(cookie);
        if (event && event->state() == State::Snoozed)
            m_transitions.restartSnooze(*event, change);
        if (!event || event->state() != State::Waiting || event->wire().recurrences.isEmpty())
            continue;
        change.put.append(*event);
        change.put.last().wait(m_transitions.nextMoment(*event), m_clock.now());
    }
    m_touched.clear();
    return true;
}

void ClockDoubt::touch(quint32 cookie)
{
    if (m_exists)
        m_touched.insert(cookie);
}

std::optional<qint64> ClockDoubt::moment(const AlarmEvent &event) const
{
    const auto stored = event.moment();
    if (!m_exists || event.state() != State::Waiting || m_clock.now() < EarliestPlausible)
        return stored;
    qint64 first = m_transitions.nextMoment(event).value_or(*stored);
    if (const auto snooze = event.standing().passedOver; snooze && isWorthRinging(snooze->until))
        first = std::min(first, snooze->until);
    return std::min(first, *stored);
}

bool ClockDoubt::isWorthRinging(qint64 moment) const
{
    const Lateness late = lateness(moment, m_clock.now());
    return late == Lateness::Ahead || late == Lateness::Now;
}

bool ClockDoubt::isBehind() const
{
    const qint64 now = m_clock.now();
    return now < EarliestPlausible
        || std::any_of(m_book.events().begin(), m_book.events().end(), [this, now](const auto &entry) {
               return !m_touched.contains(entry.first) && entry.second.standing().since > now + MaximalLateness;
           });
}

} // namespace Astel::Timed
