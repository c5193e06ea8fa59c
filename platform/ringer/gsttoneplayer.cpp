// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/ringer/gsttoneplayer.h"

#include "platform/sound/audibility.h"

#include <gst/gst.h>

#include <chrono>

namespace Ringer {

using namespace std::chrono_literals;

namespace {

constexpr auto StallTime = 3000ms;
constexpr auto RiseStep = 200ms;

} // namespace

GstTonePlayer::GstTonePlayer(std::chrono::milliseconds riseTime, QObject *parent)
    : TonePlayer(parent)
    , m_riseTime(riseTime)
{
    gst_init(nullptr, nullptr);
    m_watchdog.setSingleShot(true);
    connect(&m_watchdog, &QTimer::timeout, this, [this] { fail(m_suspicion); });
    m_rise.setInterval(RiseStep);
    connect(&m_rise, &QTimer::timeout, this, &GstTonePlayer::raise);
    connect(&m_tone, &Sound::AlarmTone::flows, this, &GstTonePlayer::onFlow);
    connect(&m_tone, &Sound::AlarmTone::failed, this, &GstTonePlayer::fail);
}

GstTonePlayer::~GstTonePlayer() = default;

void GstTonePlayer::play(const QString &tone, int round)
{
    stop();
    if (tone == QLatin1String(Silence)) {
        Q_EMIT audible();
        return;
    }
    m_isRising = round == 0;
    const auto path = tone == QLatin1String(Beeps) ? QString() : tone;
    if (!m_tone.start(path, round, m_isRising ? riseVolume(0ms, m_riseTime) : 1, &m_suspicion)) {
        m_watchdog.start(0ms);
        return;
    }
    m_suspicion = QStringLiteral("nothing is heard");
    m_watchdog.start(Sound::FirstSoundTime);
}

void GstTonePlayer::stop()
{
    m_watchdog.stop();
    m_rise.stop();
    m_heard.invalidate();
    m_tone.stop();
}

void GstTonePlayer::onFlow(bool isAudible)
{
    if (m_heard.isValid()) {
        m_watchdog.start(StallTime);
        return;
    }
    if (!isAudible)
        return;
    m_heard.start();
    if (m_isRising)
        m_rise.start();
    m_suspicion = QStringLiteral("the sound stalled");
    m_watchdog.start(StallTime);
    Q_EMIT audible();
}

void GstTonePlayer::fail(const QString &reason)
{
    stop();
    Q_EMIT failed(reason);
}

void GstTonePlayer::raise()
{
    const std::chrono::milliseconds heard{m_heard.elapsed()};
    m_tone.setVolume(riseVolume(heard, m_riseTime));
    if (heard >= m_riseTime)
        m_rise.stop();
}

} // namespace Ringer
