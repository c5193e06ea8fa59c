// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/timed/clockdoubt.h"
#include "platform/timed/transitions.h"

#include <QObject>

namespace Astel::Timed {

class Clock;
class Ringing;
class Schedule;
class ZoneSource;
enum class Purpose;

/**
 * Takes events through their states as time passes and people answer. Every transition is stored before it is acted
 * on. Once start() has been called, the schedule and the ringing follow the book.
 */
class LifeCycle : public QObject
{
    Q_OBJECT

public:
    /** "ringTime" in milliseconds: how long unanswered ringing lasts. */
    LifeCycle(EventBook &book, Schedule &schedule, Ringing &ringing, const Clock &clock, const ZoneSource &zone,
              qint64 ringTime);

    /** Goes on where the last daemon stopped. */
    void start();

    /** A new event with its first moment, not stored yet. */
    AlarmEvent fresh(quint32 cookie, const Wire::Event &wire) const;
    /** An event out of a backup with its first moment, not stored yet; finished where that came before. */
    AlarmEvent restored(quint32 cookie, const Wire::Record &record) const;
    /** Commits a change that a client asked for; schedules and rings accordingly. */
    Result<> commit(const Change &change);

    /** The ringer's reports and the user's answers; they fail for an event that does not ring. */
    Result<> rings(quint32 cookie);
    Result<> sounds(quint32 cookie, const QString &tone);
    Result<> impaired(quint32 cookie, const QString &trouble);
    /** Answers the end of the snooze in milliseconds; 0 seconds: those of the first button that snoozes. */
    Result<qint64> snooze(quint32 cookie, quint32 seconds, const QString &by);
    /** A button of the event, counted from 1; answers the end of its snooze, or nothing where it stops the alarm. */
    Result<std::optional<qint64>> press(quint32 cookie, quint32 button, const QString &by);
    Result<> dismiss(quint32 cookie, const QString &by);
    /** Rings an event that was missed, also one that is not stored any more; fails where it rings already. */
    Result<> ringNow(quint32 cookie);
    /**
     * Snoozes an event that was stopped for so many seconds, as it stood then, also one that is not stored any more;
     * fails where it rings or snoozes.
     */
    Result<> ringLater(const AlarmEvent &stopped, qint64 seconds, const QString &by);
    /** The user has been told of these. */
    void tell(const QList<Miss> &misses);

    /** The wall clock jumped. */
    void clockSet();
    /** The user's time zone is another one. */
    void zoneChanged();
    /** The device is about to sleep. */
    void goesToSleep();
    /** The device slept, or could not. */
    void resumed();

signals:
    /** Events changed on their own: time passed, or the clock or zone is another. */
    void changed();
    /** All is recomputed after the clock was set (timeChanged), the zone changed or the device slept. */
    void settingsChanged(bool timeChanged);
    /** The book has misses that nobody was told of. */
    void missed();
    /** An event stands so now; also where nothing changed. */
    void followed(const AlarmEvent &event);
    /** An event is stored no more. */
    void left(quint32 cookie);
    /** An event was stopped for good; as it stood before. */
    void stopped(const AlarmEvent &event);

private:
    void reached(quint32 cookie, Purpose purpose);
    void apply(const Change &change);
    void follow(const Change &change);
    void follow(const AlarmEvent &event);
    void followAll();

    void restartRingTimes();
    void recomputeAll(Cause cause);
    void reconcileAll(Cause cause);
    qint64 snoozeFor(const AlarmEvent &event, qint64 seconds, const QString &by);
    void stop(const AlarmEvent &event, const QString &by);
    void note(quint32 cookie, const QString &what, const QString &detail = QLatin1String(""));

    Result<const AlarmEvent *> ringingEvent(quint32 cookie) const;

    EventBook &m_book;
    Schedule &m_schedule;
    Ringing &m_ringing;
    const Clock &m_clock;
    const ZoneSource &m_zone;
    const Transitions m_transitions;
    ClockDoubt m_doubt;
    bool m_asleep = false;
};

} // namespace Astel::Timed
