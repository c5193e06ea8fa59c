// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timedclient/wire.h"

#include "platform/timedclient/wallclock.h"

#include <mutex>
#include <QDBusMetaType>

namespace Astel::Timed::Wire {

namespace {

// Above every limit: what comes after so many elements is not read, so that a huge message is refused at once.
constexpr int MostRead = 128;
constexpr int MostRecordsRead = 16384;

/** These read at most so many elements; false where there were more, or more within one of them. */
template <typename Read>
bool readSome(const QDBusArgument &argument, Read read, int most = MostRead)
{
    bool complete = true;
    for (int count = 0; complete && count < most && !argument.atEnd(); ++count)
        complete = read();
    return complete && argument.atEnd();
}

template <typename Value, typename Insert>
bool readMap(const QDBusArgument &argument, Insert insert)
{
    argument.beginMap();
    const bool complete = readSome(argument, [&] {
        QString name;
        Value value;
        argument.beginMapEntry();
        argument >> name >> value;
        argument.endMapEntry();
        insert(name, value);
        return true;
    });
    argument.endMap();
    return complete;
}

bool readAttributes(const QDBusArgument &argument, Attributes &attributes)
{
    attributes.clear();
    return readMap<QString>(argument,
                            [&](const QString &name, const QString &value) { attributes.insert(name, value); });
}

bool readRecurrences(const QDBusArgument &argument, QList<Recurrence> &recurrences)
{
    recurrences.clear();
    argument.beginArray();
    const bool complete = readSome(argument, [&] {
        argument >> recurrences.emplaceBack();
        return true;
    });
    argument.endArray();
    return complete;
}

bool readButton(const QDBusArgument &argument, Button &button)
{
    argument.beginStructure();
    argument >> button.snooze;
    const bool complete = readAttributes(argument, button.attributes);
    argument.endStructure();
    return complete;
}

bool readButtons(const QDBusArgument &argument, QList<Button> &buttons)
{
    buttons.clear();
    argument.beginArray();
    const bool complete = readSome(argument, [&] { return readButton(argument, buttons.emplaceBack()); });
    argument.endArray();
    return complete;
}

} // namespace

qint32 firstSnooze(const Event &event)
{
    for (const Button &button : event.buttons) {
        if (button.snooze > 0)
            return button.snooze;
    }
    return 0;
}

void registerTypes()
{
    // Every client asks for it, and there may be one for each alarm.
    static std::once_flag once;
    std::call_once(once, [] {
        qDBusRegisterMetaType<Attributes>();
        qDBusRegisterMetaType<Recurrence>();
        qDBusRegisterMetaType<QList<Recurrence>>();
        qDBusRegisterMetaType<Button>();
        qDBusRegisterMetaType<QList<Button>>();
        qDBusRegisterMetaType<Event>();
        qDBusRegisterMetaType<Filter>();
        qDBusRegisterMetaType<Record>();
        qDBusRegisterMetaType<QList<Record>>();
        qDBusRegisterMetaType<Records>();
        qDBusRegisterMetaType<QList<uint>>();
        qDBusRegisterMetaType<Trigger>();
        qDBusRegisterMetaType<QList<Trigger>>();
        qDBusRegisterMetaType<JournalEntry>();
        qDBusRegisterMetaType<QList<JournalEntry>>();
        qDBusRegisterMetaType<WallClock::Info>();
    });
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
    readButton(argument, button);
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
    argument >> event.ticker >> event.flags >> event.timeoutSnooze >> event.maximalTimeoutSnoozeCounter;
    event.oversized = !readAttributes(argument, event.attributes);
    event.oversized |= !readRecurrences(argument, event.recurrences);
    event.oversized |= !readButtons(argument, event.buttons);
    argument.endStructure();
    return argument;
}

QDBusArgument &operator<<(QDBusArgument &argument, const Filter &filter)
{
    return argument << filter.attributes;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, Filter &filter)
{
    filter.attributes.clear();
    filter.oversized = !readMap<QDBusVariant>(argument, [&](const QString &name, const QDBusVariant &value) {
        filter.attributes.insert(name, value.variant());
    });
    return argument;
}

QDBusArgument &operator<<(QDBusArgument &argument, const Record &record)
{
    argument.beginStructure();
    argument << record.event << record.state << record.moment;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, Record &record)
{
    argument.beginStructure();
    argument >> record.event >> record.state >> record.moment;
    argument.endStructure();
    return argument;
}

QDBusArgument &operator<<(QDBusArgument &argument, const Records &records)
{
    return argument << records.records;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, Records &records)
{
    records.records.clear();
    argument.beginArray();
    const auto read = [&] {
        argument >> records.records.emplaceBack();
        return !records.records.last().event.oversized;
    };
    records.oversized = !readSome(argument, read, MostRecordsRead);
    argument.endArray();
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
