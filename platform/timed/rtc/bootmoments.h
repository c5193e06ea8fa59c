// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <filesystem>
#include <optional>

namespace Rtc {

/**
 * The earliest moment later than "now", in seconds since the epoch, that any user's alarm daemon asks to have the
 * device on for; nothing where there is none. The folder is open to all users, so a file counts only if it is a plain
 * one, bears the number of its owner as its name and holds one sensible number; any other is reported and ignored.
 */
std::optional<long long> nextBootMoment(const std::filesystem::path &folder, long long now);

} // namespace Rtc
