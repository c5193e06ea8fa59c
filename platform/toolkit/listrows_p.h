// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QList>

namespace Touch {

/**
 * Where the rows of a list lie: all of one height, with room for a title above the first row of each group, those after
 * a change shifted while it is animated.
 */
class ListRows
{
public:
    int count() const { return m_count; }
    void setCount(int count) { m_count = count; }
    qreal rowHeight() const { return m_rowHeight; }
    void setRowHeight(qreal height) { m_rowHeight = height; }
    /** The first row of each group, upwards, and the height of a title. */
    void setTitles(const QList<int> &firstRows, qreal height);
    qreal titleHeight() const { return m_titleHeight; }
    bool hasTitleAbove(int row) const;
    /** Moves a row and all after it by some pixels, with the title that is right above it or without; 0 moves none. */
    void setShift(int fromRow, qreal shift, bool withTitle = true);

    qreal top(int row) const;
    /** Of the title above the first row of a group. */
    qreal titleTop(int row) const;
    qreal height() const { return m_count * m_rowHeight + qreal(m_firstRows.size()) * m_titleHeight + m_shift; }
    /** The row at a height, bounded to the rows there are; -1 if there is none. */
    int rowAt(qreal y) const;

private:
    int m_count = 0;
    qreal m_rowHeight = 0;
    QList<int> m_firstRows;
    qreal m_titleHeight = 0;
    int m_shiftedFrom = 0;
    qreal m_shift = 0;
    bool m_shiftsTitle = true;
};

} // namespace Touch
