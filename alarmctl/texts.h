// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>
#include <QStringList>

// What is shown of an alarm and of time; all moments are local.

/** "sun" to "sat", as the user writes and reads weekdays. */
const QStringList &dayNames();

/** Of the nanoseconds since the epoch that the daemon tells. */
qint64 millisecondsOf(quint64 nanoseconds);
/** "2026-11-20 07:30:00", of milliseconds since the epoch. */
QString localMoment(qint64 milliseconds);
/** "8 h 12 min": the two largest units. */
QString durationText(qint64 milliseconds);
/** "Work" (12), or alarm 12 where it has no title. */
QString alarmText(quint32 cookie, const QString &title);
