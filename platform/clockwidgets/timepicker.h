// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/toolkit/widget.h"

#include <memory>

class PickerDial;
class PickerHandle;
enum class ClockHand;

/// A round dial to set a time of day: a handle on the outer ring is the minute, one on the inner ring the hour, a tap
/// in the middle changes the half of the day. A ring may be dragged or tapped; a tap goes to whole hours and fives of
/// minutes, and so does a fast drag of the minute. The hour dragged past the top goes on into the other half of the
/// day; the minute dragged past the top leaves the hour alone, so that each ring sets one thing.
/// Wheel: the ring under the pointer. Keys: left and right choose hour or minute, up and down one step, page up and
/// down five minutes or half a day.
class TimePicker : public Touch::Widget, private QAccessibleValueInterface
{
    Q_OBJECT
    Q_PROPERTY(int hours READ hours WRITE setHours)
    Q_PROPERTY(int minutes READ minutes WRITE setMinutes)

public:
    /// Any hour and minute are folded into the day, each for itself: hour -1 is 23, minute 60 is 0.
    TimePicker(int hours, int minutes, QGraphicsItem *parent = nullptr);
    ~TimePicker() override;

    int hours() const { return m_hours; }
    void setHours(int hours);
    int minutes() const { return m_minutes; }
    void setMinutes(int minutes);

    /// The middles of the handles, in the picker's own coordinates.
    QPointF hourHandle() const;
    QPointF minuteHandle() const;

    QAccessible::Role accessibleRole() const override { return QAccessible::Dial; }
    /// In minutes from the start of the day.
    QAccessibleValueInterface *accessibleValue() override { return this; }
    /// Steps of the hand that the keys move.
    QStringList accessibleActions() const override;
    void doAccessibleAction(const QString &name) override;
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget = nullptr) override;

Q_SIGNALS:
    /// Only if the time is another one than before; by whomever it was changed.
    void timeChanged(int hours, int minutes);
    /// Exactly one of the two is touched. Comes before the change that the touch makes.
    void discPressed(const bool &hourTouched, const bool &minuteTouched);
    void discReleased();

protected:
    QString shownText() const override;
    void styleChanged() override;
    /// A place that is narrower than the dial would be needs no more height than width.
    QSizeF sizeHint(Qt::SizeHint which, const QSizeF &constraint = QSizeF()) const override;
    void resizeEvent(QGraphicsSceneResizeEvent *event) override;
    void mousePressEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseMoveEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent *event) override;
    void ungrabMouseEvent(QEvent *event) override;
    void wheelEvent(QGraphicsSceneWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    QVariant currentValue() const override;
    void setCurrentValue(const QVariant &value) override;
    QVariant maximumValue() const override;
    QVariant minimumValue() const override;
    QVariant minimumStepSize() const override;
    void announce();
    void placeHandles();

    void setTime(int hours, int minutes);
    void step(ClockHand hand, int steps);
    void press(ClockHand hand, const QPointF &point);
    void follow(qreal angle, bool isFast);
    void release();
    void changeHalf();
    void updateTexts();
    qreal handAngle(ClockHand hand) const;
    QString handText(ClockHand hand) const;

    int m_hours;
    int m_minutes;
    std::unique_ptr<PickerDial> m_dial;
    PickerHandle *m_hourHandle;
    PickerHandle *m_minuteHandle;

    // While a finger is down
    ClockHand m_touched;
    qreal m_grabOffset = 0; ///< from the handle to the finger, in degrees
    qreal m_dragAngle = 0;  ///< of the handle, from the start of the day or hour; may go round several times
    quint64 m_lastMove = 0; ///< in milliseconds
    bool m_isMiddlePressed = false;

    ClockHand m_keyHand; ///< that the keys move
    bool m_showsKeyHand = false;
    int m_wheelRest = 0;
};
