// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/timed/result.h"

namespace Astel::Timed {

namespace Wire {
struct Event;
}

inline constexpr int MaximalEvents = 10000;
/** The longest snooze, in seconds. */
inline constexpr int LongestSnooze = 7 * 86400;

/** Checks an event that came over the bus against the ranges and limits of the interface's description. */
Result<> validate(const Wire::Event &event);

} // namespace Astel::Timed
