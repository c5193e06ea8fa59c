// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <optional>
#include <QObject>
#include <QTimer>
#include <QVariantMap>

namespace Astel::Timed {

class Clock;
class EventBook;
class Schedule;

/**
 * Hands the next moment of an event with the boot flag over to clock-rtc, which sets the hardware clock's alarm when
 * the device is shut down: a file in a folder of the system, named after the user's number, with the seconds since the
 * epoch. There is none without such an event. The folder is made when clock-rtc is installed; without it, or without a
 * hardware clock that has an alarm, none turns the device on, and the facts say so.
 */
class BootMoment : public QObject
{
    Q_OBJECT

public:
    /** "clocks" is the folder of the hardware clocks. */
    BootMoment(const EventBook &book, const Schedule &schedule, const Clock &clock, const QString &folder,
               const QString &clocks);
    ~BootMoment() override;

    /** Brings the file up to date now, instead of soon after the schedule changed. */
    void update();
    QVariantMap facts() const;

private:
    std::optional<qint64> next() const;
    /** Why no moment turns the device on, or nothing. */
    QString obstacle() const;
    void write(std::optional<qint64> moment);

    const EventBook &m_book;
    const Clock &m_clock;
    const QString m_folder;
    const QString m_wakeAlarm; ///< the kernel's file, which clock-rtc writes
    QTimer m_soon;
    bool m_known = false;
    bool m_warned = false;
    std::optional<qint64> m_written;
    QString m_problem;
};

} // namespace Astel::Timed
