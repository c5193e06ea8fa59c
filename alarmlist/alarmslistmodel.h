// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/toolkit/abstractitemmodel.h"

#include <QList>
#include <QStringList>

/**
 * The alarms as a flat table of text: a row for each alarm, seven named columns. The alarms widget owns it, fills it
 * and reads the columns by name; the list shows it. It holds no alarm records. GUI thread.
 * Changes of a single row are announced as animated, changes of several are not.
 */
class AlarmsListModel : public Touch::AbstractItemModel
{
    Q_OBJECT

public:
    explicit AlarmsListModel(QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    /** The cell's text for Qt::DisplayRole; invalid for every other role and outside the table. */
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    /** Writes the cell whatever the role. The index must lie inside the table: its upper ends are not checked. */
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    /** Inserts empty rows at row, row + 1 … below count; callers reload the whole table, with row 0. */
    bool insertRows(int row, int count, const QModelIndex &parent = QModelIndex()) override;
    /** Erases from row on, as often as row is below count; callers empty the whole table, with row 0. */
    bool removeRows(int row, int count, const QModelIndex &parent = QModelIndex()) override;

    // Groups are not used.
    using Touch::AbstractItemModel::itemData;
    int groupCount() const override;
    int rowCountInGroup(int group) const override;
    QString groupTitle(int group) const override;
    QVariant itemData(int row, int group, int role) const override;

    bool insertRow(int row, const QModelIndex &parent = QModelIndex());
    bool removeRow(int row, const QModelIndex &parent = QModelIndex());

    const QStringList &columnNames() const { return m_columnNames; }

private:
    QStringList emptyRow() const;

    QVector<QStringList> m_rows;
    const QStringList m_columnNames;
};
