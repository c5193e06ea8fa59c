// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QGraphicsObject>

namespace Support {

/** The first item of a class, and of a name if one is given, in or under an item; null if there is none. */
template <typename T>
T *itemIn(QGraphicsItem *root, const QString &objectName = QString())
{
    auto *found = qobject_cast<T *>(root->toGraphicsObject());
    if (found && (objectName.isEmpty() || found->objectName() == objectName))
        return found;
    const auto children = root->childItems();
    for (QGraphicsItem *child : children) {
        if (T *below = itemIn<T>(child, objectName))
            return below;
    }
    return nullptr;
}

/** How many items of a class there are in and under an item. */
template <typename T>
int countIn(QGraphicsItem *root)
{
    int count = qobject_cast<T *>(root->toGraphicsObject()) ? 1 : 0;
    const auto children = root->childItems();
    for (QGraphicsItem *child : children)
        count += countIn<T>(child);
    return count;
}

} // namespace Support
