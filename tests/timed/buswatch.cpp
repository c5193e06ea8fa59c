// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/timed/buswatch.h"

#include "platform/timedclient/wire.h"

#include <QDBusArgument>
#include <QDBusConnectionInterface>
#include <QDBusMessage>

using namespace Astel::Timed;

BusWatch::BusWatch(const QDBusConnection &bus)
{
    QDBusConnection connection = bus;
    connection.connect("com.astel.context.Alarm.Trigger", "/com/astel/context/Alarm/Trigger",
                       "com.astel.context.Property", "changed", this, SLOT(published(QDBusVariant)));
    connection.connect(Wire::Service, Wire::Path, Wire::Interface, "settings_changed", this,
                       SLOT(settingsChanged(QDBusMessage)));
    // A call there and back, so that the bus has the matches before the test goes on.
    connection.interface()->isServiceRegistered(Wire::Service);
}

void BusWatch::expect(const QDBusPendingCall &call)
{
    auto *watcher = new QDBusPendingCallWatcher(call, this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        arrived.append(watcher->isError() ? watcher->error().name() : QStringLiteral("reply"));
        watcher->deleteLater();
    });
}

void BusWatch::published(const QDBusVariant &value)
{
    lastMap = qdbus_cast<QVariantMap>(value.variant());
    arrived.append(QStringLiteral("published %1").arg(lastMap.size()));
}

void BusWatch::settingsChanged(const QDBusMessage &message)
{
    arrived.append(message.arguments().value(1).toBool() ? "settings clock" : "settings zone");
}

NotingRinger::NotingRinger(QDBusConnection bus)
    : m_bus(bus)
{
    m_bus.registerVirtualObject(Wire::RingerPath, this);
    m_bus.registerService(Wire::RingerService);
}

NotingRinger::~NotingRinger()
{
    m_bus.unregisterService(Wire::RingerService);
    m_bus.unregisterObject(Wire::RingerPath);
}

bool NotingRinger::handleMessage(const QDBusMessage &message, const QDBusConnection &connection)
{
    calls.append(QStringLiteral("%1 %2").arg(message.member()).arg(message.arguments().value(0).toUInt()));
    connection.send(message.createReply());
    return true;
}
