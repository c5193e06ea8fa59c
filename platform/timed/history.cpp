// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timed/history.h"

#include "platform/timed/database.h"
#include "platform/timed/logging.h"
#include "platform/timedclient/eventcodec.h"

#include <QVariant>

namespace Astel::Timed {

namespace {

constexpr qint64 Day = Q_INT64_C(86400) * 1000;
constexpr qint64 Week = 7 * Day;
constexpr qint64 Year = 366 * Day;
constexpr int MostEntries = 10000;

QVariant notNull(const QString &text)
{
    // A null string would be written as NULL.
    return text.isNull() ? QStringLiteral("") : text;
}

QSqlQuery prepared(const QSqlDatabase &database, const QString &statement)
{
    QSqlQuery query(database);
    query.setForwardOnly(true);
    query.prepare(statement);
    return query;
}

} // namespace

History::History(const QSqlDatabase &database)
    : m_note(prepared(database, "INSERT INTO journal (moment, cookie, what, detail) VALUES (?, ?, ?, ?)"))
    , m_miss(prepared(database,
                      "INSERT OR REPLACE INTO missed (cookie, due, noticed, reason, told, event)"
                      " VALUES (?, ?, ?, ?, ?, ?)"))
    , m_journal(prepared(database,
                         "SELECT * FROM (SELECT moment, cookie, what, detail, rowid FROM journal WHERE moment >= ?"
                         " ORDER BY moment DESC, rowid DESC LIMIT ?) ORDER BY moment, rowid"))
    , m_missed(prepared(
          database, "SELECT cookie, due, noticed, reason, told, CAST(event AS BLOB) FROM missed ORDER BY due, cookie"))
    , m_last(prepared(database, "SELECT max(moment) FROM journal"))
    , m_dropEntries(prepared(database, "DELETE FROM journal WHERE moment < ?"))
    , m_dropMisses(prepared(database, "DELETE FROM missed WHERE told AND noticed < ?"))
{ }

void History::begin(qint64 now)
{
    if (m_last.exec() && m_last.next())
        m_forgot = m_last.value(0).toLongLong();
    m_last.finish();
    if (const auto done = forgetOld(now); !done)
        qCWarning(lcTimed, "ignoring: %ls", qUtf16Printable(done.error().text));
}

Result<> History::write(const Wire::JournalEntry &entry)
{
    if (auto done = Database::run(m_note, {entry.moment, entry.cookie, entry.what, notNull(entry.detail)}); !done)
        return done;
    return entry.moment - m_forgot >= Day ? forgetOld(entry.moment) : Done{};
}

Result<> History::write(const Miss &miss)
{
    return Database::run(
        m_miss, {miss.cookie, miss.due, miss.noticed, missReasonName(miss.reason), miss.told, encodeEvent(miss.event)});
}

Result<> History::forgetOld(qint64 now)
{
    const qint64 passed = now - m_forgot;
    m_forgot = now;
    // A clock that jumped by years may be wrong, and makes everything look old.
    if (passed > Year)
        return Done{};
    if (auto done = Database::run(m_dropEntries, {now - Year}); !done)
        return done;
    return Database::run(m_dropMisses, {now - Week});
}

QList<Wire::JournalEntry> History::journal(qint64 since) const
{
    QList<Wire::JournalEntry> result;
    m_journal.bindValue(0, since);
    m_journal.bindValue(1, MostEntries);
    m_journal.exec();
    while (m_journal.next())
        result.append({m_journal.value(0).toLongLong(), m_journal.value(1).toUInt(), m_journal.value(2).toString(),
                       m_journal.value(3).toString()});
    m_journal.finish();
    return result;
}

QList<Miss> History::missed() const
{
    QList<Miss> result;
    TextPool pool;
    m_missed.exec();
    while (m_missed.next()) {
        const auto reason = missReasonFromName(m_missed.value(3).toString());
        const auto event = decodeEvent(m_missed.value(5).toByteArray(), pool);
        const quint32 cookie = m_missed.value(0).toUInt();
        if (reason && event)
            result.append({cookie, m_missed.value(1).toLongLong(), m_missed.value(2).toLongLong(), *reason,
                           m_missed.value(4).toBool(), *event});
        else
            qCWarning(lcTimed, "ignoring a miss of alarm %u, which cannot be read", cookie);
    }
    m_missed.finish();
    return result;
}

} // namespace Astel::Timed
