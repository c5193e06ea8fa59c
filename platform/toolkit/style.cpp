// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/style.h"

#include "platform/locale/textscale.h"

#include <QFontMetricsF>
#include <QtMath>

namespace Touch {

namespace {

/** An icon beside a text keeps up with it, up to a point: it is a picture, not to be read. */
constexpr qreal maxIconFactor = 1.5;

void scaleHeight(QSizeF &size, qreal factor)
{
    if (size.height() > 0)
        size.rheight() *= factor;
}

} // namespace

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

QFont Style::fittedFont(const QString &text, qreal width) const
{
    QFont fitted = font();
    const qreal natural = QFontMetricsF(fitted).horizontalAdvance(text);
    if (designedPixelSize > 0 && natural > width)
        fitted.setPixelSize(qBound(designedPixelSize, qFloor(pixelSize * width / natural), pixelSize));
    return fitted;
}

void Style::scaleText(qreal factor)
{
    designedPixelSize = pixelSize;
    pixelSize = TextScale::pixelSize(designedPixelSize, factor);
    if (!scalesWithText)
        return;
    // The room above and below the text stays as it is.
    const qreal heightFactor = 1 + (factor - 1) / 2;
    scaleHeight(minimumSize, heightFactor);
    scaleHeight(preferredSize, heightFactor);
    scaleHeight(maximumSize, heightFactor);
    iconSize *= qMin(factor, maxIconFactor);
}

} // namespace Touch
