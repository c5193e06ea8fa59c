// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timedclient/eventcodec.h"

#include "platform/timedclient/wire.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace Astel::Timed {

namespace {

constexpr int RecurrenceFields = 6;

QJsonObject encodeAttributes(const Wire::Attributes &attributes)
{
    QJsonObject result;
    for (auto it = attributes.begin(); it != attributes.end(); ++it)
        result.insert(it.key(), it.value());
    return result;
}

Wire::Attributes decodeAttributes(const QJsonObject &object, TextPool &pool)
{
    Wire::Attributes result;
    for (auto it = object.begin(); it != object.end(); ++it)
        result.insert(result.end(), pool.shared(it.key()), pool.shared(it.value().toString()));
    return result;
}

QJsonArray encodeRecurrence(const Wire::Recurrence &recurrence)
{
    return {qint64(recurrence.hours),       qint64(recurrence.minutes), qint64(recurrence.daysOfWeek),
            qint64(recurrence.daysOfMonth), qint64(recurrence.months),  recurrence.fillingGaps};
}

Wire::Recurrence decodeRecurrence(const QJsonArray &array)
{
    return {quint32(array[0].toInteger()), quint64(array[1].toInteger()), quint32(array[2].toInteger()),
            quint32(array[3].toInteger()), quint32(array[4].toInteger()), array[5].toBool()};
}

} // namespace

QJsonObject eventToJson(const Wire::Event &event)
{
    QJsonArray recurrences;
    for (const Wire::Recurrence &recurrence : event.recurrences)
        recurrences.append(encodeRecurrence(recurrence));
    QJsonArray buttons;
    for (const Wire::Button &button : event.buttons)
        buttons.append(QJsonArray{button.snooze, encodeAttributes(button.attributes)});
    return {
        {"ticker", event.ticker},
        {"flags", qint64(event.flags)},
        {"timeoutSnooze", event.timeoutSnooze},
        {"maximalTimeoutSnoozeCounter", qint64(event.maximalTimeoutSnoozeCounter)},
        {"attributes", encodeAttributes(event.attributes)},
        {"recurrences", recurrences},
        {"buttons", buttons},
    };
}

QString encodeEvent(const Wire::Event &event)
{
    return QString::fromUtf8(QJsonDocument(eventToJson(event)).toJson(QJsonDocument::Compact));
}

std::optional<Wire::Event> eventFromJson(const QJsonObject &object, TextPool &pool)
{
    if (!object["ticker"].isDouble() || !object["attributes"].isObject())
        return std::nullopt;
    Wire::Event event;
    event.ticker = object["ticker"].toInteger();
    event.flags = quint32(object["flags"].toInteger());
    event.timeoutSnooze = qint32(object["timeoutSnooze"].toInteger());
    event.maximalTimeoutSnoozeCounter = quint32(object["maximalTimeoutSnoozeCounter"].toInteger());
    event.attributes = decodeAttributes(object["attributes"].toObject(), pool);
    const QJsonArray recurrences = object["recurrences"].toArray();
    for (const auto &value : recurrences) {
        if (value.toArray().size() != RecurrenceFields)
            return std::nullopt;
        event.recurrences.append(decodeRecurrence(value.toArray()));
    }
    const QJsonArray buttons = object["buttons"].toArray();
    for (const auto &value : buttons)
        event.buttons.append({qint32(value[0].toInteger()), decodeAttributes(value[1].toObject(), pool)});
    return event;
}

std::optional<Wire::Event> decodeEvent(const QByteArray &text, TextPool &pool)
{
    return eventFromJson(QJsonDocument::fromJson(text).object(), pool);
}

} // namespace Astel::Timed
