// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QList>
#include <QStringList>

namespace Touch {
class Calendar;
class Locale;
} // namespace Touch

/** The weekday names in a locale's language, capitalised, from its first day of the week on. */
QStringList weekdayNames(const Touch::Locale &locale, const Touch::Calendar &calendar);

/** The weekday names in the user's language as of the first call; the same list until the program ends. */
const QStringList &weekdayNames();

/** The day that the week starts with, as of the first call, and as the shared names do: 1 = Monday … 7 = Sunday. */
int firstDayOfWeek();

/**
 * A repeat rule in a few words; empty when nothing repeats. Days are 0 = Sunday … 6 = Saturday. A single day is the
 * entry of weekdayNames() at that number, whichever day the list starts with.
 */
QString repeatSummary(const Touch::Locale &locale, const Touch::Calendar &calendar, bool isRepeating,
                      const QList<int> &days);

/** The same in the user's language as of the first call. */
QString repeatSummary(bool isRepeating, const QList<int> &days);
