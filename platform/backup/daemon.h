// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/commandline/result.h"

#include <QDBusPendingReply>

namespace Backup {

/** Why the alarm daemon did not do what it was asked for. */
Problem problemOf(const QDBusError &error);

/** What a call of the daemon answered, waited for. */
template <typename Value>
Result<Value> answerOf(QDBusPendingReply<Value> reply)
{
    reply.waitForFinished();
    if (reply.isError())
        return problemOf(reply.error());
    return reply.value();
}

} // namespace Backup
