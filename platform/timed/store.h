// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/timed/alarmevent.h"
#include "platform/timed/miss.h"
#include "platform/timed/result.h"

#include <QVariantMap>

namespace Astel::Timed {

/** What is written together: all of it or nothing. */
struct Change
{
    QList<AlarmEvent> put; ///< new events and new versions of stored ones
    QList<quint32> erased;
    QList<Wire::JournalEntry> journal;
    QList<Miss> missed = {}; ///< new misses, and new versions of stored ones

    bool isEmpty() const { return put.isEmpty() && erased.isEmpty() && journal.isEmpty() && missed.isEmpty(); }
};

/** Where events, the last cookie, misses and the journal outlive the daemon. */
class Store
{
public:
    virtual ~Store() = default;

    /** Returns when the change is on the disk; a failure leaves everything as it was. */
    virtual Result<> commit(const Change &change) = 0;
    virtual QList<AlarmEvent> events() const = 0;
    /** The highest cookie ever given. */
    virtual quint32 lastCookie() const = 0;
    /** Entries from a moment on, in milliseconds, oldest first; of very many the newest. */
    virtual QList<Wire::JournalEntry> journal(qint64 since) const = 0;
    /** Everything that was missed and is not forgotten yet, in the order in which it was due. */
    virtual QList<Miss> missed() const = 0;
    /** Facts for the health report. */
    virtual QVariantMap facts() const = 0;
};

} // namespace Astel::Timed
