// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "alarms/qmalarm.h"

#include "alarms/alarmproperties.h"

#include <QDebug>

#include <algorithm>

namespace Clock {

namespace {

AlarmProperties propertiesOf(const QmAlarmEvent &record)
{
    return {record.cookie(), record.nextTrigger(), record.isEnabled(), record, record.alarmTime()};
}

} // namespace

quint32 QmAlarm::add(QmAlarmEvent &record)
{
    qDebug() << "QmAlarm::add entered";
    quint32 cookie = QmAlarmEvent::NotStored;
    record.toAstelTimedEvent(m_event);
    QDBusPendingReply<uint> reply = m_interface.add_event(m_event);
    reply.waitForFinished();
    if (reply.isError())
        qDebug() << "Failed to add event. Reason :" << reply.error().message();
    else
        cookie = reply.value();
    qDebug() << "QmAlarm::add exited";
    return cookie;
}

quint32 QmAlarm::replace(QmAlarmEvent &record, const quint32 &cookie)
{
    record.toAstelTimedEvent(m_event);
    QDBusPendingReply<uint> reply = m_interface.replace_event(m_event, cookie);
    reply.waitForFinished();
    if (reply.isError()) {
        qDebug() << "Failed to replace event. Reason :" << reply.error().message();
        return QmAlarmEvent::NotStored;
    }
    return reply.value();
}

bool QmAlarm::deleteEvent(const quint32 &cookie)
{
    QDBusPendingReply<bool> reply = m_interface.cancel(cookie);
    reply.waitForFinished();
    if (reply.isError()) {
        qDebug() << "Failed to delete event. Reason :" << reply.error().message();
        return false;
    }
    qDebug() << "Delete cookie" << cookie << "successfully";
    return true;
}

QList<quint32> QmAlarm::query(bool &failed)
{
    qDebug() << "QmAlarm::query entered";
    QList<quint32> cookies;
    QDBusPendingReply<QVariantList> reply = m_interface.query({{"APPLICATION", "clock"}});
    reply.waitForFinished();
    failed = reply.isError();
    if (failed) {
        qDebug() << "Failed to query. Reason :" << reply.error().message();
    } else {
        const QVariantList values = reply.value();
        for (const QVariant &value : values)
            cookies.append(value.toUInt());
    }
    qDebug() << "QmAlarm::query exited";
    return cookies;
}

bool QmAlarm::queryAndSortAlarmCookies(QList<QmAlarmEvent> &alarms)
{
    const char signature[] = "bool Clock::QmAlarm::queryAndSortAlarmCookies(QList<Clock::QmAlarmEvent>&)";
    qDebug() << signature << "entered";
    bool failed = false;
    const QList<quint32> cookies = query(failed);
    if (failed)
        return true;
    QList<AlarmProperties> entries;
    for (const quint32 cookie : cookies) {
        entries.append(propertiesOf(QmAlarmEvent(cookie)));
        qDebug() << "trigger time is :" << entries.last().nextTrigger;
    }
    std::sort(entries.begin(), entries.end(), SortTrigger());
    alarms.clear();
    for (const AlarmProperties &entry : std::as_const(entries))
        alarms.append(entry.event);
    qDebug() << signature << "exited";
    return false;
}

} // namespace Clock
