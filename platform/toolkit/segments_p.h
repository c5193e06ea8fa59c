// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QList>

namespace Touch {

/** One row or column, or one item in a line, while a layout shares out the room along one direction. */
struct Segment
{
    qreal minimum = 0;
    qreal preferred = 0;
    qreal maximum = 0;
    int stretch = 0;
    bool isExpanding = false;
    bool isEmpty = false; ///< nothing to see: takes neither room nor spacing

    qreal position = 0;
    qreal size = 0;
};

enum class SegmentSize { Minimum, Preferred, Maximum };

/** The length that all segments take together, spacing included. */
qreal totalSize(const QList<Segment> &segments, qreal spacing, SegmentSize which);

/**
 * Gives each segment its size and position. Too little room is taken from what is above the minimum; room
 * that is left goes to the stretched ones, without such to the expanding ones, then to whatever may still
 * grow.
 */
void distribute(QList<Segment> &segments, qreal start, qreal available, qreal spacing);

/** Lets segments first..last together satisfy an item that spans them. */
void widenSpan(QList<Segment> &segments, int first, int last, const Segment &wanted, qreal spacing);

} // namespace Touch
