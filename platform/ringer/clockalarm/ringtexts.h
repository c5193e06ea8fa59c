// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>

class QDateTime;

namespace Ringer {
struct Alarm;
}

/** What the ring screen says, in the user's language and formats. */
namespace RingTexts {

/** One line, never empty, and not longer than is needed to know the alarm. */
[[nodiscard]] QString title(const Ringer::Alarm &alarm);
[[nodiscard]] QString due(const Ringer::Alarm &alarm);
[[nodiscard]] QString snooze(int seconds);
/** The time without its half of the day, which stands by itself in smaller letters. */
[[nodiscard]] QString bigTime(const QDateTime &moment);
[[nodiscard]] QString halfOfDay(const QDateTime &moment); ///< empty where the day has 24 hours

} // namespace RingTexts
