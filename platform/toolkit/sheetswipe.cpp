// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/sheetswipe_p.h"

#include "platform/toolkit/motion_p.h"
#include "platform/toolkit/moveclock_p.h"

#include <cmath>
#include <QVariantAnimation>
#include <utility>

namespace Touch {

namespace {

constexpr qreal threshold = 10;   ///< of a clear movement
constexpr qreal farEnough = 0.33; ///< as a share of the window's height
constexpr qreal fastEnough = 800; ///< pixels per second
constexpr qreal leastFlick = 48;  ///< how far even a fast finger has to go
constexpr qreal staleMove = 0.08; ///< seconds after which a resting finger has no speed
constexpr qreal smoothing = 0.6;
constexpr int slideTime = 200;

} // namespace

SheetSwipe::SheetSwipe(QObject *sheet)
    : QObject(sheet)
{ }

SheetSwipe::~SheetSwipe() = default;

void SheetSwipe::press(const QPointF &place)
{
    if (m_animation)
        m_animation->stop();
    m_isPressed = true;
    m_pressPlace = place;
}

bool SheetSwipe::moveTo(const QPointF &place)
{
    if (!m_isPressed)
        return false;
    const QPointF way = place - m_pressPlace;
    if (!m_isDrawing && way.y() >= threshold && way.y() > std::abs(way.x())) {
        m_isDrawing = true;
        m_velocity = 0;
        m_lastY = place.y();
        m_movedAt = moveTime();
        // What is not yet back in its place goes on from there.
        m_pressPlace.setY(place.y() - m_distance);
    }
    if (m_isDrawing)
        follow(place);
    return m_isDrawing;
}

void SheetSwipe::follow(const QPointF &place)
{
    const qint64 now = moveTime();
    const qreal seconds = qMax(0.001, (now - std::exchange(m_movedAt, now)) / 1000.0);
    m_velocity = m_velocity * (1 - smoothing) + (place.y() - std::exchange(m_lastY, place.y())) / seconds * smoothing;
    setDistance(qMax(0.0, place.y() - m_pressPlace.y()));
}

void SheetSwipe::abandon()
{
    m_isPressed = false;
    m_isDrawing = false;
    slideBack();
}

void SheetSwipe::release(qreal height)
{
    if (!m_isDrawing) {
        abandon();
        return;
    }
    m_isPressed = false;
    m_isDrawing = false;
    const bool isResting = (moveTime() - m_movedAt) / 1000.0 > staleMove;
    const bool isFast = !isResting && m_velocity >= fastEnough && m_distance >= leastFlick;
    const bool isGoingUp = !isResting && m_velocity < 0;
    if (isFast || (m_distance >= farEnough * height && !isGoingUp))
        emit swipedAway();
    else
        slideBack();
}

void SheetSwipe::slideBack()
{
    if (m_distance == 0)
        return;
    if (hasReducedMotion()) {
        setDistance(0);
        return;
    }
    if (!m_animation) {
        m_animation = new QVariantAnimation(this);
        m_animation->setDuration(slideTime);
        m_animation->setEasingCurve(QEasingCurve::OutCubic);
        connect(m_animation, &QVariantAnimation::valueChanged, this,
                [this](const QVariant &value) { setDistance(value.toReal()); });
    }
    m_animation->setStartValue(m_distance);
    m_animation->setEndValue(0.0);
    m_animation->start();
}

void SheetSwipe::forget()
{
    if (m_animation)
        m_animation->stop();
    m_isPressed = false;
    m_isDrawing = false;
    m_distance = 0;
}

void SheetSwipe::setDistance(qreal distance)
{
    if (std::exchange(m_distance, distance) != distance)
        emit moved(distance);
}

} // namespace Touch
