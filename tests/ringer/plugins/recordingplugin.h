// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/ringer/ringplugin.h"

#include <QObject>
#include <QVariant>

/** A plug-in without a window: the test reads what it shows from its property, and answers by its slots. */
class RecordingPlugin : public QObject, public Ringer::RingPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID RingPlugin_iid)
    Q_INTERFACES(Ringer::RingPlugin)
    Q_PROPERTY(QVariantList alarms READ alarms)

public:
    /** Of each alarm shown: cookie, title, due, tone, seconds of snooze. */
    [[nodiscard]] QVariantList alarms() const { return m_alarms; }

    void setAnswers(Ringer::Answers *answers) override { m_answers = answers; }
    void show(const Ringer::Alarm &alarm) override;
    void hide(quint32 cookie) override;

public slots:
    void pressSnooze(uint cookie, int seconds) { m_answers->snooze(cookie, seconds); }
    void pressStop(uint cookie) { m_answers->dismiss(cookie); }

private:
    Ringer::Answers *m_answers = nullptr;
    QVariantList m_alarms;
};
