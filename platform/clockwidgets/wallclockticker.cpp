// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/clockwidgets/wallclockticker_p.h"

#include <cerrno>
#include <cstring>
#include <QFileInfo>
#include <QFileSystemWatcher>
#include <QLoggingCategory>
#include <QSocketNotifier>
#include <sys/timerfd.h>
#include <unistd.h>

Q_LOGGING_CATEGORY(lcTicker, "clockwidgets.ticker")

namespace {

time_t length(ClockTicker::Beat beat)
{
    return beat == ClockTicker::Beat::Second ? 1 : 60;
}

} // namespace

WallClockTicker::WallClockTicker(const QString &localtime)
    : m_localtime(localtime)
{ }

WallClockTicker::~WallClockTicker()
{
    closeTimer();
}

time_t WallClockTicker::nextBeat(time_t time, Beat beat)
{
    return (time / length(beat) + 1) * length(beat);
}

void WallClockTicker::start(Beat beat)
{
    m_beat = beat;
    if (m_timer < 0) {
        m_timer = timerfd_create(CLOCK_REALTIME, TFD_NONBLOCK | TFD_CLOEXEC);
        if (m_timer < 0) {
            qCWarning(lcTicker, "The clock does not move by itself, there is no timer: %s", std::strerror(errno));
            return;
        }
        m_notifier = std::make_unique<QSocketNotifier>(m_timer, QSocketNotifier::Read);
        connect(m_notifier.get(), &QSocketNotifier::activated, this, &WallClockTicker::readTimer);
    }
    arm();
    if (!m_zoneWatcher)
        watchZone();
}

void WallClockTicker::stop()
{
    closeTimer();
    m_zoneWatcher.reset();
}

void WallClockTicker::watchZone()
{
    m_zoneWatcher = std::make_unique<QFileSystemWatcher>();
    // A link is replaced, which its folder tells; a copy may be written over.
    const QFileInfo file(m_localtime);
    m_zoneWatcher->addPath(file.absolutePath());
    if (file.isFile() && !file.isSymLink())
        m_zoneWatcher->addPath(m_localtime);
    connect(m_zoneWatcher.get(), &QFileSystemWatcher::directoryChanged, this, &WallClockTicker::zoneChanged);
    connect(m_zoneWatcher.get(), &QFileSystemWatcher::fileChanged, this, &WallClockTicker::zoneChanged);
}

void WallClockTicker::zoneChanged()
{
    tzset();
    Q_EMIT ticked();
}

void WallClockTicker::closeTimer()
{
    if (m_timer < 0)
        return;
    m_notifier.reset();
    ::close(m_timer);
    m_timer = -1;
}

void WallClockTicker::arm()
{
    itimerspec beats = {};
    beats.it_value.tv_sec = nextBeat(std::time(nullptr), m_beat);
    beats.it_interval.tv_sec = length(m_beat);
    if (timerfd_settime(m_timer, TFD_TIMER_ABSTIME | TFD_TIMER_CANCEL_ON_SET, &beats, nullptr) < 0)
        qCWarning(lcTicker, "The clock does not move by itself, its timer cannot be set: %s", std::strerror(errno));
}

void WallClockTicker::readTimer()
{
    quint64 beats = 0;
    const ssize_t size = ::read(m_timer, &beats, sizeof beats);
    if (size < 0 && errno == ECANCELED)
        arm();
    else if (size < 0)
        return;
    Q_EMIT ticked();
}
