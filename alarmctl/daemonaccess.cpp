// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "alarmctl/daemonaccess.h"

#include "alarmctl/trace.h"
#include "alarms/qmalarm.h"
#include "alarms/utility.h"
#include "platform/timedclient/interface.h"

#include <QDBusConnection>
#include <QEventLoop>
#include <QTimer>

namespace {

constexpr int TriggersTimeout = 10000; // milliseconds

Problem because(const QString &what)
{
    const QString reason = Trace::lastReason();
    return failure(reason.isEmpty() ? what : what + ": " + reason);
}

Result<QList<quint32>> queryCookies()
{
    bool failed = false;
    const QList<quint32> cookies = Clock::QmAlarm().query(failed);
    if (failed)
        return because("the alarm daemon cannot be reached");
    return cookies;
}

bool receiveTriggers()
{
    Clock::Utility *const utility = Clock::Utility::instance();
    QEventLoop loop;
    QObject::connect(utility, &Clock::Utility::valueChanged, &loop, &QEventLoop::quit);
    QTimer::singleShot(TriggersTimeout, &loop, &QEventLoop::quit);
    utility->subscribeToContextFramework();
    loop.exec();
    return utility->isTriggerMapReceived();
}

} // namespace

Result<> reachDaemon()
{
    if (!QDBusConnection::sessionBus().isConnected())
        return failure("there is no session bus");
    // Refused at once where there is no daemon; waiting for its triggers would take longer to tell.
    if (const Result<QList<quint32>> cookies = queryCookies(); !cookies)
        return cookies.error();
    if (!receiveTriggers())
        return failure("the alarm daemon does not publish its triggers");
    return Done();
}

Result<QList<Clock::QmAlarmEvent>> loadAlarms()
{
    if (const Result<> reached = reachDaemon(); !reached)
        return reached.error();
    QList<Clock::QmAlarmEvent> alarms;
    if (Clock::QmAlarm().queryAndSortAlarmCookies(alarms))
        return because("the alarms cannot be read");
    return alarms;
}

Result<QList<Clock::QmAlarmEvent>> loadAlarms(const QList<quint32> &cookies)
{
    if (const Result<> reached = reachDaemon(); !reached)
        return reached.error();
    const Result<QList<quint32>> known = queryCookies();
    if (!known)
        return known.error();
    QList<Clock::QmAlarmEvent> alarms;
    for (const quint32 cookie : cookies) {
        if (!known->contains(cookie))
            return failure(QStringLiteral("there is no alarm %1").arg(cookie));
        alarms.append(Clock::QmAlarmEvent(cookie));
    }
    return alarms;
}

Result<quint32> addAlarm(Clock::QmAlarmEvent &alarm)
{
    const quint32 cookie = Clock::QmAlarm().add(alarm);
    if (cookie == Clock::QmAlarmEvent::NotStored)
        return because("the alarm was not stored");
    return cookie;
}

Result<quint32> replaceAlarm(Clock::QmAlarmEvent &alarm)
{
    const quint32 cookie = Clock::QmAlarm().replace(alarm, alarm.cookie());
    if (cookie == Clock::QmAlarmEvent::NotStored)
        return because(QStringLiteral("alarm %1 was not changed").arg(alarm.cookie()));
    return cookie;
}

Result<> removeAlarm(quint32 cookie)
{
    if (!Clock::QmAlarm().deleteEvent(cookie))
        return because(QStringLiteral("alarm %1 was not removed").arg(cookie));
    return Done();
}

QMap<quint32, QString> titlesOf(const QList<RingRecord> &records)
{
    QMap<quint32, QDBusPendingReply<QVariantMap>> replies;
    Astel::Timed::Interface timed;
    for (const RingRecord &record : records) {
        if (!replies.contains(record.cookie))
            replies.insert(record.cookie, timed.query_attributes(record.cookie));
    }
    QMap<quint32, QString> titles;
    for (auto reply = replies.cbegin(); reply != replies.cend(); ++reply) {
        if (const auto attributes = answerOf(*reply); attributes && attributes->contains("TITLE"))
            titles.insert(reply.key(), attributes->value("TITLE").toString());
    }
    return titles;
}
