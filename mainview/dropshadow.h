// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/toolkit/separator.h"

/** The shadow that what stands above it casts: its colour, fading downwards into nothing. */
class DropShadow : public Touch::Separator
{
    Q_OBJECT

public:
    DropShadow();
    ~DropShadow() override;

    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget = nullptr) override;
};
