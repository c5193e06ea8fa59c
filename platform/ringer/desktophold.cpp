// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/ringer/desktophold.h"

#include "platform/ringer/logging.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

#include <utility>

namespace Ringer {

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
    auto call = QDBusMessage::createMethodCall(m_service.name, m_service.path, m_service.name, m_service.begin);
    call.setArguments(m_arguments);
    auto *watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        watcher->deleteLater();
        const QDBusPendingReply<uint> reply = *watcher;
        if (reply.isError())
            qCInfo(lcRinger, "%s of %s, ignoring: %s", qPrintable(m_service.begin), qPrintable(m_service.name),
                   qPrintable(reply.error().message()));
        onBegun(reply.isError() ? std::nullopt : std::optional(reply.value()));
    });
}

void DesktopHold::end()
{
    m_isWanted = false;
    if (const auto number = std::exchange(m_number, std::nullopt)) {
        auto call = QDBusMessage::createMethodCall(m_service.name, m_service.path, m_service.name, m_service.end);
        call.setArguments({*number});
        m_bus.send(call);
    }
}

// What it was begun for may be over by the time of the answer.
void DesktopHold::onBegun(std::optional<uint> number)
{
    m_isAsked = false;
    m_number = number;
    if (!m_isWanted)
        end();
}

} // namespace Ringer
