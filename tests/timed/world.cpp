// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/timed/world.h"

using namespace Astel::Timed;

namespace {

constexpr qint64 RingTime = 2 * Minute;

} // namespace

World::Parts::Parts(World &world)
    : book(world.store)
    , schedule(world.clock, world.timer)
    , ringing(book, schedule, world.clock, world.ringer, world.fallback)
    , life(book, schedule, ringing, world.clock, world.zone, RingTime)
    , service(book, life)
    , backup(book, life)
{
    QObject::connect(&world.timer, &WakeTimer::clockSet, &life, &LifeCycle::clockSet);
    QObject::connect(&world.zone, &ZoneSource::changed, &life, &LifeCycle::zoneChanged);
}

World::World(qint64 now)
{
    restart(now);
}

void World::restart(qint64 now)
{
    parts.reset();
    clock.time = now;
    parts = std::make_unique<Parts>(*this);
    parts->life.start();
}

void World::passTo(qint64 moment)
{
    while (timer.armed && *timer.armed <= moment) {
        clock.time = std::max(clock.time, *timer.armed);
        emit timer.expired();
    }
    clock.time = moment;
}

void World::setClock(qint64 moment)
{
    clock.time = moment;
    emit timer.clockSet();
    // A timer that stands before the new time expires at once.
    passTo(moment);
}
