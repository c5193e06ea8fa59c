// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/ringer/ringplugin.h"

#include <QList>
#include <QObject>

#include <memory>

class RingWindow;

/**
 * The clock's own ring screen: one full-screen window for all alarms that ring, the first of them in front. Owned by
 * the ringer; the window is made with the first alarm and goes with the last.
 */
class ClockAlarmPlugin : public QObject, public Ringer::RingPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID RingPlugin_iid)
    Q_INTERFACES(Ringer::RingPlugin)

public:
    ClockAlarmPlugin();
    ~ClockAlarmPlugin() override;

    void setAnswers(Ringer::Answers *answers) override;
    void show(const Ringer::Alarm &alarm) override;
    void hide(quint32 cookie) override;

private:
    void refresh();
    void bringToFront(quint32 cookie);
    void openWindow();
    void closeWindow();
    void reportShown();

    Ringer::Answers *m_answers = nullptr;
    QList<Ringer::Alarm> m_alarms;
    QList<quint32> m_unreported; ///< cookies that have not been painted yet
    RingWindow *m_window = nullptr;
};
