// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <map>
#include <QDBusConnection>
#include <QObject>

namespace Fallback {

/** Shows what rings as desktop notifications with snooze and stop. Without a notification server nothing is shown. */
class RingNotice : public QObject
{
    Q_OBJECT

public:
    explicit RingNotice(const QDBusConnection &bus);

    void show(quint32 cookie, const QString &title, bool canSnooze);
    void close(quint32 cookie);

signals:
    void snooze(quint32 cookie);
    void stop(quint32 cookie);

private slots:
    void actionInvoked(uint id, const QString &key);

private:
    void withdraw(uint id);

    QDBusConnection m_bus;
    std::map<quint32, uint> m_shown; ///< cookies and the numbers of their notifications, 0 while one is under way
};

} // namespace Fallback
