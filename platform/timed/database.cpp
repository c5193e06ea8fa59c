// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timed/database.h"

#include "platform/timed/disk.h"
#include "platform/timed/logging.h"
#include "platform/timed/schema.h"
#include "platform/timedclient/wire.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QSqlError>
#include <QSqlQuery>
#include <QStandardPaths>
#include <QUuid>
#include <QVariant>
#include <sys/file.h>
#include <unistd.h>

namespace Astel::Timed {

namespace {

// Codes of SQLite that mean that the file is not, or no longer, a database.
constexpr auto Corrupt = "11";
constexpr auto NotADatabase = "26";

// Whoever takes a snapshot moves the log into the file; a change that did would be answered late. In pages, for the case
// that no snapshot can be taken.
constexpr auto KeepLog = "PRAGMA wal_autocheckpoint=10000";

constexpr auto DamagedMark = ".damaged-";
constexpr int MostSetAside = 100;

bool isDamage(const QSqlError &error)
{
    return error.nativeErrorCode() == QLatin1String(Corrupt) || error.nativeErrorCode() == QLatin1String(NotADatabase);
}

} // namespace

Database::Database(const QString &folder)
    : m_path(folder + "/events.db")
    , m_working(m_path)
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

Result<> Database::run(QSqlQuery &statement, const QVariantList &values)
{
    for (qsizetype i = 0; i < values.size(); ++i)
        statement.bindValue(int(i), values[i]);
    const bool done = statement.exec();
    const QString why = statement.lastError().text();
    statement.finish();
    if (!done)
        return failure(QStringLiteral("cannot write the change"), why);
    return Done{};
}

Result<std::shared_ptr<Database>> Database::open(const QString &folder)
{
    QDir().mkpath(folder);
    std::shared_ptr<Database> database(new Database(folder));
    if (const auto locked = database->lock(); !locked)
        return locked.error();
    Condition condition = database->m_lock < 0 ? Condition::Unusable : database->openSound();
    if (condition == Condition::Unusable && database->workOnCopy())
        condition = database->openSound();
    if (condition != Condition::Sound)
        return failure(QStringLiteral("cannot use ") + database->m_path, database->m_problem);
    return database;
}

Result<> Database::lock()
{
    const QString path = m_path + ".lock";
    m_lock = ::open(QFile::encodeName(path).constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    if (m_lock < 0)
        m_problem = QStringLiteral("cannot write %1: %2").arg(path, qt_error_string(errno));
    else if (flock(m_lock, LOCK_EX | LOCK_NB) != 0)
        return failure(QStringLiteral("cannot use ") + m_path, QStringLiteral("another daemon is using it"));
    return Done{};
}

bool Database::workOnCopy()
{
    if (!QFile::exists(m_path) && !QFile::exists(snapshotOf(m_path)))
        return false;
    // A file system becomes read-only when its disk fails, or is full; what it holds still has to ring.
    qCCritical(lcTimed, "%ls cannot be changed: %ls", qUtf16Printable(m_path), qUtf16Printable(m_problem));
    m_copy = std::make_unique<QTemporaryDir>(QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation)
                                             + "/timed-XXXXXX");
    m_working = m_copy->filePath(QFileInfo(m_path).fileName());
    m_restored = false;
    for (const char *suffix : {"", "-wal", ".snapshot"}) {
        QFile::copy(m_path + suffix, m_working + suffix);
        QFile::setPermissions(m_working + suffix, QFile::ReadOwner | QFile::WriteOwner);
    }
    return true;
}

Database::Condition Database::openSound()
{
    Condition condition = examine();
    // The first replacement is the snapshot; when that is damaged as well, an empty file.
    for (int attempt = 0; condition == Condition::Damaged && attempt < 2; ++attempt)
        condition = replaceDamaged() ? connect() : Condition::Unusable;
    return condition;
}

Database::Condition Database::examine()
{
    // A daemon that ended while it was replacing a damaged file leaves none; an empty one would pass for sound.
    const QFileInfo file(m_working);
    if (QFile::exists(snapshotOf(m_working)) && (!file.exists() || file.size() == 0)) {
        m_problem = QStringLiteral("it is missing or empty");
        return Condition::Damaged;
    }
    return connect();
}

Database::Condition Database::connect()
{
    QSqlDatabase::removeDatabase(m_connectionName);
    QSqlDatabase database = QSqlDatabase::addDatabase("QSQLITE", m_connectionName);
    database.setDatabaseName(m_working);
    database.setConnectOptions("QSQLITE_BUSY_TIMEOUT=1000");
    if (!database.open())
        return conditionAfter(database.lastError());
    const Condition condition = prepare();
    if (condition != Condition::Sound)
        database.close();
    return condition;
}

Database::Condition Database::prepare()
{
    QSqlQuery query(connection());
    for (const char *statement :
         {"PRAGMA journal_mode=WAL", "PRAGMA synchronous=FULL", KeepCacheSmall, KeepLog, "PRAGMA integrity_check"}) {
        if (!query.exec(statement))
            return conditionAfter(query.lastError());
    }
    if (!query.next() || query.value(0).toString() != QLatin1String("ok")) {
        m_problem = query.value(0).toString();
        return Condition::Damaged;
    }
    if (!query.exec("PRAGMA user_version") || !query.next())
        return conditionAfter(query.lastError());
    const int version = query.value(0).toInt();
    query.finish();
    if (version > Schema::Version) {
        m_problem = QStringLiteral("it was written by a newer version");
        return Condition::Newer;
    }
    // A file that only its permissions keep from being written opens all the same; a change that is begun tells.
    for (const QString &statement :
         {QStringLiteral("BEGIN IMMEDIATE"), QStringLiteral("PRAGMA user_version=%1").arg(version),
          QStringLiteral("ROLLBACK")}) {
        if (!query.exec(statement))
            return conditionAfter(query.lastError());
    }
    const QSqlError error = Schema::migrate(connection(), version, hasBeenDamaged() ? CookiesToStepOver : 0);
    return error.isValid() ? conditionAfter(error) : Condition::Sound;
}

Database::Condition Database::conditionAfter(const QSqlError &error)
{
    m_problem = error.text();
    return isDamage(error) ? Condition::Damaged : Condition::Unusable;
}

bool Database::replaceDamaged()
{
    qCCritical(lcTimed, "%ls is damaged: %ls", qUtf16Printable(m_working), qUtf16Printable(m_problem));
    for (const char *suffix : {"", "-wal", "-shm"})
        setAside(m_working + suffix);
    const QString snapshot = snapshotOf(m_working);
    const bool restores = !m_restored && QFile::exists(snapshot);
    m_restored = true;
    if (!restores) {
        qCCritical(lcTimed, "no snapshot to restore, starting without events");
        return true;
    }
    if (!QFile::copy(snapshot, m_working)) {
        m_problem = QStringLiteral("cannot restore ") + snapshot;
        return false;
    }
    Disk::sync(m_working);
    qCWarning(lcTimed, "restored the snapshot of %ls",
              qUtf16Printable(QFileInfo(snapshot).lastModified().toString(Qt::ISODate)));
    return true;
}

void Database::setAside(const QString &path) const
{
    if (!QFile::exists(path))
        return;
    const QString stamp = QDateTime::currentDateTimeUtc().toString("yyyyMMdd'T'HHmmss");
    // Two files may be set aside within a second, and the clock may stand still.
    for (int copy = 1; copy <= MostSetAside; ++copy) {
        const QString aside = QStringLiteral("%1%2%3-%4").arg(path, DamagedMark, stamp).arg(copy);
        if (QFile::rename(path, aside)) {
            qCWarning(lcTimed, "set aside as %ls", qUtf16Printable(aside));
            return;
        }
    }
    qCCritical(lcTimed, "cannot set %ls aside", qUtf16Printable(path));
}

bool Database::hasBeenDamaged() const
{
    // A filter of names would be a regular expression, whose machinery stays in the daemon's memory.
    const QFileInfo file(m_working);
    const QStringList names = file.dir().entryList(QDir::Files);
    const QString damaged = file.fileName() + DamagedMark;
    return std::any_of(names.cbegin(), names.cend(), [&](const QString &name) { return name.startsWith(damaged); });
}

QSqlDatabase Database::connection() const
{
    return QSqlDatabase::database(m_connectionName, false);
}

} // namespace Astel::Timed
