// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "alarmctl/argumentvalues.h"
#include "alarmctl/command.h"
#include "alarmctl/daemonaccess.h"
#include "alarmctl/output.h"

namespace {

Result<QList<Clock::QmAlarmEvent>> namedAlarms(const CommandLine &line)
{
    const Result<QList<quint32>> cookies = parseCookies(line.positionals());
    if (!cookies)
        return cookies.error();
    return loadAlarms(*cookies);
}

Result<> switchAlarms(const CommandLine &line, bool on)
{
    const Result<QList<Clock::QmAlarmEvent>> alarms = namedAlarms(line);
    if (!alarms)
        return alarms.error();
    QList<qint64> cookies;
    for (Clock::QmAlarmEvent alarm : *alarms) {
        if (alarm.isEnabled() == on) {
            cookies.append(alarm.cookie());
            continue;
        }
        alarm.setAlarmTime(alarm.alarmTime());
        alarm.rollOverIfPassed();
        alarm.setEnabled(on);
        const Result<quint32> cookie = replaceAlarm(alarm);
        if (!cookie)
            return cookie.error();
        cookies.append(*cookie);
    }
    printNumbers(cookies, line.has("json"));
    return Done();
}

} // namespace

Result<> runOn(const CommandLine &line)
{
    return switchAlarms(line, true);
}

Result<> runOff(const CommandLine &line)
{
    return switchAlarms(line, false);
}

Result<> runRemove(const CommandLine &line)
{
    const Result<QList<Clock::QmAlarmEvent>> alarms = namedAlarms(line);
    if (!alarms)
        return alarms.error();
    for (const Clock::QmAlarmEvent &alarm : *alarms) {
        if (const Result<> removed = removeAlarm(alarm.cookie()); !removed)
            return removed;
    }
    return Done();
}
