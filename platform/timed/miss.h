// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/timedclient/wire.h"

#include <optional>

namespace Astel::Timed {

enum class MissReason {
    Off,        ///< the device or the daemon was off
    Slept,      ///< the device slept
    ClockSet,   ///< the clock was set past it
    Late,       ///< the timer was late, whyever
    Unanswered, ///< it rang, and nobody answered
};

QString missReasonName(MissReason reason);
std::optional<MissReason> missReasonFromName(const QString &name);

/** An alarm that was not heard, kept until the user has been told; moments are milliseconds since the epoch. */
struct Miss
{
    quint32 cookie = 0;
    qint64 due = 0;
    qint64 noticed = 0;
    MissReason reason = MissReason::Late;
    bool told = false;
    Wire::Event event; ///< with which it can ring although it is not stored any more

    bool isSame(const Miss &other) const { return cookie == other.cookie && due == other.due; }
    bool operator==(const Miss &) const = default;
};

} // namespace Astel::Timed
