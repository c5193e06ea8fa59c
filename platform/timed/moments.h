// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <optional>
#include <QtGlobal>

namespace Astel::Timed {

namespace Rules {
class Zone;
}
namespace Wire {
struct Event;
}

inline constexpr qint64 MillisecondsOfSecond = 1000;
inline constexpr qint64 NanosecondsOfMillisecond = 1000000;

/** Moments are milliseconds since the epoch in the daemon, nanoseconds on the bus; those before the epoch become 0. */
quint64 toNanoseconds(qint64 milliseconds);

/** The first moment strictly later than "after", over the ticker and all recurrences; nothing where there is none. */
std::optional<qint64> momentAfter(const Wire::Event &event, const Rules::Zone &zone, qint64 after);

} // namespace Astel::Timed
