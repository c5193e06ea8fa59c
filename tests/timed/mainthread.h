// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QtGlobal>

/** How long nobody may keep the daemon's main thread, which answers every caller, in milliseconds of its work. */
#ifdef __SANITIZE_ADDRESS__
inline constexpr double LongestWork = 500;
#else
inline constexpr double LongestWork = 50;
#endif

/** Milliseconds of work that the main thread of a process has done so far; 0 where that cannot be read. */
double mainThreadWork(qint64 process);
