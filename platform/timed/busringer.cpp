// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timed/busringer.h"

#include "platform/timed/logging.h"
#include "platform/timed/moments.h"
#include "ringerinterface.h"

#include <QDBusConnection>
#include <QDBusPendingCallWatcher>

namespace Astel::Timed {

BusRinger::BusRinger(const QString &service, const QDBusConnection &bus)
    : m_proxy(std::make_unique<ComAstelRingerInterface>(service, Wire::RingerPath, bus))
    , m_watcher(service, bus, QDBusServiceWatcher::WatchForUnregistration)
{
    connect(&m_watcher, &QDBusServiceWatcher::serviceUnregistered, this, &Ringer::vanished);
}

BusRinger::~BusRinger() = default;

void BusRinger::ring(quint32 cookie, const Wire::Event &event, qint64 due)
{
    auto *call = new QDBusPendingCallWatcher(m_proxy->ring(cookie, event, toNanoseconds(due)), this);
    connect(call, &QDBusPendingCallWatcher::finished, this, [this, cookie, call] {
        if (call->isError())
            qCWarning(lcTimed, "%ls does not take alarm %u: %ls", qUtf16Printable(m_proxy->service()), cookie,
                      qUtf16Printable(call->error().message()));
        call->deleteLater();
    });
}

void BusRinger::stop(quint32 cookie)
{
    // A ringer that is not there is silent; calling it would start it.
    if (m_proxy->isValid())
        m_proxy->stop(cookie);
}

} // namespace Astel::Timed
