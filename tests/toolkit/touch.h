// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QEvent>
#include <QPointF>

namespace Touch {
class Widget;
class Window;
} // namespace Touch

/** Real mouse events on a window, at widgets or at points of their own coordinates. */
namespace Finger {

void press(Touch::Window &window, const Touch::Widget *widget, const QPointF &at);
void moveTo(Touch::Window &window, const Touch::Widget *widget, const QPointF &at);
void release(Touch::Window &window, const Touch::Widget *widget, const QPointF &at);
void tap(Touch::Window &window, const Touch::Widget *widget);
/** One event of the left button at a point of the window, at a time in milliseconds. */
void send(Touch::Window &window, QEvent::Type type, const QPoint &place, quint64 time);
/** Presses at a point, moves on in steps, releases at the other one. */
void drag(Touch::Window &window, const Touch::Widget *widget, const QPointF &from, const QPointF &to);

} // namespace Finger
