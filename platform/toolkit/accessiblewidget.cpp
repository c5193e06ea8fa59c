// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/accessiblewidget_p.h"

#include "platform/toolkit/button.h"
#include "platform/toolkit/combobox.h"
#include "platform/toolkit/dialog.h"
#include "platform/toolkit/lineedit_p.h"
#include "platform/toolkit/list.h"
#include "platform/toolkit/objectmenu.h"
#include "platform/toolkit/sheet.h"
#include "platform/toolkit/taborder_p.h"
#include "platform/toolkit/textedit.h"
#include "platform/toolkit/window.h"

#include <QAction>
#include <QGraphicsProxyWidget>
#include <QGraphicsScene>
#include <QGraphicsSceneContextMenuEvent>

namespace Touch {

QList<Widget *> accessibleChildren(const QGraphicsItem *item)
{
    QList<Widget *> found;
    const QList<QGraphicsItem *> children = inReadingOrder(item);
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

LineEdit *lineEditOf(const Widget *widget)
{
    if (!qobject_cast<const TextEdit *>(widget))
        return nullptr;
    const QList<QGraphicsItem *> children = widget->childItems();
    for (QGraphicsItem *child : children) {
        if (auto *proxy = qobject_cast<QGraphicsProxyWidget *>(child->toGraphicsObject()))
            return qobject_cast<LineEdit *>(proxy->widget());
    }
    return nullptr;
}

QAccessibleInterface *accessibleOf(Widget *widget)
{
    if (LineEdit *edit = lineEditOf(widget))
        return QAccessible::queryAccessibleInterface(edit);
    return QAccessible::queryAccessibleInterface(widget);
}

Widget *accessibleWidgetOf(const QAccessibleInterface *interface)
{
    QObject *object = interface->object();
    const auto *edit = qobject_cast<const LineEdit *>(object);
    const QGraphicsProxyWidget *proxy = edit ? edit->graphicsProxyWidget() : nullptr;
    return qobject_cast<Widget *>(proxy && proxy->parentItem() ? proxy->parentItem()->toGraphicsObject() : object);
}

QAccessibleInterface *accessibleParentOf(const Widget *widget)
{
    for (QGraphicsItem *item = widget->parentItem(); item; item = item->parentItem()) {
        if (auto *above = qobject_cast<Widget *>(item->toGraphicsObject()))
            return accessibleOf(above);
    }
    return QAccessible::queryAccessibleInterface(widget->hostWindow());
}

AccessibleWidget::AccessibleWidget(Widget *widget)
    : QAccessibleObject(widget)
{ }

AccessibleWidget::~AccessibleWidget() = default;

Widget *AccessibleWidget::widget() const
{
    return static_cast<Widget *>(object());
}

List *AccessibleWidget::list() const
{
    QGraphicsItem *above = widget()->parentItem();
    return above ? qobject_cast<List *>(above->toGraphicsObject()) : nullptr;
}

QAccessible::Role AccessibleWidget::role() const
{
    return widget()->accessibleRole();
}

bool AccessibleWidget::isPannedAway() const
{
    for (const QGraphicsItem *item = widget()->parentItem(); item; item = item->parentItem()) {
        if (item->flags().testFlag(QGraphicsItem::ItemClipsChildrenToShape)
            && !item->sceneBoundingRect().intersects(widget()->sceneBoundingRect()))
            return true;
    }
    return false;
}

QAccessible::State AccessibleWidget::state() const
{
    QAccessible::State state;
    state.disabled = !widget()->isEnabled();
    state.invisible = !widget()->isVisible();
    state.offscreen = isPannedAway();
    state.focusable = widget()->flags().testFlag(QGraphicsItem::ItemIsFocusable);
    state.focused = widget()->hasFocus();
    state.modal = qobject_cast<const Dialog *>(object()) || qobject_cast<const Sheet *>(object());
    const auto *choice = qobject_cast<const ComboBox *>(object());
    state.hasPopup = choice || !widget()->actions().isEmpty();
    state.expandable = choice != nullptr;
    state.expanded = choice && choice->isPopupOpen();
    state.collapsed = choice && !choice->isPopupOpen();
    if (const auto *button = qobject_cast<const Button *>(object())) {
        state.checkable = button->isCheckable();
        state.checked = button->isChecked();
        state.pressed = button->isDown();
    }
    state.selectable = list() && list()->selectionModel();
    state.selected = isSelected();
    return state;
}

QString AccessibleWidget::text(QAccessible::Text kind) const
{
    if (kind == QAccessible::Name)
        return widget()->accessibleName();
    const auto *choice = qobject_cast<const ComboBox *>(object());
    if (choice && kind == QAccessible::Value)
        return choice->currentText();
    QAccessibleValueInterface *value = kind == QAccessible::Value ? widget()->accessibleValue() : nullptr;
    return value ? value->currentValue().toString() : QString();
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
    return accessibleParentOf(widget());
}

int AccessibleWidget::childCount() const
{
    return int(accessibleChildren(widget()).size());
}

QAccessibleInterface *AccessibleWidget::child(int index) const
{
    Widget *found = accessibleChildren(widget()).value(index);
    return found ? accessibleOf(found) : nullptr;
}

int AccessibleWidget::indexOfChild(const QAccessibleInterface *child) const
{
    return int(accessibleChildren(widget()).indexOf(accessibleWidgetOf(child)));
}

void *AccessibleWidget::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::ActionInterface)
        return static_cast<QAccessibleActionInterface *>(this);
    if (type == QAccessible::ValueInterface)
        return widget()->accessibleValue();
    if (type == QAccessible::TableCellInterface && list())
        return static_cast<QAccessibleTableCellInterface *>(this);
    return QAccessibleObject::interface_cast(type);
}

QStringList AccessibleWidget::actionNames() const
{
    QStringList names = widget()->isEnabled() ? widget()->accessibleActions() : QStringList();
    if (widget()->flags().testFlag(QGraphicsItem::ItemIsFocusable))
        names << setFocusAction();
    if (!widget()->actions().isEmpty())
        names << showMenuAction();
    return names;
}

void AccessibleWidget::doAction(const QString &name)
{
    if (!actionNames().contains(name))
        return;
    if (name == setFocusAction())
        widget()->setFocus(Qt::OtherFocusReason);
    else if (name == showMenuAction())
        showMenu();
    else
        widget()->doAccessibleAction(name);
}

void AccessibleWidget::showMenu()
{
    if (!ObjectMenu::actionsOf(widget()).isEmpty()) {
        ObjectMenu::open(widget());
        return;
    }
    QGraphicsSceneContextMenuEvent event(QEvent::GraphicsSceneContextMenu);
    event.setReason(QGraphicsSceneContextMenuEvent::Keyboard);
    event.setPos(widget()->rect().center());
    event.setScenePos(widget()->mapToScene(event.pos()));
    event.setScreenPos(rect().center());
    if (widget()->scene())
        widget()->scene()->sendEvent(widget(), &event);
}

QStringList AccessibleWidget::keyBindingsForAction(const QString &) const
{
    return {};
}

int AccessibleWidget::columnIndex() const
{
    return 0;
}

int AccessibleWidget::rowIndex() const
{
    const List *rows = list();
    return rows ? rows->rowOf(widget()) : -1;
}

int AccessibleWidget::columnExtent() const
{
    return 1;
}

int AccessibleWidget::rowExtent() const
{
    return 1;
}

QList<QAccessibleInterface *> AccessibleWidget::columnHeaderCells() const
{
    return {};
}

QList<QAccessibleInterface *> AccessibleWidget::rowHeaderCells() const
{
    return {};
}

bool AccessibleWidget::isSelected() const
{
    const List *rows = list();
    return rows && rows->isSelected(rows->rowOf(widget()));
}

QAccessibleInterface *AccessibleWidget::table() const
{
    List *rows = list();
    return rows ? accessibleOf(rows) : nullptr;
}

} // namespace Touch
