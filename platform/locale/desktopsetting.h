// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QDBusVariant>
#include <QObject>

namespace Touch {

/// One setting of the desktop's settings portal. Asks for it without waiting, and again when the portal starts anew;
/// where there is no portal, or none with that setting, nothing is ever received. GUI thread; needs the application
/// object.
class DesktopSetting : public QObject
{
    Q_OBJECT

public:
    DesktopSetting(const QString &group, const QString &key, QObject *parent = nullptr);
    ~DesktopSetting() override;

Q_SIGNALS:
    /// Its value at first, and whenever it changes; maybe the same again.
    void received(const QVariant &value);

private Q_SLOTS:
    void answered(const QDBusVariant &value);
    void changed(const QString &group, const QString &key, const QDBusVariant &value);

private:
    void ask();
    void take(const QVariant &value);

    QString m_group;
    QString m_key;
};

} // namespace Touch
