// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/timed/store.h"

#include <map>
#include <optional>

namespace Astel::Timed {

/** The stored events in memory, in cookie order. Every change is committed to the store before it is seen here. */
class EventBook
{
public:
    using Events = std::map<quint32, AlarmEvent>;

    explicit EventBook(Store &store);

    const Events &events() const { return m_events; }
    /** How many characters all events hold. */
    qsizetype textSize() const { return m_textSize; }
    /** Every event with a moment ahead, or ringing: decimal cookie to nanoseconds since the epoch. */
    const QVariantMap &triggers() const { return m_triggers; }
    const AlarmEvent *find(quint32 cookie) const;
    /** Also one that was missed and is stored no more. */
    std::optional<AlarmEvent> findOrMissed(quint32 cookie) const;
    /** What the user has not been told yet, in the order in which it was due. */
    QList<Miss> untold() const;
    /** The first of the cookies for so many new events; fails when all have been given. */
    Result<quint32> nextCookie(quint32 count = 1) const;
    /** The same attributes, of which those that the newest event has as well share its texts in memory. */
    Wire::Attributes sharing(const Wire::Attributes &attributes) const;
    Result<> commit(const Change &change);
    QList<Wire::JournalEntry> journal(qint64 since) const { return m_store.journal(since); }

    /**
     * As commit(), but goes on in memory where the store fails, and logs it: an alarm that is due rings, and one that
     * was answered falls silent, with a full disk as well.
     */
    void commitOrCarryOn(const Change &change);

private:
    void apply(const Change &change);
    void put(const AlarmEvent &event);
    void erase(quint32 cookie);
    void followTrigger(quint32 cookie, std::optional<qint64> moment);

    Store &m_store;
    Events m_events;
    QVariantMap m_triggers; ///< kept with every change, for making it anew takes long with many events
    std::map<std::pair<qint64, quint32>, Miss> m_missed; ///< by due moment
    quint32 m_lastCookie = 0;
    qsizetype m_textSize = 0;
};

} // namespace Astel::Timed
