// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QtGlobal>

namespace Astel::Timed {

/** How a stored moment stands to now. */
enum class Lateness {
    Ahead,
    Now, ///< passed, and still worth ringing for
    Missed,
    Absurd, ///< passed by so much that the clock, not the user, must have been away
};

inline constexpr qint64 MaximalLateness = Q_INT64_C(10) * 60 * 1000;
inline constexpr qint64 AbsurdLateness = Q_INT64_C(366) * 86400 * 1000;

/** Both in milliseconds since the epoch. */
constexpr Lateness lateness(qint64 moment, qint64 now)
{
    if (now < moment)
        return Lateness::Ahead;
    if (now - moment <= MaximalLateness)
        return Lateness::Now;
    return now - moment <= AbsurdLateness ? Lateness::Missed : Lateness::Absurd;
}

} // namespace Astel::Timed
