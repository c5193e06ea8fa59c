// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/ringer/volumerise.h"

#include <algorithm>
#include <cmath>

namespace Ringer {

double riseVolume(std::chrono::milliseconds heard, std::chrono::milliseconds riseTime)
{
    constexpr auto Quiet = 0.15;
    const auto part = std::clamp(double(heard.count()) / double(riseTime.count()), 0.0, 1.0);
    // Loudness follows the exponent of the amplitude.
    return std::pow(Quiet, 1.0 - part);
}

} // namespace Ringer
