// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/timed/ringer.h"

#include <memory>
#include <QDBusServiceWatcher>

class ComAstelRingerInterface;
class QDBusConnection;

namespace Astel::Timed {

/** A ringer on the session bus, started by the bus when it is called. A call that fails is logged. */
class BusRinger final : public Ringer
{
    Q_OBJECT

public:
    BusRinger(const QString &service, const QDBusConnection &bus);
    ~BusRinger() override;

    void ring(quint32 cookie, const Wire::Event &event, qint64 due) override;
    void stop(quint32 cookie) override;
    void ping() override;

private:
    std::unique_ptr<ComAstelRingerInterface> m_proxy;
    QDBusServiceWatcher m_watcher;
};

} // namespace Astel::Timed
