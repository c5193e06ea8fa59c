// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/clockwidgets/timetext_p.h"

#include "platform/locale/locale.h"

using Touch::Locale;

QString TimeText::whole() const
{
    if (marker.isEmpty())
        return digits;
    return markerFirst ? marker + u' ' + digits : digits + u' ' + marker;
}

TimeText timeText(const Locale &locale, const QTime &time)
{
    if (!time.isValid())
        return {};
    // Any day without a change of the clocks will do.
    const QDateTime dateTime(QDate(2026, 1, 1), time, Qt::UTC);
    const QString pattern = locale.icuFormatString(Locale::DateNone, Locale::TimeShort);
    QString digits;
    qsizetype marker = -1;
    bool quoted = false;
    for (const QChar c : pattern) {
        if (c == u'\'')
            quoted = !quoted;
        if (c == u'a' && !quoted)
            marker = digits.size();
        else
            digits += c;
    }
    TimeText text;
    text.digits = locale.formatDateTimeICU(dateTime, digits.trimmed());
    if (marker >= 0) {
        text.marker = locale.formatDateTime(dateTime, QStringLiteral("%p"));
        text.markerFirst = marker == 0;
    }
    return text;
}

QString localeDigits(const Locale &locale, int number, int width)
{
    const QString digits = locale.formatNumber(number);
    return locale.formatNumber(0).repeated(qMax<qsizetype>(0, width - digits.size())) + digits;
}
