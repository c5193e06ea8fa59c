// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/clockwidgets/clockticker.h"

#include <ctime>
#include <memory>

class QFileSystemWatcher;
class QSocketNotifier;

/// Beats by a timer of the kernel, which is exact, wakes the process only on the beat, and tells when the clock is set;
/// a watch on the file that tells the time zone tells when the zone is another one.
class WallClockTicker : public ClockTicker
{
    Q_OBJECT

public:
    explicit WallClockTicker(const QString &localtime = QStringLiteral("/etc/localtime"));
    ~WallClockTicker() override;

    QDateTime now() const override { return QDateTime::currentDateTime(); }
    void start(Beat beat) override;
    void stop() override;

    /// The first whole second or minute after a time, in seconds since the epoch.
    static time_t nextBeat(time_t time, Beat beat);

private:
    void arm();
    void closeTimer();
    void readTimer();
    void watchZone();
    void zoneChanged();

    const QString m_localtime;
    std::unique_ptr<QFileSystemWatcher> m_zoneWatcher;
    int m_timer = -1;
    Beat m_beat = Beat::Minute;
    std::unique_ptr<QSocketNotifier> m_notifier;
};
