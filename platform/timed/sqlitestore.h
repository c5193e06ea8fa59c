// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/timed/history.h"
#include "platform/timed/snapshotwriter.h"
#include "platform/timed/store.h"

#include <memory>
#include <QSqlQuery>

namespace Astel::Timed {

class Database;

/**
 * The store in a SQLite database. A commit returns once it is synchronised to the disk. A record that cannot be read
 * is logged and left alone. Snapshots are written aside, at the start and whenever the owner asks for them.
 */
class SqliteStore final : public Store
{
public:
    /** "now" in milliseconds. */
    static Result<std::unique_ptr<SqliteStore>> create(const QString &folder, qint64 now);
    ~SqliteStore() override;

    Result<> commit(const Change &change) override;
    QList<AlarmEvent> events() const override;
    quint32 lastCookie() const override;
    QList<Wire::JournalEntry> journal(qint64 since) const override { return m_history.journal(since); }
    QList<Miss> missed() const override { return m_history.missed(); }
    QVariantMap facts() const override;

    /** Whether a damaged file was replaced when the store was opened. */
    bool wasRestored() const;
    /**
     * Whether there were ten commits, or ten minutes with any, since the last snapshot, or ten minutes without the
     * one that was asked for; "now" in milliseconds.
     */
    bool wantsSnapshot(qint64 now) const;
    /** Whether there is anything that no snapshot holds, or may not: the last has failed, or is still under way. */
    bool isAheadOfSnapshot() const { return m_commitsSinceSnapshot > 0 || m_snapshots.isOwed(); }
    /** Begins to write one; returns at once. */
    void takeSnapshot(qint64 now);
    void waitForSnapshot() { m_snapshots.wait(); }

private:
    explicit SqliteStore(std::shared_ptr<Database> database);
    Result<> begin(qint64 now);
    Result<> write(const Change &change);
    Result<> put(const AlarmEvent &event);
    Result<> erase(quint32 cookie);

    std::shared_ptr<Database> m_database;
    QSqlQuery m_put;
    QSqlQuery m_erase;
    QSqlQuery m_count;
    History m_history;
    int m_commitsSinceSnapshot = 0;
    qint64 m_lastSnapshot = 0;
    SnapshotWriter m_snapshots; // last: it ends before the database is closed
};

} // namespace Astel::Timed
