// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/stylablewidget.h"

namespace Touch {

StylableWidget::StylableWidget(QGraphicsItem *parent)
    : Widget(parent)
{ }

StylableWidget::~StylableWidget() = default;

} // namespace Touch
