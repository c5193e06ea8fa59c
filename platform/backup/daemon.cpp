// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/backup/daemon.h"

#include <QDBusError>

namespace Backup {

Problem problemOf(const QDBusError &error)
{
    switch (error.type()) {
    case QDBusError::NoReply:
    case QDBusError::Timeout:
    case QDBusError::TimedOut:
        return failure("the alarm daemon does not answer; try again, no alarm is "
                       "stored twice");
    case QDBusError::UnknownMethod:
        return failure("the alarm daemon that runs is of an older version");
    case QDBusError::Other:
        return failure(QStringLiteral("the alarm daemon refuses: %1").arg(error.message()));
    default:
        return failure(QStringLiteral("the alarm daemon cannot be reached: %1").arg(error.message()));
    }
}

} // namespace Backup
