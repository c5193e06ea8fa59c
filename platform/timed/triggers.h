// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/timed/eventbook.h"

namespace Astel::Timed {

namespace Rules {
class Zone;
}

/** The coming triggers, soonest first; a recurring event comes as often as it falls among the first "count". */
QList<Wire::Trigger> nextTriggers(const EventBook::Events &events, const Rules::Zone &zone, quint32 count);

} // namespace Astel::Timed
