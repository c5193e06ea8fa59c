// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/toolkit/segments_p.h"

#include <QRectF>
#include <Qt>

class QGraphicsLayoutItem;

namespace Touch {

/** What an item wants along one direction, its style's margins included; for heights, the width it gets if
 * known. */
Segment wantedSegment(const QGraphicsLayoutItem *item, Qt::Orientation direction, qreal width = -1);

/** Whether its height, or that of something laid out in it, depends on its width. */
bool heightFollowsWidth(const QGraphicsLayoutItem *item);

/** Hidden by whoever made it (not by its layout): takes no room. */
bool isLeftOut(const QGraphicsLayoutItem *item);

/** Puts an item into its cell, at most at its maximum size, aligned; leading and centred unless the alignment
 * says else. */
void placeItem(QGraphicsLayoutItem *item, const QRectF &cell, Qt::Alignment alignment, bool isMirrored,
               const QRectF &bounds);

} // namespace Touch
