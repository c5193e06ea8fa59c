// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/commandline/result.h"

#include <QByteArray>
#include <QList>

namespace Backup {

/** A file within a tar archive. */
struct TarMember
{
    QByteArray name; ///< at most 99 bytes
    QByteArray content;

    bool operator==(const TarMember &) const = default;
};

/** A POSIX tar archive that is the same for the same members. */
QByteArray writeTar(const QList<TarMember> &members);
/** Only what writeTar() writes, byte for byte, is read; the problem tells what
 * else it is. */
Result<QList<TarMember>> readTar(const QByteArray &bytes);

} // namespace Backup
