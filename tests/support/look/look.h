// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

namespace Support {

/** Gives widgets the look that they have in the application; texts stay the names they are looked up by. */
[[nodiscard]] bool loadLook();

} // namespace Support
