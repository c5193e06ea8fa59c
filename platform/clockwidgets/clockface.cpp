// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/clockwidgets/clockface_p.h"

#include "platform/clockwidgets/circle_p.h"

#include <QPainter>
#include <QPainterPath>
#include <QtMath>

namespace {

// Room around the face for its shadow, as a part of the radius.
constexpr qreal ShadowRoom = 0.08;
// The size of a numeral, as a part of the radius, at which it still stands clear of the hands' middle.
constexpr qreal LargestNumeral = 0.23;

void paintShadow(QPainter &painter, qreal radius)
{
    const qreal outer = radius * (1 + ShadowRoom);
    QRadialGradient shadow(QPointF(0, radius * 0.025), outer);
    shadow.setColorAt(radius / outer * 0.97, QColor(0, 0, 0, 30));
    shadow.setColorAt(1, Qt::transparent);
    painter.setPen(Qt::NoPen);
    painter.setBrush(shadow);
    painter.drawEllipse(QPointF(), outer, outer);
}

} // namespace

void ClockFace::setLook(const Look &look)
{
    m_look = look;
    m_dial = QPixmap();
}

void ClockFace::setNumerals(const QStringList &numerals)
{
    m_numerals = numerals;
    m_dial = QPixmap();
}

void ClockFace::paint(QPainter &painter, const QPointF &centre, qreal diameter, const QTime &time, bool withSeconds)
{
    const qreal ratio = painter.device()->devicePixelRatioF();
    if (m_dial.isNull() || m_dialDiameter != diameter || m_dial.devicePixelRatio() != ratio) {
        m_dial = makeDial(diameter, ratio);
        m_dialDiameter = diameter;
    }
    const qreal side = m_dial.width() / ratio;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(centre);
    painter.drawPixmap(QPointF(-side / 2, -side / 2), m_dial);

    const qreal radius = diameter / 2;
    const qreal seconds = withSeconds ? time.second() : 0;
    const qreal minutes = time.minute() + seconds / 60;
    const qreal hours = time.hour() % 12 + minutes / 60;
    paintHand(painter, hours * 30, 0, radius * 0.5, qMax(4.0, radius * 0.062), m_look.hands);
    paintHand(painter, minutes * 6, 0, radius * 0.76, qMax(3.0, radius * 0.042), m_look.hands);
    if (withSeconds)
        paintHand(painter, seconds * 6, radius * 0.16, radius * 0.84, qMax(1.5, radius * 0.016), m_look.accent);
    painter.setPen(QPen(m_look.face, 2));
    painter.setBrush(m_look.accent);
    painter.drawEllipse(QPointF(), radius * 0.055, radius * 0.055);
    painter.restore();
}

void ClockFace::paintHand(QPainter &painter, qreal angle, qreal tail, qreal length, qreal width,
                          const QColor &color) const
{
    painter.setPen(QPen(color, width, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(onCircle(angle + 180, tail), onCircle(angle, length));
}

QPixmap ClockFace::makeDial(qreal diameter, qreal devicePixelRatio) const
{
    const qreal radius = diameter / 2;
    const int side = qCeil(diameter * (1 + ShadowRoom) + 2);
    QPixmap dial(QSize(side, side) * devicePixelRatio);
    dial.setDevicePixelRatio(devicePixelRatio);
    dial.fill(Qt::transparent);
    QPainter painter(&dial);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(side / 2.0, side / 2.0);
    paintShadow(painter, radius);
    QLinearGradient light(0, -radius, 0, radius);
    light.setColorAt(0, m_look.face.lighter(106));
    light.setColorAt(1, m_look.face);
    painter.setPen(QPen(m_look.rim, 1.5));
    painter.setBrush(light);
    painter.drawEllipse(QPointF(), radius - 1, radius - 1);
    paintTicks(painter, radius);
    paintNumerals(painter, radius);
    return dial;
}

void ClockFace::paintTicks(QPainter &painter, qreal radius) const
{
    QColor faint = m_look.ticks;
    faint.setAlphaF(faint.alphaF() * 0.55F);
    for (int minute = 0; minute < 60; ++minute) {
        const bool isHour = minute % 5 == 0;
        const qreal outer = radius * 0.925;
        const qreal inner = outer - radius * (isHour ? 0.07 : 0.03);
        painter.setPen(QPen(isHour ? m_look.ticks : faint, isHour ? 2.5 : 1.25, Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(onCircle(minute * 6, inner), onCircle(minute * 6, outer));
    }
}

void ClockFace::paintNumerals(QPainter &painter, qreal radius) const
{
    QFont font = m_look.numerals;
    font.setPixelSize(qMin(font.pixelSize(), qRound(radius * LargestNumeral)));
    painter.setFont(font);
    painter.setPen(m_look.numeralColor);
    const QSizeF box(radius * 0.4, radius * 0.3);
    for (int i = 0; i < m_numerals.size(); ++i) {
        const QPointF place = onCircle(i * 90, radius * 0.69);
        const QRectF rect(place - QPointF(box.width() / 2, box.height() / 2), box);
        painter.drawText(rect, Qt::AlignCenter, m_numerals[i]);
    }
}
