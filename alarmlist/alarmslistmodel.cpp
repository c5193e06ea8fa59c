// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "alarmlist/alarmslistmodel.h"

#include <QDebug>

AlarmsListModel::AlarmsListModel(QObject *parent)
    : Touch::AbstractItemModel(parent)
    , m_columnNames{"AlarmCookie", "AlarmTime",          "AlarmMessage",    "AlarmStatus",
                    "AlarmTone",   "AlarmRepeatingRule", "AlarmSnoozeValue"}
{ }

int AlarmsListModel::rowCount(const QModelIndex &) const
{
    return static_cast<int>(m_rows.size());
}

int AlarmsListModel::columnCount(const QModelIndex &) const
{
    return static_cast<int>(m_columnNames.size());
}

QVariant AlarmsListModel::data(const QModelIndex &index, int role) const
{
    if (role != Qt::DisplayRole || !index.isValid() || index.row() >= rowCount())
        return QVariant();
    const QStringList &row = m_rows.at(index.row());
    return index.column() < row.size() ? QVariant(row.at(index.column())) : QVariant();
}

bool AlarmsListModel::setData(const QModelIndex &index, const QVariant &value, int)
{
    if (!index.isValid())
        return false;
    m_rows[index.row()][index.column()] = value.toString();
    emit dataChanged(index, index);
    return true;
}

QVariant AlarmsListModel::headerData(int section, Qt::Orientation, int role) const
{
    if (role != Qt::DisplayRole || section < 0 || section >= m_columnNames.size())
        return QVariant();
    return m_columnNames.at(section);
}

bool AlarmsListModel::insertRow(int row, const QModelIndex &parent)
{
    constexpr auto signature = "bool AlarmsListModel::insertRow(int, const QModelIndex&)";
    qDebug() << signature << "entered";
    beginInsertRows(parent, row, row, true);
    m_rows.insert(row, emptyRow());
    endInsertRows();
    qDebug() << signature << "exited";
    return true;
}

bool AlarmsListModel::insertRows(int row, int count, const QModelIndex &parent)
{
    constexpr auto signature = "virtual bool AlarmsListModel::insertRows(int, int, const QModelIndex&)";
    qDebug() << signature << "entered";
    if (count >= 1) {
        beginInsertRows(parent, row, row + count - 1, false);
        for (int i = row; i < count; ++i)
            m_rows.insert(row + i, emptyRow());
        endInsertRows();
    }
    qDebug() << signature << "exited";
    return true;
}

bool AlarmsListModel::removeRow(int row, const QModelIndex &parent)
{
    constexpr auto signature = "bool AlarmsListModel::removeRow(int, const QModelIndex&)";
    qDebug() << signature << "entered";
    beginRemoveRows(parent, row, row, true);
    m_rows.remove(row);
    endRemoveRows();
    qDebug() << signature << "exited";
    return true;
}

bool AlarmsListModel::removeRows(int row, int count, const QModelIndex &parent)
{
    constexpr auto signature = "virtual bool AlarmsListModel::removeRows(int, int, const QModelIndex&)";
    qDebug() << signature << "entered";
    if (!m_rows.isEmpty()) {
        beginRemoveRows(parent, row, row + count - 1, false);
        for (int i = row; i < count; ++i)
            m_rows.remove(row);
        endRemoveRows();
    }
    qDebug() << signature << "exited";
    return true;
}

int AlarmsListModel::groupCount() const
{
    return -1;
}

int AlarmsListModel::rowCountInGroup(int) const
{
    return rowCount();
}

QString AlarmsListModel::groupTitle(int) const
{
    return QStringLiteral("");
}

QVariant AlarmsListModel::itemData(int, int, int) const
{
    return QVariant();
}

QStringList AlarmsListModel::emptyRow() const
{
    return QStringList(m_columnNames.size(), QString());
}
