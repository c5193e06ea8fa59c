// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/desktopmotion_p.h"

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
const auto reducedMotion = QLatin1String("reduced-motion");
const auto enableAnimations = QLatin1String("enable-animations");

} // namespace

DesktopMotion::DesktopMotion(QObject *parent)
    : QObject(parent)
{
    if (!QDBusConnection::sessionBus().isConnected())
        return;
    // Otherwise the slot is refused where nothing else has used the bus yet.
    qRegisterMetaType<QDBusVariant>();
    follow(QStringLiteral("org.freedesktop.appearance"), reducedMotion);
    follow(QStringLiteral("org.gnome.desktop.interface"), enableAnimations);
}

DesktopMotion::~DesktopMotion() = default;

void DesktopMotion::follow(const QString &group, const QString &key)
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    bus.connect(portal, portalPath, settingsInterface, QStringLiteral("SettingChanged"), {group, key},
                QStringLiteral("ssv"), this, SLOT(settingChanged(QString, QString, QDBusVariant)));
    // It may start after us, or again.
    auto *starts = new QDBusServiceWatcher(portal, bus, QDBusServiceWatcher::WatchForRegistration, this);
    connect(starts, &QDBusServiceWatcher::serviceRegistered, this, [this, group, key] { ask(group, key); });
    ask(group, key);
}

void DesktopMotion::ask(const QString &group, const QString &key)
{
    QDBusMessage read = QDBusMessage::createMethodCall(portal, portalPath, settingsInterface, QStringLiteral("Read"));
    read << group << key;
    auto *answer = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(read), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer, key] {
        answer->deleteLater();
        const QDBusPendingReply<QDBusVariant> reply = *answer;
        if (reply.isValid())
            take(key, reply.value().variant());
    });
}

void DesktopMotion::settingChanged(const QString &, const QString &key, const QDBusVariant &value)
{
    take(key, value.variant());
}

void DesktopMotion::take(const QString &key, const QVariant &value)
{
    // Portals answer with a variant in a variant.
    const QVariant inner
        = value.metaType() == QMetaType::fromType<QDBusVariant>() ? value.value<QDBusVariant>().variant() : value;
    if (key == reducedMotion)
        m_wantsLess = inner.toUInt() == 1;
    else
        m_wantsNone = !inner.toBool();
}

} // namespace Touch
