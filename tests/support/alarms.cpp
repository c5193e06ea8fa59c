// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/support/alarms.h"

#include "alarms/qmalarm.h"
#include "alarms/qmalarmevent.h"
#include "alarms/utility.h"

#include <QTest>

using Clock::QmAlarm;
using Clock::QmAlarmEvent;

namespace Support {

QmAlarmEvent alarmAt(const QTime &time, const QString &title, const QList<int> &repeatDays)
{
    QmAlarmEvent alarm;
    alarm.setApplication("clock");
    alarm.setTitle(title);
    alarm.setAlarmTime(time);
    alarm.setTone("/nowhere/tone.aac");
    alarm.setRepeatDays(repeatDays);
    return alarm;
}

quint32 addAlarm(const QTime &time, const QString &title, const QList<int> &repeatDays)
{
    QmAlarmEvent alarm = alarmAt(time, title, repeatDays);
    return QmAlarm().add(alarm);
}

quint32 addSwitchedOffAlarm(const QTime &time, const QString &title, const QList<int> &repeatDays)
{
    QmAlarmEvent alarm = alarmAt(time, title, repeatDays);
    alarm.setEnabled(false);
    return QmAlarm().add(alarm);
}

bool removeAllAlarms()
{
    bool failed = false;
    const QList<quint32> cookies = QmAlarm().query(failed);
    for (const quint32 cookie : cookies)
        failed |= !QmAlarm().deleteEvent(cookie);
    return waitForChanges() && !failed;
}

bool waitForChanges()
{
    // Changes are heard in their order: with the last one, all are over.
    const quint32 last = addAlarm(QTime(12, 0));
    const bool isHeard = waitForTrigger(last);
    return QmAlarm().deleteEvent(last) && isHeard && waitForTrigger(last, false);
}

bool waitForTrigger(quint32 cookie, bool present)
{
    // A daemon that has just been started again may be slow on a busy machine.
    constexpr int patience = 20000;
    const auto isThere = [=] {
        quint64 trigger = 0;
        return Clock::Utility::instance()->triggerFromContext(cookie, trigger) == present;
    };
    return QTest::qWaitFor(isThere, patience);
}

} // namespace Support
