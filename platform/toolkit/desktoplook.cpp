// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/desktoplook.h"

#include "platform/toolkit/theme.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QDBusVariant>

namespace Touch {

namespace {

const auto service = QStringLiteral("org.freedesktop.portal.Desktop");
const auto objectPath = QStringLiteral("/org/freedesktop/portal/desktop");
const auto interfaceName = QStringLiteral("org.freedesktop.portal.Settings");

const auto appearance = QStringLiteral("org.freedesktop.appearance");
const auto colorScheme = QStringLiteral("color-scheme");
const auto desktopInterface = QStringLiteral("org.gnome.desktop.interface");
const auto textScaling = QStringLiteral("text-scaling-factor");

std::optional<Theme::Variant> variantFor(uint scheme)
{
    constexpr uint preferDark = 1;
    constexpr uint preferLight = 2;
    if (scheme == preferDark)
        return Theme::Variant::Dark;
    if (scheme == preferLight)
        return Theme::Variant::Light;
    return {};
}

} // namespace

DesktopLook::DesktopLook(QObject *parent)
    : QObject(parent)
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    // Otherwise the slot is refused where nothing else has used the bus yet.
    qRegisterMetaType<QDBusVariant>();
    bus.connect(service, objectPath, interfaceName, QStringLiteral("SettingChanged"), this,
                SLOT(settingChanged(QString, QString, QDBusVariant)));
    // It may start after us, or again.
    auto *starts = new QDBusServiceWatcher(service, bus, QDBusServiceWatcher::WatchForRegistration, this);
    connect(starts, &QDBusServiceWatcher::serviceRegistered, this, &DesktopLook::readAll);
    readAll();
}

DesktopLook::~DesktopLook() = default;

void DesktopLook::readAll()
{
    read(appearance, colorScheme);
    read(desktopInterface, textScaling);
}

void DesktopLook::read(const QString &group, const QString &key)
{
    auto call = QDBusMessage::createMethodCall(service, objectPath, interfaceName, QStringLiteral("Read"));
    call << group << key;
    auto *watcher = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [group, key, watcher] {
        const QDBusPendingReply<QDBusVariant> reply = *watcher;
        // Without the setting everything stays as it is.
        if (!reply.isError())
            apply(group, key, reply.value().variant());
        watcher->deleteLater();
    });
}

void DesktopLook::settingChanged(const QString &group, const QString &key, const QDBusVariant &value)
{
    apply(group, key, value.variant());
}

void DesktopLook::apply(const QString &group, const QString &key, QVariant value)
{
    // An answer to Read has the value in a variant of its own.
    while (value.metaType() == QMetaType::fromType<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    if (group == appearance && key == colorScheme)
        Theme::instance().setDesktopVariant(variantFor(value.toUInt()));
    else if (group == desktopInterface && key == textScaling)
        Theme::instance().setTextScale(value.toDouble());
}

} // namespace Touch
