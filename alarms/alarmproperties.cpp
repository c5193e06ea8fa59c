// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "alarms/alarmproperties.h"

namespace Clock {

namespace {

int milliseconds(const QTime &time)
{
    // Qt counts a null time like midnight; here it comes before.
    return time.isNull() ? -1 : time.msecsSinceStartOfDay();
}

} // namespace

bool SortTrigger::operator()(AlarmProperties a, AlarmProperties b) const // NOLINT(performance-unnecessary-value-param)
{
    if (a.enabled != b.enabled)
        return a.enabled;
    if (a.enabled)
        return a.nextTrigger < b.nextTrigger;
    return milliseconds(a.alarmTime) < milliseconds(b.alarmTime);
}

} // namespace Clock
