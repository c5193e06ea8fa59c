// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/locale/locale.h"

#include <QString>

namespace Touch {

/// Facts of a locale's calendar. Made without a locale it always speaks for the application's default one,
/// also after that changed. A value; GUI thread only.
class Calendar
{
public:
    /// The values are ICU's: a name inside a date, or one that stands alone.
    enum WeekdayContext { FormatContext, StandaloneContext };
    enum WeekdayLength { AbbreviatedLength, WideLength, NarrowLength };

    explicit Calendar(Locale::CalendarType type = Locale::DefaultCalendar);
    explicit Calendar(const Locale &locale, Locale::CalendarType type = Locale::DefaultCalendar);

    /// 1 = Monday … 7 = Sunday.
    int firstDayOfWeek() const;
    /// The full standalone name. The day runs from 0 = Sunday to 6 = Saturday; others have no name.
    QString weekdayName(int day) const;
    QString weekdayName(int day, WeekdayContext context, WeekdayLength length) const;

private:
    QByteArray localeName() const;

    QString m_fixedName;
    Locale::CalendarType m_type;
};

} // namespace Touch
