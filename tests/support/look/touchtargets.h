// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/toolkit/pressable.h"
#include "platform/toolkit/textedit.h"

#include <QGraphicsScene>
#include <QStringList>

namespace Support {

/** The names of what is to be touched in a scene but would be missed by a finger, being too small. */
inline QStringList tooSmallToTouch(const QGraphicsScene *scene)
{
    constexpr qreal least = 48;
    QStringList names;
    const QList<QGraphicsItem *> items = scene->items();
    for (const QGraphicsItem *item : items) {
        const auto *control = qobject_cast<const Touch::Widget *>(item->toGraphicsObject());
        const bool isTouched
            = qobject_cast<const Touch::Pressable *>(control) || qobject_cast<const Touch::TextEdit *>(control);
        if (isTouched && control->isVisible() && (control->size().width() < least || control->size().height() < least))
            names << control->accessibleName();
    }
    return names;
}

} // namespace Support
