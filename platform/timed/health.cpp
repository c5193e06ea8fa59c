// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timed/health.h"

#include "platform/timed/eventbook.h"
#include "platform/timed/moments.h"
#include "platform/timed/schedule.h"
#include "platform/timed/waketimer.h"
#include "platform/timed/zonesource.h"

#include <algorithm>

namespace Astel::Timed {

Health::Health(const EventBook &book, const Schedule &schedule, const WakeTimer &timer, const ZoneSource &zone,
               const Store &store)
    : m_book(book)
    , m_schedule(schedule)
    , m_timer(timer)
    , m_zone(zone)
    , m_store(store)
{ }

QVariantMap Health::facts() const
{
    const auto count = [this](State state) {
        return uint(std::count_if(m_book.events().begin(), m_book.events().end(),
                                  [state](const auto &entry) { return entry.second.state() == state; }));
    };
    QVariantMap facts = m_store.facts();
    facts.insert({{"events", uint(m_book.events().size())},
                  {"events_waiting", count(State::Waiting)},
                  {"events_ringing", count(State::Triggered)},
                  {"events_snoozed", count(State::Snoozed)},
                  {"missed_untold", uint(m_book.untold().size())},
                  {"zone", QString::fromUtf8(m_zone.zone().id())},
                  {"timer", m_timer.kind()},
                  {"timer_wakes", m_timer.wakesFromSleep()},
                  {"timer_reason", m_timer.reason()}});
    // Absent where nothing is ahead, or, for the second, where the timer is not armed although it should be.
    if (const auto wanted = m_schedule.first())
        facts.insert("next_moment", toNanoseconds(*wanted));
    if (const auto armed = m_timer.armedFor())
        facts.insert("armed_moment", toNanoseconds(*armed));
    for (const auto &source : m_sources)
        facts.insert(source());
    return facts;
}

} // namespace Astel::Timed
