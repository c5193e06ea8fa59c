// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/linearlayoutpolicy.h"

#include "platform/toolkit/layoutitem_p.h"

#include <algorithm>
#include <QGraphicsLayoutItem>
#include <QWidget>

namespace Touch {

namespace {

SegmentSize toSegmentSize(Qt::SizeHint which)
{
    return which == Qt::MinimumSize ? SegmentSize::Minimum
        : which == Qt::MaximumSize  ? SegmentSize::Maximum
                                    : SegmentSize::Preferred;
}

/** What the items need across the line: the largest of them. */
qreal largest(const QList<Segment> &segments, SegmentSize which)
{
    qreal size = 0;
    for (const Segment &segment : segments)
        size = qMax(size, totalSize({segment}, 0, which));
    return size;
}

} // namespace

LinearLayoutPolicy::LinearLayoutPolicy(Layout *layout, Qt::Orientation orientation)
    : AbstractLayoutPolicy(layout)
    , m_orientation(orientation)
{ }

LinearLayoutPolicy::~LinearLayoutPolicy() = default;

void LinearLayoutPolicy::addItem(QGraphicsLayoutItem *item, Qt::Alignment alignment)
{
    insertItem(count(), item, alignment);
}

void LinearLayoutPolicy::insertItem(int index, QGraphicsLayoutItem *item, Qt::Alignment alignment)
{
    m_entries.insert(index, {item, alignment, 0});
    adopt(item);
}

void LinearLayoutPolicy::addStretch(int stretch)
{
    m_entries.append({nullptr, {}, stretch});
    invalidate();
}

bool LinearLayoutPolicy::contains(const QGraphicsLayoutItem *item) const
{
    return std::any_of(m_entries.begin(), m_entries.end(), [item](const Entry &e) { return e.item == item; });
}

QList<QGraphicsLayoutItem *> LinearLayoutPolicy::items() const
{
    QList<QGraphicsLayoutItem *> held;
    for (const Entry &entry : m_entries) {
        if (entry.item)
            held.append(entry.item);
    }
    return held;
}

void LinearLayoutPolicy::removeItem(const QGraphicsLayoutItem *item)
{
    m_entries.removeIf([item](const Entry &entry) { return entry.item == item; });
}

QList<Segment> LinearLayoutPolicy::segments(Qt::Orientation direction, qreal width) const
{
    QList<Segment> result;
    result.reserve(m_entries.size());
    for (const Entry &entry : m_entries) {
        if (entry.item) {
            result.append(wantedSegment(entry.item, direction, width));
        } else {
            Segment stretch;
            stretch.maximum = direction == m_orientation ? QWIDGETSIZE_MAX : 0;
            stretch.stretch = entry.stretch;
            result.append(stretch);
        }
    }
    return result;
}

QSizeF LinearLayoutPolicy::contentSize(Qt::SizeHint which, qreal width) const
{
    const SegmentSize size = toSegmentSize(which);
    const QList<Segment> across = segments(Qt::Horizontal, -1);
    if (m_orientation == Qt::Vertical)
        return {largest(across, size), totalSize(segments(Qt::Vertical, width), spacing(), size)};
    return {totalSize(across, spacing(), size), heightInWidth(which, width)};
}

qreal LinearLayoutPolicy::heightInWidth(Qt::SizeHint which, qreal width) const
{
    if (width < 0 || !hasHeightForWidth())
        return largest(segments(Qt::Vertical, -1), toSegmentSize(which));
    QList<Segment> columns = segments(Qt::Horizontal, -1);
    distribute(columns, 0, width, spacing());
    qreal height = 0;
    for (int i = 0; i < columns.size(); ++i) {
        if (m_entries[i].item)
            height = qMax(
                height,
                totalSize({wantedSegment(m_entries[i].item, Qt::Vertical, columns[i].size)}, 0, toSegmentSize(which)));
    }
    return height;
}

bool LinearLayoutPolicy::hasHeightForWidth() const
{
    return std::any_of(m_entries.begin(), m_entries.end(),
                       [](const Entry &entry) { return entry.item && heightFollowsWidth(entry.item); });
}

void LinearLayoutPolicy::arrange(const QRectF &area, bool isMirrored)
{
    const bool isRow = m_orientation == Qt::Horizontal;
    QList<Segment> line = segments(m_orientation, area.width());
    distribute(line, isRow ? area.left() : area.top(), isRow ? area.width() : area.height(), spacing());
    for (int i = 0; i < line.size(); ++i) {
        const Entry &entry = m_entries[i];
        if (!entry.item || line[i].isEmpty)
            continue;
        const QRectF cell = isRow ? QRectF(line[i].position, area.top(), line[i].size, area.height())
                                  : QRectF(area.left(), line[i].position, area.width(), line[i].size);
        placeItem(entry.item, cell, entry.alignment, isMirrored, area);
    }
}

} // namespace Touch
