// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tools/gallery/rows.h"

#include "platform/toolkit/theme.h"
#include "platform/toolkit/widgetrecycler.h"

#include <cmath>

namespace Gallery {

Rows::Rows(QObject *parent)
    : AbstractItemModel(parent)
{ }

void Rows::fill(int count)
{
    beginResetModel();
    m_texts.clear();
    for (int i = 0; i < count; ++i)
        m_texts.append(QStringLiteral("Row %1").arg(i));
    endResetModel();
}

void Rows::insert(int row, const QString &text)
{
    beginInsertRows({}, row, row, true);
    m_texts.insert(row, text);
    growGroupAt(row, 1);
    endInsertRows();
}

void Rows::remove(int row)
{
    beginRemoveRows({}, row, row, true);
    m_texts.removeAt(row);
    growGroupAt(row, -1);
    endRemoveRows();
}

void Rows::growGroupAt(int row, int by)
{
    for (auto &group : m_groups) {
        if (row < group.second || &group == &m_groups.last()) {
            group.second += by;
            return;
        }
        row -= group.second;
    }
}

void Rows::change(int row, const QString &text)
{
    m_texts[row] = text;
    emit dataChanged(index(row, 0), index(row, 0));
}

void Rows::group(const QList<QPair<QString, int>> &groups)
{
    beginResetModel();
    m_groups = groups;
    endResetModel();
}

int Rows::rowCountInGroup(int group) const
{
    return m_groups.isEmpty() ? rowCount() : m_groups.value(group).second;
}

int Rows::rowCount(const QModelIndex &) const
{
    return int(m_texts.size());
}

int Rows::columnCount(const QModelIndex &) const
{
    return 1;
}

QVariant Rows::data(const QModelIndex &index, int role) const
{
    return role == Qt::DisplayRole ? m_texts.value(index.row()) : QVariant();
}

Touch::Widget *RowCreator::createCell(const QModelIndex &index, Touch::WidgetRecycler &recycler)
{
    auto *cell = qobject_cast<RowCell *>(recycler.take(QStringLiteral("RowCell")));
    if (!cell) {
        cell = new RowCell;
        cell->setStyleName(QStringLiteral("CommonSheetHeaderButton"));
        ++made;
        QObject::connect(cell, &Touch::Button::clicked, cell, [this] {
            if (clicks)
                ++*clicks;
        });
    }
    updateCell(index, cell);
    return cell;
}

QSizeF RowCreator::cellSize() const
{
    return {0, std::round(64 * Touch::Theme::instance().textScale())};
}

void RowCreator::updateCell(const QModelIndex &index, Touch::Widget *cell)
{
    ++updated;
    static_cast<RowCell *>(cell)->setText(index.data(Qt::DisplayRole).toString());
}

} // namespace Gallery
