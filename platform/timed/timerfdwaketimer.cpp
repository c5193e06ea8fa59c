// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timed/timerfdwaketimer.h"

#include "platform/timed/logging.h"
#include "platform/timed/moments.h"

#include <algorithm>
#include <cerrno>
#include <ctime>
#include <QDir>
#include <QFile>
#include <QSocketNotifier>
#include <sys/timerfd.h>
#include <unistd.h>

namespace Astel::Timed {

namespace {

// Without an alarm ahead the timer waits for the year 2242, so that it still tells of a set clock.
constexpr qint64 FarAway = (Q_INT64_C(1) << 33) * MillisecondsOfSecond;
// The timer is read back some time after it was armed.
constexpr qint64 ReadBackTolerance = 1000;

timespec toTimespec(qint64 milliseconds)
{
    timespec result = {};
    result.tv_sec = milliseconds / MillisecondsOfSecond;
    result.tv_nsec = milliseconds % MillisecondsOfSecond * NanosecondsOfMillisecond;
    return result;
}

qint64 toMilliseconds(const timespec &time)
{
    return time.tv_sec * MillisecondsOfSecond
        + (time.tv_nsec + NanosecondsOfMillisecond / 2) / NanosecondsOfMillisecond;
}

// The kernel hands the moment to such a clock when the device goes to sleep.
bool wakesTheDevice(const QString &clock)
{
    QFile wakeup(clock + "/device/power/wakeup");
    return QFile::exists(clock + "/wakealarm")
        && (!wakeup.open(QIODevice::ReadOnly) || wakeup.readAll().trimmed() == "enabled");
}

bool anyWakesTheDevice(const QString &folder)
{
    const QDir clocks(folder);
    const QStringList names = clocks.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    return std::any_of(names.begin(), names.end(),
                       [&clocks](const QString &name) { return wakesTheDevice(clocks.filePath(name)); });
}

} // namespace

TimerFdWakeTimer::TimerFdWakeTimer(const QString &clocks)
    : TimerFdWakeTimer(clocks, timerfd_settime)
{ }

TimerFdWakeTimer::TimerFdWakeTimer(const QString &clocks, SetTime setTime)
    : m_setTime(setTime)
    , m_clocks(clocks)
    , m_descriptor(timerfd_create(CLOCK_REALTIME_ALARM, TFD_CLOEXEC | TFD_NONBLOCK))
{
    if (m_descriptor < 0) {
        m_refusal = QStringLiteral("the process may not set wake-up timers: %1").arg(qt_error_string(errno));
        m_descriptor = timerfd_create(CLOCK_REALTIME, TFD_CLOEXEC | TFD_NONBLOCK);
    }
    if (m_descriptor < 0) {
        qCCritical(lcTimed, "cannot create a timer: %ls", qUtf16Printable(qt_error_string(errno)));
        return;
    }
    m_notifier = new QSocketNotifier(m_descriptor, QSocketNotifier::Read, this);
    connect(m_notifier, &QSocketNotifier::activated, this, &TimerFdWakeTimer::readEvent);
}

TimerFdWakeTimer::~TimerFdWakeTimer()
{
    if (m_descriptor >= 0)
        close(m_descriptor);
}

void TimerFdWakeTimer::arm(std::optional<qint64> moment)
{
    m_wanted = moment;
    setTimer(moment.value_or(FarAway));
    timespec now = {};
    clock_gettime(CLOCK_REALTIME, &now);
    if (!moment || *moment <= toMilliseconds(now))
        return;
    const auto armed = armedFor();
    if (!armed || std::abs(*armed - *moment) > ReadBackTolerance)
        qCWarning(lcTimed, "the timer is armed for %lld instead of %lld", armed.value_or(0), *moment);
}

void TimerFdWakeTimer::setTimer(qint64 moment)
{
    itimerspec setting = {};
    // Zero would disarm; any moment that has passed expires at once.
    setting.it_value = toTimespec(std::max(moment, Q_INT64_C(1)));
    if (m_setTime(m_descriptor, TFD_TIMER_ABSTIME | TFD_TIMER_CANCEL_ON_SET, &setting, nullptr) == 0)
        return;
    // The timer is armed, but the clock was set since it was last, and the descriptor will not tell of it any more.
    // Whoever arms it is amid a change of its own, and is told after it.
    if (errno == ECANCELED)
        QMetaObject::invokeMethod(this, &WakeTimer::clockSet, Qt::QueuedConnection);
    else
        qCCritical(lcTimed, "cannot arm the timer: %ls", qUtf16Printable(qt_error_string(errno)));
}

std::optional<qint64> TimerFdWakeTimer::armedFor() const
{
    itimerspec left = {};
    timespec now = {};
    if (!m_wanted || timerfd_gettime(m_descriptor, &left) != 0)
        return std::nullopt;
    clock_gettime(CLOCK_REALTIME, &now);
    if (left.it_value.tv_sec == 0 && left.it_value.tv_nsec == 0)
        return std::nullopt;
    now.tv_sec += left.it_value.tv_sec;
    now.tv_nsec += left.it_value.tv_nsec;
    return toMilliseconds(now);
}

QString TimerFdWakeTimer::kind() const
{
    return m_refusal.isEmpty() ? QStringLiteral("CLOCK_REALTIME_ALARM") : QStringLiteral("CLOCK_REALTIME");
}

QString TimerFdWakeTimer::reason() const
{
    // Asked anew each time: the driver of a clock may be loaded late, and be told not to wake.
    if (m_refusal.isEmpty() && !anyWakesTheDevice(m_clocks))
        return QStringLiteral("no hardware clock can wake the device");
    return m_refusal;
}

void TimerFdWakeTimer::readEvent()
{
    quint64 expirations = 0;
    if (read(m_descriptor, &expirations, sizeof(expirations)) == sizeof(expirations))
        emit expired();
    else if (errno == ECANCELED)
        emit clockSet();
}

} // namespace Astel::Timed
