// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QAccessibleObject>

class QGraphicsItem;

namespace Touch {

class LineEdit;
class List;
class Widget;

/** The widgets below an item that can be seen, without the plain items in between, in the order in
 * which they are read. */
QList<Widget *> accessibleChildren(const QGraphicsItem *item);
/** What stands for a widget; for a text field its line edit, which itself tells of what is typed. May be null. */
QAccessibleInterface *accessibleOf(Widget *widget);
/** The widget that an interface stands for, or null. */
Widget *accessibleWidgetOf(const QAccessibleInterface *interface);
/** The widget or window above a widget. */
QAccessibleInterface *accessibleParentOf(const Widget *widget);
/** The line edit within a text field; null for other widgets. */
LineEdit *lineEditOf(const Widget *widget);

/** What assistive technology is told of a widget, and may do with it. In a list it is a cell of one column. */
class AccessibleWidget : public QAccessibleObject,
                         public QAccessibleActionInterface,
                         public QAccessibleTableCellInterface
{
public:
    explicit AccessibleWidget(Widget *widget);
    ~AccessibleWidget() override;

    QAccessible::Role role() const override;
    QAccessible::State state() const override;
    QString text(QAccessible::Text kind) const override;
    QRect rect() const override;
    QAccessibleInterface *parent() const override;
    int childCount() const override;
    QAccessibleInterface *child(int index) const override;
    int indexOfChild(const QAccessibleInterface *child) const override;
    void *interface_cast(QAccessible::InterfaceType type) override;

    QStringList actionNames() const override;
    void doAction(const QString &name) override;
    QStringList keyBindingsForAction(const QString &name) const override;

    int columnIndex() const override;
    int rowIndex() const override;
    int columnExtent() const override;
    int rowExtent() const override;
    QList<QAccessibleInterface *> columnHeaderCells() const override;
    QList<QAccessibleInterface *> rowHeaderCells() const override;
    bool isSelected() const override;
    QAccessibleInterface *table() const override;

protected:
    Widget *widget() const;

private:
    /** The list that it is a row of, or null. */
    List *list() const;
    bool isPannedAway() const;
    void showMenu();
};

} // namespace Touch
