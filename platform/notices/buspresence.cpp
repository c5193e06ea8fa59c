// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/notices/buspresence.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

namespace Notices {

BusPresence::BusPresence(const QString &service, const QDBusConnection &bus)
    : m_watcher(service, bus)
{
    connect(&m_watcher, &QDBusServiceWatcher::serviceRegistered, this, [this] { setPresent(true); });
    connect(&m_watcher, &QDBusServiceWatcher::serviceUnregistered, this, [this] { setPresent(false); });

    auto question = QDBusMessage::createMethodCall("org.freedesktop.DBus", "/org/freedesktop/DBus",
                                                   "org.freedesktop.DBus", "NameHasOwner");
    question.setArguments({service});
    auto *call = new QDBusPendingCallWatcher(bus.asyncCall(question), this);
    connect(call, &QDBusPendingCallWatcher::finished, this, [this, call] {
        const QDBusPendingReply<bool> reply = *call;
        if (reply.isValid() && reply.value())
            setPresent(true);
        call->deleteLater();
    });
}

void BusPresence::setPresent(bool present)
{
    if (m_present == present)
        return;
    m_present = present;
    if (present)
        emit appeared();
    else
        emit vanished();
}

} // namespace Notices
