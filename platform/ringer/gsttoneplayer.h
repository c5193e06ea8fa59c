// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/ringer/toneplayer.h"
#include "platform/ringer/volumerise.h"
#include "platform/sound/alarmtone.h"

#include <QElapsedTimer>
#include <QTimer>

#include <chrono>

namespace Ringer {

/**
 * Plays through GStreamer and trusts nothing: a tone that is not heard within two seconds, or of which nothing flows
 * any more, has failed. Main thread; owned by the program.
 */
class GstTonePlayer : public TonePlayer
{
    Q_OBJECT

public:
    explicit GstTonePlayer(std::chrono::milliseconds riseTime = RiseTime, QObject *parent = nullptr);
    ~GstTonePlayer() override;

    void play(const QString &tone, int round) override;
    void stop() override;

private:
    void onFlow(bool isAudible);
    void fail(const QString &reason);
    void raise();

    const std::chrono::milliseconds m_riseTime;
    Sound::AlarmTone m_tone;
    QTimer m_watchdog;
    QString m_suspicion; ///< why the tone has failed when the watchdog ends
    QTimer m_rise;
    bool m_isRising = true;
    QElapsedTimer m_heard; ///< valid once the tone was audible
};

} // namespace Ringer
