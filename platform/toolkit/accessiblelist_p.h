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

    // Rows are not selected, their cells are pressed.
    int selectedCellCount() const override { return 0; }
    QList<QAccessibleInterface *> selectedCells() const override { return {}; }
    int selectedColumnCount() const override { return 0; }
    int selectedRowCount() const override { return 0; }
    QList<int> selectedColumns() const override { return {}; }
    QList<int> selectedRows() const override { return {}; }
    bool isColumnSelected(int) const override { return false; }
    bool isRowSelected(int) const override { return false; }
    bool selectRow(int) override { return false; }
    bool selectColumn(int) override { return false; }
    bool unselectRow(int) override { return false; }
    bool unselectColumn(int) override { return false; }

private:
    List *rows() const;
};

} // namespace Touch
