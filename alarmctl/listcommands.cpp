// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "alarmctl/argumentvalues.h"
#include "alarmctl/command.h"
#include "alarmctl/daemonaccess.h"
#include "alarmctl/output.h"
#include "alarmctl/texts.h"
#include "app/settings.h"
#include "platform/context/contextproperty.h"
#include "platform/timedclient/interface.h"

#include <optional>
#include <QCoreApplication>
#include <QDBusConnection>
#include <utility>

namespace {

void printTriggers(const QVariantMap &triggers, bool json)
{
    QStringList texts;
    for (auto trigger = triggers.cbegin(); trigger != triggers.cend(); ++trigger)
        texts.append(trigger.key() + ' ' + localMoment(millisecondsOf(trigger->toULongLong())));
    if (json)
        printJson(QJsonObject::fromVariantMap(triggers));
    else
        printLine(texts.isEmpty() ? QStringLiteral("nothing ahead") : texts.join(", "));
}

/** Ends the event loop with the bus, after which nothing would be heard any more. */
void followEndOfBus()
{
    QDBusConnection::sessionBus().connect({}, "/org/freedesktop/DBus/Local", "org.freedesktop.DBus.Local",
                                          "Disconnected", QCoreApplication::instance(), SLOT(quit()));
}

} // namespace

Result<> runList(const CommandLine &line)
{
    if (const Result<> plain = line.withoutPositionals(); !plain)
        return plain;
    const Result<QList<Clock::QmAlarmEvent>> alarms = loadAlarms();
    if (!alarms)
        return alarms.error();
    printAlarms(*alarms, line.has("json"));
    return Done();
}

Result<> runNext(const CommandLine &line)
{
    if (const Result<> plain = line.withoutPositionals(); !plain)
        return plain;
    const Result<quint32> count = parseCount(line.value("count", "1"));
    if (!count)
        return count.error();
    const auto triggers = answerOf(Astel::Timed::Interface().next_triggers(*count));
    if (!triggers)
        return triggers.error();
    QJsonArray array;
    for (const Astel::Timed::Wire::Trigger &trigger : *triggers) {
        array.append(QJsonObject{{"cookie", qint64(trigger.cookie)}, {"nextTrigger", qint64(trigger.moment)}});
        if (!line.has("json"))
            printLine(QStringLiteral("%1  %2").arg(trigger.cookie, 5).arg(localMoment(millisecondsOf(trigger.moment))));
    }
    if (line.has("json"))
        printJson(array);
    return Done();
}

Result<> runWatch(const CommandLine &line)
{
    if (const Result<> plain = line.withoutPositionals(); !plain)
        return plain;
    if (const Result<> reached = reachDaemon(); !reached)
        return reached;
    ContextProperty triggers(Settings::TriggerProperty);
    const bool json = line.has("json");
    std::optional<QVariantMap> known;
    // The first value is where the watching starts, and that of a daemon that is back may be the old one.
    QObject::connect(&triggers, &ContextProperty::valueChanged, &triggers, [&] {
        const QVariantMap now = triggers.value().toMap();
        const auto before = std::exchange(known, now);
        if (before && *before != now)
            printTriggers(now, json);
    });
    triggers.subscribe();
    followEndOfBus();
    QCoreApplication::exec();
    return failure("the session bus is gone");
}
