// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/accessiblelist_p.h"

#include "platform/toolkit/list.h"

#include <QAbstractItemModel>

namespace Touch {

AccessibleList::AccessibleList(List *list)
    : AccessibleWidget(list)
{ }

AccessibleList::~AccessibleList() = default;

List *AccessibleList::rows() const
{
    return static_cast<List *>(object());
}

void *AccessibleList::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::TableInterface)
        return static_cast<QAccessibleTableInterface *>(this);
    return AccessibleWidget::interface_cast(type);
}

int AccessibleList::rowCount() const
{
    return rows()->itemModel() ? rows()->itemModel()->rowCount() : 0;
}

int AccessibleList::columnCount() const
{
    return 1;
}

QAccessibleInterface *AccessibleList::cellAt(int row, int column) const
{
    Widget *cell = column == 0 ? rows()->cellAt(row) : nullptr;
    return cell ? accessibleOf(cell) : nullptr;
}

QString AccessibleList::columnDescription(int) const
{
    return {};
}

QString AccessibleList::rowDescription(int row) const
{
    const Widget *cell = rows()->cellAt(row);
    return cell ? cell->accessibleName() : QString();
}

void AccessibleList::modelChange(QAccessibleTableModelChangeEvent *) { }

} // namespace Touch
