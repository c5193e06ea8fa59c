// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/ringer/ringplugin.h"
#include "platform/toolkit/window.h"

#include <QDeadlineTimer>
#include <QList>

class RingPage;

/**
 * The window over everything else while alarms ring. Nothing but an answer takes it away: closing it, Escape and the
 * volume, power and media keys snooze, Control with Return stops. For a moment after an alarm came to the front it
 * takes neither touch nor key, which were meant for what was there before. Owned by the plug-in.
 */
class RingWindow : public Touch::Window
{
    Q_OBJECT
    Q_PROPERTY(bool takesAnswers READ takesAnswers)

public:
    RingWindow();
    ~RingWindow() override;

    /** The first is in front and takes the answers; never empty. */
    void setAlarms(const QList<Ringer::Alarm> &alarms);
    [[nodiscard]] bool takesAnswers() const { return m_wasPainted && m_deafness.hasExpired(); }

signals:
    void painted();
    void snoozePressed(quint32 cookie, int seconds);
    void stopPressed(quint32 cookie);
    void frontChosen(quint32 cookie);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    void snooze(int seconds);
    void stop();

    QList<Ringer::Alarm> m_alarms;
    QDeadlineTimer m_deafness;
    bool m_wasPainted = false;
    RingPage *m_page;
};
