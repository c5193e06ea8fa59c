// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <filesystem>

namespace Rtc {

/** The alarm that turns the device on is set this many seconds before the moment, for the time that it takes. */
inline constexpr long long Lead = 120;
/** An alarm nearer than this many seconds would be over before the device is off. */
inline constexpr long long Shortest = 60;

/** When the device is to be turned on for a moment; both, and "now", in seconds since the epoch. */
long long wakeTime(long long moment, long long now);

/**
 * Sets the alarm of a hardware clock, a folder with the files of the kernel's interface. A clock that does not run on
 * UTC, or was never set, gets the moment in its own time. False, with a line on the error stream, where that fails.
 */
[[nodiscard]] bool setWakeAlarm(const std::filesystem::path &clock, long long wake, long long now);

} // namespace Rtc
