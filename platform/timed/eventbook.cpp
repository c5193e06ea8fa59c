// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timed/eventbook.h"

#include "platform/timed/logging.h"
#include "platform/timed/moments.h"
#include "platform/timed/validator.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace Astel::Timed {

namespace {

constexpr quint32 HighestCookie = std::numeric_limits<qint32>::max();

} // namespace

EventBook::EventBook(Store &store)
    : m_store(store)
    , m_lastCookie(store.lastCookie())
{
    const QList<AlarmEvent> stored = store.events();
    for (const AlarmEvent &event : stored)
        put(event);
    const QList<Miss> missed = store.missed();
    for (const Miss &miss : missed)
        m_missed.insert_or_assign({miss.due, miss.cookie}, miss);
}

const AlarmEvent *EventBook::find(quint32 cookie) const
{
    const auto found = m_events.find(cookie);
    return found == m_events.end() ? nullptr : &found->second;
}

std::optional<AlarmEvent> EventBook::findOrMissed(quint32 cookie) const
{
    if (const AlarmEvent *event = find(cookie))
        return *event;
    for (auto miss = m_missed.rbegin(); miss != m_missed.rend(); ++miss) {
        if (miss->second.cookie != cookie)
            continue;
        // It comes back for this once.
        Wire::Event once = miss->second.event;
        once.flags = (once.flags | Wire::SingleShot) & ~Wire::KeepAlive;
        return AlarmEvent(cookie, once);
    }
    return std::nullopt;
}

QList<Miss> EventBook::untold() const
{
    QList<Miss> result;
    for (const auto &[key, miss] : m_missed) {
        if (!miss.told)
            result.append(miss);
    }
    return result;
}

Result<quint32> EventBook::nextCookie(quint32 count) const
{
    if (count > HighestCookie - std::min(m_lastCookie, HighestCookie))
        return Error{Wire::LimitError, QStringLiteral("all cookies have been given")};
    return m_lastCookie + 1;
}

Wire::Attributes EventBook::sharing(const Wire::Attributes &attributes) const
{
    if (m_events.empty())
        return attributes;
    const Wire::Attributes &others = m_events.rbegin()->second.wire().attributes;
    Wire::Attributes result;
    for (auto it = attributes.begin(); it != attributes.end(); ++it) {
        const auto other = others.find(it.key());
        if (other == others.end())
            result.insert(result.end(), it.key(), it.value());
        else
            result.insert(result.end(), other.key(), *other == *it ? *other : *it);
    }
    return result;
}

Result<> EventBook::commit(const Change &change)
{
    auto committed = m_store.commit(change);
    if (committed)
        apply(change);
    return committed;
}

void EventBook::commitOrCarryOn(const Change &change)
{
    if (const auto committed = m_store.commit(change); !committed)
        qCCritical(lcTimed, "carrying on unsaved: %ls", qUtf16Printable(committed.error().text));
    apply(change);
}

void EventBook::apply(const Change &change)
{
    for (const AlarmEvent &event : change.put) {
        put(event);
        m_lastCookie = std::max(m_lastCookie, event.cookie());
    }
    for (const quint32 cookie : change.erased)
        erase(cookie);
    for (const Miss &miss : change.missed)
        m_missed.insert_or_assign({miss.due, miss.cookie}, miss);
}

void EventBook::put(const AlarmEvent &event)
{
    AlarmEvent &place = m_events[event.cookie()];
    m_textSize += Timed::textSize(event.wire()) - Timed::textSize(place.wire());
    place = event;
    followTrigger(event.cookie(), event.moment());
}

void EventBook::erase(quint32 cookie)
{
    const auto found = m_events.find(cookie);
    if (found == m_events.end())
        return;
    m_textSize -= Timed::textSize(found->second.wire());
    m_events.erase(found);
    followTrigger(cookie, std::nullopt);
}

void EventBook::followTrigger(quint32 cookie, std::optional<qint64> moment)
{
    const QString key = QString::number(cookie);
    const QVariant trigger = moment ? QVariant(toNanoseconds(*moment)) : QVariant();
    // What does not change stays shared with what was published.
    if (std::as_const(m_triggers).value(key) == trigger)
        return;
    if (moment)
        m_triggers.insert(key, trigger);
    else
        m_triggers.remove(key);
}

} // namespace Astel::Timed
