// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QAccessibleObject>

class QGraphicsItem;

namespace Touch {

class Widget;

/** The widgets below an item that can be seen, without the plain items in between. */
QList<Widget *> accessibleChildren(const QGraphicsItem *item);

/** What assistive technology is told of a widget, and may do with it. */
class AccessibleWidget : public QAccessibleObject, public QAccessibleActionInterface
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

private:
    Widget *widget() const;
};

} // namespace Touch
