// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/notices/busnotifier.h"
#include "platform/ringer/notices/ringnotices.h"
#include "platform/timed/fallback/beeper.h"
#include "platform/timedclient/wire.h"

#include <QDBusConnection>
#include <set>

namespace Fallback {

/**
 * What rings when the ringer cannot: beeps and notifications for as long as the daemon says. Needs no display, no tone
 * and no plug-in. Whoever answers a notification is passed on to the daemon. Owned by main().
 */
class FallbackRinger : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.astel.ringer")

public:
    explicit FallbackRinger(const QDBusConnection &bus);

    /** False where the bus does not take it. */
    [[nodiscard]] bool registerOnBus();
    /** Nobody can be answered any more. */
    void stopAll();

public slots:
    /** From the daemon. */
    Q_SCRIPTABLE void ring(uint cookie, const Astel::Timed::Wire::Event &event, qulonglong due);
    Q_SCRIPTABLE void stop(uint cookie);

signals:
    /** Nothing rings any more. */
    void finished();

private:
    void takeBackNoticesOfTheRinger();
    void reportSound();
    void reportTrouble(const QString &reason);
    void answer(const QString &method, const QVariantList &arguments);

    QDBusConnection m_bus;
    Beeper m_beeper;
    Notices::BusNotifier m_notifier;
    Ringer::RingNotices m_notices;
    std::set<quint32> m_ringing;
};

} // namespace Fallback
