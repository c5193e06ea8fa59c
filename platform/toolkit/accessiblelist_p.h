// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/toolkit/accessiblewidget_p.h"

namespace Touch {

/** A list as a table of one column: it has all rows of the model, and as children those that can be seen. */
class AccessibleList : public AccessibleWidget, public QAccessibleTableInterface
{
public:
    explicit AccessibleList(List *list);
    ~AccessibleList() override;

    void *interface_cast(QAccessible::InterfaceType type) override;

    int rowCount() const override;
    int columnCount() const override;
    /** Null for rows that cannot be seen. */
    QAccessibleInterface *cellAt(int row, int column) const override;
    QAccessibleInterface *caption() const override { return nullptr; }
    QAccessibleInterface *summary() const override { return nullptr; }
    QString columnDescription(int column) const override;
    QString rowDescription(int row) const override;
    void modelChange(QAccessibleTableModelChangeEvent *event) override;

    // Rows are chosen where the list has a mode for it. There is one column, which nobody chooses.
    int selectedCellCount() const override { return selectedRowCount(); }
    /** Those that can be seen. */
    QList<QAccessibleInterface *> selectedCells() const override;
    int selectedColumnCount() const override { return 0; }
    int selectedRowCount() const override { return int(selectedRows().size()); }
    QList<int> selectedColumns() const override { return {}; }
    QList<int> selectedRows() const override;
    bool isColumnSelected(int) const override { return false; }
    bool isRowSelected(int row) const override;
    bool selectRow(int row) override;
    bool selectColumn(int) override { return false; }
    bool unselectRow(int row) override;
    bool unselectColumn(int) override { return false; }

private:
    List *rows() const;
    bool setRowSelected(int row, bool isSelected);
};

} // namespace Touch
