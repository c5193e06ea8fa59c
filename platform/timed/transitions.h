// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/timed/store.h"

#include <optional>

namespace Astel::Timed {

class Clock;
class ZoneSource;

/** Why the standing of an event is looked at. */
enum class Cause {
    Time,  ///< its moment has come
    Wake,  ///< the device woke from sleep, perhaps for this
    Start, ///< the daemon starts
    Clock, ///< the wall clock was set
    Zone,  ///< the time zone is another
};

/**
 * What becomes of an event as time passes and people answer. It is added to a change, journal and misses with it, and
 * nothing is done yet: the life cycle stores the change and acts on it.
 */
class Transitions
{
public:
    /** "ringTime" in milliseconds: how long unanswered ringing lasts. */
    Transitions(const Clock &clock, const ZoneSource &zone, qint64 ringTime);

    /** Puts an event where it belongs now, whatever happened to time. */
    void reconcile(AlarmEvent event, Cause cause, Change &change) const;
    /** Its moment has come: it rings, or was missed. */
    void come(AlarmEvent event, Cause cause, Change &change) const;
    /** The ringing that began for it was over at "end", in milliseconds. */
    void endUnanswered(AlarmEvent event, qint64 end, Cause cause, Change &change) const;
    /** It was answered, or missed: it goes on as its flags say. */
    void serve(AlarmEvent event, Change &change) const;
    /** Answers the end of the snooze in milliseconds; "length" in seconds. */
    qint64 snooze(AlarmEvent event, qint64 length, const QString &by, Change &change) const;

    /** Nobody answered anew: the snooze that goes on keeps its length from now on. */
    void restartSnooze(AlarmEvent event, Change &change) const;

    /** The next moment of the rules of an event, strictly later than now. */
    std::optional<qint64> nextMoment(const AlarmEvent &event) const;
    qint64 ringEnd(const AlarmEvent &event) const { return event.standing().since + m_ringTime; }
    Wire::JournalEntry entry(quint32 cookie, const QString &what, const QString &detail = QLatin1String("")) const;

private:
    void reconcileRinging(AlarmEvent event, Cause cause, Change &change) const;
    void reconcileSnooze(const AlarmEvent &event, Cause cause, Change &change) const;
    /** Whether the clock came back to a snooze that it had jumped over. */
    bool resumesSnooze(const AlarmEvent &event) const;
    void resumeSnooze(AlarmEvent event, Cause cause, Change &change) const;
    void refresh(AlarmEvent event, Change &change) const;
    void waitOn(AlarmEvent event, Change &change) const;
    void passBy(const AlarmEvent &event, Cause cause, Change &change) const;
    void miss(const AlarmEvent &event, MissReason reason, const QString &why, Change &change) const;

    const Clock &m_clock;
    const ZoneSource &m_zone;
    const qint64 m_ringTime;
};

} // namespace Astel::Timed
