// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/locale/desktopsettings_p.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>

namespace Touch {

namespace {

const auto portal = QLatin1String("org.freedesktop.portal.Desktop");
const auto portalPath = QLatin1String("/org/freedesktop/portal/desktop");
const auto settingsInterface = QLatin1String("org.freedesktop.portal.Settings");
const auto settingGroup = QLatin1String("org.gnome.desktop.interface");
const auto clockFormat = QLatin1String("clock-format");

} // namespace

DesktopSettings::DesktopSettings()
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    // Otherwise the slot is refused where nothing else has used the bus yet.
    qRegisterMetaType<QDBusVariant>();
    bus.connect(portal, portalPath, settingsInterface, QStringLiteral("SettingChanged"), {settingGroup, clockFormat},
                QStringLiteral("ssv"), this, SLOT(settingChanged(QString, QString, QDBusVariant)));
    // It may start after us, or again.
    auto *starts = new QDBusServiceWatcher(portal, bus, QDBusServiceWatcher::WatchForRegistration, this);
    connect(starts, &QDBusServiceWatcher::serviceRegistered, this, &DesktopSettings::ask);
    ask();
}

DesktopSettings::~DesktopSettings() = default;

void DesktopSettings::ask()
{
    QDBusMessage read = QDBusMessage::createMethodCall(portal, portalPath, settingsInterface, QStringLiteral("Read"));
    read << QString(settingGroup) << QString(clockFormat);
    auto *answer = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(read), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        answer->deleteLater();
        const QDBusPendingReply<QDBusVariant> reply = *answer;
        if (reply.isValid())
            setClockFormat(reply.value().variant());
    });
}

void DesktopSettings::settingChanged(const QString &, const QString &, const QDBusVariant &value)
{
    setClockFormat(value.variant());
}

void DesktopSettings::setClockFormat(const QVariant &value)
{
    // Portals answer with a variant in a variant.
    const auto inner
        = value.metaType() == QMetaType::fromType<QDBusVariant>() ? value.value<QDBusVariant>().variant() : value;
    const QString text = inner.toString();
    const auto format = text == QLatin1String("12h") ? Locale::TwelveHour
        : text == QLatin1String("24h")               ? Locale::TwentyFourHour
                                                     : Locale::LocaleDefault;
    if (m_timeFormat == format)
        return;
    m_timeFormat = format;
    Q_EMIT changed();
}

} // namespace Touch
