// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/locale/desktopsetting.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusServiceWatcher>

namespace Touch {

namespace {

const auto portal = QLatin1String("org.freedesktop.portal.Desktop");
const auto portalPath = QLatin1String("/org/freedesktop/portal/desktop");
const auto settingsInterface = QLatin1String("org.freedesktop.portal.Settings");

} // namespace

DesktopSetting::DesktopSetting(const QString &group, const QString &key, QObject *parent)
    : QObject(parent)
    , m_group(group)
    , m_key(key)
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    // Otherwise the slot is refused where nothing else has used the bus yet.
    qRegisterMetaType<QDBusVariant>();
    bus.connect(portal, portalPath, settingsInterface, QStringLiteral("SettingChanged"), {group, key},
                QStringLiteral("ssv"), this, SLOT(changed(QString, QString, QDBusVariant)));
    // It may start after us, or again.
    auto *starts = new QDBusServiceWatcher(portal, bus, QDBusServiceWatcher::WatchForRegistration, this);
    connect(starts, &QDBusServiceWatcher::serviceRegistered, this, &DesktopSetting::ask);
    ask();
}

DesktopSetting::~DesktopSetting() = default;

void DesktopSetting::ask()
{
    QDBusMessage read = QDBusMessage::createMethodCall(portal, portalPath, settingsInterface, QStringLiteral("Read"));
    read << m_group << m_key;
    // Not with a watcher: one that is made after the answer came tells of it behind the changes that followed it.
    QDBusConnection::sessionBus().callWithCallback(read, this, SLOT(answered(QDBusVariant)));
}

void DesktopSetting::answered(const QDBusVariant &value)
{
    take(value.variant());
}

void DesktopSetting::changed(const QString &, const QString &, const QDBusVariant &value)
{
    take(value.variant());
}

void DesktopSetting::take(const QVariant &value)
{
    // Portals answer with a variant in a variant.
    const bool isWrapped = value.metaType() == QMetaType::fromType<QDBusVariant>();
    Q_EMIT received(isWrapped ? value.value<QDBusVariant>().variant() : value);
}

} // namespace Touch
