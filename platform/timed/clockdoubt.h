// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/timed/eventbook.h"

#include <optional>
#include <set>

namespace Astel::Timed {

class Clock;
class Transitions;

/**
 * A clock that nothing kept going starts in 1970, or when the system was built. It is doubted from the start of the
 * daemon until it is set: stored moments stay as they are, for the clock may be put right at any time; but should it be
 * the stored moments that are wrong, an alarm rings when this clock reaches its time as well.
 */
class ClockDoubt
{
public:
    ClockDoubt(const EventBook &book, const Clock &clock, const Transitions &transitions);

    /** At the start of the daemon; true where the clock stands behind what has already happened. */
    bool begin();
    /** After the clock was set; true where that ends the doubt. Events that changed meanwhile are put right. */
    bool resolve(Change &change);
    explicit operator bool() const { return m_exists; }

    /** A client or time changed the event while the clock was doubted. */
    void touch(quint32 cookie);
    /** When an event rings: its own moment, or an earlier one by a doubted clock. */
    std::optional<qint64> moment(const AlarmEvent &event) const;

private:
    bool isWorthRinging(qint64 moment) const;
    bool isBehind() const;

    const EventBook &m_book;
    const Clock &m_clock;
    const Transitions &m_transitions;
    bool m_exists = false;
    std::set<quint32> m_touched;
};

} // namespace Astel::Timed
