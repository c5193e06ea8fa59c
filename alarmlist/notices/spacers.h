// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

namespace Touch {
class Separator;
}

// Empty separators between header rows and lists. They come without a parent; the caller's layout takes them.
[[nodiscard]] Touch::Separator *createSpacer();
[[nodiscard]] Touch::Separator *createLargeSpacer();
