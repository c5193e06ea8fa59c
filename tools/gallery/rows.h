// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/toolkit/abstractitemmodel.h"
#include "platform/toolkit/button.h"
#include "platform/toolkit/cellcreator.h"

namespace Gallery {

/** Texts, one a row; single changes are animated. */
class Rows : public Touch::AbstractItemModel
{
    Q_OBJECT

public:
    explicit Rows(QObject *parent = nullptr);

    void fill(int count);
    void insert(int row, const QString &text);
    void remove(int row);
    void change(int row, const QString &text);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    using AbstractItemModel::itemData;
    /** Groups the rows: so many in each, by title. */
    void group(const QList<QPair<QString, int>> &groups);
    int groupCount() const override { return m_groups.isEmpty() ? -1 : int(m_groups.size()); }
    int rowCountInGroup(int group) const override;
    QString groupTitle(int group) const override { return m_groups.value(group).first; }
    QVariant itemData(int, int, int) const override { return {}; }

private:
    void growGroupAt(int row, int by);

    QStringList m_texts;
    QList<QPair<QString, int>> m_groups;
};

/** A row that can be tapped. */
class RowCell : public Touch::Button
{
    Q_OBJECT
};

class RowCreator : public Touch::CellCreator
{
public:
    Touch::Widget *createCell(const QModelIndex &index, Touch::WidgetRecycler &recycler) override;
    void updateCell(const QModelIndex &index, Touch::Widget *cell) override;
    QSizeF cellSize() const override;

    int made = 0;
    int updated = 0;
    int *clicks = nullptr; ///< counted when a cell is clicked
};

} // namespace Gallery
