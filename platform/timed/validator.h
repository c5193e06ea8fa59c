// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/timed/result.h"

namespace Astel::Timed {

namespace Wire {
struct Event;
struct Filter;
} // namespace Wire

inline constexpr int MaximalEvents = 10000;
/** How many characters all events together hold at most. */
inline constexpr qsizetype MaximalText = 8388608;
/** The longest snooze, in seconds. */
inline constexpr int LongestSnooze = 7 * 86400;

/** How many characters the attributes of an event hold, those of its buttons included. */
qsizetype textSize(const Wire::Event &event);

/** Whether all events together may hold so many characters. */
Result<> validateTotal(qsizetype characters);
/** Check what came over the bus against the ranges and limits of the interface's description. */
Result<> validate(const Wire::Event &event);
Result<> validate(const Wire::Filter &filter);
Result<> validateTone(const QString &tone);
Result<> validateTrouble(const QString &trouble);
Result<> validateWho(const QString &by);

} // namespace Astel::Timed
