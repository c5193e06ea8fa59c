// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timed/ringing.h"

#include "platform/timed/clock.h"
#include "platform/timed/eventbook.h"
#include "platform/timed/logging.h"
#include "platform/timed/ringer.h"
#include "platform/timed/schedule.h"

#include <utility>

namespace Astel::Timed {

namespace {

constexpr int QuickCalls = 3;
constexpr int MaximalTroubles = 8;
constexpr qint64 TimeToAcknowledge = 5000;
constexpr qint64 LongInterval = 15000;

} // namespace

Ringing::Ringing(const EventBook &book, Schedule &schedule, const Clock &clock, Ringer &ringer, Ringer &fallback)
    : m_book(book)
    , m_schedule(schedule)
    , m_clock(clock)
    , m_ringer(ringer)
    , m_fallback(fallback)
{
    connect(&ringer, &Ringer::vanished, this, &Ringing::ringerVanished);
    connect(&ringer, &Ringer::refused, this, &Ringing::ringerRefused);
    connect(&ringer, &Ringer::alive, this, &Ringing::ringerAlive);
}

void Ringing::follow(const AlarmEvent &event)
{
    if (event.state() != State::Triggered)
        end(event.cookie());
    else if (const auto [ring, begins] = m_rings.try_emplace(event.cookie()); begins)
        begin(event.cookie(), ring->second);
}

void Ringing::end(quint32 cookie)
{
    if (m_rings.erase(cookie) == 0)
        return;
    m_schedule.clear(cookie, Purpose::Retry);
    m_ringer.stop(cookie);
    m_fallback.stop(cookie);
    if (m_rings.empty())
        emit ended();
}

void Ringing::begin(quint32 cookie, Ring &ring)
{
    if (m_rings.size() == 1)
        emit begun();
    call(cookie, ring);
}

bool Ringing::acknowledge(quint32 cookie)
{
    const auto ring = m_rings.find(cookie);
    if (ring == m_rings.end() || ring->second.acknowledged)
        return false;
    ring->second.acknowledged = true;
    ring->second.heard = false;
    m_schedule.set(cookie, Purpose::Retry, m_clock.now() + LongInterval);
    m_fallback.stop(cookie);
    return true;
}

bool Ringing::acknowledgeSound(quint32 cookie)
{
    const auto ring = m_rings.find(cookie);
    if (ring == m_rings.end() || std::exchange(ring->second.heard, true))
        return false;
    // A ringer that was seen and heard is worth another quick call, should it go.
    if (ring->second.acknowledged)
        ring->second.calls = 0;
    return true;
}

bool Ringing::keepTrouble(quint32 cookie, const QString &trouble)
{
    const auto ring = m_rings.find(cookie);
    if (ring == m_rings.end())
        return false;
    QStringList &known = ring->second.troubles;
    if (known.size() == MaximalTroubles || known.contains(trouble))
        return false;
    known.append(trouble);
    return true;
}

void Ringing::retry(quint32 cookie)
{
    const auto ring = m_rings.find(cookie);
    if (ring == m_rings.end())
        return;
    if (ring->second.acknowledged)
        lookAfter(cookie, ring->second);
    else
        call(cookie, ring->second);
}

void Ringing::lookAfter(quint32 cookie, Ring &ring)
{
    if (std::exchange(ring.pinged, true)) {
        // It hangs, and more quick calls would hang with it.
        ring.calls = QuickCalls;
        call(cookie, ring);
        return;
    }
    m_schedule.set(cookie, Purpose::Retry, m_clock.now() + TimeToAcknowledge);
    m_ringer.ping();
}

void Ringing::ringerAlive()
{
    for (auto &[cookie, ring] : m_rings) {
        if (ring.acknowledged && std::exchange(ring.pinged, false))
            m_schedule.set(cookie, Purpose::Retry, m_clock.now() + LongInterval);
    }
}

void Ringing::clockSet()
{
    for (const auto &[cookie, ring] : m_rings)
        m_schedule.set(cookie, Purpose::Retry, m_clock.now() + TimeToAcknowledge);
}

void Ringing::call(quint32 cookie, Ring &ring)
{
    const AlarmEvent *event = m_book.find(cookie);
    if (!event)
        return;
    ++ring.calls;
    ring.acknowledged = false;
    ring.pinged = false;
    ring.heard = ring.heard && ring.calls > QuickCalls + 1;
    if (ring.calls == QuickCalls + 1) {
        qCCritical(lcTimed, "the ringer does not ring alarm %u, the fallback does; calling on", cookie);
        emit ringerSilent(cookie, QuickCalls);
    }
    const qint64 patience = ring.calls <= QuickCalls ? TimeToAcknowledge : LongInterval;
    m_schedule.set(cookie, Purpose::Retry, m_clock.now() + patience);
    const qint64 due = event->moment().value_or(m_clock.now());
    m_ringer.ring(cookie, event->wire(), due);
    if (ring.calls > QuickCalls)
        m_fallback.ring(cookie, event->wire(), due);
}

void Ringing::ringerVanished()
{
    for (auto &[cookie, ring] : m_rings) {
        qCWarning(lcTimed, "the ringer has gone while alarm %u rings", cookie);
        // One that keeps dying is called again when its time to acknowledge is over, not in a tight circle.
        if (ring.calls < QuickCalls)
            call(cookie, ring);
        else
            m_schedule.set(cookie, Purpose::Retry, m_clock.now() + TimeToAcknowledge);
        emit ringerGone(cookie);
    }
}

// Nothing is to be waited for: the calls that are worth it follow each other, and then the fallback rings.
void Ringing::ringerRefused(quint32 cookie)
{
    const auto ring = m_rings.find(cookie);
    if (ring != m_rings.end() && !ring->second.acknowledged && ring->second.calls <= QuickCalls)
        call(cookie, ring->second);
}

} // namespace Astel::Timed
