// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timed/rules/nextmoment.h"

#include "platform/timed/rules/zone.h"

#include <algorithm>
#include <chrono>

namespace Astel::Timed::Rules {

namespace {

using namespace std::chrono;

constexpr qint64 SecondsOfDay = 86400;
// No offset of any zone at any time reaches a day.
constexpr qint64 WidestOffset = SecondsOfDay;
constexpr qint64 HorizonYears = 40;
// Years 1 to 9999, so that no arithmetic on the way overflows.
constexpr qint64 Earliest = -62135596800 + 2 * SecondsOfDay;
constexpr qint64 Latest = 253402300799 - HorizonYears * 366 * SecondsOfDay;

bool holds(quint64 set, unsigned number)
{
    return (set >> number) & 1;
}

bool matches(const Rule &rule, const year_month_day &date)
{
    return holds(rule.daysOfMonth, unsigned(date.day()))
        && holds(rule.daysOfWeek, weekday(sys_days(date)).c_encoding());
}

std::optional<qint64> toUtc(const QList<Zone::Stretch> &stretches, qint64 local, bool fillingGaps)
{
    for (const Zone::Stretch &stretch : stretches) {
        const qint64 moment = local - stretch.offset;
        if (stretch.from <= moment && moment < stretch.to)
            return moment;
    }
    if (!fillingGaps)
        return std::nullopt;
    for (qsizetype i = 0; i + 1 < stretches.size(); ++i) {
        const Zone::Stretch &before = stretches[i];
        const Zone::Stretch &after = stretches[i + 1];
        if (before.to + before.offset <= local && local < after.from + after.offset)
            return local - before.offset;
    }
    return std::nullopt;
}

std::optional<qint64> earliest(std::optional<qint64> one, std::optional<qint64> other)
{
    return one && other ? std::min(one, other) : one ? one : other;
}

std::optional<qint64> firstOfDay(const Rule &rule, const Zone &zone, sys_days day, qint64 after)
{
    const qint64 midnight = qint64(day.time_since_epoch().count()) * SecondsOfDay;
    const auto stretches = zone.stretches(midnight - WidestOffset, midnight + SecondsOfDay + WidestOffset);
    std::optional<qint64> first;
    for (unsigned minute = 0; minute < 24 * 60; ++minute) {
        if (!holds(rule.hours, minute / 60) || !holds(rule.minutes, minute % 60))
            continue;
        const auto moment = toUtc(stretches, midnight + qint64(minute) * 60, rule.fillingGaps);
        if (!moment || *moment <= after)
            continue;
        if (stretches.size() == 1)
            return moment;
        first = earliest(first, moment);
    }
    return first;
}

sys_days localDay(const Zone &zone, qint64 moment)
{
    return floor<days>(sys_seconds(seconds(moment + zone.stretchAt(moment).offset)));
}

sys_days startOfNextMonth(const year_month_day &date)
{
    return sys_days((date.year() / date.month() + months(1)) / 1);
}

} // namespace

std::optional<qint64> nextMoment(const Rule &rule, const Zone &zone, qint64 after)
{
    // Without this a rule that no time of the day matches is looked for through all the days there are.
    if (after > Latest || rule.hours == 0 || rule.minutes == 0)
        return std::nullopt;
    after = std::max(after, Earliest);
    // A time of the day before may be filled in behind a gap, up to the whole day that a zone skipped.
    const sys_days today = localDay(zone, after);
    const sys_days horizon = today + days(HorizonYears * 366);
    for (sys_days day = today - days(1); day < horizon;) {
        const year_month_day date(day);
        if (!holds(rule.months, unsigned(date.month()))) {
            day = startOfNextMonth(date);
            continue;
        }
        const auto found = matches(rule, date) ? firstOfDay(rule, zone, day, after) : std::nullopt;
        day += days(1);
        if (!found)
            continue;
        // For the same reason a time of the day that follows may come first.
        const year_month_day following(day);
        const bool another = holds(rule.months, unsigned(following.month())) && matches(rule, following);
        return another ? earliest(found, firstOfDay(rule, zone, day, after)) : found;
    }
    return std::nullopt;
}

} // namespace Astel::Timed::Rules
