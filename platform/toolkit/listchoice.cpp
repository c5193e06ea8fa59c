// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
// How rows of a list are chosen.
#include "platform/toolkit/list.h"
#include "platform/toolkit/listselection_p.h"

#include <QGraphicsSceneMouseEvent>
#include <QPainter>

namespace Touch {

namespace {

constexpr qreal markWidth = 4; ///< of the bar at the start of a chosen row

} // namespace

void List::setSelectionMode(SelectionMode mode)
{
    if (m_selectionMode == mode)
        return;
    m_selectionMode = mode;
    if (m_selection && mode != NoSelection)
        m_selection->setMode(mode);
    else
        renewSelection();
    rebuild();
}

// Another model has other rows to choose from.
void List::renewSelection()
{
    delete m_selection;
    m_selection = m_selectionMode == NoSelection ? nullptr : new ListSelection(this, m_selectionMode);
    setFiltersChildEvents(m_selection);
    update();
}

QItemSelectionModel *List::selectionModel() const
{
    return m_selection ? m_selection->model() : nullptr;
}

bool List::isSelected(int row) const
{
    return m_selection && m_selection->isSelected(row);
}

int List::rowUnder(const QPointF &place) const
{
    const int row = m_rows.rowAt(place.y());
    const QRectF area(0, m_rows.top(row), size().width(), m_rows.rowHeight());
    return row >= 0 && area.contains(place) ? row : -1;
}

// Where its cells do not take presses themselves.
void List::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    const int row = m_selection ? rowUnder(event->pos()) : -1;
    event->setAccepted(row >= 0);
    if (row >= 0)
        m_selection->press(row);
}

void List::mouseReleaseEvent(QGraphicsSceneMouseEvent *event)
{
    if (m_selection)
        m_selection->release(rowUnder(event->pos()));
}

void List::ungrabMouseEvent(QEvent *event)
{
    if (m_selection)
        m_selection->cancelPress();
    Widget::ungrabMouseEvent(event);
}

bool List::sceneEventFilter(QGraphicsItem *watched, QEvent *event)
{
    // Only a cell itself; what can be pressed inside of it is something else to do.
    if (const int row = m_selection ? rowOf(watched) : -1; row >= 0)
        m_selection->watch(row, watched, event);
    return Widget::sceneEventFilter(watched, event);
}

void List::paintSelection(QPainter *painter, int row) const
{
    const QRectF area(0, qRound(m_rows.top(row)), size().width(), m_rows.rowHeight());
    painter->fillRect(area, style().checkedBackground);
    const bool isMirrored = layoutDirection() == Qt::RightToLeft;
    const qreal left = isMirrored ? area.right() - markWidth : area.left();
    painter->fillRect(QRectF(left, area.top(), markWidth, area.height()), style().accentColor);
}

} // namespace Touch
