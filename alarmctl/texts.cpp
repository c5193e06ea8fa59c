// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "alarmctl/texts.h"

#include <QDateTime>

const QStringList &dayNames()
{
    static const QStringList names{"sun", "mon", "tue", "wed", "thu", "fri", "sat"};
    return names;
}

qint64 millisecondsOf(quint64 nanoseconds)
{
    constexpr quint64 nanosecondsOfMillisecond = 1000000;
    return qint64(nanoseconds / nanosecondsOfMillisecond);
}

QString localMoment(qint64 milliseconds)
{
    return QDateTime::fromMSecsSinceEpoch(milliseconds).toString("yyyy-MM-dd HH:mm:ss");
}

QString durationText(qint64 milliseconds)
{
    const qint64 seconds = milliseconds / 1000;
    const qint64 minutes = seconds / 60;
    const qint64 hours = minutes / 60;
    if (hours >= 24)
        return QStringLiteral("%1 d %2 h").arg(hours / 24).arg(hours % 24);
    if (hours > 0)
        return QStringLiteral("%1 h %2 min").arg(hours).arg(minutes % 60);
    if (minutes > 0)
        return QStringLiteral("%1 min %2 s").arg(minutes).arg(seconds % 60);
    return QStringLiteral("%1 s").arg(seconds);
}

QString alarmText(quint32 cookie, const QString &title)
{
    return title.isEmpty() ? QStringLiteral("alarm %1").arg(cookie)
                           : QStringLiteral("\"%1\" (%2)").arg(title).arg(cookie);
}
