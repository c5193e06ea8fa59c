// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/timed/sqlitestore.h"

#include <memory>
#include <QTemporaryDir>

/** The moment at which the stores of the tests are opened. */
inline constexpr qint64 Now = Q_INT64_C(1795150800000);

/** An event with something in every field. */
Astel::Timed::AlarmEvent stored(quint32 cookie, const QString &title = QStringLiteral("Wake up"));

/** A folder for stores, which are opened one after the other. */
class StoreFolder
{
public:
    QString home() const { return m_home.path(); }
    QString path() const { return m_home.filePath("timed"); }
    /** The database, or a file beside it. */
    QString file(const QString &suffix = {}) const { return path() + "/events.db" + suffix; }
    /** Nothing where the store cannot be opened. */
    std::unique_ptr<Astel::Timed::SqliteStore> open() const;
    /** Writes into a file, which is made where there is none. */
    static bool overwrite(const QString &path, qint64 offset, const QByteArray &bytes);

private:
    QTemporaryDir m_home;
};

/** While it lives a folder, or a file, cannot be written, not even by root. */
class ReadOnlyDisk
{
public:
    explicit ReadOnlyDisk(const QString &path);
    ~ReadOnlyDisk();
    Q_DISABLE_COPY(ReadOnlyDisk)

    bool isReadOnly() const { return m_readOnly; }

private:
    QByteArray m_path;
    bool m_mounted = false;
    bool m_readOnly = false;
};
