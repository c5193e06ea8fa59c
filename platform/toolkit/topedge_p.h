// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/toolkit/widget.h"

namespace Touch {

/** The upper edge of a page: a touch of it, or the focus, asks for what is hidden there. */
class TopEdge : public Widget
{
    Q_OBJECT

public:
    explicit TopEdge(QGraphicsItem *parent);
    ~TopEdge() override;

    static constexpr qreal height = 24;

    QAccessible::Role accessibleRole() const override { return QAccessible::Button; }
    QStringList accessibleActions() const override;
    void doAccessibleAction(const QString &name) override;

signals:
    void touched();

protected:
    QString shownText() const override;
    void mousePressEvent(QGraphicsSceneMouseEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
};

} // namespace Touch
