// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QAbstractTableModel>

namespace Touch {

/**
 * A table model whose rows may be grouped, and whose insertions and removals say whether they are to be animated.
 * A group count below 0 means that the rows are not grouped.
 */
class AbstractItemModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    explicit AbstractItemModel(QObject *parent = nullptr);
    ~AbstractItemModel() override;

    using QAbstractTableModel::itemData;

    virtual int groupCount() const = 0;
    virtual int rowCountInGroup(int group) const = 0;
    virtual QString groupTitle(int group) const = 0;
    virtual QVariant itemData(int row, int group, int role = Qt::DisplayRole) const = 0;

    /** Whether the change that is going on is to be animated; for views, while they hear of it. */
    bool isAnimated() const { return m_isAnimated; }

protected:
    /** As the model's own ones, which do not animate. */
    using QAbstractTableModel::beginInsertRows;
    using QAbstractTableModel::beginRemoveRows;
    void beginInsertRows(const QModelIndex &parent, int first, int last, bool animated);
    void beginRemoveRows(const QModelIndex &parent, int first, int last, bool animated);
    void endInsertRows();
    void endRemoveRows();

private:
    bool m_isAnimated = false;
};

} // namespace Touch
