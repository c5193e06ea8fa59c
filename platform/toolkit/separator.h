// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/toolkit/widget.h"

namespace Touch {

/** A line, or mere room, between other widgets: as thick as its style says, as long as there is room. */
class Separator : public Widget
{
    Q_OBJECT

public:
    explicit Separator(QGraphicsItem *parent = nullptr, Qt::Orientation orientation = Qt::Horizontal);
    ~Separator() override;

    Qt::Orientation orientation() const { return m_orientation; }
    void setOrientation(Qt::Orientation orientation);

    QAccessible::Role accessibleRole() const override { return QAccessible::Separator; }

protected:
    QSizeF sizeHint(Qt::SizeHint which, const QSizeF &constraint = QSizeF()) const override;

private:
    void followOrientation();

    Qt::Orientation m_orientation;
};

} // namespace Touch
