// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>

namespace Ringer {

/**
 * Why a tone would not be heard, as the end of a sentence ("is missing"); empty when it would be. Decodes the
 * beginning of the tone without sounding it. Blocks for two seconds at most; may be called from any thread.
 */
[[nodiscard]] QString probeTone(const QString &tone);

} // namespace Ringer
