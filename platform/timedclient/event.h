// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/timedclient/wire.h"

#include <deque>

namespace Astel::Timed {

/**
 * An event as it is being put together for the daemon. A value: copied freely, checked as it is filled.
 * Whatever takes an argument raises Exception, and changes nothing, where the argument is out of its range.
 * The daemon's limits on sizes are not repeated here; it answers them with an error.
 */
class Event
{
public:
    /** What the ringing alarm offers; belongs to its event. */
    class Button
    {
    public:
        /** Pressing the button snoozes for so many seconds; 0, the default, stops the alarm. */
        void setSnooze(int seconds);
        void setAttribute(const QString &name, const QString &value);

    private:
        friend class Event;
        Wire::Button m_wire;
    };

    /**
     * When the event recurs: at the moments that all five sets hold. Belongs to its event. A set that is left
     * empty holds nothing.
     */
    class Recurrence
    {
    public:
        void addHour(int hour);      ///< 0 to 23
        void addMinute(int minute);  ///< 0 to 59
        void addDayOfWeek(int day);  ///< 0 to 6, 0 is Sunday
        void addDayOfMonth(int day); ///< 1 to 31
        void addMonth(int month);    ///< 1 to 12
        void everyDayOfWeek();
        void everyDayOfMonth();
        void everyMonth();
        /** A local time that summer time skips is made up for; without the flag that day is left out. */
        void setFillingGapsFlag();

    private:
        friend class Event;
        Wire::Recurrence m_wire;
    };

    void setAttribute(const QString &name, const QString &value);
    /** Seconds since the epoch; 0 stores the event without ever triggering it. */
    void setTicker(qint64 seconds);

    void setSingleShotFlag();    ///< served once
    void setKeepAliveFlag();     ///< kept after it was served
    void setBootFlag();          ///< the device is powered on for it
    void setAlarmFlag();         ///< rings whatever the sound profile says
    void setBackupFlag();        ///< goes into a backup
    void setReminderFlag();      ///< needs the ringer's full screen
    void setAlignedSnoozeFlag(); ///< a snooze ends on a whole minute
    void hideSnoozeButton1();    ///< the plug-in draws its own snooze

    /** For how many seconds unanswered ringing snoozes. */
    void setTimeoutSnooze(int seconds);
    /** How often it does so before the alarm is missed. */
    void setMaximalTimeoutSnoozeCounter(int count);

    /** The reference stays valid as long as the event, also when more are added. */
    Button &addButton();
    Recurrence &addRecurrence();

    Wire::Event toWire() const;

private:
    Wire::Event m_wire; ///< without its recurrences and buttons
    std::deque<Recurrence> m_recurrences;
    std::deque<Button> m_buttons;
};

} // namespace Astel::Timed
