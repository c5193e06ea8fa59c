// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <chrono>
#include <QObject>
#include <QTimer>

namespace Astel::Timed {

class Clock;
class SqliteStore;

/** Asks the store for snapshots at the right time: soon after many changes, later after any, again where one failed. */
class SnapshotKeeper : public QObject
{
    Q_OBJECT

public:
    struct Delays
    {
        /** Many changes in a row are copied together, and do not share the disk with the copy. */
        std::chrono::milliseconds pause = std::chrono::seconds(2);
        /** Should no other change come, or the last one have failed. */
        std::chrono::milliseconds longest = std::chrono::minutes(10) + std::chrono::seconds(1);
    };

    SnapshotKeeper(SqliteStore &store, const Clock &clock, const Delays &delays);

    /** Something may have changed, or the snapshot of the start may fail. */
    void follow();

private:
    void timeout();
    void wait(std::chrono::milliseconds delay);

    SqliteStore &m_store;
    const Clock &m_clock;
    const Delays m_delays;
    QTimer m_timer;
};

} // namespace Astel::Timed
