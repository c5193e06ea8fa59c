// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <chrono>

namespace Ringer {

/** How long a tone takes from quiet to full. */
inline constexpr std::chrono::milliseconds RiseTime{30'000};

/** The amplitude, 0.15 to 1, of a tone that has been heard for so long; it grows evenly to the ear. */
[[nodiscard]] double riseVolume(std::chrono::milliseconds heard, std::chrono::milliseconds riseTime = RiseTime);

} // namespace Ringer
