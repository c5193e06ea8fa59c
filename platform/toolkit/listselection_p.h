// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/toolkit/list.h"

#include <QItemSelectionModel>

namespace Touch {

/** Which rows of a list are chosen, and how taps and the space key change that. Owned by its list. */
class ListSelection : public QObject
{
    Q_OBJECT

public:
    ListSelection(List *list, List::SelectionMode mode);
    ~ListSelection() override;

    void setMode(List::SelectionMode mode);
    QItemSelectionModel *model() { return &m_model; }
    bool isSelected(int row) const;
    void choose(int row);
    void press(int row) { m_pressedRow = row; }
    void cancelPress() { m_pressedRow = -1; }
    /** Chooses the row that was pressed if it is released there. */
    void release(int row);
    /** Looks at what one of the list's cells is told; never keeps it from the cell. */
    void watch(int row, const QGraphicsItem *cell, QEvent *event);

private:
    List *m_list;
    List::SelectionMode m_mode;
    QItemSelectionModel m_model;
    int m_pressedRow = -1;
};

} // namespace Touch
