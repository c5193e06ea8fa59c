// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timed/rules/nextmoment.h"
#include "platform/timed/rules/zone.h"

#include <benchmark/benchmark.h>

using namespace Astel::Timed::Rules;

namespace {

constexpr qint64 Now = 1774699200; // 28 March 2026, noon
constexpr qint64 Week = 7 * 86400;

Rule weekdays(int hour, int minute)
{
    return {1u << hour, Q_UINT64_C(1) << minute, 0x3e, 0xfffffffeu, 0x1ffeu, true};
}

/** An alarm on weekdays, asked for from moments all over the next ten years. */
void weekdayAlarm(benchmark::State &state)
{
    const Zone zone = *Zone::create("Europe/Berlin");
    const Rule rule = weekdays(7, 0);
    qint64 after = Now;
    for (auto _ : state) {
        benchmark::DoNotOptimize(nextMoment(rule, zone, after));
        after = Now + (after - Now + 100003) % (520 * Week);
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(weekdayAlarm);

/** The same over the night in which the clocks go forward. */
void alarmInAGap(benchmark::State &state)
{
    const Zone zone = *Zone::create("Europe/Berlin");
    Rule rule = weekdays(2, 30);
    rule.daysOfWeek = 0x7f;
    for (auto _ : state)
        benchmark::DoNotOptimize(nextMoment(rule, zone, Now));
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(alarmInAGap);

/** The longest search: a date that never comes. */
void never(benchmark::State &state)
{
    const Zone zone = *Zone::create("Europe/Berlin");
    Rule rule = weekdays(7, 0);
    rule.daysOfMonth = 1u << 30;
    rule.months = 1u << 2;
    for (auto _ : state)
        benchmark::DoNotOptimize(nextMoment(rule, zone, Now));
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(never);

} // namespace

BENCHMARK_MAIN();
