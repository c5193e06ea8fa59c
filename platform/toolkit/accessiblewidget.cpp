// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/accessiblewidget_p.h"

#include "platform/toolkit/button.h"
#include "platform/toolkit/textedit.h"
#include "platform/toolkit/window.h"

namespace Touch {

QList<Widget *> accessibleChildren(const QGraphicsItem *item)
{
    QList<Widget *> found;
    const QList<QGraphicsItem *> children = item->childItems();
    for (QGraphicsItem *child : children) {
        if (!child->isVisible())
            continue;
        if (auto *widget = qobject_cast<Widget *>(child->toGraphicsObject()))
            found.append(widget);
        else
            found.append(accessibleChildren(child));
    }
    return found;
}

AccessibleWidget::AccessibleWidget(Widget *widget)
    : QAccessibleObject(widget)
{ }

AccessibleWidget::~AccessibleWidget() = default;

Widget *AccessibleWidget::widget() const
{
    return static_cast<Widget *>(object());
}

QAccessible::Role AccessibleWidget::role() const
{
    return widget()->accessibleRole();
}

QAccessible::State AccessibleWidget::state() const
{
    QAccessible::State state;
    state.disabled = !widget()->isEnabled();
    state.invisible = !widget()->isVisible();
    state.focusable = widget()->flags().testFlag(QGraphicsItem::ItemIsFocusable);
    state.focused = widget()->hasFocus();
    if (const auto *button = qobject_cast<const Button *>(object())) {
        state.checkable = button->isCheckable();
        state.checked = button->isChecked();
        state.pressed = button->isDown();
    }
    state.editable = qobject_cast<const TextEdit *>(object()) != nullptr;
    return state;
}

QString AccessibleWidget::text(QAccessible::Text kind) const
{
    if (kind == QAccessible::Name)
        return widget()->accessibleName();
    const auto *edit = qobject_cast<const TextEdit *>(object());
    return kind == QAccessible::Value && edit ? edit->text() : QString();
}

QRect AccessibleWidget::rect() const
{
    const Window *window = widget()->hostWindow();
    if (!window)
        return {};
    const QRect inView = window->mapFromScene(widget()->sceneBoundingRect()).boundingRect();
    return {window->viewport()->mapToGlobal(inView.topLeft()), inView.size()};
}

QAccessibleInterface *AccessibleWidget::parent() const
{
    for (QGraphicsItem *item = widget()->parentItem(); item; item = item->parentItem()) {
        if (auto *above = qobject_cast<Widget *>(item->toGraphicsObject()))
            return QAccessible::queryAccessibleInterface(above);
    }
    return QAccessible::queryAccessibleInterface(widget()->hostWindow());
}

int AccessibleWidget::childCount() const
{
    return int(accessibleChildren(widget()).size());
}

QAccessibleInterface *AccessibleWidget::child(int index) const
{
    Widget *found = accessibleChildren(widget()).value(index);
    return found ? QAccessible::queryAccessibleInterface(found) : nullptr;
}

int AccessibleWidget::indexOfChild(const QAccessibleInterface *child) const
{
    return int(accessibleChildren(widget()).indexOf(qobject_cast<Widget *>(child->object())));
}

void *AccessibleWidget::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::ActionInterface)
        return static_cast<QAccessibleActionInterface *>(this);
    if (type == QAccessible::ValueInterface)
        return widget()->accessibleValue();
    return QAccessibleObject::interface_cast(type);
}

QStringList AccessibleWidget::actionNames() const
{
    QStringList names = widget()->isEnabled() ? widget()->accessibleActions() : QStringList();
    if (widget()->flags().testFlag(QGraphicsItem::ItemIsFocusable))
        names << setFocusAction();
    return names;
}

void AccessibleWidget::doAction(const QString &name)
{
    if (!actionNames().contains(name))
        return;
    if (name == setFocusAction())
        widget()->setFocus(Qt::OtherFocusReason);
    else
        widget()->doAccessibleAction(name);
}

QStringList AccessibleWidget::keyBindingsForAction(const QString &) const
{
    return {};
}

} // namespace Touch
