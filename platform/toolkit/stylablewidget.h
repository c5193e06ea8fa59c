// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/toolkit/widget.h"

namespace Touch {

/** A plain container that shows the background of its style. */
class StylableWidget : public Widget
{
    Q_OBJECT

public:
    explicit StylableWidget(QGraphicsItem *parent = nullptr);
    ~StylableWidget() override;
};

} // namespace Touch
