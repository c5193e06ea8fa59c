// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/ringer/clockalarm/ringsettings.h"
#include "platform/ringer/ringplugin.h"
#include "platform/toolkit/applicationpage.h"

#include <QList>
#include <QTimer>

namespace Touch {
class Button;
class Label;
} // namespace Touch
class SnoozeChoice;
class StopControl;
class WaitingStack;

/**
 * What is seen of ringing alarms: the time now, the title of the one in front, Snooze and, well away from it, Stop; and
 * which others wait. Belongs to its window.
 */
class RingPage : public Touch::ApplicationPage
{
    Q_OBJECT

public:
    explicit RingPage(QGraphicsItem *parent = nullptr);

    /** The first is in front; never empty. */
    void setAlarms(const QList<Ringer::Alarm> &alarms);
    void setStopGesture(StopGesture gesture);

    QAccessible::Role accessibleRole() const override;
    void createContent() override;
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget = nullptr) override;

signals:
    void snoozePressed(int seconds);
    void stopPressed();
    void waitingChosen(quint32 cookie);

protected:
    void enterDisplay() override;
    void exitDisplay() override;
    void changeEvent(QEvent *event) override;
    void resizeEvent(QGraphicsSceneResizeEvent *event) override;

private:
    void applyStyles();
    void fit();
    void spare(int step);
    [[nodiscard]] qreal neededHeight() const;
    void arrangeContent();
    void refresh();
    void refreshTime();
    void announce();

    QList<Ringer::Alarm> m_alarms;
    StopGesture m_gesture = StopGesture::Slide;
    QTimer m_minute;
    Touch::Widget *m_moment = nullptr;
    Touch::Widget *m_answers = nullptr;
    Touch::Label *m_date = nullptr;
    Touch::Label *m_time = nullptr;
    Touch::Label *m_half = nullptr;
    Touch::Label *m_alarmTitle = nullptr;
    WaitingStack *m_waiting = nullptr;
    Touch::Button *m_snooze = nullptr;
    SnoozeChoice *m_choice = nullptr;
    StopControl *m_stop = nullptr;
};
