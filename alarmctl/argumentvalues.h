// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/commandline/result.h"

#include <QList>
#include <QTime>

// What the user's words stand for; the problem names the word that stands for nothing.

/** "7:05" and "07:05". */
Result<QTime> parseTime(const QString &text);
/** "mon,tue", "daily", "weekdays", and "never" for no day at all; 0 is Sunday. */
Result<QList<int>> parseDays(const QString &text);
/** One of the minutes that an alarm can snooze. */
Result<int> parseSnooze(const QString &text);
/** The absolute path of a tone file that is there. */
Result<QString> parseTone(const QString &text);
/** 1 to 2147483647, each once. */
Result<QList<quint32>> parseCookies(const QStringList &texts);
Result<quint32> parseCookie(const QString &text);
/** 1 to 1000. */
Result<quint32> parseCount(const QString &text);
/** Seconds since the epoch. */
Result<qint64> parseEpoch(const QString &text);
/** Seconds since the epoch, given so, or as a local date with or without a time: "2026-11-20", "2026-11-20T07:30". */
Result<qint64> parseMoment(const QString &text);
