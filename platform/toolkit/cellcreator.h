// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QSizeF>

class QModelIndex;

namespace Touch {

class Widget;
class WidgetRecycler;

/** Makes and fills the cells of a list. Owned by the list. */
class CellCreator
{
public:
    CellCreator();
    virtual ~CellCreator();

    /** A filled cell for a row: one from the recycler if it has a fitting one, else a new one without parent. */
    virtual Widget *createCell(const QModelIndex &index, WidgetRecycler &recycler) = 0;
    /** Fills a cell with what its row holds now. */
    virtual void updateCell(const QModelIndex &index, Widget *cell) = 0;
    /** The size of every cell; the width may be 0, cells are as wide as the list. */
    virtual QSizeF cellSize() const = 0;

private:
    Q_DISABLE_COPY(CellCreator)
};

} // namespace Touch
