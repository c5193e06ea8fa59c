// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/accessiblelist_p.h"

#include "platform/toolkit/list.h"

#include <algorithm>
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

QList<Widget *> AccessibleList::cells() const
{
    // Cells are used again, so that their own order is any.
    QList<Widget *> found = accessibleChildren(rows());
    std::sort(found.begin(), found.end(), [](const Widget *a, const Widget *b) { return a->y() < b->y(); });
    return found;
}

void *AccessibleList::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::TableInterface)
        return static_cast<QAccessibleTableInterface *>(this);
    return AccessibleWidget::interface_cast(type);
}

int AccessibleList::childCount() const
{
    return int(cells().size());
}

QAccessibleInterface *AccessibleList::child(int index) const
{
    Widget *found = cells().value(index);
    return found ? accessibleOf(found) : nullptr;
}

int AccessibleList::indexOfChild(const QAccessibleInterface *child) const
{
    return int(cells().indexOf(accessibleWidgetOf(child)));
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
