// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/text_p.h"

#include "platform/toolkit/style.h"

#include <algorithm>
#include <cmath>
#include <QFontMetricsF>
#include <QPainter>
#include <QRawFont>
#include <QTextLayout>
#include <QTextOption>
#include <QtMath>

namespace Touch {

namespace {

constexpr ushort firstComplexCharacter = 0x0250;
/** How small, as a share of its designed size, a text gets to fit. */
constexpr qreal smallestDesignedShare = 0.7;
constexpr qreal endless = 1'000'000;

/** Glyphs of a plain text in which each digit takes the width of the widest digit. */
QGlyphRun tabularGlyphs(const QString &text, const QFont &font, qreal *width)
{
    const QRawFont raw = QRawFont::fromFont(font);
    const QList<quint32> digits = raw.glyphIndexesForString(QStringLiteral("0123456789"));
    qreal digitWidth = 0;
    const QList<QPointF> digitAdvances = raw.advancesForGlyphIndexes(digits);
    for (const QPointF &advance : digitAdvances)
        digitWidth = qMax(digitWidth, advance.x());
    const QList<quint32> indexes = raw.glyphIndexesForString(text);
    const QList<QPointF> advances = raw.advancesForGlyphIndexes(indexes);
    QList<QPointF> positions;
    qreal x = 0;
    for (int i = 0; i < indexes.size(); ++i) {
        const bool isDigit = text[i].isDigit();
        positions.append({isDigit ? x + (digitWidth - advances[i].x()) / 2 : x, raw.ascent()});
        x += (isDigit ? digitWidth : advances[i].x()) + font.letterSpacing();
    }
    *width = x;
    QGlyphRun run;
    run.setRawFont(raw);
    run.setGlyphIndexes(indexes);
    run.setPositions(positions);
    return run;
}

bool isPlain(const QString &text)
{
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c.unicode() < firstComplexCharacter; });
}

/** As wide as it is drawn: of scripts that come from several fonts the metrics alone say too little. */
qreal widthOf(const QString &text, const QFont &font)
{
    if (isPlain(text))
        return QFontMetricsF(font).horizontalAdvance(text);
    QTextLayout layout(text, font);
    layout.beginLayout();
    QTextLine line = layout.createLine();
    line.setLineWidth(endless);
    layout.endLayout();
    return line.naturalTextWidth();
}

} // namespace

void PreparedText::setText(const QString &text)
{
    m_text = text;
    m_width = -1;
}

void PreparedText::setStyle(const Style &style)
{
    m_font = style.font();
    m_designedShare = style.designedPixelSize > 0 ? qMin(1.0, qreal(style.designedPixelSize) / style.pixelSize) : 1;
    m_hasTabularDigits = style.tabularDigits;
    m_width = -1;
}

void PreparedText::setFit(Fit fit, Qt::Alignment lines)
{
    m_fit = fit;
    m_lines = lines;
    m_width = -1;
}

void PreparedText::setLargestPixelSize(int pixels)
{
    m_largestPixelSize = pixels;
    m_width = -1;
}

bool PreparedText::isTabular() const
{
    return m_hasTabularDigits && m_fit != Fit::Wrap && !m_text.isEmpty() && isPlain(m_text);
}

QSizeF PreparedText::naturalSize(qreal width) const
{
    if (m_fit == Fit::Wrap && width >= 0) {
        prepare(width);
        return {width, std::ceil(m_size.height())};
    }
    qreal natural = 0;
    if (isTabular())
        tabularGlyphs(m_text, m_font, &natural);
    else
        natural = widthOf(m_text, m_font);
    // Lines are broken in fractions of a pixel, and must not be in a place as wide as was asked for.
    if (m_fit == Fit::Wrap)
        natural += 1;
    return {std::ceil(natural), std::ceil(QFontMetricsF(m_font).height())};
}

qreal PreparedText::minimumWidth() const
{
    const qreal ellipsis = std::ceil(QFontMetricsF(m_font).horizontalAdvance(QChar(0x2026)));
    return m_fit == Fit::Clip ? naturalSize().width() : qMin(ellipsis, naturalSize().width());
}

bool PreparedText::fits(const QSizeF &size) const
{
    const QSizeF natural = naturalSize(size.width());
    return natural.width() * smallestShare() <= std::ceil(size.width()) && natural.height() <= std::ceil(size.height());
}

QFont PreparedText::fittedFont(qreal width) const
{
    QFont font = m_font;
    const qreal natural = naturalSize().width();
    if (smallestShare() < 1 && natural > width)
        font.setPixelSize(qFloor(font.pixelSize() * qMax(smallestShare(), width / natural)));
    return font;
}

qreal PreparedText::smallestShare() const
{
    switch (m_fit) {
    case Fit::Elide:
        return m_designedShare;
    case Fit::Shrink:
        return m_designedShare * smallestDesignedShare;
    default:
        return 1;
    }
}

void PreparedText::prepare(qreal width) const
{
    if (m_width == width)
        return;
    m_width = width;
    m_glyphs = {};
    m_fittedFont = fittedFont(width);
    if (m_largestPixelSize > 0)
        m_fittedFont.setPixelSize(qMin(m_fittedFont.pixelSize(), m_largestPixelSize));
    const QFontMetricsF metrics(m_fittedFont);
    if (isTabular()) {
        qreal natural = 0;
        m_glyphs = tabularGlyphs(m_text, m_fittedFont, &natural);
        m_size = {natural, metrics.height()};
        if (m_fit == Fit::Clip || natural <= width)
            return;
        m_glyphs = {};
    }
    const bool elides = (m_fit == Fit::Elide || m_fit == Fit::Shrink) && widthOf(m_text, m_fittedFont) > width;
    m_static.setText(elides ? metrics.elidedText(m_text, Qt::ElideRight, width) : m_text);
    m_static.setTextFormat(Qt::PlainText);
    QTextOption option;
    option.setWrapMode(m_fit == Fit::Wrap ? QTextOption::WrapAtWordBoundaryOrAnywhere : QTextOption::NoWrap);
    option.setAlignment(m_lines);
    m_static.setTextOption(option);
    m_static.setTextWidth(m_fit == Fit::Wrap ? width : -1);
    m_static.prepare(QTransform(), m_fittedFont);
    m_size = m_static.size();
}

void PreparedText::draw(QPainter *painter, const QRectF &rect, Qt::Alignment alignment, const QColor &color) const
{
    if (m_text.isEmpty())
        return;
    prepare(rect.width());
    QPointF at = rect.topLeft();
    if (m_fit != Fit::Wrap && (alignment & Qt::AlignRight))
        at.rx() += rect.width() - m_size.width();
    else if (m_fit != Fit::Wrap && (alignment & Qt::AlignHCenter))
        at.rx() += (rect.width() - m_size.width()) / 2;
    if (alignment & Qt::AlignBottom)
        at.ry() += rect.height() - m_size.height();
    else if (!(alignment & Qt::AlignTop))
        at.ry() += (rect.height() - m_size.height()) / 2;
    at = {std::round(at.x()), std::round(at.y())};
    painter->setPen(color);
    painter->setFont(m_fittedFont);
    if (m_glyphs.isEmpty())
        painter->drawStaticText(at, m_static);
    else
        painter->drawGlyphRun(at, m_glyphs);
}

} // namespace Touch
