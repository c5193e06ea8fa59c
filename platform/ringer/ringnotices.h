// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/ringer/ringplugin.h"

#include <QDBusConnection>
#include <QObject>

#include <map>

namespace Ringer {

/**
 * Shows each alarm that rings as a notification too, with the screen's two answers, for the lock screen that covers
 * everything else. An alarm that is answered elsewhere takes its notification along. Without a notification server
 * nothing is shown. Owned by the program; main thread.
 */
class RingNotices : public QObject
{
    Q_OBJECT

public:
    explicit RingNotices(const QDBusConnection &bus, QObject *parent = nullptr);
    ~RingNotices() override;

    void show(const Alarm &alarm);
    void close(quint32 cookie); ///< unknown cookies are ignored

Q_SIGNALS:
    void snoozeChosen(quint32 cookie, int seconds);
    void stopChosen(quint32 cookie);

private Q_SLOTS:
    void onActionInvoked(uint id, const QString &key);

private:
    struct Shown
    {
        Alarm alarm;
        uint id = 0; ///< 0 while it is under way
    };

    void onShown(quint32 cookie, uint id);
    void withdraw(uint id);

    QDBusConnection m_bus;
    std::map<quint32, Shown> m_shown;
};

} // namespace Ringer
