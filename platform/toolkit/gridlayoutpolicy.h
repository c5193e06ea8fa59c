// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/toolkit/abstractlayoutpolicy.h"

#include <QHash>
#include <QList>

namespace Touch {

struct Segment;

/** Items in rows and columns, each over one cell or several. */
class GridLayoutPolicy : public AbstractLayoutPolicy
{
public:
    /** What an item was put over. */
    struct Cell
    {
        int row = -1;
        int column = -1;
        int rowSpan = 0;
        int columnSpan = 0;
        Qt::Alignment alignment;
        bool operator==(const Cell &) const = default;
    };

    explicit GridLayoutPolicy(Layout *layout);
    ~GridLayoutPolicy() override;

    void addItem(QGraphicsLayoutItem *item, int row, int column, int rowSpan = 1, int columnSpan = 1,
                 Qt::Alignment alignment = {});
    /** The row is -1 for an item that is not held. */
    Cell cellOf(const QGraphicsLayoutItem *item) const;
    void setRowStretchFactor(int row, int stretch);
    void setColumnStretchFactor(int column, int stretch);

    bool contains(const QGraphicsLayoutItem *item) const override;
    QList<QGraphicsLayoutItem *> items() const override;
    void removeItem(const QGraphicsLayoutItem *item) override;
    QSizeF contentSize(Qt::SizeHint which, qreal width) const override;
    bool hasHeightForWidth() const override;
    void arrange(const QRectF &area, bool isMirrored) override;

private:
    struct Span
    {
        int first = 0;
        int count = 1;
        int last() const { return first + count - 1; }
    };
    struct Entry
    {
        QGraphicsLayoutItem *item = nullptr;
        Span rows;
        Span columns;
        Qt::Alignment alignment;
    };

    const Span &span(const Entry &entry, Qt::Orientation direction) const;
    /** The rows or columns; for rows, the columns tell how wide each item is. */
    QList<Segment> segments(Qt::Orientation direction, const QList<Segment> *columns) const;

    QList<Entry> m_entries;
    QHash<int, int> m_rowStretch;
    QHash<int, int> m_columnStretch;
};

} // namespace Touch
