// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/backup/backupfile.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace Backup {

namespace {

// Far above what create writes; a file that is read as a whole must not be any
// size.
constexpr qint64 LargestFile = Q_INT64_C(1024) * 1024 * 1024;
const QByteArray Beginning("manifest.json\0", 14);

Problem problemWith(const QString &path, const QString &what)
{
    return failure(path + ": " + what);
}

} // namespace

Result<> mayBeWritten(const QString &path)
{
    const QFileInfo info(path);
    if (!info.exists())
        return Done();
    QFile file(path);
    if (!info.isFile() || !file.open(QIODevice::ReadOnly)
        || (file.size() > 0 && file.read(Beginning.size()) != Beginning))
        return problemWith(path, "there is something else of that name, and it is not overwritten");
    return Done();
}

Result<> writeBackup(const QString &path, const Archive &archive)
{
    const QByteArray bytes = encode(archive);
    QSaveFile file(path);
    // What commit() itself cannot write it does not tell.
    if (!file.open(QIODevice::WriteOnly) || !file.setPermissions(QFile::ReadOwner | QFile::WriteOwner)
        || file.write(bytes) != bytes.size() || !file.flush() || !file.commit())
        return problemWith(path, file.errorString());
    return Done();
}

Result<Archive> readBackup(const QString &path)
{
    const QFileInfo info(path);
    QFile file(path);
    if (info.exists() && !info.isFile())
        return problemWith(path, "it is not a file");
    if (!file.open(QIODevice::ReadOnly))
        return problemWith(path, file.errorString());
    if (file.size() > LargestFile)
        return problemWith(path, "it is too large for a backup");
    auto archive = decode(file.readAll());
    if (!archive)
        return problemWith(path, archive.error().text);
    return archive;
}

} // namespace Backup
