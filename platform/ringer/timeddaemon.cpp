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

void TimedDaemon::snooze(quint32 cookie, quint32 seconds, const QString &by)
{
    watchAnswer(cookie, m_timed.snooze(cookie, seconds, by));
}

void TimedDaemon::dismiss(quint32 cookie, const QString &by)
{
    watchAnswer(cookie, m_timed.dismiss(cookie, by));
}

void TimedDaemon::watchReport(quint32 cookie, const QDBusPendingCall &call, const char *what)
{
    auto *watcher = new QDBusPendingCallWatcher(call, this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [cookie, what](QDBusPendingCallWatcher *reply) {
        reply->deleteLater();
        if (reply->isError())
            qCWarning(lcRinger, "Alarm %u: report \"%s\" was refused, ignoring: %s", cookie, what,
                      qPrintable(reply->error().message()));
    });
}

void TimedDaemon::watchAnswer(quint32 cookie, const QDBusPendingCall &call)
{
    auto *watcher = new QDBusPendingCallWatcher(call, this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, cookie](QDBusPendingCallWatcher *reply) {
        reply->deleteLater();
        // Unknown: it rings no more, so there is nothing left to answer.
        if (reply->isError() && reply->error().name() != QLatin1String(Astel::Timed::Wire::UnknownError))
            Q_EMIT answerFailed(cookie, reply->error().message());
        else
            Q_EMIT answered(cookie);
    });
}

} // namespace Ringer
