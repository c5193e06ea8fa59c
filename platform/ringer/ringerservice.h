// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/timedclient/wire.h"

#include <QDBusContext>
#include <QObject>
#include <QVariantMap>

namespace Ringer {

class RingCheck;
class RingController;

/** The object that the daemon calls on the session bus; registers itself, and says why when it cannot. */
class RingerService : public QObject, protected QDBusContext
{
    Q_OBJECT

public:
    RingerService(RingController *controller, RingCheck *check, QObject *parent = nullptr);

    [[nodiscard]] bool registerOnBus(QString *reason);
    void unregisterName();

Q_SIGNALS:
    void busLost(); ///< the session is over; nobody can call any more

public Q_SLOTS:
    void ring(uint cookie, const Astel::Timed::Wire::Event &event, qulonglong due);
    void stop(uint cookie);
    QVariantMap check(const QString &tone, const QString &plugin);

private:
    RingController *m_controller;
    RingCheck *m_check;
};

} // namespace Ringer
