// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timedclient/event.h"

#include "platform/timedclient/exception.h"

namespace Astel::Timed {

namespace {

void checkRange(const char *what, int value, int lowest, int highest)
{
    if (value < lowest || value > highest)
        throw Exception(QStringLiteral("%1 %2 is not in the range %3 to %4")
                            .arg(QLatin1String(what))
                            .arg(value)
                            .arg(lowest)
                            .arg(highest));
}

void checkNotNegative(const char *what, qint64 value)
{
    if (value < 0)
        throw Exception(QStringLiteral("%1 %2 is negative").arg(QLatin1String(what)).arg(value));
}

void insertAttribute(Wire::Attributes &attributes, const QString &name, const QString &value)
{
    if (name.isEmpty())
        throw Exception(QStringLiteral("the name of an attribute is empty (its value is \"%1\")").arg(value));
    attributes.insert(name, value);
}

} // namespace

void Event::Button::setSnooze(int seconds)
{
    checkNotNegative("snooze of a button", seconds);
    m_wire.snooze = seconds;
}

void Event::Button::setAttribute(const QString &name, const QString &value)
{
    insertAttribute(m_wire.attributes, name, value);
}

void Event::Recurrence::addHour(int hour)
{
    checkRange("hour", hour, 0, 23);
    m_wire.hours |= 1u << hour;
}

void Event::Recurrence::addMinute(int minute)
{
    checkRange("minute", minute, 0, 59);
    m_wire.minutes |= Q_UINT64_C(1) << minute;
}

void Event::Recurrence::addDayOfWeek(int day)
{
    checkRange("day of the week", day, 0, 6);
    m_wire.daysOfWeek |= 1u << day;
}

void Event::Recurrence::addDayOfMonth(int day)
{
    checkRange("day of the month", day, 1, 31);
    m_wire.daysOfMonth |= 1u << day;
}

void Event::Recurrence::addMonth(int month)
{
    checkRange("month", month, 1, 12);
    m_wire.months |= 1u << month;
}

void Event::Recurrence::everyDayOfWeek()
{
    m_wire.daysOfWeek = Wire::AllDaysOfWeek;
}

void Event::Recurrence::everyDayOfMonth()
{
    m_wire.daysOfMonth = Wire::AllDaysOfMonth;
}

void Event::Recurrence::everyMonth()
{
    m_wire.months = Wire::AllMonths;
}

void Event::Recurrence::setFillingGapsFlag()
{
    m_wire.fillingGaps = true;
}

void Event::setAttribute(const QString &name, const QString &value)
{
    insertAttribute(m_wire.attributes, name, value);
}

void Event::setTicker(qint64 seconds)
{
    checkNotNegative("ticker", seconds);
    m_wire.ticker = seconds;
}

void Event::setSingleShotFlag()
{
    m_wire.flags |= Wire::SingleShot;
}

void Event::setKeepAliveFlag()
{
    m_wire.flags |= Wire::KeepAlive;
}

void Event::setBootFlag()
{
    m_wire.flags |= Wire::Boot;
}

void Event::setAlarmFlag()
{
    m_wire.flags |= Wire::Alarm;
}

void Event::setBackupFlag()
{
    m_wire.flags |= Wire::Backup;
}

void Event::setReminderFlag()
{
    m_wire.flags |= Wire::Reminder;
}

void Event::setAlignedSnoozeFlag()
{
    m_wire.flags |= Wire::AlignedSnooze;
}

void Event::hideSnoozeButton1()
{
    m_wire.flags |= Wire::HideSnoozeButton1;
}

void Event::setTimeoutSnooze(int seconds)
{
    checkNotNegative("timeout snooze", seconds);
    m_wire.timeoutSnooze = seconds;
}

void Event::setMaximalTimeoutSnoozeCounter(int count)
{
    checkNotNegative("maximal timeout snooze counter", count);
    m_wire.maximalTimeoutSnoozeCounter = quint32(count);
}

Event::Button &Event::addButton()
{
    return m_buttons.emplace_back();
}

Event::Recurrence &Event::addRecurrence()
{
    return m_recurrences.emplace_back();
}

Wire::Event Event::toWire() const
{
    Wire::Event event = m_wire;
    for (const Recurrence &recurrence : m_recurrences)
        event.recurrences.append(recurrence.m_wire);
    for (const Button &button : m_buttons)
        event.buttons.append(button.m_wire);
    return event;
}

} // namespace Astel::Timed
