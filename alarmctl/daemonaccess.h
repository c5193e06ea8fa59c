// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "alarmctl/ringrecord.h"
#include "alarms/qmalarmevent.h"
#include "platform/commandline/result.h"

#include <QDBusPendingReply>
#include <QList>
#include <QMap>

/** Succeeds once the daemon answered and the triggers it publishes are known. */
Result<> reachDaemon();

/** The application's alarms in the order of its list. */
Result<QList<Clock::QmAlarmEvent>> loadAlarms();
/** The alarms of these cookies; a problem if one of them is not the application's. */
Result<QList<Clock::QmAlarmEvent>> loadAlarms(const QList<quint32> &cookies);

/** The cookie of the stored alarm. */
Result<quint32> addAlarm(Clock::QmAlarmEvent &alarm);
/** The new cookie of the alarm. */
Result<quint32> replaceAlarm(Clock::QmAlarmEvent &alarm);
Result<> removeAlarm(quint32 cookie);

/** The titles of the alarms that rang; those that are not stored, or cannot be asked for, are left out. */
QMap<quint32, QString> titlesOf(const QList<RingRecord> &records);

/** What a call of the daemon answered, waited for. */
template <typename Value>
Result<Value> answerOf(QDBusPendingReply<Value> reply)
{
    reply.waitForFinished();
    if (reply.isError())
        return failure(QStringLiteral("the alarm daemon did not answer: %1").arg(reply.error().message()));
    return reply.value();
}
