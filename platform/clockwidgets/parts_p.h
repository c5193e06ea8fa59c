// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <memory>
#include <QRectF>

class QPainter;
class QString;
struct TimeText;

namespace Touch {
struct Style;
class Widget;
} // namespace Touch

// The clock widgets paint several texts each; every one has a style of its own in the theme.

/// The looks of a time of day: of its digits, and of the half of the day beside them.
struct TimeLook
{
    std::shared_ptr<const Touch::Style> digits;
    std::shared_ptr<const Touch::Style> marker;
};

/// Adds the looks of the clock widgets to the theme; called by each of them before it asks for a style.
void loadClockTheme();
std::shared_ptr<const Touch::Style> partStyle(const Touch::Widget &widget, const QString &styleName);
/// Where a place of a widget lies in the widget's direction.
QRectF mirroredIn(const Touch::Widget &widget, const QRectF &place);
qreal textWidth(const Touch::Style &style, const QString &text);
qreal timeWidth(const TimeLook &look, const TimeText &text);
/// In a place as wide as timeWidth(), with the half of the day on the digits' baseline.
void drawTime(QPainter &painter, const QRectF &place, const TimeLook &look, const TimeText &text);
/// One line in a place that does not grow with the user's size of text: no larger than a share of its height.
void drawBounded(QPainter &painter, const QRectF &rect, const Touch::Style &style, const QString &text,
                 qreal largestShare);
/// How high a text is that is wrapped to this width.
qreal wrappedHeight(const Touch::Style &style, const QString &text, qreal width);
/// As many lines as wrappedHeight() is for.
void drawWrapped(QPainter &painter, const QRectF &rect, Qt::Alignment alignment, const Touch::Style &style,
                 const QString &text);
/// One line, elided where it is too long; digits of equal width, where the style says so, are centred.
void drawPart(QPainter &painter, const QRectF &rect, Qt::Alignment alignment, const Touch::Style &style,
              const QString &text);
