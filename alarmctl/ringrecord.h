// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/timedclient/wire.h"

#include <QList>

/** What the journal tells of one trigger of an alarm, from the moment it was due to its end; never empty. */
struct RingRecord
{
    quint32 cookie = 0; ///< 0: about no single alarm, such as a clock that was set
    QList<Astel::Timed::Wire::JournalEntry> entries;

    bool operator==(const RingRecord &) const = default;
};

/** The entries, oldest first, put together; in the order in which the triggers began. */
QList<RingRecord> ringRecords(const QList<Astel::Timed::Wire::JournalEntry> &entries);
/** The last so many of the records that are about an alarm. */
QList<RingRecord> lastRings(const QList<RingRecord> &records, qsizetype count);

/** Everything about it in one line, moments local; "title" may be empty. */
QString recordLine(const RingRecord &record, const QString &title);
/** How it ended, as in "missed: nobody answered". */
QString endOf(const RingRecord &record);
