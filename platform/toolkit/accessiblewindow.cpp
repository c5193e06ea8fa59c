// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/accessiblewindow_p.h"

#include "platform/toolkit/accessiblewidget_p.h"
#include "platform/toolkit/scenewindow.h"
#include "platform/toolkit/window.h"

#include <QGraphicsScene>

namespace Touch {

namespace {

QAccessibleInterface *makeInterface(const QString &, QObject *object)
{
    if (auto *window = qobject_cast<Window *>(object))
        return new AccessibleWindow(window);
    if (auto *widget = qobject_cast<Widget *>(object))
        return new AccessibleWidget(widget);
    return nullptr;
}

/** The widget at or above an item. */
Widget *widgetOf(QGraphicsItem *item)
{
    for (; item; item = item->parentItem()) {
        if (auto *widget = qobject_cast<Widget *>(item->toGraphicsObject()))
            return widget;
    }
    return nullptr;
}

} // namespace

void installAccessibility()
{
    static const bool isInstalled = [] {
        QAccessible::installFactory(makeInterface);
        return true;
    }();
    Q_UNUSED(isInstalled)
}

AccessibleWindow::AccessibleWindow(Window *window)
    : QAccessibleWidget(window, QAccessible::Window)
{ }

AccessibleWindow::~AccessibleWindow() = default;

QList<Widget *> AccessibleWindow::children() const
{
    QList<Widget *> shown;
    const QList<SceneWindow *> stack = static_cast<Window *>(object())->sceneWindows();
    for (SceneWindow *sceneWindow : stack) {
        if (sceneWindow->isVisible())
            shown.append(sceneWindow);
    }
    return shown;
}

int AccessibleWindow::childCount() const
{
    return int(children().size());
}

QAccessibleInterface *AccessibleWindow::child(int index) const
{
    Widget *found = children().value(index);
    return found ? QAccessible::queryAccessibleInterface(found) : nullptr;
}

int AccessibleWindow::indexOfChild(const QAccessibleInterface *child) const
{
    return int(children().indexOf(qobject_cast<Widget *>(child->object())));
}

QAccessibleInterface *AccessibleWindow::childAt(int x, int y) const
{
    const auto *window = static_cast<Window *>(object());
    Widget *found = widgetOf(window->itemAt(window->viewport()->mapFromGlobal(QPoint(x, y))));
    return found ? QAccessible::queryAccessibleInterface(found) : nullptr;
}

QAccessibleInterface *AccessibleWindow::focusChild() const
{
    Widget *found = widgetOf(static_cast<Window *>(object())->scene()->focusItem());
    return found ? QAccessible::queryAccessibleInterface(found) : nullptr;
}

} // namespace Touch
