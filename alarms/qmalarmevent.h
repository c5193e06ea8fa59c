// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "app/settings.h"

#include <QDateTime>
#include <QList>
#include <QString>

class QDBusPendingCall;

namespace Astel::Timed {
class Event;
}

namespace Clock {

/**
 * One alarm as the application sees it: a plain value, known to the daemon by its cookie. The record checks nothing;
 * every setter stores what it is given and returns true.
 */
class QmAlarmEvent
{
public:
    /** The cookie of an alarm that the daemon does not store. */
    static constexpr quint32 NotStored = 0xffffffffu;

    QmAlarmEvent() = default;
    /** Reads the alarm from the daemon; where that fails, everything but the cookie keeps its default. */
    explicit QmAlarmEvent(quint32 cookie);

    quint32 cookie() const { return m_cookie; }
    bool setCookie(quint32 cookie);

    QTime alarmTime() const { return m_alarmTime; }
    /** Sets the trigger time as well: to today at this time, whether that has passed or not. */
    bool setAlarmTime(const QTime &time);

    QDateTime triggerTime() const { return m_triggerTime; }
    bool setTriggerTime(const QDateTime &time);

    QString title() const { return m_title; }
    bool setTitle(const QString &title);

    /** The absolute path of the alert tone. */
    QString tone() const { return m_tone; }
    bool setTone(const QString &tone);

    /** Who owns the event, "clock" for the alarms of this application. */
    QString application() const { return m_application; }
    bool setApplication(const QString &application);

    bool isEnabled() const { return m_enabled; }
    bool setEnabled(bool enabled);

    bool isRecurring() const { return !m_repeatDays.isEmpty(); }
    /** Weekdays, 0 for Sunday to 6 for Saturday, in the order they were given; none for a one-time alarm. */
    QList<int> repeatDays() const { return m_repeatDays; }
    bool setRepeatDays(const QList<int> &days);

    /** Minutes, of which only the low 8 bits are kept. */
    quint8 snooze() const { return m_snooze; }
    bool setSnooze(int minutes);

    /**
     * As it was last read back: nanoseconds since the epoch where the snapshot of the triggers holds the alarm,
     * seconds since the epoch otherwise.
     */
    quint64 nextTrigger() const { return m_nextTrigger; }
    bool setNextTrigger(quint64 nextTrigger);

    /** Moves the trigger time of a switched-off one-time alarm on by one day, if that moment has come. */
    void rollOverIfPassed();

    /**
     * Fills an empty event for the daemon, and sets the trigger time of a repeating alarm to the next day on which it
     * rings. An exception of the client library is logged and leaves the event as far as it got.
     */
    void toAstelTimedEvent(Astel::Timed::Event &event);
    /** Fills the record from the daemon and waits for it; a failure is logged and leaves all but the cookie. */
    void fromAstelTimedEvent(const quint32 &cookie);
    /** The same where the daemon has been asked for the attributes of the cookie already. */
    void fromAstelTimedEvent(const quint32 &cookie, const QDBusPendingCall &asked);

private:
    void fillEvent(Astel::Timed::Event &event);
    void addSingleRecurrence(Astel::Timed::Event &event) const;
    void addWeeklyRecurrence(Astel::Timed::Event &event) const;
    void addFixedProperties(Astel::Timed::Event &event) const;
    void moveTriggerToNextRepeatDay();
    void readAttributes(const QVariantMap &attributes);
    void readState(const QVariantMap &attributes);

    quint32 m_cookie = NotStored;
    QTime m_alarmTime;
    QDateTime m_triggerTime;
    QString m_title;
    QString m_tone;
    QString m_application;
    bool m_enabled = true;
    QList<int> m_repeatDays;
    quint8 m_snooze = Settings::DefaultSnooze;
    quint64 m_nextTrigger = 0;
};

} // namespace Clock
