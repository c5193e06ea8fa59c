// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/toolkit/button.h"

namespace Touch {

/** One row of a menu or of a list of choices; the chosen one bears a mark. */
class ChoiceRow : public Button
{
    Q_OBJECT

public:
    ChoiceRow(const QString &text, QAccessible::Role role, QGraphicsItem *parent);
    ~ChoiceRow() override;

    QAccessible::Role accessibleRole() const override { return m_role; }
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget = nullptr) override;

protected:
    QSizeF sizeHint(Qt::SizeHint which, const QSizeF &constraint = QSizeF()) const override;
    void styleChanged() override;

private:
    PreparedText &prepared() const;

    QAccessible::Role m_role;
    std::unique_ptr<PreparedText> m_label;
    mutable bool m_isPrepared = false;
};

} // namespace Touch
