// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/list.h"

#include "platform/toolkit/pannableviewport.h"

#include <QGraphicsScene>
#include <QKeyEvent>

namespace Touch {

int List::focusedRow() const
{
    if (hasFocus())
        return m_rows.count() == 0 ? -1 : qBound(0, m_focusedRow, m_rows.count() - 1);
    const QGraphicsItem *cell = scene() ? scene()->focusItem() : nullptr;
    while (cell && cell->parentItem() != this)
        cell = cell->parentItem();
    return cell ? rowOf(cell) : -1;
}

int List::rowForKey(int key, int from) const
{
    const qreal page = m_viewport ? m_viewport->size().height() - m_rows.rowHeight() : size().height();
    switch (key) {
    case Qt::Key_Up:
        return from - 1;
    case Qt::Key_Down:
        return from + 1;
    case Qt::Key_PageUp:
        return m_rows.rowAt(m_rows.top(from) - page);
    case Qt::Key_PageDown:
        return m_rows.rowAt(m_rows.top(from) + page);
    case Qt::Key_Home:
        return 0;
    case Qt::Key_End:
        return m_rows.count() - 1;
    default:
        return -1;
    }
}

void List::keyPressEvent(QKeyEvent *event)
{
    const int row = focusedRow();
    if (row < 0 || !focusRow(rowForKey(event->key(), row)))
        Widget::keyPressEvent(event);
}

bool List::focusRow(int row)
{
    if (row < 0 || row >= m_rows.count())
        return false;
    auto *viewport = qobject_cast<PannableViewport *>(m_viewport.data());
    if (viewport && viewport->widget()) {
        const QRectF place(0, m_rows.top(row), size().width(), m_rows.rowHeight());
        viewport->ensureVisible(mapRectToItem(viewport->widget(), place));
    }
    Widget *cell = cellAt(row);
    if (!cell)
        return false;
    cell->setFocus(Qt::TabFocusReason);
    return true;
}

// From a row that was panned away, Tab leads back to it.
bool List::focusNextPrevChild(bool next)
{
    return (hasFocus() && focusRow(focusedRow())) || Widget::focusNextPrevChild(next);
}

void List::rememberFocus()
{
    const int row = hasFocus() ? -1 : focusedRow();
    if (row >= 0)
        m_focusedRow = row;
}

void List::shiftFocus(int first, int count)
{
    const int last = first - count - 1;
    if (count > 0 && m_focusedRow >= first && m_rows.count() > 0)
        m_focusedRow += count;
    else if (count < 0 && m_focusedRow > last)
        m_focusedRow += count;
    else if (count < 0 && m_focusedRow > first && first > 0)
        m_focusedRow = first;
}

void List::keepFocusOf(Widget *cell)
{
    const QGraphicsItem *focused = scene() ? scene()->focusItem() : nullptr;
    if (focused && (focused == cell || cell->isAncestorOf(focused)))
        setFocus(Qt::OtherFocusReason);
}

void List::giveFocusBack()
{
    Widget *cell = hasFocus() ? cellAt(focusedRow()) : nullptr;
    if (cell)
        cell->setFocus(Qt::OtherFocusReason);
}

} // namespace Touch
