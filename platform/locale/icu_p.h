// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/locale/locale.h"

#include <QByteArray>
#include <QStringList>

namespace Touch::Icu {

// The ICU calls of the locale classes. What is costly to make is kept; GUI thread only.

/// An ICU locale name with the calendar to count by.
QByteArray withCalendar(const QByteArray &locale, Locale::CalendarType calendar);
/// The locale's pattern for these lengths, in the hours asked for.
QString pattern(const QByteArray &locale, Locale::DateType date, Locale::TimeType time, Locale::TimeFormat24h hours);
QString patternOfFields(const QByteArray &locale, const QString &fields);
QString fieldName(const QByteArray &locale, Locale::TimeField field);
/// Sunday to Saturday; context and width are ICU's values.
QStringList weekdayNames(const QByteArray &locale, int context, int width);
bool isTwelveHourPattern(const QString &pattern);

QString format(const QByteArray &locale, const QString &pattern, const QDateTime &dateTime);
QString format(const QByteArray &locale, qlonglong number);
QString formatMinutes(const QByteArray &locale, int minutes);

} // namespace Touch::Icu
