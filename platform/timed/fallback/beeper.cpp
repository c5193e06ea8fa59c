// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timed/fallback/beeper.h"

#include <chrono>
#include <QtGlobal>
#include <utility>

namespace Fallback {

namespace {

using namespace std::chrono_literals;

constexpr int Ways = 4;
constexpr double FullVolume = 1;
constexpr auto RetryInterval = 300ms;
constexpr auto Patience = 2000ms;

} // namespace

Beeper::Beeper()
{
    m_retry.setSingleShot(true);
    m_retry.setInterval(RetryInterval);
    m_watchdog.setSingleShot(true);
    m_watchdog.setInterval(Patience);
    connect(&m_retry, &QTimer::timeout, this, &Beeper::open);
    connect(&m_watchdog, &QTimer::timeout, this, [this] { tryNext(QStringLiteral("nothing flows")); });
    connect(&m_tone, &Sound::AlarmTone::flows, this, &Beeper::flow);
    connect(&m_tone, &Sound::AlarmTone::failed, this, &Beeper::tryNext);
}

Beeper::~Beeper() = default;

void Beeper::start()
{
    if (!m_retry.isActive() && !m_watchdog.isActive())
        open();
}

void Beeper::stop()
{
    m_retry.stop();
    m_watchdog.stop();
    m_tone.stop();
    m_way = 0;
    m_heard = false;
}

void Beeper::open()
{
    QString reason;
    if (m_tone.start({}, m_way, FullVolume, &reason))
        m_watchdog.start();
    else
        tryNext(reason);
}

void Beeper::flow(bool isAudible)
{
    m_watchdog.start();
    if (isAudible && !std::exchange(m_heard, true))
        emit heard();
}

void Beeper::tryNext(const QString &reason)
{
    m_watchdog.stop();
    m_tone.stop();
    m_heard = false;
    // Once for each: without any output they are tried over and over.
    if (++m_way <= Ways)
        qWarning("no sound: %ls", qUtf16Printable(reason));
    if (m_way == Ways)
        emit unheard(reason);
    m_retry.start();
}

} // namespace Fallback
