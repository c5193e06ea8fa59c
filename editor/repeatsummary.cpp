// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "editor/repeatsummary.h"

#include "editor/weekdayorder.h"
#include "platform/locale/calendar.h"
#include "platform/locale/locale.h"

#include <algorithm>

using Touch::Calendar;
using Touch::Locale;

namespace {

struct SharedTexts
{
    Locale locale;
    Calendar calendar{locale};
    QStringList names = weekdayNames(locale, calendar);
};

const SharedTexts &shared()
{
    static const SharedTexts texts;
    return texts;
}

QString capitalised(const Locale &locale, const QString &name)
{
    return name.isEmpty() ? name : locale.toUpper(name.left(1)) + name.mid(1);
}

bool isHan(const Locale &locale)
{
    return locale.localeScripts().contains("Hani");
}

QString separator(const Locale &locale)
{
    if (locale.localeScripts().value(0) == "Arab")
        return QStringLiteral("\u060c ");
    return isHan(locale) ? QStringLiteral(" ") : QStringLiteral(", ");
}

QString joinedDays(const Locale &locale, const Calendar &calendar, const QList<int> &days)
{
    QStringList names;
    for (const int day : days) {
        const QString name = calendar.weekdayName(day, Calendar::StandaloneContext, Calendar::AbbreviatedLength);
        names.append(capitalised(locale, name));
    }
    return names.join(separator(locale));
}

} // namespace

QStringList weekdayNames(const Locale &locale, const Calendar &calendar)
{
    QStringList names;
    for (int day = 0; day < DaysPerWeek; ++day)
        names.append(capitalised(locale, calendar.weekdayName(day)));
    std::rotate(names.begin(), names.begin() + calendar.firstDayOfWeek() % DaysPerWeek, names.end());
    return names;
}

const QStringList &weekdayNames()
{
    return shared().names;
}

int firstDayOfWeek()
{
    return shared().calendar.firstDayOfWeek();
}

QString repeatSummary(const Locale &locale, const Calendar &calendar, bool isRepeating, const QList<int> &days)
{
    if (!isRepeating)
        return QString();
    if (days.size() == 1)
        return weekdayNames(locale, calendar).value(days.first());
    if (days.size() == DaysPerWeek)
        return qtTrId("qtn_cloc_repeatalarm_ruleeveryday");
    return joinedDays(locale, calendar, days);
}

QString repeatSummary(bool isRepeating, const QList<int> &days)
{
    const SharedTexts &texts = shared();
    return repeatSummary(texts.locale, texts.calendar, isRepeating, days);
}
