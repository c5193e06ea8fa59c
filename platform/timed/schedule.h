// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <map>
#include <optional>
#include <QObject>
#include <set>

namespace Astel::Timed {

class Clock;
class WakeTimer;

/** What the daemon waits for on behalf of an event. */
enum class Purpose {
    Due,     ///< it rings
    RingEnd, ///< nobody answered
    Retry,   ///< the ringer has not said that it rings, or is to be looked after
};

/**
 * Everything the daemon waits for, ordered by moment (milliseconds since the epoch); the one timer is armed for the
 * first, before a change returns.
 */
class Schedule : public QObject
{
    Q_OBJECT

public:
    Schedule(const Clock &clock, WakeTimer &timer);

    void set(quint32 cookie, Purpose purpose, qint64 moment);
    void clear(quint32 cookie, Purpose purpose);
    /** Forgets everything about an event. */
    void clear(quint32 cookie);
    std::optional<qint64> first() const;
    /** Arms the timer again, after the clock was set. */
    void rearm();

signals:
    /** The timer is about to be set to another moment. */
    void arming();
    void armed();
    /** Something is waited for at another moment, or not any more. */
    void changed();
    /** A moment has come; it is no longer in the schedule. */
    void reached(quint32 cookie, Astel::Timed::Purpose purpose);

private:
    using Key = std::pair<quint32, Purpose>;

    void remove(const Key &key);
    void armIfNeeded();
    void deliver();

    const Clock &m_clock;
    WakeTimer &m_timer;
    std::set<std::pair<qint64, Key>> m_order;
    std::map<Key, qint64> m_moments;
    std::optional<qint64> m_armed;
};

} // namespace Astel::Timed
