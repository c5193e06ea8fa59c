// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/listselection_p.h"

#include "platform/toolkit/pressable.h"

#include <QGraphicsSceneMouseEvent>

namespace Touch {

ListSelection::ListSelection(List *list, List::SelectionMode mode)
    : QObject(list)
    , m_list(list)
    , m_mode(mode)
    , m_model(list->itemModel())
{
    connect(&m_model, &QItemSelectionModel::selectionChanged, list, [list] { list->update(); });
}

ListSelection::~ListSelection() = default;

void ListSelection::setMode(List::SelectionMode mode)
{
    m_mode = mode;
    if (m_model.selectedRows().size() > 1)
        m_model.clearSelection();
}

bool ListSelection::isSelected(int row) const
{
    return m_model.isRowSelected(row);
}

void ListSelection::choose(int row)
{
    const QModelIndex index = m_list->itemModel() ? m_list->itemModel()->index(row, 0) : QModelIndex();
    if (!index.isValid())
        return;
    const auto change
        = m_mode == List::SingleSelection ? QItemSelectionModel::ClearAndSelect : QItemSelectionModel::Toggle;
    m_model.setCurrentIndex(index, change | QItemSelectionModel::Rows);
}

void ListSelection::release(int row)
{
    if (row >= 0 && m_pressedRow == row)
        choose(row);
    m_pressedRow = -1;
}

void ListSelection::watch(int row, const QGraphicsItem *cell, QEvent *event)
{
    switch (event->type()) {
    case QEvent::GraphicsSceneMousePress:
    case QEvent::GraphicsSceneMouseDoubleClick:
        press(row);
        break;
    case QEvent::UngrabMouse:
        // After a release that is over already; before one, the press became something else.
        cancelPress();
        break;
    case QEvent::GraphicsSceneMouseRelease: {
        const QPointF finger = static_cast<QGraphicsSceneMouseEvent *>(event)->pos();
        release(Pressable::isOn(cell->boundingRect(), finger) ? row : -1);
        break;
    }
    case QEvent::KeyPress:
        if (auto *key = static_cast<QKeyEvent *>(event); key->key() == Qt::Key_Space && !key->isAutoRepeat())
            choose(row);
        break;
    default:
        break;
    }
}

} // namespace Touch
