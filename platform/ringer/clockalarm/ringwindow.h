// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/ringer/ringplugin.h"
#include "platform/toolkit/window.h"

#include <QList>

class RingPage;

/**
 * The window over everything else while alarms ring. Nothing but an answer takes it away: closing it, Escape and the
 * volume and power keys snooze. Owned by the plug-in.
 */
class RingWindow : public Touch::Window
{
    Q_OBJECT

public:
    RingWindow();
    ~RingWindow() override;

    /** The first is in front and takes the answers; never empty. */
    void setAlarms(const QList<Ringer::Alarm> &alarms);

signals:
    void painted();
    void snoozePressed(quint32 cookie, int seconds);
    void stopPressed(quint32 cookie);

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    void snooze();
    void stop();

    QList<Ringer::Alarm> m_alarms;
    RingPage *m_page;
};
