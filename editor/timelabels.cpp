// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "editor/timelabels.h"

#include "platform/locale/locale.h"

#include <QDateTime>
#include <QRegularExpression>
#include <QStringList>

using Touch::Locale;

namespace {

QRegularExpression expression(const QString &pattern)
{
    // Spaces and digits of every script, not only those of ASCII.
    return QRegularExpression(pattern, QRegularExpression::UseUnicodePropertiesOption);
}

bool isTwelveHours(const Locale &locale)
{
    const Locale::TimeFormat24h chosen = locale.timeFormat24h();
    const bool isDefault = chosen == Locale::LocaleDefault;
    return (isDefault ? locale.defaultTimeFormat24h() : chosen) == Locale::TwelveHour;
}

QString withoutMarker(QString pattern)
{
    return pattern.remove(expression("\\s*a\\s*"));
}

/** "h:mm" becomes "hh:mm"; a first field of two letters stays. */
QString withTwoLetterHour(const QString &pattern)
{
    const QString separator = expression("\\W").match(pattern).captured();
    const bool isSingleLetter = pattern.size() > 1 && separator == pattern.at(1);
    return isSingleLetter ? pattern.at(0) + pattern : pattern;
}

void placeMarker(TimeLabels &labels, const Locale &locale, const QString &marker, const QString &pattern)
{
    const bool isFirst = pattern.startsWith('a');
    const bool isFirstWithBlank = pattern.startsWith("a ");
    const bool isRightToLeft = locale.directionForText(marker) == Qt::RightToLeft;
    labels.arrangement = TimeLabels::Arrangement::MarkerBefore;
    if (isRightToLeft || isFirstWithBlank) {
        labels.marker = marker + ' ';
    } else if (isFirst) {
        labels.marker = marker;
    } else {
        labels.marker = ' ' + marker;
        labels.arrangement = TimeLabels::Arrangement::MarkerAfter;
    }
}

} // namespace

TimeLabels timeLabels(const Locale &locale, const QDateTime &moment)
{
    TimeLabels labels;
    QString text;
    if (isTwelveHours(locale)) {
        const QString pattern = locale.icuFormatString(Locale::DateNone, Locale::TimeMedium, Locale::DefaultCalendar);
        text = locale.formatDateTimeICU(moment, withTwoLetterHour(withoutMarker(pattern)));
        placeMarker(labels, locale, locale.formatDateTime(moment, "%p"), pattern);
    } else {
        text = locale.formatDateTime(moment, Locale::DateNone, Locale::TimeShort, Locale::DefaultCalendar);
    }

    const QStringList parts = text.split(expression("\\D"));
    // In Iran the text begins with something that is no digit, which makes an empty first part.
    const int first = locale.categoryCountry(Locale::TimeCategory) == "IR" ? 1 : 0;
    const QString hour = parts.value(first);
    // Not all digits are of one code unit.
    const bool isTwoDigits = hour.toUcs4().size() == 2;
    labels.hour = isTwoDigits ? hour : locale.formatNumber(0) + hour;
    labels.minute = parts.value(first + 1);
    return labels;
}
