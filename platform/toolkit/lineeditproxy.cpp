// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/lineeditproxy_p.h"

#include <QFocusEvent>

namespace Touch {

LineEditProxy::LineEditProxy(QGraphicsItem *parent)
    : QGraphicsProxyWidget(parent)
{ }

LineEditProxy::~LineEditProxy() = default;

void LineEditProxy::focusInEvent(QFocusEvent *event)
{
    QGraphicsProxyWidget::focusInEvent(event);
    emit gainedFocus(event->reason());
}

void LineEditProxy::focusOutEvent(QFocusEvent *event)
{
    QGraphicsProxyWidget::focusOutEvent(event);
    emit lostFocus(event->reason());
}

} // namespace Touch
