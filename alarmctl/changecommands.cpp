// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "alarmctl/alarmoptions.h"
#include "alarmctl/argumentvalues.h"
#include "alarmctl/command.h"
#include "alarmctl/daemonaccess.h"
#include "alarmctl/output.h"
#include "alarms/utility.h"
#include "app/settings.h"

#include <QFileInfo>
#include <QJsonObject>
#include <QSettings>

namespace {

/** What the application itself would start a new alarm with. */
Clock::QmAlarmEvent newAlarm()
{
    const QSettings settings(Settings::Organisation, Settings::Application);
    Clock::QmAlarmEvent alarm;
    alarm.setApplication("clock");
    if (const Result<int> snooze = parseSnooze(settings.value(Settings::SnoozeTimeKey).toString()))
        alarm.setSnooze(*snooze);
    const QString tone = settings.value(Settings::DefaultToneKey).toString();
    alarm.setTone(QFileInfo(tone).isFile() ? tone : Clock::Utility::defaultAlertTone());
    return alarm;
}

void printCookie(quint32 cookie, bool json)
{
    if (json)
        printJson(QJsonObject{{"cookie", qint64(cookie)}});
    else
        printLine(QString::number(cookie));
}

Result<> applyEdits(const CommandLine &line, Clock::QmAlarmEvent &alarm)
{
    QTime time = alarm.alarmTime();
    if (line.has("time")) {
        const Result<QTime> wanted = parseTime(line.value("time"));
        if (!wanted)
            return wanted.error();
        time = *wanted;
    }
    if (const Result<> applied = applyAlarmOptions(line, alarm); !applied)
        return applied;
    alarm.setAlarmTime(time);
    if (line.has("on") || line.has("off"))
        alarm.setEnabled(line.has("on"));
    return Done();
}

Result<> checkEdits(const CommandLine &line)
{
    if (line.has("on") && line.has("off"))
        return wrongUsage("an alarm cannot be switched --on and --off at once");
    for (const char *option : {"time", "title", "days", "snooze", "tone", "on", "off"}) {
        if (line.has(option)) {
            Clock::QmAlarmEvent scratch;
            return applyEdits(line, scratch);
        }
    }
    return wrongUsage("there is nothing to change");
}

} // namespace

Result<> runAdd(const CommandLine &line)
{
    if (line.positionals().size() != 1)
        return wrongUsage("add takes one time, HH:MM");
    const Result<QTime> time = parseTime(line.positionals().first());
    if (!time)
        return time.error();
    Clock::QmAlarmEvent alarm = newAlarm();
    if (const Result<> applied = applyAlarmOptions(line, alarm); !applied)
        return applied;
    alarm.setAlarmTime(*time);
    alarm.setEnabled(!line.has("off"));
    const Result<quint32> cookie = addAlarm(alarm);
    if (!cookie)
        return cookie.error();
    printCookie(*cookie, line.has("json"));
    return Done();
}

Result<> runEdit(const CommandLine &line)
{
    if (line.positionals().size() != 1)
        return wrongUsage("edit takes one cookie");
    const Result<quint32> cookie = parseCookie(line.positionals().first());
    if (!cookie)
        return cookie.error();
    if (const Result<> sensible = checkEdits(line); !sensible)
        return sensible;
    const Result<QList<Clock::QmAlarmEvent>> alarms = loadAlarms({*cookie});
    if (!alarms)
        return alarms.error();
    Clock::QmAlarmEvent alarm = alarms->first();
    if (const Result<> applied = applyEdits(line, alarm); !applied)
        return applied;
    const Result<quint32> replaced = replaceAlarm(alarm);
    if (!replaced)
        return replaced.error();
    printCookie(*replaced, line.has("json"));
    return Done();
}
