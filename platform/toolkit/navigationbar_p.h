// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/toolkit/widget.h"

namespace Touch {

class Button;
class Label;

/** The title of a page between the button that leads back and the one that leads to the home screen. */
class NavigationBar : public Widget
{
    Q_OBJECT

public:
    explicit NavigationBar(QGraphicsItem *parent);
    ~NavigationBar() override;

    void setTitle(const QString &title);
    Button *escapeButton() const { return m_escapeButton; }
    Button *homeButton() const { return m_homeButton; }

    QAccessible::Role accessibleRole() const override { return QAccessible::ToolBar; }
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget = nullptr) override;

protected:
    QString shownText() const override;
    /** A press beside its buttons is not for what lies behind it. */
    void mousePressEvent(QGraphicsSceneMouseEvent *event) override;

private:
    Button *makeButton(const QString &name, const QString &text, const QString &iconId);

    Button *m_escapeButton;
    Label *m_title;
    Button *m_homeButton;
};

} // namespace Touch
