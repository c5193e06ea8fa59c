// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timedclient/wallclock.h"

namespace Astel::Timed::WallClock {

QDBusArgument &operator<<(QDBusArgument &argument, const Info &info)
{
    argument.beginStructure();
    argument << info.zone << info.secondsEastOfUtc << info.summerTime;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, Info &info)
{
    argument.beginStructure();
    argument >> info.zone >> info.secondsEastOfUtc >> info.summerTime;
    argument.endStructure();
    return argument;
}

} // namespace Astel::Timed::WallClock
