// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timed/snapshotwriter.h"

#include "platform/timed/database.h"
#include "platform/timed/disk.h"
#include "platform/timed/logging.h"
#include "platform/timed/schema.h"

#include <QFile>
#include <QMutexLocker>
#include <QSqlError>
#include <QSqlQuery>
#include <QUuid>

namespace Astel::Timed {

namespace {

/** A connection that lives and ends in the thread that makes it. */
class Connection
{
public:
    explicit Connection(const QString &path)
    {
        QSqlDatabase database = QSqlDatabase::addDatabase("QSQLITE", m_name);
        database.setDatabaseName(path);
        database.setConnectOptions("QSQLITE_BUSY_TIMEOUT=1000");
        if (database.open())
            run(Database::KeepCacheSmall);
    }
    ~Connection() { QSqlDatabase::removeDatabase(m_name); }
    Q_DISABLE_COPY(Connection)

    /** What went wrong, or nothing. */
    QString run(const QString &statement, const QVariantList &values = {}) const
    {
        QSqlQuery query(QSqlDatabase::database(m_name, false));
        query.prepare(statement);
        for (const QVariant &value : values)
            query.addBindValue(value);
        return query.exec() ? QString() : query.lastError().text();
    }

    /** "ok", or what is wrong. */
    QString check() const
    {
        QSqlQuery query("PRAGMA quick_check(1)", QSqlDatabase::database(m_name, false));
        return query.next() ? query.value(0).toString() : query.lastError().text();
    }

private:
    const QString m_name = QUuid::createUuid().toString();
};

} // namespace

SnapshotWriter::SnapshotWriter(const QString &path)
    : m_path(path)
{
    m_thread.setMaxThreadCount(1);
    m_thread.setThreadPriority(QThread::LowPriority);
}

SnapshotWriter::~SnapshotWriter()
{
    wait();
}

void SnapshotWriter::start()
{
    m_owed = true;
    if (!m_asked.exchange(true))
        m_thread.start([this] { write(); });
}

QString SnapshotWriter::integrity() const
{
    const QMutexLocker lock(&m_mutex);
    return m_integrity;
}

void SnapshotWriter::write()
{
    // From here on a change may be too late for this copy.
    m_asked = false;
    const QString snapshot = Database::snapshotOf(m_path);
    const QString fresh = snapshot + ".new";
    QFile::remove(fresh);
    QString problem = copy(fresh);
    if (problem.isEmpty()) {
        if (const auto replaced = Disk::replace(fresh, snapshot); !replaced)
            problem = replaced.error().text;
    }
    if (!problem.isEmpty()) {
        QFile::remove(fresh);
        qCWarning(lcTimed, "ignoring: no snapshot: %ls", qUtf16Printable(problem));
    }
    m_owed = !problem.isEmpty();
}

QString SnapshotWriter::copy(const QString &target)
{
    const Connection source(m_path);
    QString integrity = source.check();
    {
        const QMutexLocker lock(&m_mutex);
        m_integrity = integrity;
    }
    if (integrity != QLatin1String("ok"))
        return integrity;
    if (const QString unmoved = source.run("PRAGMA wal_checkpoint(PASSIVE)"); !unmoved.isEmpty())
        qCWarning(lcTimed, "ignoring: the log stays beside the database: %ls", qUtf16Printable(unmoved));
    QString problem = source.run("VACUUM INTO ?", {target});
    if (!problem.isEmpty())
        return problem;
    const Connection written(target);
    if (QString copied = written.check(); copied != QLatin1String("ok"))
        return copied;
    // Ready to be restored: it does not give the cookies again that are given after it.
    return written.run("UPDATE counter SET last_cookie ="
                       " max(last_cookie, (SELECT ifnull(max(cookie), 0) FROM events)) + ?",
                       {CookiesToStepOver});
}

} // namespace Astel::Timed
