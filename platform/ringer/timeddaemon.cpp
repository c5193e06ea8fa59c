// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/ringer/timeddaemon.h"

#include "platform/ringer/logging.h"

#include <QDBusPendingCallWatcher>

namespace Ringer {

TimedDaemon::TimedDaemon(QObject *parent)
    : AlarmDaemon(parent)
{ }

void TimedDaemon::rings(quint32 cookie)
{
    watchReport(cookie, m_timed.rings(cookie), "rings");
}

void TimedDaemon::sounds(quint32 cookie, const QString &tone)
{
    watchReport(cookie, m_timed.sounds(cookie, tone), "sounds");
}

void TimedDaemon::impaired(quint32 cookie, const QString &trouble)
{
    watchReport(cookie, m_timed.impaired(cookie, trouble), "impaired");
}

void TimedDaemon::snooze(quint32 cookie, quint32 seconds, const QString &by)
{
    whenFinished(m_timed.snooze(cookie, seconds, by), [this, cookie](const QDBusError &error) {
        // Unknown: it rings no more, so there is nothing left to snooze.
        if (error.isValid() && error.name() != QLatin1String(Astel::Timed::Wire::UnknownError))
            Q_EMIT snoozeFailed(cookie, error.message());
        else
            Q_EMIT answered(cookie);
    });
}

// Stop is stop for the user; a daemon that did not take it asks to ring again by itself.
void TimedDaemon::dismiss(quint32 cookie, const QString &by)
{
    const auto call = m_timed.dismiss(cookie, by);
    watchReport(cookie, call, "dismiss");
    whenFinished(call, [this, cookie](const QDBusError &) { Q_EMIT answered(cookie); });
}

template <typename Function>
void TimedDaemon::whenFinished(const QDBusPendingCall &call, Function function)
{
    auto *watcher = new QDBusPendingCallWatcher(call, this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [function](QDBusPendingCallWatcher *finished) {
        finished->deleteLater();
        function(finished->error());
    });
}

void TimedDaemon::watchReport(quint32 cookie, const QDBusPendingCall &call, const char *what)
{
    whenFinished(call, [cookie, what](const QDBusError &error) {
        if (error.isValid())
            qCWarning(lcRinger, "Alarm %u: \"%s\" was refused, ignoring: %s", cookie, what,
                      qPrintable(error.message()));
    });
}

} // namespace Ringer
