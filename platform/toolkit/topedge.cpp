// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/topedge_p.h"

#include "platform/toolkit/commontext_p.h"

#include <QGraphicsSceneMouseEvent>

namespace Touch {

TopEdge::TopEdge(QGraphicsItem *parent)
    : Widget(parent)
{
    setObjectName(QStringLiteral("topEdge"));
    setFocusPolicy(Qt::TabFocus);
}

TopEdge::~TopEdge() = default;

QStringList TopEdge::accessibleActions() const
{
    return {QAccessibleActionInterface::pressAction()};
}

void TopEdge::doAccessibleAction(const QString &)
{
    emit touched();
}

QString TopEdge::shownText() const
{
    return CommonText::navigation();
}

// Accepted: the drag that may follow belongs to it as well.
void TopEdge::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    event->accept();
    emit touched();
}

void TopEdge::focusInEvent(QFocusEvent *event)
{
    Widget::focusInEvent(event);
    emit touched();
}

} // namespace Touch
