// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QtGlobal>

namespace Touch {

/**
 * How a position moves on one axis after the finger has let go: friction slows it down, past either end a spring pulls
 * it back. Pure arithmetic; the time is an argument.
 */
class Kinetics
{
public:
    qreal position() const { return m_position; }
    qreal velocity() const { return m_velocity; } ///< pixels per second
    void setMaximum(qreal maximum);
    qreal maximum() const { return m_maximum; }

    /** Follows the finger; past an end it gives way only half. */
    void dragTo(qreal position);
    /** The position that dragTo() would need to be where it is. */
    qreal dragPosition() const;
    void jumpTo(qreal position);
    void flick(qreal velocity);
    /** Adds a push that ends a given distance away, never past an end. */
    void push(qreal distance);
    void stop() { m_velocity = 0; }

    /** Moves on by some seconds; false once it rests. */
    bool advance(qreal seconds);

private:
    bool isPastEnd() const { return m_position < 0 || m_position > m_maximum; }

    qreal m_position = 0;
    qreal m_velocity = 0;
    qreal m_maximum = 0;
};

} // namespace Touch
