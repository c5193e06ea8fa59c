// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/clockwidgets/clockhand_p.h"

#include <memory>
#include <QPixmap>
#include <QPointF>
#include <QRectF>
#include <QStringList>

class QPainter;

namespace Touch {
struct Style;
class Widget;
} // namespace Touch

/// The picture of a time picker: two rings, minutes outside and hours inside, and the halves of the day in the middle.
/// Knows where everything is. What stands still is kept as pictures; only arcs and handles are painted every time.
class PickerDial
{
public:
    struct Texts
    {
        QStringList hours;   ///< twelve, from the top
        QStringList minutes; ///< every fifth, from the top
        QStringList halves;  ///< of the day
    };
    struct Handle
    {
        qreal angle = 0; ///< degrees from the top, clockwise
        QString text;
        bool isTouched = false;
        bool hasFocus = false;
    };

    void setStyle(const Touch::Widget &widget);
    void setTexts(const Texts &texts);
    void setHalf(int half);
    void setRect(const QRectF &rect);

    QPointF centre() const { return m_centre; }
    QPointF handlePlace(ClockHand hand, qreal angle) const;
    /// What a touch belongs to, with room for a finger around the handles.
    ClockHand handAt(const QPointF &point, qreal hourAngle, qreal minuteAngle) const;
    bool isNearHandle(ClockHand hand, qreal angle, const QPointF &point) const;
    bool isMiddle(const QPointF &point) const;
    /// Degrees from the top, clockwise.
    qreal angleAt(const QPointF &point) const;
    /// Too near to the middle to say an angle.
    bool isAngleClear(const QPointF &point) const;

    void paint(QPainter &painter, const Handle &hour, const Handle &minute);

private:
    qreal ringRadius(ClockHand hand) const;
    qreal ringWidth() const { return m_radius * 0.28; }
    using PaintRing = void (PickerDial::*)(QPainter &, ClockHand) const;
    QPixmap makePicture(qreal devicePixelRatio, PaintRing paintPart) const;
    void paintRing(QPainter &painter, ClockHand hand) const;
    void paintNumbers(QPainter &painter, ClockHand hand) const;
    void paintHalves(QPainter &painter) const;
    void paintArc(QPainter &painter, ClockHand hand, qreal angle) const;
    void paintHandle(QPainter &painter, ClockHand hand, const Handle &handle) const;

    std::shared_ptr<const Touch::Style> m_look;
    std::shared_ptr<const Touch::Style> m_hourLook;
    std::shared_ptr<const Touch::Style> m_minuteLook;
    std::shared_ptr<const Touch::Style> m_handleLook;
    std::shared_ptr<const Touch::Style> m_halfLook;
    std::shared_ptr<const Touch::Style> m_halfNowLook;
    Texts m_texts;
    int m_half = 0;
    QPointF m_centre;
    qreal m_radius = 0;

    // What stands still, below and above the arcs
    QPixmap m_rings;
    QPixmap m_numbers;
};
