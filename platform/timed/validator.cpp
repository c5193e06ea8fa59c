// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timed/validator.h"

#include "platform/timedclient/wire.h"

#include <algorithm>

namespace Astel::Timed {

namespace {

constexpr int MaximalAttributes = 64;
constexpr int MaximalRecurrences = 16;
constexpr int MaximalButtons = 8;
constexpr int MaximalButtonAttributes = 16;
constexpr int LongestName = 128;
constexpr int LongestValue = 4096;
constexpr int LongestText = 32768;
constexpr qint64 LatestTicker = 253402300799; // the end of the year 9999
constexpr auto PluginAttribute = "PLUGIN";

Error invalid(const QString &text)
{
    return {Wire::InvalidError, text};
}

Error limit(const QString &what, qsizetype size, int most)
{
    return {Wire::LimitError, QStringLiteral("%1: %2, where at most %3 are taken").arg(what).arg(size).arg(most)};
}

qsizetype textSize(const Wire::Attributes &attributes)
{
    qsizetype result = 0;
    for (auto it = attributes.begin(); it != attributes.end(); ++it)
        result += it.key().size() + it.value().size();
    return result;
}

Result<> validateAttributes(const Wire::Attributes &attributes, int most)
{
    if (attributes.size() > most)
        return limit(QStringLiteral("attributes"), attributes.size(), most);
    for (auto it = attributes.begin(); it != attributes.end(); ++it) {
        if (it.key().isEmpty())
            return invalid(QStringLiteral("an attribute has no name"));
        if (it.key().size() > LongestName)
            return limit(QStringLiteral("characters of an attribute name"), it.key().size(), LongestName);
        if (it.value().size() > LongestValue)
            return limit(QStringLiteral("characters of the attribute ") + it.key(), it.value().size(), LongestValue);
    }
    return Done{};
}

Result<> validatePlugin(const QString &name)
{
    const auto misplaced
        = [](QChar character) { return character == '/' || character == '\\' || !character.isPrint(); };
    if (name.startsWith('.') || std::any_of(name.begin(), name.end(), misplaced))
        return invalid(QStringLiteral("PLUGIN \"%1\" is not a bare name").arg(name));
    return Done{};
}

Result<> validateSnooze(const QString &what, qint32 seconds)
{
    if (seconds < 0 || seconds > LongestSnooze)
        return invalid(QStringLiteral("%1 of %2 s is not within 0 to %3").arg(what).arg(seconds).arg(LongestSnooze));
    return Done{};
}

Result<> validateRecurrence(const Wire::Recurrence &recurrence)
{
    const auto outside = [](const char *what) {
        return invalid(QStringLiteral("a recurrence has %1 out of range").arg(QLatin1String(what)));
    };
    if (recurrence.hours & ~Wire::AllHours)
        return outside("hours");
    if (recurrence.minutes & ~Wire::AllMinutes)
        return outside("minutes");
    if (recurrence.daysOfWeek & ~Wire::AllDaysOfWeek)
        return outside("days of the week");
    if (recurrence.daysOfMonth & ~Wire::AllDaysOfMonth)
        return outside("days of the month");
    if (recurrence.months & ~Wire::AllMonths)
        return outside("months");
    return Done{};
}

Result<> validateButtons(const QList<Wire::Button> &buttons)
{
    if (buttons.size() > MaximalButtons)
        return limit(QStringLiteral("buttons"), buttons.size(), MaximalButtons);
    for (const Wire::Button &button : buttons) {
        if (auto valid = validateSnooze(QStringLiteral("a button's snooze"), button.snooze); !valid)
            return valid;
        if (auto valid = validateAttributes(button.attributes, MaximalButtonAttributes); !valid)
            return valid;
    }
    return Done{};
}

Result<> validateRecurrences(const QList<Wire::Recurrence> &recurrences)
{
    if (recurrences.size() > MaximalRecurrences)
        return limit(QStringLiteral("recurrences"), recurrences.size(), MaximalRecurrences);
    for (const Wire::Recurrence &recurrence : recurrences) {
        if (auto valid = validateRecurrence(recurrence); !valid)
            return valid;
    }
    return Done{};
}

} // namespace

qsizetype textSize(const Wire::Event &event)
{
    qsizetype result = textSize(event.attributes);
    for (const Wire::Button &button : event.buttons)
        result += textSize(button.attributes);
    return result;
}

Result<> validateTotal(qsizetype characters)
{
    if (characters > MaximalText)
        return Error{Wire::LimitError, QStringLiteral("all events together hold %1 characters").arg(MaximalText)};
    return Done{};
}

Result<> validate(const Wire::Event &event)
{
    if (event.oversized)
        return Error{Wire::LimitError, QStringLiteral("the event has many more parts than are taken")};
    if (const qsizetype size = textSize(event); size > LongestText)
        return limit(QStringLiteral("characters of all attributes"), size, LongestText);
    if (event.ticker < Wire::NoTicker || event.ticker > LatestTicker)
        return invalid(QStringLiteral("a ticker of %1 is neither -1, 0 nor a moment").arg(event.ticker));
    if (event.flags & ~quint32(Wire::AllFlags))
        return invalid(QStringLiteral("unknown flags 0x%1").arg(event.flags, 0, 16));
    Result<> result = validateSnooze(QStringLiteral("a timeout snooze"), event.timeoutSnooze);
    if (result)
        result = validateAttributes(event.attributes, MaximalAttributes);
    if (result)
        result = validatePlugin(event.attributes.value(PluginAttribute));
    if (result)
        result = validateRecurrences(event.recurrences);
    if (result)
        result = validateButtons(event.buttons);
    return result;
}

Result<> validate(const Wire::Filter &filter)
{
    if (filter.oversized || filter.attributes.size() > MaximalAttributes)
        return limit(QStringLiteral("attributes"), filter.attributes.size(), MaximalAttributes);
    return Done{};
}

Result<> validateTone(const QString &tone)
{
    if (tone.size() > LongestValue)
        return limit(QStringLiteral("characters of a tone"), tone.size(), LongestValue);
    return Done{};
}

Result<> validateTrouble(const QString &trouble)
{
    if (trouble.size() > LongestValue)
        return limit(QStringLiteral("characters of a trouble"), trouble.size(), LongestValue);
    return Done{};
}

Result<> validateWho(const QString &by)
{
    if (by.size() > LongestName)
        return limit(QStringLiteral("characters of who answered"), by.size(), LongestName);
    return Done{};
}

} // namespace Astel::Timed
