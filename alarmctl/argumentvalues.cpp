// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "alarmctl/argumentvalues.h"

#include "alarmctl/texts.h"
#include "app/settings.h"

#include <QDateTime>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>

namespace {

constexpr int MaximalCount = 1000;
constexpr quint32 MaximalCookie = 2147483647;
// Far beyond every calendar in use, and small enough to count on from.
constexpr qint64 MaximalEpoch = 253402300799;

/** A whole decimal number of ASCII digits; nothing else that Qt would read as a number. */
bool readNumber(const QString &text, qint64 lowest, qint64 highest, qint64 &number)
{
    static const QRegularExpression form("^-?[0-9]{1,18}$");
    if (!form.match(text).hasMatch())
        return false;
    number = text.toLongLong();
    return number >= lowest && number <= highest;
}

} // namespace

Result<QTime> parseTime(const QString &text)
{
    static const QRegularExpression form("^([0-9]{1,2}):([0-9]{2})$");
    const QRegularExpressionMatch match = form.match(text);
    const QTime time(match.captured(1).toInt(), match.captured(2).toInt());
    if (!match.hasMatch() || !time.isValid())
        return wrongUsage(QStringLiteral("\"%1\" is not a time from 00:00 to 23:59").arg(text));
    return time;
}

Result<QList<int>> parseDays(const QString &text)
{
    const QString lower = text.toLower();
    if (lower == "never")
        return QList<int>();
    if (lower == "daily")
        return QList<int>{0, 1, 2, 3, 4, 5, 6};
    if (lower == "weekdays")
        return QList<int>{1, 2, 3, 4, 5};
    QList<int> days;
    for (const QString &name : lower.split(',')) {
        const auto day = int(dayNames().indexOf(name));
        if (day < 0)
            return wrongUsage(QStringLiteral("\"%1\" is not a day; days are %2, or daily, weekdays or never")
                                  .arg(name, dayNames().join(',')));
        if (!days.contains(day))
            days.append(day);
    }
    return days;
}

Result<int> parseSnooze(const QString &text)
{
    const auto &choices = Settings::SnoozeChoices;
    qint64 minutes = 0;
    if (!readNumber(text, choices.front(), choices.back(), minutes)
        || std::find(choices.begin(), choices.end(), minutes) == choices.end())
        return wrongUsage(QStringLiteral("a snooze of \"%1\" is not one of 5, 10, 15, 20, 30 minutes").arg(text));
    return int(minutes);
}

Result<QString> parseTone(const QString &text)
{
    const QFileInfo file(text);
    if (text.isEmpty() || !file.isFile() || !file.isReadable())
        return failure(QStringLiteral("there is no tone file \"%1\" that can be read").arg(text));
    return file.absoluteFilePath();
}

Result<quint32> parseCookie(const QString &text)
{
    qint64 cookie = 0;
    if (!readNumber(text, 1, MaximalCookie, cookie))
        return wrongUsage(QStringLiteral("\"%1\" is not a cookie, a number from 1 to %2").arg(text).arg(MaximalCookie));
    return quint32(cookie);
}

Result<QList<quint32>> parseCookies(const QStringList &texts)
{
    if (texts.isEmpty())
        return wrongUsage("a cookie is missing");
    QList<quint32> cookies;
    for (const QString &text : texts) {
        const Result<quint32> cookie = parseCookie(text);
        if (!cookie)
            return cookie.error();
        if (!cookies.contains(*cookie))
            cookies.append(*cookie);
    }
    return cookies;
}

Result<quint32> parseCount(const QString &text)
{
    qint64 count = 0;
    if (!readNumber(text, 1, MaximalCount, count))
        return wrongUsage(QStringLiteral("\"%1\" is not a count from 1 to %2").arg(text).arg(MaximalCount));
    return quint32(count);
}

Result<qint64> parseEpoch(const QString &text)
{
    qint64 epoch = 0;
    if (!readNumber(text, -MaximalEpoch, MaximalEpoch, epoch))
        return wrongUsage(QStringLiteral("\"%1\" is not a moment in seconds since the epoch").arg(text));
    return epoch;
}

Result<qint64> parseMoment(const QString &text)
{
    for (const char *form : {"yyyy-MM-dd", "yyyy-MM-ddTHH:mm"}) {
        const QDateTime moment = QDateTime::fromString(text, QLatin1String(form));
        if (moment.isValid())
            return moment.toSecsSinceEpoch();
    }
    if (Result<qint64> epoch = parseEpoch(text))
        return epoch;
    return wrongUsage(QStringLiteral("\"%1\" is neither a date nor a moment in seconds since the epoch").arg(text));
}
