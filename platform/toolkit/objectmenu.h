// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/toolkit/dialog.h"

#include <QPointer>

class QAction;

namespace Touch {

/**
 * The actions of a widget that are for its object menu, one below the other. Windows open it at a long press, at a
 * right click and by the menu key. It leaves before it triggers an action, and also when the widget goes.
 */
class ObjectMenu : public Dialog
{
    Q_OBJECT

public:
    explicit ObjectMenu(Widget *owner, QGraphicsItem *parent = nullptr);
    ~ObjectMenu() override;

    Widget *owner() const { return m_owner; }

    /** The innermost widget at or above an item that has actions for its menu; null if none has. */
    static Widget *ownerOf(QGraphicsItem *item);
    /** What the menu of a widget would show: its visible, enabled actions of Action::ObjectMenuLocation. */
    static QList<QAction *> actionsOf(const Widget *owner);
    /** Opens the menu of a widget above everything in its window. */
    static ObjectMenu *open(Widget *owner);
    /** Closes the menu of a widget if it is open: the widget no longer stands for what the menu was opened on. */
    static void closeFor(const Widget *owner);

    QAccessible::Role accessibleRole() const override { return QAccessible::PopupMenu; }

private:
    void addItem(QAction *action);

    QPointer<Widget> m_owner;
};

} // namespace Touch
