// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/locale/calendar.h"

#include "platform/locale/icu_p.h"

#include <memory>
#include <unicode/calendar.h>

namespace Touch {

Calendar::Calendar(Locale::CalendarType type)
    : m_type(type)
{ }

Calendar::Calendar(const Locale &locale, Locale::CalendarType type)
    : m_fixedName(locale.categoryName(Locale::TimeCategory))
    , m_type(type)
{ }

QByteArray Calendar::localeName() const
{
    const QString name = m_fixedName.isEmpty() ? Locale::getDefault().categoryName(Locale::TimeCategory) : m_fixedName;
    return Icu::withCalendar(name.toLatin1(), m_type);
}

int Calendar::firstDayOfWeek() const
{
    UErrorCode error = U_ZERO_ERROR;
    const std::unique_ptr<icu::Calendar> calendar(
        icu::Calendar::createInstance(icu::Locale(localeName().constData()), error));
    // ICU counts from 1 = Sunday.
    const int day = U_SUCCESS(error) ? calendar->getFirstDayOfWeek(error) : UCAL_MONDAY;
    return day == UCAL_SUNDAY ? 7 : day - 1;
}

QString Calendar::weekdayName(int day) const
{
    return weekdayName(day, StandaloneContext, WideLength);
}

QString Calendar::weekdayName(int day, WeekdayContext context, WeekdayLength length) const
{
    return Icu::weekdayNames(localeName(), context, length).value(day);
}

} // namespace Touch
