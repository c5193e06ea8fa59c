// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>

class QDateTime;

/**
 * What is said of an alarm that rings, on the screen and in notifications, in the user's language and formats. Main
 * thread.
 */
namespace RingTexts {

/** Finds the texts and follows the user's settings; to be called once, by the program. Needs the application object. */
void install();

[[nodiscard]] QString application(); ///< of windows and notifications
/** One line, never empty, and not longer than is needed to know the alarm. */
[[nodiscard]] QString title(const QString &title);
/** The same, cut after so many characters. */
[[nodiscard]] QString title(const QString &title, int length);
/** The time of day of a moment, whatever its zone, where the user is now. */
[[nodiscard]] QString due(const QDateTime &moment);
[[nodiscard]] QString snooze(int seconds);
[[nodiscard]] QString stop();
/** The time without its half of the day, which stands by itself in smaller letters. */
[[nodiscard]] QString bigTime(const QDateTime &moment);
[[nodiscard]] QString halfOfDay(const QDateTime &moment); ///< empty where the day has 24 hours

} // namespace RingTexts
