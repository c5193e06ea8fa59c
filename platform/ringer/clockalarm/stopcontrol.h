// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/ringer/clockalarm/ringsettings.h"
#include "platform/toolkit/widget.h"

#include <chrono>
#include <QVariantAnimation>

/**
 * Stop, which no touch does by accident: a knob that is to be pulled to the other end, or a pill that is to be held
 * until it is full. The keyboard holds Space or Return in either case; assistive technology presses it at once.
 */
class StopControl : public Touch::Widget
{
    Q_OBJECT
    Q_PROPERTY(bool showsWholeText READ showsWholeText)

public:
    /** How long it is to be held, in milliseconds. */
    static constexpr auto HoldTime = 900;

    explicit StopControl(QGraphicsItem *parent = nullptr);
    ~StopControl() override;

    void setGesture(StopGesture gesture);
    /** How far it has come towards Stop, 0 to 1. */
    [[nodiscard]] double progress() const { return m_progress; }
    /** Where the knob can be taken hold of, in its own coordinates. */
    [[nodiscard]] QRectF knobRect() const;
    /** What is to be done is not elided. */
    [[nodiscard]] bool showsWholeText() const;
    /** Lets go of it. */
    void reset();

    QAccessible::Role accessibleRole() const override;
    QStringList accessibleActions() const override;
    void doAccessibleAction(const QString &name) override;
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget = nullptr) override;

signals:
    void stopped();

protected:
    QString shownText() const override;
    QSizeF sizeHint(Qt::SizeHint which, const QSizeF &constraint = QSizeF()) const override;
    void mousePressEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseMoveEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent *event) override;
    void ungrabMouseEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    enum class Phase { Idle, Sliding, Holding };

    [[nodiscard]] QString hint() const;
    [[nodiscard]] QRectF hintRect() const;
    [[nodiscard]] QFont hintFont() const;
    [[nodiscard]] bool isMirrored() const { return layoutDirection() == Qt::RightToLeft; }
    [[nodiscard]] double way() const;
    void paintTrack(QPainter *painter);
    void paintText(QPainter *painter);
    void paintKnob(QPainter *painter, QWidget *widget);
    void setProgress(double progress);
    void hold();
    void letGo();
    void runTo(double progress, std::chrono::milliseconds time);
    void finish();

    StopGesture m_gesture = StopGesture::Slide;
    Phase m_phase = Phase::Idle;
    double m_progress = 0;
    double m_grip = 0; ///< where the finger took hold of the knob
    QVariantAnimation m_run;
};
