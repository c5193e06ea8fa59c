// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/tones/tonefiles.h"

#include <QString>

namespace Tones {

/** Asks for the address, time and size of every file that the store knows. */
[[nodiscard]] QString allFilesQuery();
/** Makes the store know a file; it counts as a piece of music only where it has a title to be found by. */
[[nodiscard]] QString insertion(const QString &path, const FileState &state, const QString &title);
[[nodiscard]] QString removal(const QString &path);

[[nodiscard]] QString addressOf(const QString &path);
[[nodiscard]] QString pathOf(const QString &address);

} // namespace Tones
