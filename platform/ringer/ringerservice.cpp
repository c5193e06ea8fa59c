// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/ringer/ringerservice.h"

#include "platform/ringer/logging.h"
#include "platform/ringer/ringcheck.h"
#include "platform/ringer/ringcontroller.h"

#include "ringeradaptor.h"

#include <QDBusConnection>
#include <QDBusError>

#include <ctime>

namespace Ringer {

namespace Wire = Astel::Timed::Wire;

RingerService::RingerService(RingController *controller, RingCheck *check, QObject *parent)
    : QObject(parent)
    , m_controller(controller)
    , m_check(check)
{
    Wire::registerTypes();
    new RingerAdaptor(this);
}

bool RingerService::registerOnBus(QString *reason)
{
    auto bus = QDBusConnection::sessionBus();
    if (!bus.connect({}, QStringLiteral("/org/freedesktop/DBus/Local"), QStringLiteral("org.freedesktop.DBus.Local"),
                     QStringLiteral("Disconnected"), this, SIGNAL(busLost())))
        qCWarning(lcRinger, "Cannot see the end of the session bus, ignoring");
    // The name comes last: whoever sees it may call.
    if (bus.registerObject(QLatin1String(Wire::RingerPath), this)
        && bus.registerService(QLatin1String(Wire::RingerService)))
        return true;
    *reason = bus.isConnected() ? QStringLiteral("the name is taken") : bus.lastError().message();
    return false;
}

void RingerService::unregisterName()
{
    QDBusConnection::sessionBus().unregisterService(QLatin1String(Wire::RingerService));
}

void RingerService::ring(uint cookie, const Wire::Event &event, qulonglong due)
{
    // The zone may have changed since the last alarm rang.
    tzset();
    m_controller->ring(cookie, event, due);
}

void RingerService::stop(uint cookie)
{
    m_controller->stop(cookie);
}

QVariantMap RingerService::check(const QString &tone, const QString &plugin)
{
    setDelayedReply(true);
    const auto reply = [bus = connection(), call = message()](const QVariantMap &facts) {
        bus.send(call.createReply(QVariant(facts)));
    };
    if (!m_check->start(tone, plugin, reply))
        sendErrorReply(QDBusError::LimitsExceeded, QStringLiteral("too many checks are under way"));
    return {};
}

} // namespace Ringer
