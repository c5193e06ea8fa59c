// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "alarms/qmalarm.h"

#include "alarms/alarmproperties.h"

#include <QDebug>
#include <QQueue>

#include <algorithm>

namespace Clock {

namespace {

AlarmProperties propertiesOf(const QmAlarmEvent &record)
{
    return {record.cookie(), record.nextTrigger(), record.isEnabled(), record, record.alarmTime()};
}

/**
 * Asks the daemon for one alarm after the other, some of them ahead of the one that is read: where every question
 * waited for the answer before, each would wake the bus, the daemon and this process anew.
 */
class Questions
{
public:
    Questions(Astel::Timed::Interface &timed, const QList<quint32> &cookies)
        : m_timed(timed)
        , m_unasked(cookies)
    { }

    /** The daemon's answer for the next cookie, on its way. */
    QDBusPendingCall next()
    {
        while (!m_unasked.isEmpty() && m_asked.size() < AskedAhead)
            m_asked.enqueue(m_timed.query_attributes(m_unasked.takeFirst()));
        return m_asked.dequeue();
    }

private:
    // A bus may let a program wait for no more than 128 answers, and refuse the questions beyond.
    static constexpr qsizetype AskedAhead = 32;

    Astel::Timed::Interface &m_timed;
    QList<quint32> m_unasked;
    QQueue<QDBusPendingCall> m_asked;
};

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
    Questions questions(m_interface, cookies);
    QList<AlarmProperties> entries;
    for (const quint32 cookie : cookies) {
        QmAlarmEvent record;
        record.fromAstelTimedEvent(cookie, questions.next());
        entries.append(propertiesOf(record));
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
