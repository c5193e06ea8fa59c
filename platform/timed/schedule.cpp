// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timed/schedule.h"

#include "platform/timed/clock.h"
#include "platform/timed/waketimer.h"

namespace Astel::Timed {

Schedule::Schedule(const Clock &clock, WakeTimer &timer)
    : m_clock(clock)
    , m_timer(timer)
{
    connect(&timer, &WakeTimer::expired, this, &Schedule::deliver);
    m_timer.arm(std::nullopt);
}

void Schedule::set(quint32 cookie, Purpose purpose, qint64 moment)
{
    const Key key(cookie, purpose);
    remove(key);
    m_order.emplace(moment, key);
    m_moments.emplace(key, moment);
    armIfNeeded();
}

void Schedule::clear(quint32 cookie, Purpose purpose)
{
    remove({cookie, purpose});
    armIfNeeded();
}

void Schedule::clear(quint32 cookie)
{
    for (const Purpose purpose : {Purpose::Due, Purpose::RingEnd, Purpose::Retry})
        remove({cookie, purpose});
    armIfNeeded();
}

std::optional<qint64> Schedule::first() const
{
    return m_order.empty() ? std::nullopt : std::optional(m_order.begin()->first);
}

void Schedule::rearm()
{
    emit arming();
    m_armed = first();
    m_timer.arm(m_armed);
    emit armed();
}

void Schedule::remove(const Key &key)
{
    const auto found = m_moments.find(key);
    if (found == m_moments.end())
        return;
    m_order.erase({found->second, key});
    m_moments.erase(found);
}

void Schedule::armIfNeeded()
{
    emit changed();
    if (first() != m_armed)
        rearm();
}

void Schedule::deliver()
{
    // Only what is due now: what the receivers add for the same moment waits for the next expiry.
    std::vector<Key> due;
    for (const auto &[moment, key] : m_order) {
        if (moment > m_clock.now())
            break;
        due.push_back(key);
    }
    for (const auto &[cookie, purpose] : due) {
        // A receiver may have removed it or moved it on.
        const auto found = m_moments.find({cookie, purpose});
        if (found == m_moments.end() || found->second > m_clock.now())
            continue;
        remove({cookie, purpose});
        emit reached(cookie, purpose);
    }
    emit changed();
    rearm();
}

} // namespace Astel::Timed
