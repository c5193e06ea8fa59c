// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timed/alarmevent.h"

#include <array>

namespace Astel::Timed {

namespace {

constexpr std::array StateNames{"INACTIVE", "WAITING", "TRIGGERED", "SNOOZED", "FINISHED"};

} // namespace

QString stateName(State state)
{
    return QString::fromLatin1(StateNames[std::size_t(state)]);
}

std::optional<State> stateFromName(const QString &name)
{
    for (std::size_t i = 0; i < StateNames.size(); ++i) {
        if (name == QLatin1String(StateNames[i]))
            return State(i);
    }
    return std::nullopt;
}

AlarmEvent::AlarmEvent(quint32 cookie, const Wire::Event &wire, const Standing &standing)
    : m_cookie(cookie)
    , m_wire(wire)
    , m_standing(standing)
{ }

void AlarmEvent::wait(std::optional<qint64> moment, qint64 now)
{
    setState(moment ? State::Waiting : State::Inactive, moment, now);
}

void AlarmEvent::trigger(qint64 now)
{
    setState(State::Triggered, m_standing.moment, now);
}

void AlarmEvent::ringNow(qint64 now)
{
    // The moment it waits for is still ahead, and not served by this.
    m_standing.moment = now;
    m_standing.timeoutSnoozes = 0;
    trigger(now);
}

void AlarmEvent::snooze(qint64 until, qint64 now)
{
    // Somebody answered, so the count of unanswered rings begins again.
    m_standing.timeoutSnoozes = 0;
    setState(State::Snoozed, until, now);
}

void AlarmEvent::snoozeUnanswered(qint64 until, qint64 now)
{
    ++m_standing.timeoutSnoozes;
    setState(State::Snoozed, until, now);
}

void AlarmEvent::moveSnooze(qint64 until, qint64 now)
{
    setState(State::Snoozed, until, now);
}

void AlarmEvent::waitOverSnooze(std::optional<qint64> moment, qint64 now)
{
    const Snooze snooze{m_standing.since, m_standing.moment.value_or(now)};
    wait(moment, now);
    m_standing.passedOver = snooze;
}

void AlarmEvent::resumeSnooze()
{
    const Snooze snooze = m_standing.passedOver.value_or(Snooze());
    const auto lastDue = m_standing.lastDue;
    setState(State::Snoozed, snooze.until, snooze.since);
    // It did not ring at the moment for which it waited meanwhile.
    m_standing.lastDue = lastDue;
}

void AlarmEvent::finish(qint64 now)
{
    setState(State::Finished, std::nullopt, now);
}

void AlarmEvent::setState(State state, std::optional<qint64> moment, qint64 now)
{
    if (m_standing.state == State::Waiting && state != State::Waiting && state != State::Inactive)
        m_standing.lastDue = m_standing.moment;
    if (state == State::Waiting || state == State::Inactive || state == State::Finished)
        m_standing.timeoutSnoozes = 0;
    if (state != State::Waiting && state != State::Inactive)
        m_standing.passedOver.reset();
    m_standing.state = state;
    m_standing.moment = moment;
    m_standing.since = now;
}

} // namespace Astel::Timed
