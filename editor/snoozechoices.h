// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <array>

/** The snooze times that can be chosen, in minutes and ascending; the place of each is that in the list of choices. */
inline constexpr std::array<int, 5> SnoozeChoices{5, 10, 15, 20, 30};
