// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/layoutitem_p.h"

#include "platform/toolkit/widget.h"

#include <QGraphicsLayout>

namespace Touch {

namespace {

QMarginsF marginsOf(const QGraphicsLayoutItem *item)
{
    QGraphicsItem *graphics = item->graphicsItem();
    const auto *widget = graphics ? qobject_cast<Widget *>(graphics->toGraphicsObject()) : nullptr;
    return widget ? widget->style().margins : QMarginsF();
}

QSizeF hint(const QGraphicsLayoutItem *item, Qt::SizeHint which, const QMarginsF &margins, qreal width)
{
    const bool isConstrained = width >= 0 && heightFollowsWidth(item);
    const QSizeF constraint = isConstrained ? QSizeF(width - margins.left() - margins.right(), -1) : QSizeF(-1, -1);
    return item->effectiveSizeHint(which, constraint).grownBy(margins);
}

} // namespace

Segment wantedSegment(const QGraphicsLayoutItem *item, Qt::Orientation direction, qreal width)
{
    Segment segment;
    segment.isEmpty = isLeftOut(item);
    if (segment.isEmpty)
        return segment;
    const bool isHorizontal = direction == Qt::Horizontal;
    const QMarginsF margins = marginsOf(item);
    const auto along = [&](Qt::SizeHint which) {
        const QSizeF size = hint(item, which, margins, isHorizontal ? -1 : width);
        return isHorizontal ? size.width() : size.height();
    };
    const QSizePolicy sizePolicy = item->sizePolicy();
    const QSizePolicy::Policy policy = isHorizontal ? sizePolicy.horizontalPolicy() : sizePolicy.verticalPolicy();
    segment.minimum = along(Qt::MinimumSize);
    segment.preferred = policy == QSizePolicy::Ignored ? segment.minimum : along(Qt::PreferredSize);
    segment.maximum = policy & QSizePolicy::GrowFlag ? along(Qt::MaximumSize) : segment.preferred;
    if (!(policy & QSizePolicy::ShrinkFlag))
        segment.minimum = segment.preferred;
    segment.isExpanding = policy & QSizePolicy::ExpandFlag;
    segment.stretch = isHorizontal ? sizePolicy.horizontalStretch() : sizePolicy.verticalStretch();
    return segment;
}

bool heightFollowsWidth(const QGraphicsLayoutItem *item)
{
    if (item->sizePolicy().hasHeightForWidth())
        return true;
    const QGraphicsItem *graphics = item->graphicsItem();
    if (!graphics || !graphics->isWidget())
        return false;
    const QGraphicsLayout *layout = static_cast<const QGraphicsWidget *>(graphics)->layout();
    return layout && layout->sizePolicy().hasHeightForWidth();
}

bool isLeftOut(const QGraphicsLayoutItem *item)
{
    const QGraphicsItem *graphics = item->graphicsItem();
    return graphics && !graphics->isVisibleTo(graphics->parentItem());
}

void placeItem(QGraphicsLayoutItem *item, const QRectF &cell, Qt::Alignment alignment, bool isMirrored,
               const QRectF &bounds)
{
    const Segment across = wantedSegment(item, Qt::Horizontal);
    const qreal width = qMin(across.maximum, cell.width());
    const Segment down = wantedSegment(item, Qt::Vertical, width);
    const qreal height = qMin(down.maximum, cell.height());
    QPointF corner = cell.topLeft();
    if (alignment & Qt::AlignRight)
        corner.rx() += cell.width() - width;
    else if (alignment & Qt::AlignHCenter)
        corner.rx() += (cell.width() - width) / 2;
    if (alignment & Qt::AlignBottom)
        corner.ry() += cell.height() - height;
    else if (!(alignment & Qt::AlignTop))
        corner.ry() += (cell.height() - height) / 2;
    if (isMirrored)
        corner.setX(bounds.left() + bounds.right() - corner.x() - width);
    QMarginsF margins = marginsOf(item);
    if (isMirrored)
        margins = {margins.right(), margins.top(), margins.left(), margins.bottom()};
    const QRectF place = QRectF(corner, QSizeF(width, height)).marginsRemoved(margins);
    // Edges on whole pixels keep lines and text sharp.
    const QPointF topLeft(qRound(place.left()), qRound(place.top()));
    item->setGeometry(QRectF(topLeft, QPointF(qRound(place.right()), qRound(place.bottom()))));
}

} // namespace Touch
