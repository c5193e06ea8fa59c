// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timed/triggers.h"

#include "platform/timed/moments.h"

#include <queue>

namespace Astel::Timed {

QList<Wire::Trigger> nextTriggers(const EventBook::Events &events, const Rules::Zone &zone, quint32 count)
{
    using Coming = std::pair<qint64, quint32>;
    std::priority_queue<Coming, std::vector<Coming>, std::greater<>> queue;
    for (const auto &[cookie, event] : events) {
        if (event.moment())
            queue.emplace(*event.moment(), cookie);
    }
    QList<Wire::Trigger> result;
    while (!queue.empty() && result.size() < count) {
        const auto [moment, cookie] = queue.top();
        queue.pop();
        result.append({cookie, toNanoseconds(moment)});
        const AlarmEvent &event = events.at(cookie);
        const auto next = event.has(Wire::SingleShot) ? std::nullopt : momentAfter(event.wire(), zone, moment);
        if (next)
            queue.emplace(*next, cookie);
    }
    return result;
}

} // namespace Astel::Timed
