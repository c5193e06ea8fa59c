// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "alarms/currenttime_p.h"

namespace Clock {

namespace {

TimeSource source = &QDateTime::currentDateTime;

} // namespace

QDateTime currentTime()
{
    return source();
}

void setTimeSource(TimeSource newSource)
{
    source = newSource ? newSource : &QDateTime::currentDateTime;
}

} // namespace Clock
