// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/abstractitemmodel.h"

namespace Touch {

AbstractItemModel::AbstractItemModel(QObject *parent)
    : QAbstractTableModel(parent)
{ }

AbstractItemModel::~AbstractItemModel() = default;

void AbstractItemModel::beginInsertRows(const QModelIndex &parent, int first, int last, bool animated)
{
    m_isAnimated = animated;
    beginInsertRows(parent, first, last);
}

void AbstractItemModel::beginRemoveRows(const QModelIndex &parent, int first, int last, bool animated)
{
    m_isAnimated = animated;
    beginRemoveRows(parent, first, last);
}

void AbstractItemModel::endInsertRows()
{
    QAbstractTableModel::endInsertRows();
    m_isAnimated = false;
}

void AbstractItemModel::endRemoveRows()
{
    QAbstractTableModel::endRemoveRows();
    m_isAnimated = false;
}

} // namespace Touch
