// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/ringer/ringplugin.h"

#include <QObject>
#include <QStringList>
#include <QTimer>

namespace Ringer {

class TonePlayer;

/**
 * One alarm that rings, from the daemon's call to the user's answer. Owned by RingController, which gives the sound to
 * one ring at a time. Goes through its tones until one is heard; when none is, it tries them all again and again.
 */
class Ring : public QObject
{
    Q_OBJECT

public:
    enum class State {
        Waiting, ///< on the screen; another alarm has the sound
        Seeking, ///< tries its tones
        Sounding,
        Mute,     ///< no tone can be heard; tries again soon
        Answered, ///< silent; the daemon has not confirmed yet
    };

    Ring(const Alarm &alarm, const QStringList &tones, RingPlugin *screen, const QString &screenName,
         TonePlayer *player);
    ~Ring() override;

    [[nodiscard]] const Alarm &alarm() const { return m_alarm; }
    [[nodiscard]] State state() const { return m_state; }
    /** Whether the sound is this ring's, heard or not. */
    [[nodiscard]] bool hasTurn() const { return m_state != State::Waiting && m_state != State::Answered; }
    [[nodiscard]] const QString &screenName() const { return m_screenName; }
    /** The tone that is being heard, or tried. */
    [[nodiscard]] QString tone() const { return m_tones.at(m_tone); }

    void show();
    void takeSound(); ///< no effect unless it waits
    void answer();
    void ringAgain(); ///< a snooze could not be delivered

Q_SIGNALS:
    void sounding();
    /** All tones were tried in vain for the first time; it goes on trying. */
    void unheard(const QString &reason);

private:
    [[nodiscard]] bool hasSound() const { return m_state == State::Seeking || m_state == State::Sounding; }
    void setState(State state);
    void tryTone(qsizetype tone);
    void onAudible();
    void onFailed(const QString &reason);

    const Alarm m_alarm;
    const QStringList m_tones;
    RingPlugin *const m_screen;
    const QString m_screenName;
    TonePlayer *const m_player;
    State m_state = State::Waiting;
    qsizetype m_tone = 0;
    int m_round = 0; ///< how often all tones were tried in vain
    QTimer m_retry;
};

} // namespace Ringer
