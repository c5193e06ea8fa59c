// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

namespace Touch {

/** Whether transitions are left out: CLOCK_REDUCED_MOTION says so by 1 and denies it by 0, otherwise the desktop does. */
bool hasReducedMotion();

} // namespace Touch
