// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QList>
#include <QString>
#include <QTime>

namespace Clock {
class QmAlarmEvent;
}

namespace Support {

/** An alarm of the application that is not stored yet. */
Clock::QmAlarmEvent alarmAt(const QTime &time, const QString &title = "Alarm", const QList<int> &repeatDays = {});

/** Stores an alarm in the daemon and returns its cookie. */
quint32 addAlarm(const QTime &time, const QString &title = "Alarm", const QList<int> &repeatDays = {});
/** The same, switched off. */
quint32 addSwitchedOffAlarm(const QTime &time, const QString &title = "Alarm", const QList<int> &repeatDays = {});

/** Removes every alarm of the application and waits until all changes so far are heard; false if that fails. */
bool removeAllAlarms();

/** Waits until all changes so far are heard; false if that fails. */
bool waitForChanges();

/** Waits until the daemon's triggers hold the cookie, or no longer hold it. */
bool waitForTrigger(quint32 cookie, bool present = true);

} // namespace Support
