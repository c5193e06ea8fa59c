// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <memory>
#include <QColor>
#include <QFont>
#include <QGlyphRun>
#include <QRectF>
#include <QStaticText>
#include <QString>

class QPainter;

namespace Touch {

struct Style;

/** A text made ready for painting: shaped, elided or wrapped once, and drawn cheaply from then on. */
class PreparedText
{
public:
    /**
     * What is done about a text that is too wide. What the user's size of text has enlarged is rather drawn in the
     * designed size than elided; one that shrinks may get smaller than that, too.
     */
    enum class Fit { Elide, Shrink, Clip, Wrap };

    void setText(const QString &text);
    void setStyle(const Style &style);
    /** For Wrap, how the lines lie in the text's width. */
    void setFit(Fit fit, Qt::Alignment lines = {});

    /** It is drawn no larger than that, whatever room there is; 0 for no limit. */
    void setLargestPixelSize(int pixels);
    /** How large it would be drawn in this width without that limit. */
    int fittedPixelSize(qreal width) const { return fittedFont(width).pixelSize(); }

    const QString &text() const { return m_text; }
    bool isRightToLeft() const { return m_text.isRightToLeft(); }
    /** The size of the whole text; wrapped if the width is 0 or more and it wraps. */
    QSizeF naturalSize(qreal width = -1) const;
    /** The narrowest that still says something. */
    qreal minimumWidth() const;
    /** Whether all of it is seen in a place of this size. */
    bool fits(const QSizeF &size) const;
    void draw(QPainter *painter, const QRectF &rect, Qt::Alignment alignment, const QColor &color) const;

private:
    void prepare(qreal width) const;
    QFont fittedFont(qreal width) const;
    qreal smallestShare() const;
    bool isTabular() const;

    QString m_text;
    QFont m_font;
    qreal m_designedShare = 1;
    bool m_hasTabularDigits = false;
    int m_largestPixelSize = 0;
    Fit m_fit = Fit::Elide;
    Qt::Alignment m_lines;

    // Cached for one width
    mutable qreal m_width = -1;
    mutable QFont m_fittedFont;
    mutable QSizeF m_size;
    mutable QStaticText m_static;
    mutable QGlyphRun m_glyphs;
};

} // namespace Touch
