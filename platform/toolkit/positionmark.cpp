// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/positionmark_p.h"

#include "platform/toolkit/motion_p.h"
#include "platform/toolkit/pannableviewport.h"

#include <QPainter>
#include <QTimerEvent>
#include <QVariantAnimation>

namespace Touch {

namespace {

constexpr int stayTime = 700;
constexpr int fadeTime = 250;
constexpr qreal thickness = 4;
constexpr qreal gap = 3; ///< to the edges
constexpr qreal shortest = 36;

} // namespace

PositionMark::PositionMark(PannableViewport *viewport, Qt::Orientation direction)
    : QGraphicsObject(viewport)
    , m_viewport(viewport)
    , m_direction(direction)
{
    setZValue(1);
    setVisible(false);
}

PositionMark::~PositionMark() = default;

QRectF PositionMark::bar() const
{
    const bool isVertical = m_direction == Qt::Vertical;
    const auto along = [isVertical](qreal x, qreal y) { return isVertical ? y : x; };
    const QSizeF seen = m_viewport->size();
    const qreal length = along(seen.width(), seen.height());
    const qreal range = along(m_viewport->range().x(), m_viewport->range().y());
    const qreal position = along(m_viewport->position().x(), m_viewport->position().y());
    if (range < 1)
        return {};
    const qreal track = length - 2 * gap;
    const qreal size = qMax(shortest, track * length / (length + range));
    const qreal from = gap + (track - size) * qBound(0.0, position / range, 1.0);
    const bool isMirrored = m_viewport->layoutDirection() == Qt::RightToLeft;
    if (isVertical)
        return {isMirrored ? gap : seen.width() - gap - thickness, from, thickness, size};
    return {isMirrored ? seen.width() - from - size : from, seen.height() - gap - thickness, size, thickness};
}

void PositionMark::follow()
{
    prepareGeometryChange();
    m_bar = bar();
    if (m_animation)
        m_animation->stop();
    setOpacity(1);
    setVisible(!m_bar.isEmpty());
    m_timer.start(stayTime, this);
}

void PositionMark::leave()
{
    m_timer.stop();
    if (m_animation)
        m_animation->stop();
    setVisible(false);
}

void PositionMark::fade()
{
    if (hasReducedMotion()) {
        leave();
        return;
    }
    if (!m_animation) {
        m_animation = new QVariantAnimation(this);
        m_animation->setDuration(fadeTime);
        m_animation->setStartValue(1.0);
        m_animation->setEndValue(0.0);
        connect(m_animation, &QVariantAnimation::valueChanged, this,
                [this](const QVariant &value) { setOpacity(value.toReal()); });
        connect(m_animation, &QVariantAnimation::finished, this, &PositionMark::leave);
    }
    m_animation->start();
}

void PositionMark::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != m_timer.timerId()) {
        QGraphicsObject::timerEvent(event);
        return;
    }
    m_timer.stop();
    fade();
}

void PositionMark::paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *)
{
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(m_viewport->style().accentColor);
    painter->drawRoundedRect(m_bar, thickness / 2, thickness / 2);
    painter->restore();
}

} // namespace Touch
