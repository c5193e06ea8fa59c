// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/gridlayoutpolicy.h"

#include "platform/toolkit/layoutitem_p.h"

#include <algorithm>
#include <QGraphicsLayoutItem>
#include <QWidget>

namespace Touch {

namespace {

qreal spannedSize(const QList<Segment> &segments, int first, int last)
{
    return segments[last].position + segments[last].size - segments[first].position;
}

void joinCell(Segment &segment, const Segment &wanted)
{
    if (wanted.isEmpty)
        return;
    segment.minimum = qMax(segment.minimum, wanted.minimum);
    segment.preferred = qMax(segment.preferred, wanted.preferred);
    segment.maximum = qMax(segment.maximum, wanted.maximum);
    segment.stretch = qMax(segment.stretch, wanted.stretch);
    segment.isExpanding = segment.isExpanding || wanted.isExpanding;
    segment.isEmpty = false;
}

} // namespace

GridLayoutPolicy::GridLayoutPolicy(Layout *layout)
    : AbstractLayoutPolicy(layout)
{ }

GridLayoutPolicy::~GridLayoutPolicy() = default;

void GridLayoutPolicy::addItem(QGraphicsLayoutItem *item, int row, int column, int rowSpan, int columnSpan,
                               Qt::Alignment alignment)
{
    m_entries.append({item, {row, rowSpan}, {column, columnSpan}, alignment});
    adopt(item);
}

GridLayoutPolicy::Cell GridLayoutPolicy::cellOf(const QGraphicsLayoutItem *item) const
{
    const auto entry
        = std::find_if(m_entries.begin(), m_entries.end(), [item](const Entry &e) { return e.item == item; });
    if (entry == m_entries.end())
        return {};
    return {entry->rows.first, entry->columns.first, entry->rows.count, entry->columns.count, entry->alignment};
}

void GridLayoutPolicy::setRowStretchFactor(int row, int stretch)
{
    m_rowStretch[row] = stretch;
    invalidate();
}

void GridLayoutPolicy::setColumnStretchFactor(int column, int stretch)
{
    m_columnStretch[column] = stretch;
    invalidate();
}

bool GridLayoutPolicy::contains(const QGraphicsLayoutItem *item) const
{
    return std::any_of(m_entries.begin(), m_entries.end(), [item](const Entry &e) { return e.item == item; });
}

QList<QGraphicsLayoutItem *> GridLayoutPolicy::items() const
{
    QList<Entry> entries = m_entries;
    std::stable_sort(entries.begin(), entries.end(), [](const Entry &a, const Entry &b) {
        return std::pair(a.rows.first, a.columns.first) < std::pair(b.rows.first, b.columns.first);
    });
    QList<QGraphicsLayoutItem *> held;
    for (const Entry &entry : std::as_const(entries))
        held.append(entry.item);
    return held;
}

void GridLayoutPolicy::removeItem(const QGraphicsLayoutItem *item)
{
    m_entries.removeIf([item](const Entry &entry) { return entry.item == item; });
}

const GridLayoutPolicy::Span &GridLayoutPolicy::span(const Entry &entry, Qt::Orientation direction) const
{
    return direction == Qt::Horizontal ? entry.columns : entry.rows;
}

QList<Segment> GridLayoutPolicy::segments(Qt::Orientation direction, const QList<Segment> *columns) const
{
    int count = 0;
    for (const Entry &entry : m_entries)
        count = qMax(count, span(entry, direction).last() + 1);
    Segment empty;
    empty.isEmpty = true;
    QList<Segment> result(count, empty);
    // Items of one cell first; those that span several then ask for what is still missing.
    for (const bool spansMany : {false, true}) {
        for (const Entry &entry : m_entries) {
            const Span &cells = span(entry, direction);
            if ((cells.count > 1) != spansMany)
                continue;
            const qreal width = columns ? spannedSize(*columns, entry.columns.first, entry.columns.last()) : -1;
            const Segment wanted = wantedSegment(entry.item, direction, width);
            if (!spansMany)
                joinCell(result[cells.first], wanted);
            else if (!wanted.isEmpty)
                widenSpan(result, cells.first, cells.last(), wanted, spacing());
        }
    }
    const QHash<int, int> &stretches = direction == Qt::Horizontal ? m_columnStretch : m_rowStretch;
    for (auto it = stretches.begin(); it != stretches.end(); ++it) {
        if (it.key() >= count)
            continue;
        Segment &segment = result[it.key()];
        segment.stretch = it.value();
        // What is told to stretch does so around items that do not.
        if (it.value() > 0 && !segment.isEmpty)
            segment.maximum = QWIDGETSIZE_MAX;
    }
    return result;
}

QSizeF GridLayoutPolicy::contentSize(Qt::SizeHint which, qreal width) const
{
    const SegmentSize size = which == Qt::MinimumSize ? SegmentSize::Minimum
        : which == Qt::MaximumSize                    ? SegmentSize::Maximum
                                                      : SegmentSize::Preferred;
    QList<Segment> columns = segments(Qt::Horizontal, nullptr);
    const qreal total = totalSize(columns, spacing(), size);
    const bool isWidthKnown = width >= 0 && hasHeightForWidth();
    if (isWidthKnown)
        distribute(columns, 0, width, spacing());
    const QList<Segment> rows = segments(Qt::Vertical, isWidthKnown ? &columns : nullptr);
    return {total, totalSize(rows, spacing(), size)};
}

bool GridLayoutPolicy::hasHeightForWidth() const
{
    return std::any_of(m_entries.begin(), m_entries.end(),
                       [](const Entry &entry) { return heightFollowsWidth(entry.item); });
}

void GridLayoutPolicy::arrange(const QRectF &area, bool isMirrored)
{
    QList<Segment> columns = segments(Qt::Horizontal, nullptr);
    distribute(columns, area.left(), area.width(), spacing());
    QList<Segment> rows = segments(Qt::Vertical, &columns);
    distribute(rows, area.top(), area.height(), spacing());
    for (const Entry &entry : std::as_const(m_entries)) {
        if (isLeftOut(entry.item))
            continue;
        const QRectF cell(columns[entry.columns.first].position, rows[entry.rows.first].position,
                          spannedSize(columns, entry.columns.first, entry.columns.last()),
                          spannedSize(rows, entry.rows.first, entry.rows.last()));
        placeItem(entry.item, cell, entry.alignment, isMirrored, area);
    }
}

} // namespace Touch
