// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/contentlayout_p.h"

#include <QWidget>

namespace Touch {

ContentLayout::ContentLayout(QGraphicsLayoutItem *parent, std::function<void()> arrange)
    : QGraphicsLayout(parent)
    , m_arrange(std::move(arrange))
{
    setContentsMargins(0, 0, 0, 0);
}

ContentLayout::~ContentLayout()
{
    if (m_content)
        m_content->setParentLayoutItem(nullptr);
}

void ContentLayout::setContent(QGraphicsLayoutItem *content)
{
    m_content = content;
    if (content)
        addChildLayoutItem(content);
    invalidate();
}

void ContentLayout::removeAt(int)
{
    m_content->setParentLayoutItem(nullptr);
    m_content = nullptr;
    invalidate();
}

void ContentLayout::setGeometry(const QRectF &rect)
{
    QGraphicsLayout::setGeometry(rect);
    m_arrange();
}

QSizeF ContentLayout::sizeHint(Qt::SizeHint which, const QSizeF &constraint) const
{
    if (which == Qt::MaximumSize)
        return {QWIDGETSIZE_MAX, QWIDGETSIZE_MAX};
    return m_content && which == Qt::PreferredSize ? m_content->effectiveSizeHint(which, constraint) : QSizeF(0, 0);
}

} // namespace Touch
