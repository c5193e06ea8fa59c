// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/listrows_p.h"

#include <algorithm>
#include <ranges>

namespace Touch {

void ListRows::setShift(int fromRow, qreal shift, bool withTitle)
{
    m_shiftedFrom = fromRow;
    m_shift = shift;
    m_shiftsTitle = withTitle;
}

void ListRows::setTitles(const QList<int> &firstRows, qreal height)
{
    m_firstRows = firstRows;
    m_titleHeight = height;
}

bool ListRows::hasTitleAbove(int row) const
{
    return std::binary_search(m_firstRows.begin(), m_firstRows.end(), row);
}

qreal ListRows::top(int row) const
{
    const auto titles = std::upper_bound(m_firstRows.begin(), m_firstRows.end(), row) - m_firstRows.begin();
    return row * m_rowHeight + qreal(titles) * m_titleHeight + (row >= m_shiftedFrom ? m_shift : 0);
}

qreal ListRows::titleTop(int row) const
{
    const bool isLeftBehind = row == m_shiftedFrom && !m_shiftsTitle;
    return top(row) - m_titleHeight - (isLeftBehind ? m_shift : 0);
}

int ListRows::rowAt(qreal y) const
{
    if (m_count == 0 || m_rowHeight <= 0)
        return -1;
    const auto rows = std::views::iota(0, m_count);
    const auto below = std::ranges::upper_bound(rows, y, {}, [this](int row) { return top(row); });
    return qMax(0, int(below - rows.begin()) - 1);
}

} // namespace Touch
