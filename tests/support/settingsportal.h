// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusVariant>
#include <QHash>
#include <QObject>

namespace Support {

/** The desktop's settings portal, as far as it is asked. It stays on the bus until stopped or the connection ends. */
class SettingsPortal : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    explicit SettingsPortal(const QDBusConnection &bus);

    [[nodiscard]] bool start();
    [[nodiscard]] bool stop();
    void setColorScheme(uint scheme); ///< 0 none, 1 dark, 2 light
    void setTextScaling(double factor);
    void set(const QString &group, const QString &key, const QVariant &value);

public slots:
    QDBusVariant Read(const QString &group, const QString &key);

signals:
    void SettingChanged(const QString &group, const QString &key, const QDBusVariant &value);

private:
    QDBusConnection m_bus;
    QHash<QString, QVariant> m_values;
};

} // namespace Support
