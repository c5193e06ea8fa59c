// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/accessiblelist_p.h"

#include "platform/toolkit/list.h"

#include <algorithm>
#include <QAbstractItemModel>
#include <QItemSelectionModel>

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

QList<QAccessibleInterface *> AccessibleList::selectedCells() const
{
    QList<QAccessibleInterface *> cells;
    for (const int row : selectedRows()) {
        if (QAccessibleInterface *cell = cellAt(row, 0))
            cells.append(cell);
    }
    return cells;
}

QList<int> AccessibleList::selectedRows() const
{
    QList<int> chosen;
    if (!rows()->selectionModel())
        return chosen;
    const QModelIndexList indexes = rows()->selectionModel()->selectedRows();
    for (const QModelIndex &index : indexes)
        chosen.append(index.row());
    std::sort(chosen.begin(), chosen.end());
    return chosen;
}

bool AccessibleList::isRowSelected(int row) const
{
    return rows()->isSelected(row);
}

bool AccessibleList::selectRow(int row)
{
    return setRowSelected(row, true);
}

bool AccessibleList::unselectRow(int row)
{
    return setRowSelected(row, false);
}

bool AccessibleList::setRowSelected(int row, bool isSelected)
{
    if (!rows()->selectionModel() || row < 0 || row >= rowCount())
        return false;
    if (rows()->isSelected(row) == isSelected)
        return true;
    const bool isOnlyOne = rows()->selectionMode() == List::SingleSelection;
    const auto change = !isSelected ? QItemSelectionModel::Deselect
        : isOnlyOne                 ? QItemSelectionModel::ClearAndSelect
                                    : QItemSelectionModel::Select;
    rows()->selectionModel()->select(rows()->itemModel()->index(row, 0), change | QItemSelectionModel::Rows);
    return true;
}

void AccessibleList::modelChange(QAccessibleTableModelChangeEvent *) { }

} // namespace Touch
