// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "alarmctl/argumentvalues.h"
#include "alarmctl/command.h"
#include "alarmctl/output.h"
#include "platform/timed/rules/nextmoment.h"
#include "platform/timed/rules/zone.h"
#include "platform/timedclient/wire.h"

using Astel::Timed::Rules::Rule;
using Astel::Timed::Rules::Zone;
namespace Wire = Astel::Timed::Wire;

namespace {

Result<> checkArguments(const CommandLine &line)
{
    if (line.positionals().size() != 1)
        return wrongUsage("when takes one time, HH:MM");
    for (const char *option : {"zone", "after"}) {
        if (!line.has(option))
            return wrongUsage(QStringLiteral("--%1 is missing").arg(QLatin1String(option)));
    }
    return Done();
}

Result<Rule> ruleOf(const CommandLine &line)
{
    const Result<QTime> time = parseTime(line.positionals().first());
    if (!time)
        return time.error();
    const Result<QList<int>> days = parseDays(line.value("days", "daily"));
    if (!days)
        return days.error();
    if (days->isEmpty())
        return wrongUsage("an alarm that never repeats has no days to be computed");
    Rule rule;
    rule.hours = 1u << time->hour();
    rule.minutes = Q_UINT64_C(1) << time->minute();
    for (const int day : *days)
        rule.daysOfWeek |= 1u << day;
    rule.daysOfMonth = Wire::AllDaysOfMonth;
    rule.months = Wire::AllMonths;
    rule.fillingGaps = !line.has("no-fill");
    return rule;
}

} // namespace

Result<> runWhen(const CommandLine &line)
{
    if (const Result<> complete = checkArguments(line); !complete)
        return complete;
    const Result<Rule> rule = ruleOf(line);
    if (!rule)
        return rule.error();
    const Result<qint64> after = parseEpoch(line.value("after"));
    if (!after)
        return after.error();
    const Result<quint32> count = parseCount(line.value("count", "1"));
    if (!count)
        return count.error();
    QString error;
    const std::optional<Zone> zone = Zone::create(line.value("zone").toUtf8(), &error);
    if (!zone)
        return wrongUsage(error);
    QList<qint64> moments;
    std::optional<qint64> moment = *after;
    while (moments.size() < *count && (moment = Astel::Timed::Rules::nextMoment(*rule, *zone, *moment)))
        moments.append(*moment);
    printNumbers(moments, line.has("json"));
    if (moments.isEmpty())
        return failure("there is no such moment");
    if (moments.size() < *count)
        return failure(QStringLiteral("there are only %1 such moments").arg(moments.size()));
    return Done();
}
