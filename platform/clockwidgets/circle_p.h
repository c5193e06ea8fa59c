// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QPointF>
#include <QtMath>

/// The point of a circle around the origin, so many degrees from the top, clockwise.
inline QPointF onCircle(qreal degrees, qreal radius)
{
    const qreal radians = qDegreesToRadians(degrees);
    return {radius * qSin(radians), -radius * qCos(radians)};
}
