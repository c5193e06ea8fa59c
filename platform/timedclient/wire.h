// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QDBusArgument>
#include <QList>
#include <QMap>
#include <QMetaType>
#include <QString>
#include <QVariantMap>

/**
 * What travels between the daemon, its clients and the ringer: plain values, field by field as com.astel.timed.xml
 * states them. Nothing is checked here; clients build events with Astel::Timed::Event, the daemon validates.
 */
namespace Astel::Timed::Wire {

inline constexpr auto Service = "com.astel.timed";
inline constexpr auto Path = "/com/astel/timed";
inline constexpr auto Interface = "com.astel.timed";
inline constexpr auto RingerService = "com.astel.ringer";
/** Takes "ring" and "stop" as the ringer does, at the same path, when that one cannot be started. */
inline constexpr auto FallbackRingerService = "com.astel.ringer.fallback";
inline constexpr auto RingerPath = "/com/astel/ringer";
/** The context property that holds every event with a moment ahead. */
inline constexpr auto TriggerProperty = "Alarm.Trigger";

inline constexpr auto InvalidError = "com.astel.timed.Error.Invalid";
inline constexpr auto LimitError = "com.astel.timed.Error.Limit";
inline constexpr auto UnknownError = "com.astel.timed.Error.Unknown";
inline constexpr auto StorageError = "com.astel.timed.Error.Storage";

using Attributes = QMap<QString, QString>;

enum Flag : quint32 {
    SingleShot = 1u << 0,
    KeepAlive = 1u << 1,
    Boot = 1u << 2,
    Alarm = 1u << 3,
    Backup = 1u << 4,
    Reminder = 1u << 5,
    AlignedSnooze = 1u << 6,
    HideSnoozeButton1 = 1u << 7,
    AllFlags = (1u << 8) - 1,
};

/** Sets of wall-clock numbers as bits: bit n stands for hour, minute, weekday (0 is Sunday), day or month n. */
struct Recurrence
{
    quint32 hours = 0;
    quint64 minutes = 0;
    quint32 daysOfWeek = 0;
    quint32 daysOfMonth = 0; ///< bits 1 to 31
    quint32 months = 0;      ///< bits 1 to 12
    bool fillingGaps = false;

    bool operator==(const Recurrence &) const = default;
};

inline constexpr quint32 AllHours = (1u << 24) - 1;
inline constexpr quint64 AllMinutes = (Q_UINT64_C(1) << 60) - 1;
inline constexpr quint32 AllDaysOfWeek = (1u << 7) - 1;
inline constexpr quint32 AllDaysOfMonth = 0xfffffffeu;
inline constexpr quint32 AllMonths = 0x1ffeu;

struct Button
{
    qint32 snooze = 0; ///< seconds; 0: the button stops the alarm
    Attributes attributes;

    bool operator==(const Button &) const = default;
};

inline constexpr qint64 NoTicker = -1;

struct Event
{
    qint64 ticker = NoTicker; ///< seconds since the epoch; 0: never triggers
    quint32 flags = 0;
    qint32 timeoutSnooze = 0; ///< seconds
    quint32 maximalTimeoutSnoozeCounter = 0;
    Attributes attributes;
    QList<Recurrence> recurrences;
    QList<Button> buttons;
    bool oversized = false; ///< larger than any limit allows, and read in part

    bool operator==(const Event &) const = default;
};

/** The seconds of the first button that snoozes; 0 where none does. */
qint32 firstSnooze(const Event &event);

/** The attributes that an event must hold to be found. */
struct Filter
{
    QVariantMap attributes;
    bool oversized = false; ///< as in Event
};

struct Trigger
{
    quint32 cookie = 0;
    quint64 moment = 0; ///< nanoseconds since the epoch

    bool operator==(const Trigger &) const = default;
};

/** An event as a backup takes it. */
struct Record
{
    Event event;
    QString state;
    quint64 moment = 0; ///< nanoseconds since the epoch; 0: nothing ahead

    bool operator==(const Record &) const = default;
};

struct Records
{
    QList<Record> records;
    bool oversized = false; ///< as in Event
};

struct JournalEntry
{
    qint64 moment = 0; ///< milliseconds since the epoch
    quint32 cookie = 0;
    QString what;
    QString detail;

    bool operator==(const JournalEntry &) const = default;
};

/** Makes the types known to Qt DBus; needed once in a process, before the first call. */
void registerTypes();

QDBusArgument &operator<<(QDBusArgument &argument, const Recurrence &recurrence);
const QDBusArgument &operator>>(const QDBusArgument &argument, Recurrence &recurrence);
QDBusArgument &operator<<(QDBusArgument &argument, const Button &button);
const QDBusArgument &operator>>(const QDBusArgument &argument, Button &button);
QDBusArgument &operator<<(QDBusArgument &argument, const Event &event);
const QDBusArgument &operator>>(const QDBusArgument &argument, Event &event);
QDBusArgument &operator<<(QDBusArgument &argument, const Filter &filter);
const QDBusArgument &operator>>(const QDBusArgument &argument, Filter &filter);
QDBusArgument &operator<<(QDBusArgument &argument, const Record &record);
const QDBusArgument &operator>>(const QDBusArgument &argument, Record &record);
QDBusArgument &operator<<(QDBusArgument &argument, const Records &records);
const QDBusArgument &operator>>(const QDBusArgument &argument, Records &records);
QDBusArgument &operator<<(QDBusArgument &argument, const Trigger &trigger);
const QDBusArgument &operator>>(const QDBusArgument &argument, Trigger &trigger);
QDBusArgument &operator<<(QDBusArgument &argument, const JournalEntry &entry);
const QDBusArgument &operator>>(const QDBusArgument &argument, JournalEntry &entry);

} // namespace Astel::Timed::Wire

Q_DECLARE_METATYPE(Astel::Timed::Wire::Recurrence)
Q_DECLARE_METATYPE(Astel::Timed::Wire::Button)
Q_DECLARE_METATYPE(Astel::Timed::Wire::Event)
Q_DECLARE_METATYPE(Astel::Timed::Wire::Filter)
Q_DECLARE_METATYPE(Astel::Timed::Wire::Record)
Q_DECLARE_METATYPE(Astel::Timed::Wire::Records)
Q_DECLARE_METATYPE(Astel::Timed::Wire::Trigger)
Q_DECLARE_METATYPE(Astel::Timed::Wire::JournalEntry)
