// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>

namespace Tones {

/** The title in a file's tags; empty where there is none or the file cannot be read. */
[[nodiscard]] QString titleOf(const QString &path);

} // namespace Tones
