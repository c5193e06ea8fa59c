// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/timed/eventbook.h"

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
    /** Commits a change that a client asked for; schedules and rings accordingly. */
    Result<> commit(const Change &change);

    /** The ringer's reports and the user's answers; they fail for an event that does not ring. */
    Result<> rings(quint32 cookie);
    Result<> sounds(quint32 cookie, const QString &tone);
    /** Answers the end of the snooze in milliseconds; 0 seconds: those of the first button that snoozes. */
    Result<qint64> snooze(quint32 cookie, quint32 seconds, const QString &by);
    Result<> dismiss(quint32 cookie, const QString &by);

    /** The wall clock jumped. */
    void clockSet();
    /** The user's time zone is another one. */
    void zoneChanged();

signals:
    /** Events changed on their own: time passed, or the clock or zone is another. */
    void changed();
    /** All is recomputed after the clock was set (timeChanged) or the zone changed. */
    void settingsChanged(bool timeChanged);

private:
    void reached(quint32 cookie, Purpose purpose);
    void apply(const Change &change);
    void follow(const Change &change);

    void restartRingTimes();
    void recomputeAll(bool timeChanged);
    void reconcileAll();
    void reconcile(AlarmEvent event, Change &change);
    void reconcileRinging(AlarmEvent event, Change &change);
    void reconcileSnooze(AlarmEvent event, Change &change);
    void refresh(AlarmEvent event, Change &change);
    void come(AlarmEvent event, Change &change);
    void endUnanswered(AlarmEvent event, qint64 end, Change &change);
    void miss(const AlarmEvent &event, const QString &why, Change &change);
    void serve(AlarmEvent event, Change &change);

    std::optional<qint64> nextMoment(const AlarmEvent &event) const;
    Result<const AlarmEvent *> ringingEvent(quint32 cookie) const;
    Wire::JournalEntry entry(const AlarmEvent &event, const QString &what, const QString &detail) const;

    EventBook &m_book;
    Schedule &m_schedule;
    Ringing &m_ringing;
    const Clock &m_clock;
    const ZoneSource &m_zone;
    const qint64 m_ringTime;
};

} // namespace Astel::Timed
