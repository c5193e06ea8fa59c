// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/listrows_p.h"

namespace Touch {

void ListRows::setShift(int fromRow, qreal shift)
{
    m_shiftedFrom = fromRow;
    m_shift = shift;
}

int ListRows::rowAt(qreal y) const
{
    if (m_count == 0 || m_rowHeight <= 0)
        return -1;
    const bool isShifted = y >= m_shiftedFrom * m_rowHeight + m_shift;
    const int row = int((isShifted ? y - m_shift : y) / m_rowHeight);
    return qBound(0, row, m_count - 1);
}

} // namespace Touch
