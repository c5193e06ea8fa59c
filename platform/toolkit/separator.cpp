// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/separator.h"

namespace Touch {

Separator::Separator(QGraphicsItem *parent, Qt::Orientation orientation)
    : Widget(parent)
    , m_orientation(orientation)
{
    followOrientation();
}

Separator::~Separator() = default;

void Separator::setOrientation(Qt::Orientation orientation)
{
    if (m_orientation == orientation)
        return;
    m_orientation = orientation;
    followOrientation();
}

void Separator::followOrientation()
{
    if (m_orientation == Qt::Horizontal)
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    else
        setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    updateGeometry();
}

QSizeF Separator::sizeHint(Qt::SizeHint which, const QSizeF &constraint) const
{
    QSizeF size = Widget::sizeHint(which, constraint);
    // The style speaks of a horizontal one.
    return m_orientation == Qt::Horizontal ? size : size.transposed();
}

} // namespace Touch
