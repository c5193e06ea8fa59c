// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/timedclient/wire.h"

#include <optional>

namespace Astel::Timed {

enum class State {
    Inactive,  ///< nothing ahead
    Waiting,   ///< a moment ahead
    Triggered, ///< ringing now
    Snoozed,   ///< rings again at a stored moment
    Finished,  ///< single shot, and served
};

QString stateName(State state);
std::optional<State> stateFromName(const QString &name);

/** Rings again; moments are milliseconds since the epoch. */
struct Snooze
{
    qint64 since = 0;
    qint64 until = 0;

    bool operator==(const Snooze &) const = default;
};

/** Where an event stands, as it is stored; moments are milliseconds since the epoch. */
struct Standing
{
    State state = State::Inactive;
    std::optional<qint64> moment;  ///< when it rings next, or was due if it rings
    qint64 since = 0;              ///< when it came into the state
    std::optional<qint64> lastDue; ///< the last moment of its rules at which it rang
    quint32 timeoutSnoozes = 0;    ///< used up since it was due
    /** Of an event that waits or is inactive because the clock jumped over its snooze by years. */
    std::optional<Snooze> passedOver = {};

    bool operator==(const Standing &) const = default;
};

/**
 * A stored event: what the client gave, and where it stands in its life. A value; the book of events owns the valid
 * one.
 */
class AlarmEvent
{
public:
    AlarmEvent() = default;
    AlarmEvent(quint32 cookie, const Wire::Event &wire, const Standing &standing = {});

    quint32 cookie() const { return m_cookie; }
    const Wire::Event &wire() const { return m_wire; }
    const Standing &standing() const { return m_standing; }
    State state() const { return m_standing.state; }
    std::optional<qint64> moment() const { return m_standing.moment; }
    bool has(Wire::Flag flag) const { return m_wire.flags & flag; }

    /** Waits for a moment of its rules, or is inactive without one. */
    void wait(std::optional<qint64> moment, qint64 now);
    void trigger(qint64 now);
    /** As trigger(), but at a moment that is not one of its rules. */
    void ringNow(qint64 now);
    void snooze(qint64 until, qint64 now);
    /** As snooze(), but because nobody answered. */
    void snoozeUnanswered(qint64 until, qint64 now);
    /** The snooze that goes on ends at another moment. */
    void moveSnooze(qint64 until, qint64 now);
    /** As wait(), but remembers the snooze over which the clock jumped. */
    void waitOverSnooze(std::optional<qint64> moment, qint64 now);
    /** Goes on with the snooze that was remembered. */
    void resumeSnooze();
    void finish(qint64 now);

private:
    void setState(State state, std::optional<qint64> moment, qint64 now);

    quint32 m_cookie = 0;
    Wire::Event m_wire;
    Standing m_standing;
};

} // namespace Astel::Timed
