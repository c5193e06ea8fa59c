// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/kinetics_p.h"

#include <cmath>

namespace Touch {

namespace {

constexpr qreal frictionTime = 0.325; ///< seconds in which the speed falls to a third or so
constexpr qreal springRate = 18;      ///< per second; the higher the snappier
constexpr qreal give = 0.5;
constexpr qreal maximumSpeed = 6000;
constexpr qreal restSpeed = 8;
constexpr qreal restDistance = 0.5;

} // namespace

void Kinetics::setMaximum(qreal maximum)
{
    m_maximum = qMax(0.0, maximum);
}

void Kinetics::dragTo(qreal position)
{
    m_velocity = 0;
    m_position = position;
    if (position < 0)
        m_position = position * give;
    else if (position > m_maximum)
        m_position = m_maximum + (position - m_maximum) * give;
}

qreal Kinetics::dragPosition() const
{
    if (m_position < 0)
        return m_position / give;
    return m_position > m_maximum ? m_maximum + (m_position - m_maximum) / give : m_position;
}

void Kinetics::jumpTo(qreal position)
{
    m_velocity = 0;
    m_position = qBound(0.0, position, m_maximum);
}

void Kinetics::flick(qreal velocity)
{
    m_velocity = qBound(-maximumSpeed, velocity, maximumSpeed);
}

void Kinetics::push(qreal distance)
{
    // With this friction a speed v ends v * frictionTime further on.
    const qreal target = qBound(0.0, m_position + m_velocity * frictionTime + distance, m_maximum);
    m_velocity = (target - m_position) / frictionTime;
}

bool Kinetics::advance(qreal seconds)
{
    if (isPastEnd()) {
        // A critically damped spring, in closed form so that a long step is as good as many short ones.
        const qreal end = m_position < 0 ? 0 : m_maximum;
        const qreal offset = m_position - end;
        const qreal rate = m_velocity + springRate * offset;
        const qreal decay = std::exp(-springRate * seconds);
        const qreal moved = (offset + rate * seconds) * decay;
        m_velocity = (m_velocity - springRate * rate * seconds) * decay;
        const bool hasCrossed = (offset < 0) != (moved < 0);
        if (hasCrossed || (std::abs(moved) < restDistance && std::abs(m_velocity) < restSpeed)) {
            jumpTo(end);
            return false;
        }
        m_position = end + moved;
        return true;
    }
    const qreal decay = std::exp(-seconds / frictionTime);
    m_position += m_velocity * frictionTime * (1 - decay);
    m_velocity *= decay;
    if (std::abs(m_velocity) < restSpeed && !isPastEnd()) {
        m_velocity = 0;
        return false;
    }
    return true;
}

} // namespace Touch
