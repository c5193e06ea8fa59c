// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QList>

namespace Clock {
class QmAlarmEvent;
}

/** Writes a line to standard output and flushes it; control characters become blanks. */
void printLine(const QString &line);
void printJson(const QJsonArray &array);
void printJson(const QJsonObject &object);

/** One on a line, or as an array. */
void printNumbers(const QList<qint64> &numbers, bool json);
void printAlarms(const QList<Clock::QmAlarmEvent> &alarms, bool json);
