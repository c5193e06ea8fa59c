// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/imagewidget.h"

namespace Touch {

ImageWidget::ImageWidget(const QString &iconId, QGraphicsItem *parent)
    : Widget(parent)
    , m_iconId(iconId)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

ImageWidget::ImageWidget(QGraphicsItem *parent)
    : ImageWidget(QString(), parent)
{ }

ImageWidget::~ImageWidget() = default;

void ImageWidget::setImage(const QString &iconId)
{
    if (m_iconId == iconId)
        return;
    m_iconId = iconId;
    update();
}

QSizeF ImageWidget::sizeHint(Qt::SizeHint which, const QSizeF &constraint) const
{
    return which == Qt::MaximumSize ? Widget::sizeHint(which, constraint) : styledSize(which, style().iconSize);
}

void ImageWidget::paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget)
{
    Widget::paint(painter, option, widget);
    if (!m_iconId.isEmpty())
        paintIcon(painter, paddedRect(), m_iconId, style().color);
}

} // namespace Touch
