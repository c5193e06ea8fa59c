// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/lineeditproxy_p.h"

#include <QFocusEvent>
#include <QWidget>

namespace Touch {

LineEditProxy::LineEditProxy(QGraphicsItem *parent)
    : QGraphicsProxyWidget(parent)
{ }

LineEditProxy::~LineEditProxy() = default;

void LineEditProxy::focusInEvent(QFocusEvent *event)
{
    QGraphicsProxyWidget::focusInEvent(event);
    // The base hands on the focus of Tab and mouse only.
    if (widget() && !widget()->hasFocus())
        widget()->setFocus(event->reason());
    emit gainedFocus(event->reason());
}

void LineEditProxy::focusOutEvent(QFocusEvent *event)
{
    QGraphicsProxyWidget::focusOutEvent(event);
    emit lostFocus(event->reason());
}

} // namespace Touch
