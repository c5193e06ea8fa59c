// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/alarms/stoppedclock.h"

#include "alarms/currenttime_p.h"

namespace {

QDateTime moment;

} // namespace

StoppedClock::StoppedClock(const QDateTime &now)
{
    set(now);
    Clock::setTimeSource([] { return moment; });
}

StoppedClock::~StoppedClock()
{
    Clock::setTimeSource(nullptr);
}

void StoppedClock::set(const QDateTime &now)
{
    moment = now;
}
