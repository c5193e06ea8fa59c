// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timed/disk.h"

#include "platform/timedclient/wire.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <QFile>
#include <QFileInfo>
#include <sys/statvfs.h>
#include <unistd.h>

namespace Astel::Timed::Disk {

namespace {

void syncOne(const QString &path)
{
    const int descriptor = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0)
        return;
    fsync(descriptor);
    close(descriptor);
}

} // namespace

void sync(const QString &path)
{
    syncOne(path);
    syncOne(QFileInfo(path).absolutePath());
}

Result<> replace(const QString &from, const QString &to)
{
    syncOne(from);
    // Unlike QFile's, this renaming replaces a file.
    if (std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) != 0)
        return Error{Wire::StorageError, QStringLiteral("cannot replace %1: %2").arg(to, qt_error_string(errno))};
    syncOne(QFileInfo(to).absolutePath());
    return Done{};
}

std::optional<qint64> room(const QString &path)
{
    // Qt asks the list of mounts first, which need not tell of the disk: in a chroot it does not.
    struct statvfs disk;
    if (statvfs(QFile::encodeName(path).constData(), &disk) != 0)
        return std::nullopt;
    return qint64(disk.f_bavail) * qint64(disk.f_frsize);
}

} // namespace Astel::Timed::Disk
