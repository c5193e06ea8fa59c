// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/clockwidgets/pickerdial_p.h"

#include "platform/clockwidgets/circle_p.h"
#include "platform/clockwidgets/parts_p.h"
#include "platform/toolkit/widget.h"

#include <cmath>
#include <QPainter>
#include <QtMath>

namespace {

// Half of the smallest place that a finger finds.
constexpr qreal TouchRadius = 30;
// Around a handle in use, as a part of its radius; it stays within the widget.
constexpr qreal HaloSize = 1.15;
// The size of a text, as a part of the height of its place.
constexpr qreal LargestShare = 0.5;

QRectF around(const QPointF &centre, qreal radius)
{
    return {centre.x() - radius, centre.y() - radius, radius * 2, radius * 2};
}

} // namespace

void PickerDial::setStyle(const Touch::Widget &widget)
{
    m_look = std::make_shared<Touch::Style>(widget.style());
    m_hourLook = partStyle(widget, QStringLiteral("TimePickerHour"));
    m_minuteLook = partStyle(widget, QStringLiteral("TimePickerMinute"));
    m_handleLook = partStyle(widget, QStringLiteral("TimePickerHandle"));
    m_halfLook = partStyle(widget, QStringLiteral("TimePickerHalf"));
    m_halfNowLook = partStyle(widget, QStringLiteral("TimePickerHalfNow"));
    m_rings = QPixmap();
}

void PickerDial::setTexts(const Texts &texts)
{
    m_texts = texts;
    m_rings = QPixmap();
}

void PickerDial::setHalf(int half)
{
    m_half = half;
}

void PickerDial::setRect(const QRectF &rect)
{
    m_centre = rect.center();
    m_radius = qMin(rect.width(), rect.height()) / 2;
    m_rings = QPixmap();
}

qreal PickerDial::ringRadius(ClockHand hand) const
{
    return m_radius * (hand == ClockHand::Minute ? 0.83 : 0.525);
}

QPointF PickerDial::handlePlace(ClockHand hand, qreal angle) const
{
    return m_centre + onCircle(angle, ringRadius(hand));
}

bool PickerDial::isNearHandle(ClockHand hand, qreal angle, const QPointF &point) const
{
    return QLineF(point, handlePlace(hand, angle)).length() <= qMax(TouchRadius, ringWidth() / 2);
}

ClockHand PickerDial::handAt(const QPointF &point, qreal hourAngle, qreal minuteAngle) const
{
    const qreal distance = QLineF(m_centre, point).length();
    const qreal border = (ringRadius(ClockHand::Hour) + ringRadius(ClockHand::Minute)) / 2;
    const ClockHand ring = distance > border ? ClockHand::Minute : ClockHand::Hour;
    // The handle of the ring under the finger goes before that of the other one.
    if (isNearHandle(ring, ring == ClockHand::Hour ? hourAngle : minuteAngle, point))
        return ring;
    return isMiddle(point) || distance > m_radius ? ClockHand::None : ring;
}

bool PickerDial::isMiddle(const QPointF &point) const
{
    return QLineF(m_centre, point).length() < ringRadius(ClockHand::Hour) - ringWidth() / 2;
}

bool PickerDial::isAngleClear(const QPointF &point) const
{
    return QLineF(m_centre, point).length() > m_radius * 0.1;
}

qreal PickerDial::angleAt(const QPointF &point) const
{
    const QPointF offset = point - m_centre;
    const qreal degrees = qRadiansToDegrees(std::atan2(offset.x(), -offset.y()));
    return degrees < 0 ? degrees + 360 : degrees;
}

void PickerDial::paint(QPainter &painter, const Handle &hour, const Handle &minute)
{
    const qreal ratio = painter.device()->devicePixelRatioF();
    if (m_rings.isNull() || m_rings.devicePixelRatio() != ratio) {
        m_rings = makePicture(ratio, &PickerDial::paintRing);
        m_numbers = makePicture(ratio, &PickerDial::paintNumbers);
    }
    const QPointF corner = around(m_centre, m_radius).topLeft();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.drawPixmap(corner, m_rings);
    paintArc(painter, ClockHand::Minute, minute.angle);
    paintArc(painter, ClockHand::Hour, hour.angle);
    painter.drawPixmap(corner, m_numbers);
    paintHalves(painter);
    paintHandle(painter, ClockHand::Minute, minute);
    paintHandle(painter, ClockHand::Hour, hour);
}

QPixmap PickerDial::makePicture(qreal devicePixelRatio, PaintRing paintPart) const
{
    const int side = qCeil(m_radius * 2);
    QPixmap picture(QSize(side, side) * devicePixelRatio);
    picture.setDevicePixelRatio(devicePixelRatio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(m_radius, m_radius);
    (this->*paintPart)(painter, ClockHand::Minute);
    (this->*paintPart)(painter, ClockHand::Hour);
    return picture;
}

void PickerDial::paintRing(QPainter &painter, ClockHand hand) const
{
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(hand == ClockHand::Minute ? m_look->background : m_look->checkedBackground, ringWidth()));
    painter.drawEllipse(QPointF(), ringRadius(hand), ringRadius(hand));
}

void PickerDial::paintNumbers(QPainter &painter, ClockHand hand) const
{
    const bool isMinute = hand == ClockHand::Minute;
    const QStringList &texts = isMinute ? m_texts.minutes : m_texts.hours;
    for (int i = 0; i < texts.size(); ++i) {
        const QRectF box = around(onCircle(i * 30, ringRadius(hand)), ringWidth() / 2);
        drawBounded(painter, box, isMinute ? *m_minuteLook : *m_hourLook, texts[i], LargestShare);
    }
}

void PickerDial::paintHalves(QPainter &painter) const
{
    const QSizeF size(m_radius * 0.46, m_radius * 0.19);
    for (int half = 0; half < m_texts.halves.size(); ++half) {
        const qreal top = m_centre.y() + (half - 1) * size.height();
        const QRectF box(QPointF(m_centre.x() - size.width() / 2, top), size);
        if (half == m_half) {
            painter.setPen(Qt::NoPen);
            painter.setBrush(m_look->pressedBackground);
            painter.drawRoundedRect(box, size.height() / 2, size.height() / 2);
        }
        drawBounded(painter, box, half == m_half ? *m_halfNowLook : *m_halfLook, m_texts.halves[half], LargestShare);
    }
}

void PickerDial::paintArc(QPainter &painter, ClockHand hand, qreal angle) const
{
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(m_look->pressedBackground, ringWidth(), Qt::SolidLine, Qt::RoundCap));
    // Qt counts sixteenths of a degree from three o'clock, anticlockwise.
    const qreal shown = std::fmod(std::fmod(angle, 360) + 360, 360);
    painter.drawArc(around(m_centre, ringRadius(hand)), 90 * 16, -qRound(shown * 16));
}

void PickerDial::paintHandle(QPainter &painter, ClockHand hand, const Handle &handle) const
{
    const QPointF place = handlePlace(hand, handle.angle);
    const qreal radius = ringWidth() / 2;
    if (handle.isTouched || handle.hasFocus) {
        QColor halo = m_look->accentColor;
        halo.setAlphaF(handle.isTouched ? 0.35F : 0);
        painter.setPen(handle.hasFocus ? QPen(m_look->focusColor, 2) : QPen(Qt::NoPen));
        painter.setBrush(halo);
        painter.drawEllipse(place, radius * HaloSize, radius * HaloSize);
    }
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 0, 40));
    painter.drawEllipse(place + QPointF(0, 1.5), radius - 0.5, radius - 0.5);
    painter.setBrush(m_look->accentColor);
    painter.drawEllipse(place, radius - 1, radius - 1);
    drawBounded(painter, around(place, radius), *m_handleLook, handle.text, LargestShare);
}
