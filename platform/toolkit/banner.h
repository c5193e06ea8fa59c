// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/toolkit/scenewindow.h"

#include <QBasicTimer>

namespace Touch {

class Label;

/**
 * A short notice over the window that goes by itself, or at a tap. A window shows one at a time: the next sends the one
 * before away. It never takes the focus.
 */
class Banner : public SceneWindow
{
    Q_OBJECT
    Q_PROPERTY(QString title READ title WRITE setTitle)
    Q_PROPERTY(int displayTime READ displayTime WRITE setDisplayTime)

public:
    explicit Banner(QGraphicsItem *parent = nullptr);
    ~Banner() override;

    QString title() const;
    void setTitle(const QString &title);

    /** Milliseconds from its appearance until it goes. */
    int displayTime() const { return m_displayTime; }
    void setDisplayTime(int milliseconds);

    QAccessible::Role accessibleRole() const override { return QAccessible::AlertMessage; }

protected:
    int layer() const override { return 3; }
    bool coversWindow() const override { return false; }
    bool takesInput() const override { return false; }
    QRectF placement(const QSizeF &windowSize) const override;
    void aboutToAppear() override;
    QString shownText() const override { return title(); }
    void setTransition(qreal progress) override;
    void timerEvent(QTimerEvent *event) override;
    void mousePressEvent(QGraphicsSceneMouseEvent *event) override;

private:
    void announce();

    Label *m_label;
    int m_displayTime = 3000;
    QBasicTimer m_timer;
};

} // namespace Touch
