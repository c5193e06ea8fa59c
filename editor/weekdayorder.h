// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QList>

// Weekdays are 0 = Sunday … 6 = Saturday; places are 0 to 6 in a list that starts with the first day of the week, which
// is 1 = Monday … 7 = Sunday.

inline constexpr int DaysPerWeek = 7;

/** Turns weekdays into their places, one by one. */
void weekdaysToPlaces(QList<int> &days, int firstDayOfWeek);

/** Turns places into their weekdays, one by one. */
void placesToWeekdays(QList<int> &places, int firstDayOfWeek);
