// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QColor>
#include <QFont>
#include <QMarginsF>
#include <QSizeF>
#include <QString>
#include <QStringList>

namespace Touch {

/**
 * What the theme says about one widget: a plain value, resolved from the theme's rules. Lengths are logical
 * pixels; a size below 0 is left to the widget. A colour that no rule gives is invalid and means "draw
 * nothing" for backgrounds and borders.
 */
struct Style
{
    // Type
    QStringList fontFamilies;
    int pixelSize = 17;
    int designedPixelSize = 0; ///< before the user's factor; 0 if there is none
    int weight = QFont::Normal;
    qreal letterSpacing = 0;
    bool tabularDigits = false; ///< all digits take the width of the widest one

    // Colours by state
    QColor color;
    QColor pressedColor;
    QColor checkedColor;
    QColor disabledColor;
    QColor background;
    QColor pressedBackground;
    QColor checkedBackground;
    QColor disabledBackground;
    QColor borderColor;
    QColor separatorColor; ///< the line between the rows of a list
    QColor focusColor;     ///< the ring around what has the keyboard focus
    QColor accentColor;    ///< selections, cursors, knobs
    QColor promptColor;    ///< a prompt in an empty field, a second line

    // Shape
    qreal borderWidth = 0;
    qreal radius = 0;
    QMarginsF padding; ///< between the edge and the content
    QMarginsF margins; ///< kept free around the widget by a layout
    qreal spacing = 0;
    QSizeF minimumSize{-1, -1};
    QSizeF preferredSize{-1, -1};
    QSizeF maximumSize{-1, -1};
    QSizeF iconSize{24, 24};
    bool scalesWithText = false; ///< the heights and the icon grow with the user's size of text
    Qt::Alignment alignment = Qt::AlignLeft | Qt::AlignVCenter;

    QFont font() const;
    /** The font; where that has enlarged a text past this width, as large as fits, but not smaller than designed. */
    QFont fittedFont(const QString &text, qreal width) const;
    /** Makes text larger by the user's factor, large text by less of it; see scalesWithText. */
    void scaleText(qreal factor);
};

} // namespace Touch
