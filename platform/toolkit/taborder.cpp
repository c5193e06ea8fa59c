// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/taborder_p.h"

#include "platform/toolkit/abstractlayoutpolicy.h"
#include "platform/toolkit/layout.h"

#include <algorithm>
#include <QGraphicsWidget>

namespace Touch {

namespace {

void collectLaidOut(const QGraphicsLayoutItem *layout, QList<QGraphicsItem *> *items)
{
    const auto *ours = dynamic_cast<const Layout *>(layout);
    const AbstractLayoutPolicy *policy = ours ? ours->policy() : nullptr;
    const QList<QGraphicsLayoutItem *> held = policy ? policy->items() : QList<QGraphicsLayoutItem *>();
    for (const QGraphicsLayoutItem *item : held) {
        if (item->isLayout())
            collectLaidOut(item, items);
        else if (QGraphicsItem *graphics = item->graphicsItem())
            items->append(graphics);
    }
}

/** Whether what lies beside each other is read from the right. */
bool isMirrored(const QGraphicsItem *item)
{
    return item->isWidget() && static_cast<const QGraphicsWidget *>(item)->layoutDirection() == Qt::RightToLeft;
}

bool isTabStop(const QGraphicsItem *item)
{
    return item->isWidget() && item->flags().testFlag(QGraphicsItem::ItemIsFocusable)
        && static_cast<const QGraphicsWidget *>(item)->focusPolicy() & Qt::TabFocus;
}

} // namespace

QList<QGraphicsItem *> inReadingOrder(const QGraphicsItem *item)
{
    QList<QGraphicsItem *> ordered;
    if (item->isWidget())
        collectLaidOut(static_cast<const QGraphicsWidget *>(item)->layout(), &ordered);
    QList<QGraphicsItem *> others = item->childItems();
    others.removeIf([&ordered](QGraphicsItem *child) { return ordered.contains(child); });
    // The parts of a control keep their order, wherever its state puts them.
    if (isTabStop(item))
        return ordered + others;
    const bool fromRight = isMirrored(item);
    const auto comesBefore = [fromRight](const QGraphicsItem *a, const QGraphicsItem *b) {
        const QRectF left = a->mapRectToParent(a->boundingRect());
        const QRectF right = b->mapRectToParent(b->boundingRect());
        if (left.top() != right.top())
            return left.top() < right.top();
        return fromRight ? left.right() > right.right() : left.left() < right.left();
    };
    std::stable_sort(others.begin(), others.end(), comesBefore);
    return ordered + others;
}

QList<QGraphicsWidget *> tabStops(const QGraphicsItem *item)
{
    QList<QGraphicsWidget *> stops;
    const QList<QGraphicsItem *> children = inReadingOrder(item);
    for (QGraphicsItem *child : children) {
        if (!child->isVisible() || !child->isEnabled())
            continue;
        if (isTabStop(child))
            stops.append(static_cast<QGraphicsWidget *>(child));
        stops.append(tabStops(child));
    }
    return stops;
}

} // namespace Touch
