// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timed/snapshotkeeper.h"

#include "platform/timed/clock.h"
#include "platform/timed/sqlitestore.h"

namespace Astel::Timed {

SnapshotKeeper::SnapshotKeeper(SqliteStore &store, const Clock &clock, const Delays &delays)
    : m_store(store)
    , m_clock(clock)
    , m_delays(delays)
{
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::VeryCoarseTimer);
    connect(&m_timer, &QTimer::timeout, this, &SnapshotKeeper::timeout);
    // The store began with one, and nobody knows yet how it ends.
    wait(m_delays.longest);
}

void SnapshotKeeper::follow()
{
    if (!m_store.isAheadOfSnapshot())
        return;
    wait(m_store.wantsSnapshot(m_clock.now()) ? m_delays.pause : m_delays.longest);
}

void SnapshotKeeper::timeout()
{
    if (!m_store.wantsSnapshot(m_clock.now())) {
        follow();
        return;
    }
    m_store.takeSnapshot(m_clock.now());
    wait(m_delays.longest);
}

void SnapshotKeeper::wait(std::chrono::milliseconds delay)
{
    if (!m_timer.isActive() || m_timer.intervalAsDuration() > delay)
        m_timer.start(delay);
}

} // namespace Astel::Timed
