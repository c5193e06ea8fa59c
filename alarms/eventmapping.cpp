// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "alarms/currenttime_p.h"
#include "alarms/qmalarmevent.h"
#include "alarms/utility.h"
#include "platform/timedclient/event.h"
#include "platform/timedclient/exception.h"
#include "platform/timedclient/interface.h"

#include <QDebug>
#include <QLoggingCategory>

#include <algorithm>

namespace Clock {

namespace {

constexpr int DaysOfWeek = 7;
constexpr int SecondsOfMinute = 60;
constexpr int UnansweredSnoozes = 3;

/** How many days ahead each repeat day is, soonest first; today's weekday counts as a week ahead. */
QList<int> offsetsFromToday(const QList<int> &repeatDays, int today)
{
    QList<int> offsets;
    for (const int day : repeatDays) {
        const int offset = day - today;
        offsets.append(offset <= 0 ? offset + DaysOfWeek : offset);
    }
    std::sort(offsets.begin(), offsets.end());
    return offsets;
}

QString digits(const QList<int> &repeatDays)
{
    QString result;
    for (const int day : repeatDays)
        result += QString::number(day);
    return result;
}

QList<int> daysOfDigits(const QString &digits)
{
    QList<int> days;
    for (const QChar digit : digits)
        days.append(digit.digitValue());
    return days;
}

} // namespace

void QmAlarmEvent::toAstelTimedEvent(Astel::Timed::Event &event)
{
    qDebug() << "QmAlarmEvent::toAstelTimedEvent entered";
    try {
        fillEvent(event);
    } catch (const Astel::Timed::Exception &exception) {
        qDebug() << exception.message();
        return;
    }
    qDebug() << "QmAlarmEvent::toAstelTimedEvent exited";
}

void QmAlarmEvent::fillEvent(Astel::Timed::Event &event)
{
    event.setAttribute("APPLICATION", m_application);
    event.setAttribute("TITLE", m_title);
    event.setAttribute("enabled", QString::number(int(m_enabled)));
    event.setAttribute("sound", m_tone);
    event.setAttribute("snooze", QString::number(m_snooze));
    if (isRecurring())
        moveTriggerToNextRepeatDay();
    else if (m_enabled)
        addSingleRecurrence(event);
    if (!m_enabled)
        event.setTicker(0);
    event.setAttribute("alarmtime", m_alarmTime.toString("hh:mm"));
    event.setAttribute("trigger", QString::number(quint32(m_triggerTime.toSecsSinceEpoch())));
    if (isRecurring()) {
        if (m_enabled)
            addWeeklyRecurrence(event);
        event.setAttribute("recurrence", digits(m_repeatDays));
    }
    addFixedProperties(event);
}

void QmAlarmEvent::addSingleRecurrence(Astel::Timed::Event &event) const
{
    Astel::Timed::Event::Recurrence &recurrence = event.addRecurrence();
    recurrence.addHour(m_triggerTime.time().hour());
    recurrence.addMinute(m_triggerTime.time().minute());
    recurrence.everyDayOfWeek();
    recurrence.everyDayOfMonth();
    recurrence.everyMonth();
    recurrence.setFillingGapsFlag();
    event.setSingleShotFlag();
}

void QmAlarmEvent::addWeeklyRecurrence(Astel::Timed::Event &event) const
{
    Astel::Timed::Event::Recurrence &recurrence = event.addRecurrence();
    recurrence.addHour(m_triggerTime.time().hour());
    recurrence.addMinute(m_triggerTime.time().minute());
    recurrence.everyDayOfMonth();
    recurrence.everyMonth();
    recurrence.setFillingGapsFlag();
    qDebug() << "Recurrence list :" << m_repeatDays;
    for (const int day : m_repeatDays)
        recurrence.addDayOfWeek(day);
}

void QmAlarmEvent::addFixedProperties(Astel::Timed::Event &event) const
{
    event.setKeepAliveFlag();
    event.setBootFlag();
    event.setAlarmFlag();
    event.setBackupFlag();
    event.addButton().setSnooze(m_snooze * SecondsOfMinute);
    event.setAlignedSnoozeFlag();
    event.hideSnoozeButton1();
    event.setReminderFlag();
    event.setTimeoutSnooze(m_snooze * SecondsOfMinute);
    event.setMaximalTimeoutSnoozeCounter(UnansweredSnoozes);
    event.setAttribute("PLUGIN", "libclockalarm");
}

void QmAlarmEvent::moveTriggerToNextRepeatDay()
{
    const QDateTime now = currentTime();
    const QList<int> offsets = offsetsFromToday(m_repeatDays, now.date().dayOfWeek() % DaysOfWeek);
    if (offsets.contains(DaysOfWeek) && now.time() <= m_triggerTime.time()) {
        qDebug() << "Will trigger today..Don't touch it..";
        return;
    }
    QDateTime base = now;
    base.setTime(m_triggerTime.time());
    m_triggerTime = base.addDays(offsets.first());
}

void QmAlarmEvent::fromAstelTimedEvent(const quint32 &cookie)
{
    Astel::Timed::Interface timed;
    fromAstelTimedEvent(cookie, timed.query_attributes(cookie));
}

void QmAlarmEvent::fromAstelTimedEvent(const quint32 &cookie, const QDBusPendingCall &asked)
{
    qDebug() << "QmAlarmEvent::fromAstelTimedEvent entered";
    m_cookie = cookie;
    QDBusPendingReply<QVariantMap> reply = asked;
    reply.waitForFinished();
    if (reply.isError())
        qDebug() << "Failed in getting attributes for cookie :" << m_cookie;
    else
        readAttributes(reply.value());
    qDebug() << "QmAlarmEvent::fromAstelTimedEvent exited";
}

void QmAlarmEvent::readAttributes(const QVariantMap &attributes)
{
    // To put all of it into words takes longer than to read it.
    if (QLoggingCategory::defaultCategory()->isDebugEnabled())
        qDebug() << "Attributes :" << attributes;
    m_application = attributes.value("APPLICATION").toString();
    m_title = attributes.value("TITLE").toString();
    readState(attributes);
    m_tone = attributes.value("sound").toString();
    m_alarmTime = QTime::fromString(attributes.value("alarmtime").toString(), "hh:mm");
    m_triggerTime = QDateTime::fromSecsSinceEpoch(attributes.value("trigger").toUInt());
    m_snooze = quint8(attributes.value("snooze").toUInt());
    if (attributes.contains("recurrence"))
        m_repeatDays = daysOfDigits(attributes.value("recurrence").toString());
}

void QmAlarmEvent::readState(const QVariantMap &attributes)
{
    m_enabled = Utility::instance()->triggerFromContext(m_cookie, m_nextTrigger);
    if (!m_enabled)
        m_nextTrigger = attributes.value("trigger").toULongLong();
    // The snapshot may be older than the answer of the daemon, whose word on a scheduled event counts.
    if (attributes.contains("enabled") && attributes.value("STATE").toString() == "WAITING")
        m_enabled = attributes.value("enabled").toString() == "1";
}

} // namespace Clock
