// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/toolkit/abstractlayoutpolicy.h"

#include <QList>

namespace Touch {

struct Segment;

/** Items in a row or in a column. */
class LinearLayoutPolicy : public AbstractLayoutPolicy
{
public:
    LinearLayoutPolicy(Layout *layout, Qt::Orientation orientation);
    ~LinearLayoutPolicy() override;

    void addItem(QGraphicsLayoutItem *item, Qt::Alignment alignment = {});
    void insertItem(int index, QGraphicsLayoutItem *item, Qt::Alignment alignment = {});
    /** Room that takes what is left, in proportion to other stretches. */
    void addStretch(int stretch = 1);
    int count() const { return int(m_entries.size()); }
    /** Null for a stretch. */
    QGraphicsLayoutItem *itemAt(int index) const { return m_entries[index].item; }

    bool contains(const QGraphicsLayoutItem *item) const override;
    QList<QGraphicsLayoutItem *> items() const override;
    void removeItem(const QGraphicsLayoutItem *item) override;
    QSizeF contentSize(Qt::SizeHint which, qreal width) const override;
    bool hasHeightForWidth() const override;
    void arrange(const QRectF &area, bool isMirrored) override;

private:
    struct Entry
    {
        QGraphicsLayoutItem *item = nullptr;
        Qt::Alignment alignment;
        int stretch = 0;
    };

    QList<Segment> segments(Qt::Orientation direction, qreal width) const;
    qreal heightInWidth(Qt::SizeHint which, qreal width) const;

    Qt::Orientation m_orientation;
    QList<Entry> m_entries;
};

} // namespace Touch
