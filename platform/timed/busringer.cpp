// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timed/busringer.h"

#include "platform/timed/logging.h"
#include "platform/timed/moments.h"
#include "ringerinterface.h"

#include <QDBusConnection>
#include <QDBusError>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>

namespace Astel::Timed {

namespace {

// It went amid the call, or takes its time: others see to that.
bool isForWantOfAnAnswer(const QDBusError &error)
{
    switch (error.type()) {
    case QDBusError::NoReply:
    case QDBusError::Timeout:
    case QDBusError::TimedOut:
    case QDBusError::Disconnected:
        return true;
    default:
        return false;
    }
}

} // namespace

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
        call->deleteLater();
        if (!call->isError())
            return;
        const QDBusError error = call->error();
        qCWarning(lcTimed, "%ls does not take alarm %u: %ls", qUtf16Printable(m_proxy->service()), cookie,
                  qUtf16Printable(error.message()));
        if (!isForWantOfAnAnswer(error))
            emit refused(cookie);
    });
}

void BusRinger::ping()
{
    // Its object is described by the thread that shows and sounds, unlike a ping of the bus.
    const auto question = QDBusMessage::createMethodCall(m_proxy->service(), m_proxy->path(),
                                                         "org.freedesktop.DBus.Introspectable", "Introspect");
    auto *call = new QDBusPendingCallWatcher(m_proxy->connection().asyncCall(question), this);
    connect(call, &QDBusPendingCallWatcher::finished, this, [this, call] {
        call->deleteLater();
        if (!call->isError() || !isForWantOfAnAnswer(call->error()))
            emit alive();
    });
}

void BusRinger::stop(quint32 cookie)
{
    // A ringer that is not there is silent; calling it would start it.
    if (m_proxy->isValid())
        m_proxy->stop(cookie);
}

} // namespace Astel::Timed
