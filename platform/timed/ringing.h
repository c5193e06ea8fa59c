// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <map>
#include <QObject>
#include <QStringList>

namespace Astel::Timed {

class AlarmEvent;
class Clock;
class EventBook;
class Ringer;
class Schedule;

/**
 * Sees to it that what is to ring does ring: calls the ringer, and calls it again when it does not say within five
 * seconds that it rings, goes away, or cannot be called at all. When several calls were in vain, or one that rang gives
 * no sign of life any more, the fallback rings until the ringer does.
 */
class Ringing : public QObject
{
    Q_OBJECT

public:
    Ringing(const EventBook &book, Schedule &schedule, const Clock &clock, Ringer &ringer, Ringer &fallback);

    /** Starts or ends the ringing of an event according to its state. */
    void follow(const AlarmEvent &event);
    void end(quint32 cookie);
    /** The ringer says that it rings; true for the first time since it was called. */
    bool acknowledge(quint32 cookie);
    /** The ringer says that it is heard; true for the first time since it was called. */
    bool acknowledgeSound(quint32 cookie);
    /** Something is not as it should be; true for what is new, of which there are some for each ringing. */
    bool keepTrouble(quint32 cookie, const QString &trouble);
    /** The time for acknowledging is over, or it is time to look after the ringer. */
    void retry(quint32 cookie);
    /** Moments from before do not count any more. */
    void clockSet();

signals:
    /** Something rings, and before nothing did. */
    void begun();
    /** Nothing rings any more. */
    void ended();
    /** The ringer was called several times, or pinged, and is silent; it is called on at longer intervals, the fallback
     * rings. */
    void ringerSilent(quint32 cookie, int calls);
    /** The ringer went away while this alarm rings. */
    void ringerGone(quint32 cookie);

private:
    struct Ring
    {
        bool acknowledged = false;
        bool pinged = false; ///< no sign of life came since
        bool heard = false;
        int calls = 0;
        QStringList troubles;
    };

    void begin(quint32 cookie, Ring &ring);
    void call(quint32 cookie, Ring &ring);
    void lookAfter(quint32 cookie, Ring &ring);
    void ringerAlive();
    void ringerVanished();
    void ringerRefused(quint32 cookie);

    const EventBook &m_book;
    Schedule &m_schedule;
    const Clock &m_clock;
    Ringer &m_ringer;
    Ringer &m_fallback;
    std::map<quint32, Ring> m_rings;
};

} // namespace Astel::Timed
