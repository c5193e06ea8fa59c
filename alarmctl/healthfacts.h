// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "alarmctl/ringrecord.h"

#include <QMap>
#include <QVariantMap>

#include <optional>

/** The alarm that rings next, with what its own event asks for. */
struct NextAlarm
{
    quint32 cookie = 0;
    qint64 moment = 0; ///< milliseconds since the epoch
    QString title;
    QString tone;
    QString plugin;
};

/** Everything that tells whether the next alarm will ring. */
struct HealthFacts
{
    qint64 now = 0;                    ///< milliseconds since the epoch
    std::optional<QVariantMap> daemon; ///< named in com.astel.timed.xml
    QString daemonProblem;             ///< why there are none of the daemon
    std::optional<NextAlarm> next;
    std::optional<QVariantMap> ringer; ///< named in com.astel.ringer.xml
    QString ringerProblem;             ///< why there are none of the ringer
    QList<RingRecord> lastRings;
    QMap<quint32, QString> titles; ///< of the alarms of the last rings, as far as they are stored
};

/** Asks the daemon and the ringer; what does not answer is told in the facts. Takes some seconds at most. */
HealthFacts gatherHealthFacts();
