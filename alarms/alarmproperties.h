// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "alarms/qmalarmevent.h"

namespace Clock {

/** What an alarm is sorted by, with its record. */
struct AlarmProperties
{
    quint32 cookie = QmAlarmEvent::NotStored;
    quint64 nextTrigger = 0; ///< in the unit of the record's own
    bool enabled = false;
    QmAlarmEvent event;
    QTime alarmTime;
};

/**
 * The order of the list: alarms that are switched on, soonest first, then the others by their time of day. Alarms that
 * are alike in this have no order among them.
 */
struct SortTrigger
{
    bool operator()(AlarmProperties a, AlarmProperties b) const; // NOLINT(performance-unnecessary-value-param)
};

} // namespace Clock
