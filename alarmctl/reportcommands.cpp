// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "alarmctl/argumentvalues.h"
#include "alarmctl/command.h"
#include "alarmctl/daemonaccess.h"
#include "alarmctl/output.h"
#include "app/settings.h"
#include "platform/context/contextproperty.h"
#include "platform/timedclient/interface.h"

#include <QCoreApplication>

namespace {

constexpr quint64 NanosecondsOfMillisecond = 1000000;
constexpr qint64 MillisecondsOfSecond = 1000;

Result<> withoutPositionals(const CommandLine &line)
{
    if (!line.positionals().isEmpty())
        return wrongUsage(QStringLiteral("\"%1\" is one argument too many").arg(line.positionals().first()));
    return Done();
}

void printTriggers(const QVariantMap &triggers, bool json)
{
    QStringList texts;
    for (auto trigger = triggers.cbegin(); trigger != triggers.cend(); ++trigger)
        texts.append(trigger.key() + ' ' + momentText(trigger->toULongLong()));
    if (json)
        printJson(QJsonObject::fromVariantMap(triggers));
    else
        printLine(texts.isEmpty() ? QStringLiteral("nothing ahead") : texts.join(", "));
}

} // namespace

Result<> runList(const CommandLine &line)
{
    if (const Result<> plain = withoutPositionals(line); !plain)
        return plain;
    const Result<QList<Clock::QmAlarmEvent>> alarms = loadAlarms();
    if (!alarms)
        return alarms.problem();
    printAlarms(*alarms, line.has("json"));
    return Done();
}

Result<> runNext(const CommandLine &line)
{
    if (const Result<> plain = withoutPositionals(line); !plain)
        return plain;
    const Result<quint32> count = parseCount(line.has("count") ? line.value("count") : "1");
    if (!count)
        return count.problem();
    const auto triggers = answerOf(Astel::Timed::Interface().next_triggers(*count));
    if (!triggers)
        return triggers.problem();
    QJsonArray array;
    for (const Astel::Timed::Wire::Trigger &trigger : *triggers) {
        array.append(QJsonObject{{"cookie", qint64(trigger.cookie)}, {"nextTrigger", qint64(trigger.moment)}});
        if (!line.has("json"))
            printLine(QStringLiteral("%1  %2").arg(trigger.cookie, 5).arg(momentText(trigger.moment)));
    }
    if (line.has("json"))
        printJson(array);
    return Done();
}

Result<> runWatch(const CommandLine &line)
{
    if (const Result<> plain = withoutPositionals(line); !plain)
        return plain;
    if (const Result<> reached = reachDaemon(); !reached)
        return reached;
    ContextProperty triggers(Settings::TriggerProperty);
    const bool json = line.has("json");
    bool known = false;
    // The first value is where the watching starts, not a change.
    QObject::connect(&triggers, &ContextProperty::valueChanged, &triggers, [&] {
        if (std::exchange(known, true))
            printTriggers(triggers.value().toMap(), json);
    });
    triggers.subscribe();
    QCoreApplication::exec();
    return Done();
}

Result<> runHealth(const CommandLine &line)
{
    if (const Result<> plain = withoutPositionals(line); !plain)
        return plain;
    const Result<QVariantMap> facts = answerOf(Astel::Timed::Interface().health());
    if (!facts)
        return facts.problem();
    if (line.has("json")) {
        printJson(QJsonObject::fromVariantMap(*facts));
        return Done();
    }
    for (auto fact = facts->cbegin(); fact != facts->cend(); ++fact)
        printLine(fact.key() + ": " + fact->toString());
    return Done();
}

Result<> runJournal(const CommandLine &line)
{
    if (const Result<> plain = withoutPositionals(line); !plain)
        return plain;
    const Result<qint64> since = parseEpoch(line.has("since") ? line.value("since") : "0");
    if (!since)
        return since.problem();
    const auto entries = answerOf(Astel::Timed::Interface().journal(*since * MillisecondsOfSecond));
    if (!entries)
        return entries.problem();
    QJsonArray array;
    for (const Astel::Timed::Wire::JournalEntry &entry : *entries) {
        array.append(QJsonObject{{"moment", entry.moment},
                                 {"cookie", qint64(entry.cookie)},
                                 {"what", entry.what},
                                 {"detail", entry.detail}});
        if (!line.has("json"))
            printLine(QStringLiteral("%1  %2  %3  %4")
                          .arg(momentText(quint64(entry.moment) * NanosecondsOfMillisecond))
                          .arg(entry.cookie, 5)
                          .arg(entry.what, entry.detail)
                          .trimmed());
    }
    if (line.has("json"))
        printJson(array);
    return Done();
}
