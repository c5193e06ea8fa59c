// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <optional>
#include <QtGlobal>

namespace Astel::Timed::Rules {

class Zone;

/** Sets of wall-clock numbers as bits: bit n stands for hour, minute, weekday (0 is Sunday), day or month n. */
struct Rule
{
    quint32 hours = 0;
    quint64 minutes = 0;
    quint32 daysOfWeek = 0;
    quint32 daysOfMonth = 0; ///< bits 1 to 31
    quint32 months = 0;      ///< bits 1 to 12
    bool fillingGaps = false;

    bool operator==(const Rule &) const = default;
};

/**
 * The first moment strictly later than "after" at which the wall clock of the zone matches all five sets, in
 * seconds since the epoch. A local time that the zone skips is read with the offset in force before the gap
 * where the rule fills gaps, and left out otherwise; of a local time that comes twice only the first counts.
 * Nothing where the rule does not match within forty years, the longest wait there is (a 29 February on a
 * given weekday).
 */
[[nodiscard]] std::optional<qint64> nextMoment(const Rule &rule, const Zone &zone, qint64 after);

} // namespace Astel::Timed::Rules
