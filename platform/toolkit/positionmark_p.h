// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QBasicTimer>
#include <QGraphicsObject>

class QVariantAnimation;

namespace Touch {

class PannableViewport;

/**
 * A thin bar at the edge of a viewport that says which part of its widget is seen. It appears while that is moved and
 * fades away soon after; it takes no input. Owned by its viewport.
 */
class PositionMark : public QGraphicsObject
{
    Q_OBJECT

public:
    PositionMark(PannableViewport *viewport, Qt::Orientation direction);
    ~PositionMark() override;

    /** The widget was moved; nothing is shown in a direction in which all of it is seen. */
    void follow();
    /** Goes at once. */
    void leave();

    QRectF boundingRect() const override { return m_bar; }
    QPainterPath shape() const override { return {}; }
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget = nullptr) override;

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    QRectF bar() const;
    void fade();

    PannableViewport *m_viewport;
    Qt::Orientation m_direction;
    QRectF m_bar;
    QBasicTimer m_timer; ///< since it followed last
    QVariantAnimation *m_animation = nullptr;
};

} // namespace Touch
