// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/notices/notifier.h"
#include "platform/timed/miss.h"

namespace Astel::Timed {

namespace Rules {
class Zone;
}

/** What the user reads about missed alarms, at least one: what, when by the wall clock of the zone, and why. */
Notices::Notice missedNotice(const QList<Miss> &misses, const Rules::Zone &zone);

/** The cookie of the alarm that an action of such a notice asks to ring again. */
std::optional<quint32> cookieToRing(const QString &actionKey);

} // namespace Astel::Timed
