// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>

namespace Support {

/** Writes a file that has a title, if it is not empty, and no sound; makes its folder. */
[[nodiscard]] bool writeTone(const QString &path, const QString &title);

} // namespace Support
