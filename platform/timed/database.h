// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/timed/result.h"

#include <memory>
#include <QSqlDatabase>
#include <QTemporaryDir>
#include <QVariant>

namespace Astel::Timed {

/**
 * The SQLite file of the store: locked for one process, opened durable, checked, and brought to the current schema. A
 * damaged or lost file is set aside and the snapshot, or an empty database, takes its place; wasRestored() tells.
 * Where the disk cannot be written, it is a copy in memory's file system, for reading. Closed with the object.
 */
class Database
{
public:
    /** Creates the folder; fails where it cannot be written, is in use, or holds a newer schema. */
    static Result<std::shared_ptr<Database>> open(const QString &folder);
    ~Database();
    Q_DISABLE_COPY(Database)

    QSqlDatabase connection() const;
    QString path() const { return m_path; }
    /** Whether what is written here is lost. */
    bool isReadOnly() const { return m_copy != nullptr; }
    /** Whether a damaged file was replaced when this one was opened. */
    bool wasRestored() const { return m_restored; }
    static QString snapshotOf(const QString &path) { return path + ".snapshot"; }
    /**
     * What every connection to the store runs before it reads events. A change touches a few pages, and a copy reads
     * each page once: the usual cache would keep the whole file in memory beside the events.
     */
    static constexpr auto KeepCacheSmall = "PRAGMA cache_size=-64";

    /** The error that a failed statement ended with. */
    static Error failure(const QString &what, const QString &why);
    /** Executes a prepared statement that writes, with these values. */
    static Result<> run(QSqlQuery &statement, const QVariantList &values);

private:
    enum class Condition {
        Sound,
        Damaged,
        Newer,    ///< written by a later version
        Unusable, ///< the disk is at fault, not the file
    };

    explicit Database(const QString &folder);
    Result<> lock();
    bool workOnCopy();
    Condition openSound();
    Condition examine();
    Condition connect();
    Condition prepare();
    Condition conditionAfter(const QSqlError &error);
    bool replaceDamaged();
    void setAside(const QString &path) const;
    bool hasBeenDamaged() const;

    const QString m_path;
    QString m_working; ///< the file itself, or its copy
    QString m_connectionName;
    QString m_problem;
    std::unique_ptr<QTemporaryDir> m_copy;
    int m_lock = -1;
    bool m_restored = false;
};

} // namespace Astel::Timed
