// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timedclient/interface.h"

#include "platform/timedclient/event.h"
#include "timedproxy.h"

#include <ctime>

namespace Astel::Timed {

namespace {

bool hasSlot(const QObject *receiver, const char *slot)
{
    if (!slot || !*slot)
        return false;
    // The first character is the code that SLOT() puts before the signature.
    const QByteArray signature = QMetaObject::normalizedSignature(slot + 1);
    return receiver->metaObject()->indexOfMethod(signature) >= 0;
}

/** One proxy for all interfaces of a thread: making one asks the bus, which would double the cost of reading an alarm. */
std::shared_ptr<TimedProxy> proxyOfThread()
{
    static thread_local std::weak_ptr<TimedProxy> living;
    std::shared_ptr<TimedProxy> proxy = living.lock();
    if (!proxy) {
        proxy = std::make_shared<TimedProxy>(QString::fromLatin1(Wire::Service), QString::fromLatin1(Wire::Path),
                                             QDBusConnection::sessionBus());
        living = proxy;
    }
    return proxy;
}

} // namespace

Interface::Interface(QObject *parent)
    : QObject(parent)
{
    Wire::registerTypes();
    m_proxy = proxyOfThread();
}

Interface::~Interface() = default;

QDBusPendingReply<uint> Interface::add_event(const Event &event)
{
    return m_proxy->add_event(event.toWire());
}

QDBusPendingReply<uint> Interface::replace_event(const Event &event, uint cookie)
{
    return m_proxy->replace_event(event.toWire(), cookie);
}

QDBusPendingReply<bool> Interface::cancel(uint cookie)
{
    return m_proxy->cancel(cookie);
}

QDBusPendingReply<QVariantList> Interface::query(const QVariantMap &attributes)
{
    return m_proxy->query({attributes});
}

QDBusPendingReply<QVariantMap> Interface::query_attributes(uint cookie)
{
    return m_proxy->query_attributes(cookie);
}

QDBusPendingReply<Wire::Records> Interface::backup_events()
{
    return m_proxy->backup_events();
}

QDBusPendingReply<QList<uint>> Interface::restore_events(const Wire::Records &records)
{
    return m_proxy->restore_events(records);
}

QDBusPendingReply<> Interface::rings(uint cookie)
{
    return m_proxy->rings(cookie);
}

QDBusPendingReply<> Interface::sounds(uint cookie, const QString &tone)
{
    return m_proxy->sounds(cookie, tone);
}

QDBusPendingReply<> Interface::impaired(uint cookie, const QString &trouble)
{
    return m_proxy->impaired(cookie, trouble);
}

QDBusPendingReply<quint64> Interface::snooze(uint cookie, uint seconds, const QString &by)
{
    return m_proxy->snooze(cookie, seconds, by);
}

QDBusPendingReply<quint64> Interface::press(uint cookie, uint button, const QString &by)
{
    return m_proxy->press(cookie, button, by);
}

QDBusPendingReply<> Interface::dismiss(uint cookie, const QString &by)
{
    return m_proxy->dismiss(cookie, by);
}

QDBusPendingReply<QList<Wire::Trigger>> Interface::next_triggers(uint count)
{
    return m_proxy->next_triggers(count);
}

QDBusPendingReply<QList<Wire::JournalEntry>> Interface::journal(qint64 since)
{
    return m_proxy->journal(since);
}

QDBusPendingReply<QVariantMap> Interface::health()
{
    return m_proxy->health();
}

bool Interface::settings_changed_connect(QObject *receiver, const char *slot)
{
    if (!QDBusConnection::sessionBus().isConnected() || !hasSlot(receiver, slot))
        return false;
    // Slots are called in the order in which they were connected, so the zone is read before anybody uses it.
    connect(m_proxy.get(), &TimedProxy::settings_changed, this, &Interface::readTimeZone, Qt::UniqueConnection);
    return connect(m_proxy.get(), SIGNAL(settings_changed(Astel::Timed::WallClock::Info, bool)), receiver, slot);
}

void Interface::readTimeZone()
{
    tzset();
}

} // namespace Astel::Timed
