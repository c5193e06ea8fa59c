// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QKeyEvent>
#include <QRectF>

/** What counts as a press of a control. */
namespace Touch::Press {

/** How far a finger may slip off the edge and still press. */
constexpr qreal slip = 12;

inline bool isKey(const QKeyEvent *event)
{
    return event->key() == Qt::Key_Space || event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter
        || event->key() == Qt::Key_Select;
}

inline bool holds(const QRectF &control, const QPointF &finger)
{
    return control.adjusted(-slip, -slip, slip, slip).contains(finger);
}

} // namespace Touch::Press
