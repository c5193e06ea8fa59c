// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/timed/backupservice.h"
#include "platform/timed/eventbook.h"
#include "platform/timed/eventservice.h"
#include "platform/timed/lifecycle.h"
#include "platform/timed/ringing.h"
#include "platform/timed/schedule.h"
#include "tests/timed/fakes.h"

#include <memory>
#include <QDateTime>

inline constexpr qint64 Second = 1000;
inline constexpr qint64 Minute = 60 * Second;
inline constexpr qint64 Hour = 60 * Minute;
inline constexpr qint64 Day = 24 * Hour;

/** Milliseconds since the epoch of a UTC time, "2026-11-20T06:00:00". */
inline qint64 utc(const char *text)
{
    QDateTime moment = QDateTime::fromString(QString::fromLatin1(text), Qt::ISODateWithMs);
    moment.setTimeSpec(Qt::UTC);
    return moment.toMSecsSinceEpoch();
}

/** Six and seven o'clock in Berlin, on the day of most tests. */
inline const qint64 Start = utc("2026-11-20T05:00:00");
inline const qint64 Seven = utc("2026-11-20T06:00:00");

/** An event that rings every day at a wall-clock time, kept after it was served. */
inline Astel::Timed::Wire::Event daily(int hour, int minute, quint32 flags = Astel::Timed::Wire::KeepAlive)
{
    using namespace Astel::Timed::Wire;
    Event event;
    event.flags = flags;
    event.recurrences = {{1u << hour, Q_UINT64_C(1) << minute, AllDaysOfWeek, AllDaysOfMonth, AllMonths, true}};
    event.buttons = {{0, {}}, {600, {}}};
    return event;
}

inline Astel::Timed::Wire::Event daily7(quint32 flags = Astel::Timed::Wire::KeepAlive)
{
    return daily(7, 0, flags);
}

/** The daemon's own parts among fakes: time passes as the test says, the store survives restart(). */
class World
{
public:
    explicit World(qint64 now);

    /** Stops the daemon where it stands, and starts one at another time. */
    void restart(qint64 now);
    /** Time passes; the timer expires at its moments on the way. */
    void passTo(qint64 moment);
    void pass(qint64 milliseconds) { passTo(clock.time + milliseconds); }
    /** The clock jumps. */
    void setClock(qint64 moment);

    quint32 add(const Astel::Timed::Wire::Event &event) { return *parts->service.add(event); }
    Astel::Timed::State state(quint32 cookie) const { return parts->book.find(cookie)->state(); }
    std::optional<qint64> moment(quint32 cookie) const { return parts->book.find(cookie)->moment(); }

    struct Parts
    {
        explicit Parts(World &world);

        Astel::Timed::EventBook book;
        Astel::Timed::Schedule schedule;
        Astel::Timed::Ringing ringing;
        Astel::Timed::LifeCycle life;
        Astel::Timed::EventService service;
        Astel::Timed::BackupService backup;
    };

    FakeClock clock;
    FakeTimer timer;
    FakeZone zone;
    FakeStore store;
    FakeRinger ringer{store};
    FakeRinger fallback{store};
    std::unique_ptr<Parts> parts;
};
