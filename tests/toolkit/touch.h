// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QEvent>
#include <QGraphicsItem>
#include <QGraphicsObject>
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

/** The item of a class and an object name under another item; null if there is none. */
template <typename Item>
Item *findItem(const QGraphicsItem *parent, const QString &objectName)
{
    const QList<QGraphicsItem *> children = parent->childItems();
    for (QGraphicsItem *child : children) {
        auto *found = qobject_cast<Item *>(child->toGraphicsObject());
        if (found && found->objectName() == objectName)
            return found;
        if (Item *deeper = findItem<Item>(child, objectName))
            return deeper;
    }
    return nullptr;
}
