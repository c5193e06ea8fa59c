// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/timed/buspresence.h"
#include "platform/timed/notifier.h"

#include <QDBusConnection>
#include <QHash>

namespace Astel::Timed {

/** The notification server of the desktop, on the session bus; started by the bus where that can. */
class BusNotifier final : public Notifier
{
    Q_OBJECT

public:
    explicit BusNotifier(const QDBusConnection &bus);

    void show(const Notice &notice, const std::function<void(bool)> &done) override;
    void close(const QString &tag) override;
    bool isPresent() const override { return m_presence.isPresent(); }

private slots:
    void actionInvoked(uint id, const QString &key);

private:
    void send(const Notice &notice, const std::function<void(bool)> &done);
    void keepNumber(const QString &tag, uint number);
    void withdraw(uint number);

    QDBusConnection m_bus;
    BusPresence m_presence;
    QHash<QString, uint> m_tagged; ///< tags and the numbers of their notices, 0 while one is under way
};

} // namespace Astel::Timed
