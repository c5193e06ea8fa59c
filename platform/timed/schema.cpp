// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timed/schema.h"

#include <array>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QStringList>

namespace Astel::Timed::Schema {

namespace {

// What leads from a version to the next one. Steps that were shipped are never edited.
const std::array<QStringList, Version> &steps()
{
    static const std::array<QStringList, Version> all{
        QStringList{
            "CREATE TABLE IF NOT EXISTS counter (last_cookie INTEGER NOT NULL)",
            "INSERT INTO counter SELECT 0 WHERE NOT EXISTS (SELECT 1 FROM counter)",
            R"(CREATE TABLE IF NOT EXISTS events (cookie INTEGER PRIMARY KEY, state TEXT NOT NULL, moment INTEGER,
               since INTEGER NOT NULL, last_due INTEGER, timeout_snoozes INTEGER NOT NULL, event TEXT NOT NULL))",
            R"(CREATE TABLE IF NOT EXISTS journal (moment INTEGER NOT NULL, cookie INTEGER NOT NULL, what TEXT NOT NULL,
               detail TEXT NOT NULL))",
            "CREATE INDEX IF NOT EXISTS journal_moment ON journal (moment)",
        },
        // When a snapshot last took the place of a damaged file.
        QStringList{"ALTER TABLE counter ADD COLUMN restored INTEGER"},
        // What the user is to be told.
        QStringList{"CREATE TABLE missed (cookie INTEGER NOT NULL, due INTEGER NOT NULL, noticed INTEGER NOT NULL,"
                    " reason TEXT NOT NULL, told INTEGER NOT NULL, event TEXT NOT NULL, PRIMARY KEY (due, cookie))"},
        // A snooze over which the clock jumped.
        QStringList{"ALTER TABLE events ADD COLUMN snooze_since INTEGER",
                    "ALTER TABLE events ADD COLUMN snooze_until INTEGER"},
    };
    return all;
}

} // namespace

QSqlError migrate(const QSqlDatabase &database, int from, quint32 lastCookie)
{
    if (from == Version)
        return {};
    QStringList statements{"BEGIN IMMEDIATE"};
    for (int version = from; version < Version; ++version)
        statements += steps()[std::size_t(version)];
    if (from == 0)
        statements += QStringLiteral("UPDATE counter SET last_cookie = max(last_cookie, %1)").arg(lastCookie);
    statements += QStringLiteral("PRAGMA user_version=%1").arg(Version);
    statements += "COMMIT";

    QSqlQuery query(database);
    for (const QString &statement : std::as_const(statements)) {
        if (query.exec(statement))
            continue;
        QSqlError error = query.lastError();
        query.exec("ROLLBACK");
        return error;
    }
    return {};
}

} // namespace Astel::Timed::Schema
