// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/ringer/ring.h"

#include "platform/ringer/logging.h"
#include "platform/ringer/toneplayer.h"

#include <chrono>

namespace Ringer {

using namespace std::chrono_literals;

namespace {

constexpr auto RetryTime = 2s;

}

Ring::Ring(const Alarm &alarm, const QStringList &tones, RingPlugin *screen, const QString &screenName,
           TonePlayer *player)
    : m_alarm(alarm)
    , m_tones(tones)
    , m_screen(screen)
    , m_screenName(screenName)
    , m_player(player)
{
    m_retry.setSingleShot(true);
    m_retry.setInterval(RetryTime);
    connect(&m_retry, &QTimer::timeout, this, [this] { tryTone(0); });
    connect(m_player, &TonePlayer::audible, this, &Ring::onAudible);
    connect(m_player, &TonePlayer::failed, this, &Ring::onFailed);
}

Ring::~Ring()
{
    setState(State::Answered);
}

void Ring::show()
{
    m_screen->show(m_alarm);
}

void Ring::takeSound()
{
    if (m_state == State::Waiting)
        tryTone(0);
}

void Ring::answer()
{
    setState(State::Answered);
}

void Ring::ringAgain()
{
    setState(State::Waiting);
    show();
}

void Ring::setState(State state)
{
    if (m_state == state)
        return;
    const auto hadSound = hasSound();
    m_state = state;
    if (hadSound && !hasSound())
        m_player->stop();
    if (state == State::Answered)
        m_screen->hide(m_alarm.cookie);
    if (state == State::Mute)
        m_retry.start();
    else
        m_retry.stop();
    if (state == State::Sounding)
        Q_EMIT sounding();
}

void Ring::tryTone(qsizetype tone)
{
    m_tone = tone;
    setState(State::Seeking);
    m_player->play(m_tones.at(tone), m_round);
}

void Ring::onAudible()
{
    if (m_state == State::Seeking)
        setState(State::Sounding);
}

void Ring::onFailed(const QString &reason)
{
    if (!hasSound())
        return;
    qCWarning(lcRinger, "Alarm %u: tone %s: %s", m_alarm.cookie, qPrintable(tone()), qPrintable(reason));
    if (m_tone + 1 < m_tones.size()) {
        tryTone(m_tone + 1);
    } else {
        qCCritical(lcRinger, "Alarm %u: nothing can be heard, trying again", m_alarm.cookie);
        setState(State::Mute);
        if (m_round++ == 0)
            Q_EMIT unheard(reason);
    }
}

} // namespace Ringer
