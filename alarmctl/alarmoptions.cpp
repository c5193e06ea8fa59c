// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "alarmctl/alarmoptions.h"

#include "alarmctl/argumentvalues.h"

QList<Option> alarmOptions()
{
    return {{"title", "TITLE", "what the alarm is called"},
            {"days", "DAYS", "days on which it repeats: mon,tue and so on, daily, weekdays, or never"},
            {"snooze", "MINUTES", "5, 10, 15, 20 or 30"},
            {"tone", "FILE", "the sound file it plays"}};
}

Result<> applyAlarmOptions(const CommandLine &line, Clock::QmAlarmEvent &alarm)
{
    Clock::QmAlarmEvent changed = alarm;
    if (line.has("title"))
        changed.setTitle(line.value("title"));
    if (line.has("days")) {
        const Result<QList<int>> days = parseDays(line.value("days"));
        if (!days)
            return days.error();
        changed.setRepeatDays(*days);
    }
    if (line.has("snooze")) {
        const Result<int> snooze = parseSnooze(line.value("snooze"));
        if (!snooze)
            return snooze.error();
        changed.setSnooze(*snooze);
    }
    if (line.has("tone")) {
        const Result<QString> tone = parseTone(line.value("tone"));
        if (!tone)
            return tone.error();
        changed.setTone(*tone);
    }
    alarm = changed;
    return Done();
}
