// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timed/moments.h"

#include "platform/timed/rules/nextmoment.h"
#include "platform/timed/rules/zone.h"
#include "platform/timedclient/wire.h"

#include <algorithm>

namespace Astel::Timed {

namespace {

Rules::Rule toRule(const Wire::Recurrence &recurrence)
{
    return {recurrence.hours,       recurrence.minutes, recurrence.daysOfWeek,
            recurrence.daysOfMonth, recurrence.months,  recurrence.fillingGaps};
}

} // namespace

quint64 toNanoseconds(qint64 milliseconds)
{
    return quint64(std::max(milliseconds, Q_INT64_C(0))) * quint64(NanosecondsOfMillisecond);
}

std::optional<qint64> momentAfter(const Wire::Event &event, const Rules::Zone &zone, qint64 after)
{
    if (event.ticker == 0)
        return std::nullopt;
    std::optional<qint64> first;
    if (event.ticker > 0 && event.ticker * MillisecondsOfSecond > after)
        first = event.ticker * MillisecondsOfSecond;
    for (const Wire::Recurrence &recurrence : event.recurrences) {
        const auto seconds = Rules::nextMoment(toRule(recurrence), zone, after / MillisecondsOfSecond);
        if (seconds && (!first || *seconds * MillisecondsOfSecond < *first))
            first = *seconds * MillisecondsOfSecond;
    }
    return first;
}

} // namespace Astel::Timed
