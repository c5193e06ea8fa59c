// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timed/fallback/fallbackringer.h"

#include "platform/ringer/texts/ringtexts.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <utility>

namespace Fallback {

namespace {

namespace Wire = Astel::Timed::Wire;

constexpr auto Who = "notification";
constexpr auto ToneName = "beeps";

} // namespace

FallbackRinger::FallbackRinger(const QDBusConnection &bus)
    : m_bus(bus)
    , m_notifier(bus, QStringLiteral("clock-ring-fallback"), RingTexts::application())
    , m_notices(&m_notifier)
{
    connect(&m_beeper, &Beeper::heard, this, &FallbackRinger::reportSound);
    connect(&m_beeper, &Beeper::unheard, this, &FallbackRinger::reportTrouble);
    connect(&m_notices, &Ringer::RingNotices::snoozeChosen, this, [this](quint32 cookie, int seconds) {
        answer("snooze", {cookie, uint(seconds), Who});
    });
    connect(&m_notices, &Ringer::RingNotices::stopChosen, this, [this](quint32 cookie) {
        answer("dismiss", {cookie, Who});
    });
    takeBackNoticesOfTheRinger();
}

bool FallbackRinger::registerOnBus()
{
    return m_bus.registerObject(Wire::RingerPath, this, QDBusConnection::ExportScriptableSlots)
        && m_bus.registerService(Wire::FallbackRingerService);
}

// One that was killed cannot; its buttons would do nothing.
void FallbackRinger::takeBackNoticesOfTheRinger()
{
    if (m_bus.interface()->isServiceRegistered(Wire::RingerService))
        return;
    Notices::NoticeRecord record(QStringLiteral("ringer"));
    m_notifier.takeBack(record);
}

void FallbackRinger::ring(uint cookie, const Wire::Event &event, qulonglong due)
{
    if (!m_ringing.insert(cookie).second)
        return;
    m_notices.show(Ringer::ringNoticeOf(cookie, event, due));
    m_beeper.start();
    if (m_beeper.isHeard())
        answer("sounds", {cookie, ToneName});
}

void FallbackRinger::stop(uint cookie)
{
    if (m_ringing.erase(cookie) == 0)
        return;
    m_notices.close(cookie);
    if (!m_ringing.empty())
        return;
    m_beeper.stop();
    emit finished();
}

void FallbackRinger::stopAll()
{
    for (const quint32 cookie : std::exchange(m_ringing, {}))
        m_notices.close(cookie);
    m_beeper.stop();
    emit finished();
}

void FallbackRinger::reportSound()
{
    for (const quint32 cookie : m_ringing)
        answer("sounds", {cookie, ToneName});
}

void FallbackRinger::reportTrouble(const QString &reason)
{
    for (const quint32 cookie : m_ringing)
        answer("impaired", {cookie, "Nothing can be heard: " + reason});
}

void FallbackRinger::answer(const QString &method, const QVariantList &arguments)
{
    QDBusMessage message = QDBusMessage::createMethodCall(Wire::Service, Wire::Path, Wire::Interface, method);
    message.setArguments(arguments);
    m_bus.send(message);
}

} // namespace Fallback
