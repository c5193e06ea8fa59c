// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timed/timedate.h"

#include "platform/timed/logging.h"

namespace Astel::Timed {

namespace {

constexpr auto Service = "org.freedesktop.timedate1";
constexpr auto Path = "/org/freedesktop/timedate1";

} // namespace

Timedate::Timedate(QDBusConnection bus)
{
    if (bus.isConnected()
        && !bus.connect(Service, Path, "org.freedesktop.DBus.Properties", "PropertiesChanged", this,
                        SLOT(propertiesChanged(QString, QVariantMap, QStringList))))
        qCWarning(lcTimed, "cannot listen to the service of the time zone, ignoring");
}

void Timedate::propertiesChanged(const QString &interface, const QVariantMap &changed, const QStringList &invalidated)
{
    if (interface == Service && (changed.contains("Timezone") || invalidated.contains("Timezone")))
        emit zoneSet(changed.value("Timezone").toString().toUtf8());
}

} // namespace Astel::Timed
