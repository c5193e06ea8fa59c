// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QList>

class QGraphicsItem;
class QGraphicsWidget;

namespace Touch {

/** The items within an item as they are read: in the order of its layout, others from the top down. */
QList<QGraphicsItem *> inReadingOrder(const QGraphicsItem *item);

/** What Tab stops at below an item, one after the other. */
QList<QGraphicsWidget *> tabStops(const QGraphicsItem *item);

} // namespace Touch
