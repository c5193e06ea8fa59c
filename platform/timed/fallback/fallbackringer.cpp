// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timed/fallback/fallbackringer.h"

#include <algorithm>
#include <QDBusMessage>
#include <utility>

namespace Fallback {

namespace {

namespace Wire = Astel::Timed::Wire;

constexpr auto Who = "notification";
constexpr auto ToneName = "beeps";
constexpr uint FirstButton = 0;

bool canSnooze(const Wire::Event &event)
{
    return std::any_of(event.buttons.begin(), event.buttons.end(),
                       [](const Wire::Button &button) { return button.snooze > 0; });
}

} // namespace

FallbackRinger::FallbackRinger(const QDBusConnection &bus)
    : m_bus(bus)
    , m_notice(bus)
{
    connect(&m_beeper, &Beeper::heard, this, &FallbackRinger::reportSound);
    connect(&m_notice, &RingNotice::snooze, this, [this](quint32 cookie) {
        answer("snooze", {cookie, FirstButton, Who});
    });
    connect(&m_notice, &RingNotice::stop, this, [this](quint32 cookie) { answer("dismiss", {cookie, Who}); });
}

bool FallbackRinger::registerOnBus()
{
    return m_bus.registerObject(Wire::RingerPath, this, QDBusConnection::ExportScriptableSlots)
        && m_bus.registerService(Wire::FallbackRingerService);
}

void FallbackRinger::ring(uint cookie, const Wire::Event &event, qulonglong)
{
    if (!m_ringing.insert(cookie).second)
        return;
    m_notice.show(cookie, event.attributes.value("TITLE").simplified(), canSnooze(event));
    m_beeper.start();
    if (m_beeper.isHeard())
        answer("sounds", {cookie, ToneName});
}

void FallbackRinger::stop(uint cookie)
{
    if (m_ringing.erase(cookie) == 0)
        return;
    m_notice.close(cookie);
    if (!m_ringing.empty())
        return;
    m_beeper.stop();
    emit finished();
}

void FallbackRinger::stopAll()
{
    for (const quint32 cookie : std::exchange(m_ringing, {}))
        m_notice.close(cookie);
    m_beeper.stop();
    emit finished();
}

void FallbackRinger::reportSound()
{
    for (const quint32 cookie : m_ringing)
        answer("sounds", {cookie, ToneName});
}

void FallbackRinger::answer(const QString &method, const QVariantList &arguments)
{
    QDBusMessage message = QDBusMessage::createMethodCall(Wire::Service, Wire::Path, Wire::Interface, method);
    message.setArguments(arguments);
    m_bus.send(message);
}

} // namespace Fallback
