// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/timed/daemonclient.h"

#include <QDBusConnection>
#include <QDBusError>
#include <QDBusMessage>

#include <algorithm>

using namespace Astel::Timed;

QDBusPendingCall DaemonClient::call(const QString &method, const QVariantList &arguments)
{
    QDBusMessage message = QDBusMessage::createMethodCall(Wire::Service, Wire::Path, Wire::Interface, method);
    message.setArguments(arguments);
    return QDBusConnection::sessionBus().asyncCall(message);
}

QString DaemonClient::errorOf(const QString &method, const QVariantList &arguments)
{
    QDBusPendingCall pending = call(method, arguments);
    pending.waitForFinished();
    return pending.error().name();
}

uint DaemonClient::add(const Wire::Event &event)
{
    return ask<uint>("add_event", {QVariant::fromValue(event)});
}

QString DaemonClient::stateOf(uint cookie)
{
    return ask<QVariantMap>("query_attributes", {cookie}).value("STATE").toString();
}

bool DaemonClient::cancelAll()
{
    const auto cookies = ask<QVariantList>("query", {QVariantMap()});
    return std::all_of(cookies.begin(), cookies.end(),
                       [](const QVariant &cookie) { return ask<bool>("cancel", {cookie}); });
}
