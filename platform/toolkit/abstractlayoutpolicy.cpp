// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/abstractlayoutpolicy.h"

#include "platform/toolkit/layout.h"
#include "platform/toolkit/theme.h"

#include <QGraphicsWidget>

namespace Touch {

AbstractLayoutPolicy::AbstractLayoutPolicy(Layout *layout)
    : m_layout(layout)
{
    layout->registerPolicy(this);
}

AbstractLayoutPolicy::~AbstractLayoutPolicy() = default;

void AbstractLayoutPolicy::setStyleName(const QString &styleName)
{
    if (m_styleName == styleName)
        return;
    m_styleName = styleName;
    invalidate();
}

void AbstractLayoutPolicy::setContentsMargins(qreal left, qreal top, qreal right, qreal bottom)
{
    m_margins = QMarginsF(left, top, right, bottom);
    invalidate();
}

QMarginsF AbstractLayoutPolicy::contentsMargins() const
{
    if (m_margins)
        return *m_margins;
    return Theme::instance().style(m_styleName, {}, &QGraphicsWidget::staticMetaObject)->padding;
}

void AbstractLayoutPolicy::setSpacing(qreal spacing)
{
    m_spacing = spacing;
    invalidate();
}

qreal AbstractLayoutPolicy::spacing() const
{
    if (m_spacing)
        return *m_spacing;
    return Theme::instance().style(m_styleName, {}, &QGraphicsWidget::staticMetaObject)->spacing;
}

void AbstractLayoutPolicy::adopt(QGraphicsLayoutItem *item)
{
    m_layout->adopt(item);
    invalidate();
}

void AbstractLayoutPolicy::invalidate()
{
    m_layout->invalidate();
}

} // namespace Touch
