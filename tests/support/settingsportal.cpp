// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/support/settingsportal.h"

namespace Support {

namespace {

const auto service = QStringLiteral("org.freedesktop.portal.Desktop");
const auto objectPath = QStringLiteral("/org/freedesktop/portal/desktop");

} // namespace

SettingsPortal::SettingsPortal(const QDBusConnection &bus)
    : m_bus(bus)
{ }

bool SettingsPortal::start()
{
    return m_bus.registerObject(objectPath, this, QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals)
        && m_bus.registerService(service);
}

bool SettingsPortal::stop()
{
    m_bus.unregisterObject(objectPath);
    return m_bus.unregisterService(service);
}

void SettingsPortal::setColorScheme(uint scheme)
{
    set(QStringLiteral("org.freedesktop.appearance"), QStringLiteral("color-scheme"), scheme);
}

void SettingsPortal::setTextScaling(double factor)
{
    set(QStringLiteral("org.gnome.desktop.interface"), QStringLiteral("text-scaling-factor"), factor);
}

void SettingsPortal::set(const QString &group, const QString &key, const QVariant &value)
{
    m_values[group + key] = value;
    emit SettingChanged(group, key, QDBusVariant(value));
}

QDBusVariant SettingsPortal::Read(const QString &group, const QString &key)
{
    ++m_asked[group + key];
    if (!m_values.contains(group + key)) {
        sendErrorReply(QStringLiteral("org.freedesktop.portal.Error.NotFound"),
                       QStringLiteral("Requested setting not found"));
        return {};
    }
    const QDBusVariant value(m_values[group + key]);
    return m_wrapsTwice ? QDBusVariant(QVariant::fromValue(value)) : value;
}

} // namespace Support
