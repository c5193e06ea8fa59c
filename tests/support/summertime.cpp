// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/support/summertime.h"

#include <ctime>
#include <QByteArray>
#include <QDateTime>

namespace Support {

namespace {

/** A day as a zone's rule counts it: from 1 January, without the leap day. */
int ruleDay(QDate day)
{
    return QDate(2025, day.month(), qMin(day.day(), QDate(2025, day.month(), 1).daysInMonth())).dayOfYear();
}

} // namespace

QTime skipAnHourSoon()
{
    const QDateTime skipped = QDateTime::currentDateTimeUtc().addSecs(3 * 60 * 60);
    const QString zone = QString("WIN0SUM,J%1/%2,J%3/3")
                             .arg(ruleDay(skipped.date()))
                             .arg(skipped.time().hour())
                             .arg(ruleDay(skipped.date().addDays(90)));
    qputenv("TZ", zone.toLatin1());
    tzset();
    return QTime(skipped.time().hour(), 30);
}

} // namespace Support
