// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QGraphicsWidget>
#include <QGuiApplication>

namespace Touch {

/** Has what a widget opens read in the widget's direction; that of the application is followed when it changes. */
inline void takeDirection(QGraphicsWidget *opened, const QGraphicsWidget *owner)
{
    if (owner->layoutDirection() != QGuiApplication::layoutDirection())
        opened->setLayoutDirection(owner->layoutDirection());
}

} // namespace Touch
