// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/timed/miss.h"
#include "platform/timed/result.h"

#include <QSqlQuery>

class QSqlDatabase;

namespace Astel::Timed {

/**
 * What the store keeps of the past: the journal for a year, misses until they were told and a week longer, for then they
 * may still be rung again. Old rows go when new ones are written, at most once a day.
 */
class History
{
public:
    explicit History(const QSqlDatabase &database);

    /** At the start of the daemon; "now" in milliseconds. */
    void begin(qint64 now);
    Result<> write(const Wire::JournalEntry &entry);
    Result<> write(const Miss &miss);

    QList<Wire::JournalEntry> journal(qint64 since) const;
    QList<Miss> missed() const;

private:
    Result<> forgetOld(qint64 now);

    QSqlQuery m_note;
    QSqlQuery m_miss;
    mutable QSqlQuery m_journal;
    mutable QSqlQuery m_missed;
    QSqlQuery m_last;
    QSqlQuery m_dropEntries;
    QSqlQuery m_dropMisses;
    qint64 m_forgot = 0;
};

} // namespace Astel::Timed
