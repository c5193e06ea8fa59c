// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QtGlobal>

namespace Touch {

/** Where the rows of a list lie: all of one height, those after a change shifted while it is animated. */
class ListRows
{
public:
    int count() const { return m_count; }
    void setCount(int count) { m_count = count; }
    qreal rowHeight() const { return m_rowHeight; }
    void setRowHeight(qreal height) { m_rowHeight = height; }
    /** Moves a row and all after it by some pixels; 0 moves none. */
    void setShift(int fromRow, qreal shift);

    qreal top(int row) const { return row * m_rowHeight + (row >= m_shiftedFrom ? m_shift : 0); }
    qreal height() const { return m_count * m_rowHeight + m_shift; }
    /** The row at a height, bounded to the rows there are; -1 if there is none. */
    int rowAt(qreal y) const;

private:
    int m_count = 0;
    qreal m_rowHeight = 0;
    int m_shiftedFrom = 0;
    qreal m_shift = 0;
};

} // namespace Touch
