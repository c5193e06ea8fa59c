// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/segments_p.h"

#include <algorithm>
#include <QtGlobal>

namespace Touch {

namespace {

constexpr qreal enough = 0.001;

int visibleCount(const QList<Segment> &segments)
{
    return int(std::count_if(segments.begin(), segments.end(), [](const Segment &s) { return !s.isEmpty; }));
}

qreal spacings(const QList<Segment> &segments, qreal spacing)
{
    return qMax(0, visibleCount(segments) - 1) * spacing;
}

void shrink(QList<Segment> &segments, qreal missing)
{
    qreal slack = 0;
    for (const Segment &segment : std::as_const(segments))
        slack += segment.size - segment.minimum;
    if (slack <= 0)
        return;
    const qreal share = qMin(1.0, missing / slack);
    for (Segment &segment : segments)
        segment.size -= (segment.size - segment.minimum) * share;
}

/** Spreads room over the segments by weight until it is used up or all are at their maximum; answers what is
 * left. */
template <typename Weight>
qreal grow(QList<Segment> &segments, qreal room, Weight weight)
{
    while (room > enough) {
        qreal weights = 0;
        for (const Segment &segment : std::as_const(segments))
            weights += segment.size < segment.maximum ? weight(segment) : 0;
        if (weights <= 0)
            return room;
        qreal used = 0;
        for (Segment &segment : segments) {
            if (segment.size >= segment.maximum)
                continue;
            const qreal more = qMin(segment.maximum - segment.size, room * weight(segment) / weights);
            segment.size += more;
            used += more;
        }
        if (used <= enough)
            return room;
        room -= used;
    }
    return 0;
}

} // namespace

qreal totalSize(const QList<Segment> &segments, qreal spacing, SegmentSize which)
{
    qreal total = spacings(segments, spacing);
    for (const Segment &segment : segments) {
        total += which == SegmentSize::Minimum ? segment.minimum
            : which == SegmentSize::Preferred  ? segment.preferred
                                               : segment.maximum;
    }
    return total;
}

void distribute(QList<Segment> &segments, qreal start, qreal available, qreal spacing)
{
    for (Segment &segment : segments)
        segment.size = segment.preferred;
    qreal room = available - totalSize(segments, spacing, SegmentSize::Preferred);
    if (room < 0) {
        shrink(segments, -room);
    } else {
        room = grow(segments, room, [](const Segment &s) { return s.isEmpty ? 0 : s.stretch; });
        room = grow(segments, room, [](const Segment &s) { return s.isExpanding && !s.isEmpty ? 1 : 0; });
        grow(segments, room, [](const Segment &s) { return s.isEmpty ? 0 : 1; });
    }
    for (Segment &segment : segments) {
        segment.position = start;
        if (!segment.isEmpty)
            start += segment.size + spacing;
    }
}

void widenSpan(QList<Segment> &segments, int first, int last, const Segment &wanted, qreal spacing)
{
    QList<Segment> spanned = segments.mid(first, last - first + 1);
    for (Segment &segment : spanned) {
        if (segment.isEmpty && !wanted.isEmpty) {
            segment.isEmpty = false;
            segment.maximum = wanted.maximum;
        }
        segment.isExpanding = segment.isExpanding || wanted.isExpanding;
    }
    // What is too small together grows beyond its maximum.
    if (totalSize(spanned, spacing, SegmentSize::Maximum) < wanted.preferred) {
        for (Segment &segment : spanned)
            segment.maximum = qMax(segment.maximum, wanted.preferred);
    }
    QList<Segment> atMinimum = spanned;
    for (Segment &segment : atMinimum)
        segment.preferred = segment.minimum;
    distribute(atMinimum, 0, wanted.minimum, spacing);
    distribute(spanned, 0, wanted.preferred, spacing);
    for (int i = 0; i < spanned.size(); ++i) {
        Segment &segment = segments[first + i];
        const bool wasEmpty = segment.isEmpty;
        segment.isEmpty = spanned[i].isEmpty;
        segment.isExpanding = spanned[i].isExpanding;
        segment.minimum = qMax(segment.minimum, atMinimum[i].size);
        segment.preferred = qMax(qMax(segment.preferred, spanned[i].size), segment.minimum);
        segment.maximum = qMax(qMax(segment.maximum, wasEmpty ? wanted.maximum : 0), segment.preferred);
    }
}

} // namespace Touch
