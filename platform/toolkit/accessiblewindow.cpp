// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/accessiblewindow_p.h"

#include "platform/toolkit/accessiblelineedit_p.h"
#include "platform/toolkit/accessiblelist_p.h"
#include "platform/toolkit/accessiblewidget_p.h"
#include "platform/toolkit/lineedit_p.h"
#include "platform/toolkit/list.h"
#include "platform/toolkit/scenewindow.h"
#include "platform/toolkit/window.h"

#include <QGraphicsProxyWidget>
#include <QGraphicsScene>

namespace Touch {

namespace {

/** The widget at or above an item. */
Widget *widgetOf(QGraphicsItem *item)
{
    for (; item; item = item->parentItem()) {
        if (auto *widget = qobject_cast<Widget *>(item->toGraphicsObject()))
            return widget;
    }
    return nullptr;
}

QAccessibleInterface *makeInterface(const QString &, QObject *object)
{
    if (auto *window = qobject_cast<Window *>(object))
        return new AccessibleWindow(window);
    if (auto *list = qobject_cast<List *>(object))
        return new AccessibleList(list);
    if (auto *widget = qobject_cast<Widget *>(object)) {
        LineEdit *edit = lineEditOf(widget);
        return edit ? static_cast<QAccessibleInterface *>(new AccessibleLineEdit(edit, widget))
                    : new AccessibleWidget(widget);
    }
    auto *edit = qobject_cast<LineEdit *>(object);
    QGraphicsProxyWidget *proxy = edit ? edit->graphicsProxyWidget() : nullptr;
    Widget *field = proxy ? widgetOf(proxy) : nullptr;
    return field && lineEditOf(field) == edit ? new AccessibleLineEdit(edit, field) : nullptr;
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
    return found ? accessibleOf(found) : nullptr;
}

int AccessibleWindow::indexOfChild(const QAccessibleInterface *child) const
{
    return int(children().indexOf(accessibleWidgetOf(child)));
}

QAccessibleInterface *AccessibleWindow::childAt(int x, int y) const
{
    const auto *window = static_cast<Window *>(object());
    Widget *found = widgetOf(window->itemAt(window->viewport()->mapFromGlobal(QPoint(x, y))));
    return found ? accessibleOf(found) : nullptr;
}

QAccessibleInterface *AccessibleWindow::focusChild() const
{
    Widget *found = widgetOf(static_cast<Window *>(object())->scene()->focusItem());
    return found ? accessibleOf(found) : nullptr;
}

} // namespace Touch
