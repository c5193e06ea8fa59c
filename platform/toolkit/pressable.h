// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/toolkit/widget.h"

class QKeyEvent;

namespace Touch {

/**
 * What can be pressed: by a finger, by Space and Return while it has the focus, by assistive technology. It is down
 * while it is pressed, and tapped when it is let go. A finger that leaves it, a press that turns into panning and a
 * focus that goes are no tap.
 */
class Pressable : public Widget
{
    Q_OBJECT

public:
    explicit Pressable(QGraphicsItem *parent = nullptr);
    ~Pressable() override;

    bool isDown() const { return m_isDown; }

    /** Whether a key stands for a finger. */
    static bool isPressKey(const QKeyEvent *event);
    /** Whether a finger is on a control; it may slip off its edge a little. */
    static bool isOn(const QRectF &control, const QPointF &finger);

    QStringList accessibleActions() const override;
    void doAccessibleAction(const QString &name) override;

protected:
    /** May delete it. */
    virtual void tapped() = 0;
    /** It went down, or up again; the base paints it anew. */
    virtual void downChanged();

    void mousePressEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseMoveEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent *event) override;
    void ungrabMouseEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    void setDown(bool isDown);
    void letGo();

    bool m_isDown = false;
};

} // namespace Touch
