// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timed/logind.h"

#include "platform/timed/logging.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>

namespace Astel::Timed {

namespace {

constexpr auto Service = "org.freedesktop.login1";
constexpr auto Path = "/org/freedesktop/login1";
constexpr auto Interface = "org.freedesktop.login1.Manager";
// One that has just come may not be ready yet.
constexpr int RetryInterval = 2000;

} // namespace

Logind::Logind(const QDBusConnection &bus)
    : m_bus(bus)
    , m_presence(Service, bus)
{
    m_retry.setSingleShot(true);
    m_retry.setInterval(RetryInterval);
    connect(&m_retry, &QTimer::timeout, this, &Logind::ask);
    if (!m_bus.isConnected()) {
        qCInfo(lcTimed, "no system bus, sleep is neither delayed nor heard of");
        return;
    }
    if (!m_bus.connect(Service, Path, Interface, "PrepareForSleep", this, SLOT(prepareForSleep(bool))))
        qCWarning(lcTimed, "cannot listen to the login manager, ignoring");
    connect(&m_presence, &Notices::BusPresence::appeared, this, [this] { delaySleep(m_wanted); });
    connect(&m_presence, &Notices::BusPresence::vanished, this, [this] {
        // What it handed out is worth nothing any more, and nobody else tells the end of a sleep.
        setDelay(Delay::None);
        if (m_asleep)
            prepareForSleep(false);
    });
}

void Logind::delaySleep(bool delayed)
{
    m_wanted = delayed;
    if (!delayed && m_delay != Delay::Asked)
        setDelay(Delay::None);
    else if (delayed && m_delay == Delay::None && m_presence.isPresent())
        ask();
}

QVariantMap Logind::facts() const
{
    static constexpr const char *names[] = {"none", "asked", "held", "refused"};
    return {{"logind", m_presence.isPresent()}, {"sleep_delay", QString::fromLatin1(names[int(m_delay)])}};
}

void Logind::prepareForSleep(bool begins)
{
    m_asleep = begins;
    if (begins)
        emit goesToSleep();
    else
        emit resumed();
}

void Logind::ask()
{
    setDelay(Delay::Asked);
    auto question = QDBusMessage::createMethodCall(Service, Path, Interface, "Inhibit");
    question.setArguments({"sleep", "timed", "An alarm is being set or is ringing", "delay"});
    auto *call = new QDBusPendingCallWatcher(m_bus.asyncCall(question), this);
    connect(call, &QDBusPendingCallWatcher::finished, this, [this, call] {
        call->deleteLater();
        if (m_delay == Delay::Asked)
            answered(*call);
    });
}

void Logind::answered(const QDBusPendingReply<QDBusUnixFileDescriptor> &reply)
{
    if (!m_wanted) {
        setDelay(Delay::None);
    } else if (reply.isValid()) {
        setDelay(Delay::Held, reply.value());
    } else {
        qCWarning(lcTimed, "cannot delay sleep: %ls", qUtf16Printable(reply.error().message()));
        setDelay(Delay::Refused);
        m_retry.start();
    }
}

void Logind::setDelay(Delay delay, const QDBusUnixFileDescriptor &descriptor)
{
    m_delay = delay;
    m_retry.stop();
    // Closes the one before.
    m_descriptor = descriptor;
}

} // namespace Astel::Timed
