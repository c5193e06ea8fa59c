// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/notices/buspresence.h"

#include <QDBusConnection>
#include <QDBusMessage>

namespace Notices {

BusPresence::BusPresence(const QString &service, const QDBusConnection &bus)
    : m_watcher(service, bus)
{
    connect(&m_watcher, &QDBusServiceWatcher::serviceRegistered, this, [this] { setPresent(true); });
    connect(&m_watcher, &QDBusServiceWatcher::serviceUnregistered, this, [this] { setPresent(false); });

    auto question = QDBusMessage::createMethodCall("org.freedesktop.DBus", "/org/freedesktop/DBus",
                                                   "org.freedesktop.DBus", "NameHasOwner");
    question.setArguments({service});
    // Not with a watcher: one that is made after the answer came tells of it behind the answers that followed it, and
    // what has been shown to a server would be shown again because it is said to appear.
    bus.callWithCallback(question, this, SLOT(setPresent(bool)));
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
