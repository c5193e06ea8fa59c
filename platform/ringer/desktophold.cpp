// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/ringer/desktophold.h"

#include "platform/ringer/logging.h"

#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>

#include <utility>

namespace Ringer {

namespace {

const auto RequestInterface = QStringLiteral("org.freedesktop.portal.Request");

} // namespace

DesktopHold::DesktopHold(const Service &service, const QVariantList &arguments, const QDBusConnection &bus,
                         QObject *parent)
    : QObject(parent)
    , m_service(service)
    , m_arguments(arguments)
    , m_bus(bus)
{ }

DesktopHold::~DesktopHold()
{
    end();
}

void DesktopHold::begin()
{
    if (std::exchange(m_isWanted, true) || std::exchange(m_isAsked, true))
        return;
    auto call = QDBusMessage::createMethodCall(m_service.name, m_service.path, m_service.interface, m_service.begin);
    call.setArguments(m_arguments);
    auto *watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        watcher->deleteLater();
        if (watcher->isError())
            qCInfo(lcRinger, "%s of %s, ignoring: %s", qPrintable(m_service.begin), qPrintable(m_service.name),
                   qPrintable(watcher->error().message()));
        onBegun(watcher->isError() ? QVariant() : watcher->reply().arguments().value(0));
    });
}

void DesktopHold::end()
{
    m_isWanted = false;
    const auto ticket = std::exchange(m_ticket, QVariant());
    if (!ticket.isValid())
        return;
    auto call = QDBusMessage::createMethodCall(m_service.name, m_service.path, m_service.interface, m_service.end);
    if (m_service.end.isEmpty())
        call = QDBusMessage::createMethodCall(m_service.name, ticket.value<QDBusObjectPath>().path(), RequestInterface,
                                              QStringLiteral("Close"));
    else
        call.setArguments({ticket});
    m_bus.send(call);
}

// What it was begun for may be over by the time of the answer.
void DesktopHold::onBegun(const QVariant &ticket)
{
    m_isAsked = false;
    m_ticket = ticket;
    if (!m_isWanted)
        end();
    else if (!ticket.isValid())
        Q_EMIT refused();
}

} // namespace Ringer
