// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/timed/waketimer.h"

class QSocketNotifier;
struct itimerspec;

namespace Astel::Timed {

/**
 * A timerfd on the real-time clock that wakes from sleep, or on the plain one where the process may not have that. The
 * kernel grants the first also where no hardware clock can wake the device, so those are looked at as well. Arming that
 * fails is logged and seen in armedFor().
 */
class TimerFdWakeTimer final : public WakeTimer
{
    Q_OBJECT

public:
    /** The system's call that sets a timer. */
    using SetTime = int (*)(int descriptor, int flags, const itimerspec *wanted, itimerspec *before);

    /** With the folder of the hardware clocks. */
    explicit TimerFdWakeTimer(const QString &clocks = QStringLiteral("/sys/class/rtc"));
    /** With another call in place of the system's: no test can set the clock. */
    TimerFdWakeTimer(const QString &clocks, SetTime setTime);
    ~TimerFdWakeTimer() override;

    void arm(std::optional<qint64> moment) override;
    std::optional<qint64> armedFor() const override;
    QString kind() const override;
    bool wakesFromSleep() const override { return reason().isEmpty(); }
    QString reason() const override;

private:
    void setTimer(qint64 moment);
    void readEvent();

    const SetTime m_setTime;
    const QString m_clocks;
    int m_descriptor = -1;
    QString m_refusal; ///< why the clock that wakes was not granted
    QSocketNotifier *m_notifier = nullptr;
    std::optional<qint64> m_wanted;
};

} // namespace Astel::Timed
