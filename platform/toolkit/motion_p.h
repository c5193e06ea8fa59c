// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

namespace Touch {

/** Whether the user wants changes without movement: CLOCK_REDUCED_MOTION is 1. */
bool hasReducedMotion();

} // namespace Touch
