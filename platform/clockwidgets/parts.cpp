// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/clockwidgets/parts_p.h"

#include "platform/clockwidgets/timetext_p.h"
#include "platform/locale/locale.h"
#include "platform/toolkit/theme.h"
#include "platform/toolkit/widget.h"
#include "platform/toolkit/window.h"

#include <algorithm>
#include <limits>
#include <QFontMetricsF>
#include <QPainter>
#include <QStyle>

using Touch::Style;

namespace {

// Digits and what stands between them; anything else is shaped as a whole.
bool isTabular(const Style &style, const QString &text)
{
    return style.tabularDigits && std::all_of(text.begin(), text.end(), [](QChar c) { return !c.isLetter(); });
}

qreal cellWidth(const QFontMetricsF &metrics, QChar c)
{
    if (!c.isDigit())
        return metrics.horizontalAdvance(c);
    const char16_t zero = char16_t(c.unicode() - c.digitValue());
    qreal widest = 0;
    for (char16_t digit = zero; digit < zero + 10; ++digit)
        widest = qMax(widest, metrics.horizontalAdvance(QChar(digit)));
    return widest;
}

// Placed by the direction of the layout, written in its own.
void drawText(QPainter &painter, const QRectF &rect, Qt::Alignment alignment, Qt::TextFlag lines, const QString &text)
{
    const Qt::LayoutDirection layout = painter.layoutDirection();
    const Qt::Alignment absolute = QStyle::visualAlignment(layout, alignment) | Qt::AlignAbsolute;
    painter.setLayoutDirection(Touch::Locale::directionForText(text));
    painter.drawText(rect, int(absolute) | lines, text);
    painter.setLayoutDirection(layout);
}

} // namespace

void loadClockTheme()
{
    static bool loading = false;
    if (loading)
        return;
    // Loading announces a changed theme, on which a list may make its first row and come here again.
    loading = true;
    QString error;
    const bool ok = Touch::Theme::instance().load(QStringLiteral(":/theme/clockwidgets.json"), &error,
                                                  Touch::Theme::Layer::Widgets);
    // The file is built in; a test reads it.
    Q_ASSERT_X(ok, "loadClockTheme", qPrintable(error));
    Q_UNUSED(ok)
}

std::shared_ptr<const Style> partStyle(const Touch::Widget &widget, const QString &styleName)
{
    const Touch::Window *window = widget.hostWindow();
    return Touch::Theme::instance().style(styleName, {}, &Touch::Widget::staticMetaObject,
                                          window && window->isInverted());
}

QRectF mirroredIn(const Touch::Widget &widget, const QRectF &place)
{
    if (widget.layoutDirection() != Qt::RightToLeft)
        return place;
    return {widget.size().width() - place.right(), place.top(), place.width(), place.height()};
}

qreal textWidth(const Style &style, const QString &text)
{
    const QFontMetricsF metrics(style.font());
    if (!isTabular(style, text))
        return metrics.horizontalAdvance(text);
    qreal width = 0;
    for (const QChar c : text)
        width += cellWidth(metrics, c);
    return width;
}

void drawPart(QPainter &painter, const QRectF &rect, Qt::Alignment alignment, const Style &style, const QString &text)
{
    // Rather as small as designed than cut off.
    const bool isEnlarged = style.designedPixelSize > 0 && style.pixelSize > style.designedPixelSize;
    const QFont font = isEnlarged ? style.fittedFont(text, rect.width()) : style.font();
    painter.setFont(isTabular(style, text) ? style.font() : font);
    painter.setPen(style.color);
    if (!isTabular(style, text)) {
        const QFontMetricsF metrics(font);
        drawText(painter, rect, alignment, Qt::TextSingleLine, metrics.elidedText(text, Qt::ElideRight, rect.width()));
        return;
    }
    const QFontMetricsF metrics(style.font());
    QRectF cell(rect.center().x() - textWidth(style, text) / 2, rect.top(), 0, rect.height());
    for (const QChar c : text) {
        cell.setWidth(cellWidth(metrics, c));
        painter.drawText(cell, Qt::AlignCenter | Qt::TextDontClip, QString(c));
        cell.moveLeft(cell.right());
    }
}

qreal timeWidth(const TimeLook &look, const TimeText &text)
{
    const qreal marker = text.marker.isEmpty() ? 0 : look.marker->spacing + textWidth(*look.marker, text.marker) + 1;
    return textWidth(*look.digits, text.digits) + 1 + marker;
}

void drawTime(QPainter &painter, const QRectF &place, const TimeLook &look, const TimeText &text)
{
    QRectF digits = place;
    digits.setWidth(textWidth(*look.digits, text.digits) + 1);
    const bool isMarkerLeft = text.markerFirst != (painter.layoutDirection() == Qt::RightToLeft);
    if (isMarkerLeft)
        digits.moveRight(place.right());
    drawPart(painter, digits, Qt::AlignCenter, *look.digits, text.digits);
    if (text.marker.isEmpty())
        return;
    const QFontMetricsF digitMetrics(look.digits->font());
    const QFontMetricsF markerMetrics(look.marker->font());
    const qreal baseline = place.center().y() + (digitMetrics.ascent() - digitMetrics.descent()) / 2;
    QRectF marker(place.left(), baseline - markerMetrics.ascent(), textWidth(*look.marker, text.marker) + 1,
                  markerMetrics.height());
    if (!isMarkerLeft)
        marker.moveRight(place.right());
    drawPart(painter, marker, Qt::AlignCenter, *look.marker, text.marker);
}

qreal wrappedHeight(const Style &style, const QString &text, qreal width)
{
    const QRectF place(0, 0, width, std::numeric_limits<short>::max());
    return QFontMetricsF(style.font()).boundingRect(place, Qt::TextWordWrap, text).height();
}

void drawWrapped(QPainter &painter, const QRectF &rect, Qt::Alignment alignment, const Style &style,
                 const QString &text)
{
    painter.setFont(style.font());
    painter.setPen(style.color);
    drawText(painter, rect, alignment, Qt::TextWordWrap, text);
}

void drawBounded(QPainter &painter, const QRectF &rect, const Style &style, const QString &text, qreal largestShare)
{
    Style bounded = style;
    bounded.pixelSize = qMin(style.pixelSize, qRound(rect.height() * largestShare));
    drawPart(painter, rect, Qt::AlignCenter, bounded, text);
}
