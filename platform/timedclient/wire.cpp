// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timedclient/wire.h"

#include "platform/timedclient/wallclock.h"

#include <QDBusMetaType>

namespace Astel::Timed::Wire {

void registerTypes()
{
    qDBusRegisterMetaType<Attributes>();
    qDBusRegisterMetaType<Recurrence>();
    qDBusRegisterMetaType<QList<Recurrence>>();
    qDBusRegisterMetaType<Button>();
    qDBusRegisterMetaType<QList<Button>>();
    qDBusRegisterMetaType<Event>();
    qDBusRegisterMetaType<Trigger>();
    qDBusRegisterMetaType<QList<Trigger>>();
    qDBusRegisterMetaType<JournalEntry>();
    qDBusRegisterMetaType<QList<JournalEntry>>();
    qDBusRegisterMetaType<WallClock::Info>();
}

QDBusArgument &operator<<(QDBusArgument &argument, const Recurrence &recurrence)
{
    argument.beginStructure();
    argument << recurrence.hours << recurrence.minutes << recurrence.daysOfWeek << recurrence.daysOfMonth
             << recurrence.months << recurrence.fillingGaps;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, Recurrence &recurrence)
{
    argument.beginStructure();
    argument >> recurrence.hours >> recurrence.minutes >> recurrence.daysOfWeek >> recurrence.daysOfMonth
        >> recurrence.months >> recurrence.fillingGaps;
    argument.endStructure();
    return argument;
}

QDBusArgument &operator<<(QDBusArgument &argument, const Button &button)
{
    argument.beginStructure();
    argument << button.snooze << button.attributes;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, Button &button)
{
    argument.beginStructure();
    argument >> button.snooze >> button.attributes;
    argument.endStructure();
    return argument;
}

QDBusArgument &operator<<(QDBusArgument &argument, const Event &event)
{
    argument.beginStructure();
    argument << event.ticker << event.flags << event.timeoutSnooze << event.maximalTimeoutSnoozeCounter
             << event.attributes << event.recurrences << event.buttons;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, Event &event)
{
    argument.beginStructure();
    argument >> event.ticker >> event.flags >> event.timeoutSnooze >> event.maximalTimeoutSnoozeCounter
        >> event.attributes >> event.recurrences >> event.buttons;
    argument.endStructure();
    return argument;
}

QDBusArgument &operator<<(QDBusArgument &argument, const Trigger &trigger)
{
    argument.beginStructure();
    argument << trigger.cookie << trigger.moment;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, Trigger &trigger)
{
    argument.beginStructure();
    argument >> trigger.cookie >> trigger.moment;
    argument.endStructure();
    return argument;
}

QDBusArgument &operator<<(QDBusArgument &argument, const JournalEntry &entry)
{
    argument.beginStructure();
    argument << entry.moment << entry.cookie << entry.what << entry.detail;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, JournalEntry &entry)
{
    argument.beginStructure();
    argument >> entry.moment >> entry.cookie >> entry.what >> entry.detail;
    argument.endStructure();
    return argument;
}

} // namespace Astel::Timed::Wire
