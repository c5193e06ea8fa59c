// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timed/database.h"

#include "platform/timed/logging.h"
#include "platform/timedclient/wire.h"

#include <cerrno>
#include <fcntl.h>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QSqlError>
#include <QSqlQuery>
#include <QUuid>
#include <QVariant>
#include <sys/file.h>
#include <unistd.h>

namespace Astel::Timed {

namespace {

// Codes of SQLite that mean that the file is not, or no longer, a database.
constexpr auto Corrupt = "11";
constexpr auto NotADatabase = "26";

constexpr auto Schema = {
    "CREATE TABLE IF NOT EXISTS counter (last_cookie INTEGER NOT NULL)",
    "INSERT INTO counter SELECT 0 WHERE NOT EXISTS (SELECT 1 FROM counter)",
    "CREATE TABLE IF NOT EXISTS events (cookie INTEGER PRIMARY KEY, state TEXT NOT NULL, moment INTEGER,"
    " since INTEGER NOT NULL, last_due INTEGER, timeout_snoozes INTEGER NOT NULL, event TEXT NOT NULL)",
    "CREATE TABLE IF NOT EXISTS journal (moment INTEGER NOT NULL, cookie INTEGER NOT NULL, what TEXT NOT NULL,"
    " detail TEXT NOT NULL)",
    "CREATE INDEX IF NOT EXISTS journal_moment ON journal (moment)",
};

constexpr int MostSetAside = 100;

QString snapshotOf(const QString &path)
{
    return path + ".snapshot";
}

bool isDamage(const QSqlError &error)
{
    return error.nativeErrorCode() == QLatin1String(Corrupt) || error.nativeErrorCode() == QLatin1String(NotADatabase);
}

void syncToDisk(const QString &path)
{
    const int descriptor = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0)
        return;
    fsync(descriptor);
    close(descriptor);
}

} // namespace

Database::Database(const QString &folder)
    : m_path(folder + "/events.db")
    , m_connectionName(QUuid::createUuid().toString())
{ }

Database::~Database()
{
    QSqlDatabase::removeDatabase(m_connectionName);
    if (m_lock >= 0)
        close(m_lock);
}

Error Database::failure(const QString &what, const QString &why)
{
    return {Wire::StorageError, QStringLiteral("%1: %2").arg(what, why)};
}

Result<std::shared_ptr<Database>> Database::open(const QString &folder)
{
    QDir().mkpath(folder);
    std::shared_ptr<Database> database(new Database(folder));
    if (const auto locked = database->lock(); !locked)
        return locked.error();
    Condition condition = database->connect();
    // The first replacement is the snapshot; when that is damaged as well, an empty file.
    for (int attempt = 0; condition == Condition::Damaged && attempt < 2; ++attempt) {
        database->replaceDamaged();
        condition = database->connect();
    }
    if (condition != Condition::Sound)
        return failure(QStringLiteral("cannot use ") + database->m_path, database->m_problem);
    return database;
}

Result<> Database::lock()
{
    const QString path = m_path + ".lock";
    m_lock = ::open(QFile::encodeName(path).constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    if (m_lock < 0)
        return failure(QStringLiteral("cannot write ") + path, qt_error_string(errno));
    if (flock(m_lock, LOCK_EX | LOCK_NB) != 0)
        return failure(QStringLiteral("cannot use ") + m_path, QStringLiteral("another daemon is using it"));
    return Done{};
}

Database::Condition Database::connect()
{
    QSqlDatabase::removeDatabase(m_connectionName);
    QSqlDatabase database = QSqlDatabase::addDatabase("QSQLITE", m_connectionName);
    database.setDatabaseName(m_path);
    database.setConnectOptions("QSQLITE_BUSY_TIMEOUT=1000");
    if (!database.open()) {
        m_problem = database.lastError().text();
        return isDamage(database.lastError()) ? Condition::Damaged : Condition::Unusable;
    }
    const Condition condition = prepare();
    if (condition != Condition::Sound)
        database.close();
    return condition;
}

Database::Condition Database::prepare()
{
    QSqlQuery query(connection());
    const auto run = [&](const QString &statement) {
        const bool done = query.exec(statement);
        if (!done)
            m_problem = query.lastError().text();
        return done;
    };
    const auto broken = [&] { return isDamage(query.lastError()) ? Condition::Damaged : Condition::Unusable; };

    if (!run("PRAGMA journal_mode=WAL") || !run("PRAGMA synchronous=FULL") || !run("PRAGMA integrity_check"))
        return broken();
    if (!query.next() || query.value(0).toString() != QLatin1String("ok")) {
        m_problem = query.value(0).toString();
        return Condition::Damaged;
    }
    if (!run("PRAGMA user_version") || !query.next())
        return broken();
    if (query.value(0).toInt() > SchemaVersion) {
        m_problem = QStringLiteral("it was written by a newer version");
        return Condition::Unusable;
    }
    for (const char *statement : Schema) {
        if (!run(statement))
            return broken();
    }
    return run(QStringLiteral("PRAGMA user_version=%1").arg(SchemaVersion)) ? Condition::Sound : broken();
}

void Database::replaceDamaged()
{
    qCCritical(lcTimed, "%ls is damaged: %ls", qUtf16Printable(m_path), qUtf16Printable(m_problem));
    setAside(m_path);
    for (const char *companion : {"-wal", "-shm"})
        setAside(m_path + companion);
    const QString snapshot = snapshotOf(m_path);
    if (!m_restored && QFile::copy(snapshot, m_path))
        qCWarning(lcTimed, "restored the snapshot of %ls",
                  qUtf16Printable(QFileInfo(snapshot).lastModified().toString(Qt::ISODate)));
    else
        qCCritical(lcTimed, "no snapshot to restore, starting without events");
    m_restored = true;
}

void Database::setAside(const QString &path)
{
    if (!QFile::exists(path))
        return;
    const QString stamp = QDateTime::currentDateTimeUtc().toString("yyyyMMdd'T'HHmmss");
    // Two files may be set aside within a second, and the clock may stand still.
    for (int copy = 1; copy <= MostSetAside; ++copy) {
        const QString aside = QStringLiteral("%1.damaged-%2-%3").arg(path, stamp).arg(copy);
        if (QFile::rename(path, aside)) {
            qCWarning(lcTimed, "set aside as %ls", qUtf16Printable(aside));
            return;
        }
    }
    qCCritical(lcTimed, "cannot set %ls aside", qUtf16Printable(path));
}

QSqlDatabase Database::connection() const
{
    return QSqlDatabase::database(m_connectionName, false);
}

Result<> Database::takeSnapshot()
{
    const QString fresh = snapshotOf(m_path) + ".new";
    QFile::remove(fresh);
    QSqlQuery query(connection());
    query.prepare("VACUUM INTO ?");
    query.addBindValue(fresh);
    if (!query.exec())
        return failure(QStringLiteral("cannot write ") + fresh, query.lastError().text());
    syncToDisk(fresh);
    // Unlike QFile's, this renaming replaces the file in one step.
    if (std::rename(QFile::encodeName(fresh).constData(), QFile::encodeName(snapshotOf(m_path)).constData()) != 0)
        return failure(QStringLiteral("cannot replace ") + snapshotOf(m_path), qt_error_string(errno));
    return Done{};
}

} // namespace Astel::Timed
