// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timed/sqlitestore.h"

#include "platform/timed/database.h"
#include "platform/timed/disk.h"
#include "platform/timed/logging.h"
#include "platform/timed/moments.h"
#include "platform/timedclient/eventcodec.h"

#include <cstdlib>
#include <QSqlDatabase>
#include <QSqlError>

namespace Astel::Timed {

namespace {

constexpr int CommitsBetweenSnapshots = 10;
constexpr qint64 TimeBetweenSnapshots = Q_INT64_C(600) * 1000;

QVariant orNull(std::optional<qint64> moment)
{
    return moment ? QVariant(*moment) : QVariant(QMetaType::fromType<qint64>());
}

std::optional<qint64> orNothing(const QVariant &value)
{
    return value.isNull() ? std::nullopt : std::optional(value.toLongLong());
}

std::optional<AlarmEvent> readEvent(const QSqlQuery &row, TextPool &pool)
{
    const auto state = stateFromName(row.value(1).toString());
    const auto wire = decodeEvent(row.value(6).toByteArray(), pool);
    if (!state || !wire)
        return std::nullopt;
    Standing standing{*state, orNothing(row.value(2)), row.value(3).toLongLong(), orNothing(row.value(4)),
                      row.value(5).toUInt()};
    if (!row.value(8).isNull())
        standing.passedOver = Snooze{row.value(7).toLongLong(), row.value(8).toLongLong()};
    return AlarmEvent(row.value(0).toUInt(), *wire, standing);
}

} // namespace

SqliteStore::SqliteStore(std::shared_ptr<Database> database)
    : m_database(std::move(database))
    , m_put(m_database->connection())
    , m_erase(m_database->connection())
    , m_count(m_database->connection())
    , m_history(m_database->connection())
    , m_snapshots(m_database->path())
{
    m_put.prepare("INSERT OR REPLACE INTO events (cookie, state, moment, since, last_due, timeout_snoozes, event,"
                  " snooze_since, snooze_until) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?)");
    m_erase.prepare("DELETE FROM events WHERE cookie = ?");
    m_count.prepare("UPDATE counter SET last_cookie = max(last_cookie, ?)");
}

SqliteStore::~SqliteStore() = default;

Result<std::unique_ptr<SqliteStore>> SqliteStore::create(const QString &folder, qint64 now)
{
    auto database = Database::open(folder);
    if (!database)
        return database.error();
    std::unique_ptr<SqliteStore> store(new SqliteStore(*database));
    if (const auto begun = store->begin(now); !begun)
        return begun.error();
    return store;
}

Result<> SqliteStore::begin(qint64 now)
{
    if (m_database->isReadOnly())
        return Done{};
    QSqlQuery query(m_database->connection());
    if (m_database->wasRestored()) {
        query.prepare("UPDATE counter SET restored = ?");
        if (auto done = Database::run(query, {now}); !done)
            return done;
    }
    m_history.begin(now);
    takeSnapshot(now);
    return Done{};
}

Result<> SqliteStore::commit(const Change &change)
{
    if (m_database->isReadOnly())
        return Database::failure(QStringLiteral("cannot write the change"), QStringLiteral("the disk is read-only"));
    QSqlDatabase database = m_database->connection();
    if (!database.transaction())
        return Database::failure(QStringLiteral("cannot begin a change"), database.lastError().text());
    if (auto written = write(change); !written) {
        database.rollback();
        return written;
    }
    if (!database.commit()) {
        const QString why = database.lastError().text();
        database.rollback();
        return Database::failure(QStringLiteral("cannot write the change"), why);
    }
    ++m_commitsSinceSnapshot;
    return Done{};
}

Result<> SqliteStore::write(const Change &change)
{
    Result<> result = Done{};
    for (qsizetype i = 0; result && i < change.put.size(); ++i)
        result = put(change.put[i]);
    for (qsizetype i = 0; result && i < change.erased.size(); ++i)
        result = erase(change.erased[i]);
    for (qsizetype i = 0; result && i < change.journal.size(); ++i)
        result = m_history.write(change.journal[i]);
    for (qsizetype i = 0; result && i < change.missed.size(); ++i)
        result = m_history.write(change.missed[i]);
    return result;
}

Result<> SqliteStore::put(const AlarmEvent &event)
{
    const Standing &standing = event.standing();
    const auto &snooze = standing.passedOver;
    return Database::run(m_put,
                         {event.cookie(), stateName(standing.state), orNull(standing.moment), standing.since,
                          orNull(standing.lastDue), standing.timeoutSnoozes, encodeEvent(event.wire()),
                          orNull(snooze ? std::optional(snooze->since) : std::nullopt),
                          orNull(snooze ? std::optional(snooze->until) : std::nullopt)});
}

Result<> SqliteStore::erase(quint32 cookie)
{
    // A stored event shows by itself that its cookie was given; counting only here saves every new one a page.
    auto counted = Database::run(m_count, {cookie});
    if (!counted)
        return counted;
    return Database::run(m_erase, {cookie});
}

QList<AlarmEvent> SqliteStore::events() const
{
    QList<AlarmEvent> result;
    QSqlQuery query(m_database->connection());
    query.setForwardOnly(true);
    TextPool pool;
    // As bytes, for SQLite hands out text only by way of UTF-16.
    query.exec("SELECT cookie, state, moment, since, last_due, timeout_snoozes, CAST(event AS BLOB),"
               " snooze_since, snooze_until FROM events ORDER BY cookie");
    while (query.next()) {
        if (const auto event = readEvent(query, pool))
            result.append(*event);
        else
            qCWarning(lcTimed, "ignoring event %u, which cannot be read", query.value(0).toUInt());
    }
    return result;
}

quint32 SqliteStore::lastCookie() const
{
    QSqlQuery query("SELECT max(last_cookie, (SELECT ifnull(max(cookie), 0) FROM events)) FROM counter",
                    m_database->connection());
    return query.next() ? query.value(0).toUInt() : 0;
}

QVariantMap SqliteStore::facts() const
{
    QVariantMap facts{{"store_path", m_database->path()},
                      {"store_integrity", m_snapshots.integrity()},
                      {"store_writable", !m_database->isReadOnly()},
                      {"store_restored", m_database->wasRestored()}};
    if (const auto room = Disk::room(m_database->path()))
        facts.insert("store_free", *room);
    QSqlQuery query("SELECT restored FROM counter", m_database->connection());
    if (query.next() && !query.value(0).isNull())
        facts.insert("store_restored_moment", toNanoseconds(query.value(0).toLongLong()));
    return facts;
}

bool SqliteStore::wasRestored() const
{
    return m_database->wasRestored();
}

bool SqliteStore::wantsSnapshot(qint64 now) const
{
    const qint64 since = std::abs(now - m_lastSnapshot);
    return m_commitsSinceSnapshot >= CommitsBetweenSnapshots || (isAheadOfSnapshot() && since >= TimeBetweenSnapshots);
}

void SqliteStore::takeSnapshot(qint64 now)
{
    m_commitsSinceSnapshot = 0;
    m_lastSnapshot = now;
    m_snapshots.start();
}

} // namespace Astel::Timed
