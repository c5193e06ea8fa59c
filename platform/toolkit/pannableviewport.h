// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/toolkit/kinetics_p.h"
#include "platform/toolkit/widget.h"

#include <QBasicTimer>
#include <QElapsedTimer>
#include <QPointer>

namespace Touch {

class ContentLayout;
class PositionMark;

/**
 * Shows a part of a widget that may be larger than itself and lets the user pan it: by dragging, with a flick that runs
 * on, by wheel or by moving the focus. A press that turns into panning is taken from the control beneath. Past an
 * end the widget gives way by half of the finger's way and springs back: that is its edge effect. While it moves, a bar
 * says where one is. Owns its widget. Nothing ticks once it rests.
 */
class PannableViewport : public Widget
{
    Q_OBJECT

public:
    explicit PannableViewport(QGraphicsItem *parent = nullptr);
    ~PannableViewport() override;

    QGraphicsWidget *widget() const { return m_widget; }
    /** Takes the widget; the one before is deleted. */
    void setWidget(QGraphicsWidget *widget);

    /** Vertical unless set; with none, the widget cannot be panned and goes back to its start. */
    Qt::Orientations panDirection() const { return m_directions; }
    void setPanDirection(Qt::Orientations directions);

    /**
     * Whether the widget has to fit: it is then panned only as far as it cannot be made smaller, not where it merely
     * prefers to be larger, and does not give way where there is nothing to pan.
     */
    bool fitsWidget() const { return m_fitsWidget; }
    void setFitsWidget(bool fits);

    /**
     * How far the widget is moved, in pixels from its start; positive is towards its end, from right to left where that
     * is the way to read.
     */
    QPointF position() const;
    void setPosition(const QPointF &position);
    /** The largest position. */
    QPointF range() const;
    bool isPanning() const { return m_isPanning; }
    bool isMoving() const { return m_isPanning || m_timer.isActive(); }
    /** Moves as little as needed to show a rectangle of the widget. */
    void ensureVisible(const QRectF &rect);

protected:
    bool sceneEventFilter(QGraphicsItem *watched, QEvent *event) override;
    void mousePressEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseMoveEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent *event) override;
    void ungrabMouseEvent(QEvent *event) override;
    void wheelEvent(QGraphicsSceneWheelEvent *event) override;
    void timerEvent(QTimerEvent *event) override;
    void exitDisplay() override;

private:
    bool isMirrored() const { return layoutDirection() == Qt::RightToLeft; }
    /** From where the widget starts, which is on the right for right-to-left. */
    QPointF fingerOf(const QGraphicsSceneMouseEvent *event) const;
    /** Returns whether the press only stopped what was moving. */
    bool press(const QGraphicsSceneMouseEvent *event);
    bool turnsIntoPanning(const QGraphicsSceneMouseEvent *event) const;
    void startPanning(const QGraphicsSceneMouseEvent *event);
    void pan(const QGraphicsSceneMouseEvent *event);
    void release();
    void startMoving();
    void stopMoving();
    void arrange();
    QSizeF wantedSize() const;
    void moveWidget();
    void showPosition();
    bool pans(Qt::Orientation direction) const { return m_directions.testFlag(direction); }

    ContentLayout *m_layout; ///< owned by the base
    QPointer<QGraphicsWidget> m_widget;
    Qt::Orientations m_directions = Qt::Vertical;
    bool m_fitsWidget = false;
    Kinetics m_x;
    Kinetics m_y;
    QPointF m_shownPosition;
    PositionMark *m_xMark = nullptr; ///< made when it is first moved, as is the other
    PositionMark *m_yMark = nullptr;

    // While a finger is down
    bool m_isPressed = false;
    bool m_isPanning = false;
    QPointF m_pressPos;
    QPointF m_grip; ///< where on the widget the finger holds it
    QPointF m_lastPos;
    QPointF m_velocity;
    qint64 m_movedAt = 0; ///< milliseconds

    // While it runs on
    QBasicTimer m_timer;
    QElapsedTimer m_frameClock;
};

} // namespace Touch
