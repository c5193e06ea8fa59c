// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/style.h"

namespace Touch {

QFont Style::font() const
{
    QFont font;
    font.setFamilies(fontFamilies);
    font.setPixelSize(pixelSize);
    font.setWeight(QFont::Weight(weight));
    if (letterSpacing != 0)
        font.setLetterSpacing(QFont::AbsoluteSpacing, letterSpacing);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

} // namespace Touch
