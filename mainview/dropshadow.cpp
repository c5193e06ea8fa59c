// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "mainview/dropshadow.h"

#include <QLinearGradient>
#include <QPainter>

DropShadow::DropShadow()
{
    setStyleName("DropShadow");
}

DropShadow::~DropShadow() = default;

void DropShadow::paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *)
{
    QColor end = style().color;
    end.setAlpha(0);
    QLinearGradient fading(rect().topLeft(), rect().bottomLeft());
    fading.setColorAt(0, style().color);
    fading.setColorAt(1, end);
    painter->fillRect(rect(), fading);
    if (style().separatorColor.isValid())
        painter->fillRect(QRectF(rect().topLeft(), QSizeF(rect().width(), 1)), style().separatorColor);
}
