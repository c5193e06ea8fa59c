// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "alarms/qmalarmevent.h"

#include "alarms/currenttime_p.h"

namespace Clock {

QmAlarmEvent::QmAlarmEvent(quint32 cookie)
{
    fromAstelTimedEvent(cookie);
}

bool QmAlarmEvent::setCookie(quint32 cookie)
{
    m_cookie = cookie;
    return true;
}

bool QmAlarmEvent::setAlarmTime(const QTime &time)
{
    m_alarmTime = time;
    m_triggerTime = currentTime();
    m_triggerTime.setTime(time);
    return true;
}

bool QmAlarmEvent::setTriggerTime(const QDateTime &time)
{
    m_triggerTime = time;
    return true;
}

bool QmAlarmEvent::setTitle(const QString &title)
{
    m_title = title.isEmpty() ? QStringLiteral("") : title;
    return true;
}

bool QmAlarmEvent::setTone(const QString &tone)
{
    m_tone = tone;
    return true;
}

bool QmAlarmEvent::setApplication(const QString &application)
{
    m_application = application;
    return true;
}

bool QmAlarmEvent::setEnabled(bool enabled)
{
    m_enabled = enabled;
    return true;
}

bool QmAlarmEvent::setRepeatDays(const QList<int> &days)
{
    m_repeatDays = days;
    return true;
}

bool QmAlarmEvent::setSnooze(int minutes)
{
    m_snooze = quint8(minutes);
    return true;
}

bool QmAlarmEvent::setNextTrigger(quint64 nextTrigger)
{
    m_nextTrigger = nextTrigger;
    return true;
}

void QmAlarmEvent::rollOverIfPassed()
{
    if (m_enabled || isRecurring())
        return;
    if (currentTime() >= m_triggerTime)
        m_triggerTime = m_triggerTime.addDays(1);
}

} // namespace Clock
