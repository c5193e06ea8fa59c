// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "alarmlist/rowtexts.h"

#include "alarms/qmalarmevent.h"
#include "editor/repeatsummary.h"

QString cookieText(quint32 cookie)
{
    return QStringLiteral("%1").arg(cookie);
}

QString statusText(bool isEnabled)
{
    return QStringLiteral("%1").arg(isEnabled ? 1 : 0);
}

QStringList rowTexts(const Clock::QmAlarmEvent &alarm)
{
    return {cookieText(alarm.cookie()),
            alarm.alarmTime().toString("hh:mm"),
            alarm.title(),
            statusText(alarm.isEnabled()),
            alarm.tone(),
            repeatSummary(alarm.isRecurring(), alarm.repeatDays()),
            QStringLiteral("%1").arg(int(alarm.snooze()))};
}
