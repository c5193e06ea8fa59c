// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QObject>
#include <QPointF>

class QVariantAnimation;

namespace Touch {

/**
 * A finger that draws a sheet down by its header. Far enough or with enough speed, and the sheet is to be left;
 * otherwise it slides back up. Places are those of the scene, in pixels; owned by its sheet.
 */
class SheetSwipe : public QObject
{
    Q_OBJECT

public:
    explicit SheetSwipe(QObject *sheet);
    ~SheetSwipe() override;

    void press(const QPointF &place);
    /** Whether the finger draws the sheet, which it does from a clear movement down on. */
    bool moveTo(const QPointF &place);
    /** It is let go, in a window of this height. */
    void release(qreal height);
    /** Somebody else has taken the finger over. */
    void abandon();
    void slideBack();
    /** The sheet is going; what it does from now on is its own affair. */
    void forget();

signals:
    /** The sheet is to be so far below its place. */
    void moved(qreal distance);
    void swipedAway();

private:
    void follow(const QPointF &place);
    void setDistance(qreal distance);

    QVariantAnimation *m_animation = nullptr; ///< back up
    qreal m_distance = 0;

    // While a finger is down
    bool m_isPressed = false;
    bool m_isDrawing = false;
    QPointF m_pressPlace;
    qreal m_lastY = 0;
    qreal m_velocity = 0; ///< pixels per second, downwards
    qint64 m_movedAt = 0; ///< milliseconds
};

} // namespace Touch
