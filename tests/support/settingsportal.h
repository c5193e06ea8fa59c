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
    /** Portals answer with a variant in a variant, or in one alone. */
    void setWrapsTwice(bool wrapsTwice) { m_wrapsTwice = wrapsTwice; }
    /** How often it was asked for this setting. */
    [[nodiscard]] int timesAsked(const QString &group, const QString &key) const { return m_asked.value(group + key); }

public slots:
    QDBusVariant Read(const QString &group, const QString &key);

signals:
    void SettingChanged(const QString &group, const QString &key, const QDBusVariant &value);

private:
    QDBusConnection m_bus;
    bool m_wrapsTwice = true;
    QHash<QString, QVariant> m_values;
    QHash<QString, int> m_asked;
};

} // namespace Support
