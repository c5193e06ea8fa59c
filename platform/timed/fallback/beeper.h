// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/sound/alarmtone.h"

#include <QObject>
#include <QTimer>

namespace Fallback {

/**
 * Beeps at full volume through whatever plays sound: the sound server, anything else GStreamer finds, the sound card
 * itself, ALSA's default. Needs no file. Goes on to the next output where one fails or nothing flows, and begins again after the last.
 */
class Beeper : public QObject
{
    Q_OBJECT

public:
    Beeper();
    ~Beeper() override;

    /** Goes on where it beeps already. */
    void start();
    void stop();
    bool isHeard() const { return m_heard; }

signals:
    void heard();
    /** No output took the beeps; they are tried over and over. Once, until it is stopped. */
    void unheard(const QString &reason);

private:
    void open();
    void flow(bool isAudible);
    void tryNext(const QString &reason);

    Sound::AlarmTone m_tone;
    int m_way = 0; ///< counts the outputs that were tried
    bool m_heard = false;
    QTimer m_retry;
    QTimer m_watchdog;
};

} // namespace Fallback
