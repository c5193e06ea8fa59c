// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QDBusServiceWatcher>

namespace Notices {

/** Whether somebody owns a name on a bus. Known once the bus has answered; nothing is started by asking. */
class BusPresence : public QObject
{
    Q_OBJECT

public:
    BusPresence(const QString &service, const QDBusConnection &bus);

    bool isPresent() const { return m_present; }

signals:
    void appeared();
    void vanished();

private slots:
    void setPresent(bool present);

private:
    QDBusServiceWatcher m_watcher;
    bool m_present = false;
};

} // namespace Notices
