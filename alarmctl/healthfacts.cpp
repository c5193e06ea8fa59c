// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "alarmctl/healthfacts.h"

#include "alarmctl/daemonaccess.h"
#include "alarmctl/texts.h"
#include "platform/timedclient/interface.h"
#include "platform/timedclient/ringerclient.h"

#include <QDateTime>

#include <algorithm>

using Astel::Timed::Interface;
namespace Wire = Astel::Timed::Wire;

namespace {

constexpr qsizetype ShownRings = 5;

QString text(const QVariantMap &attributes, const char *name)
{
    return attributes.value(QLatin1String(name)).toString();
}

/** The first trigger that is ahead: those of alarms that ring now come before it. */
std::optional<Wire::Trigger> nextTrigger(Interface &timed, const HealthFacts &facts)
{
    const uint ringing = facts.daemon->value("events_ringing").toUInt();
    const auto triggers = answerOf(timed.next_triggers(ringing + 1));
    if (!triggers)
        return {};
    const auto isAhead = [&facts](const Wire::Trigger &trigger) { return millisecondsOf(trigger.moment) > facts.now; };
    const auto next = std::find_if(triggers->begin(), triggers->end(), isAhead);
    return next != triggers->end() ? std::optional(*next) : std::nullopt;
}

std::optional<NextAlarm> nextAlarm(Interface &timed, const HealthFacts &facts)
{
    const auto trigger = nextTrigger(timed, facts);
    if (!trigger)
        return {};
    const auto attributes = answerOf(timed.query_attributes(trigger->cookie));
    const QVariantMap known = attributes ? *attributes : QVariantMap();
    return NextAlarm{trigger->cookie, millisecondsOf(trigger->moment), text(known, "TITLE"), text(known, "sound"),
                     text(known, "PLUGIN")};
}

void askRinger(HealthFacts &facts)
{
    const NextAlarm alarm = facts.next.value_or(NextAlarm());
    auto reply = Astel::Timed::RingerClient().check(alarm.tone, alarm.plugin);
    reply.waitForFinished();
    if (reply.isError())
        facts.ringerProblem = reply.error().message();
    else
        facts.ringer = reply.value();
}

void askDaemon(HealthFacts &facts)
{
    Interface timed;
    auto reply = timed.health();
    reply.waitForFinished();
    if (reply.isError()) {
        facts.daemonProblem = reply.error().message();
        return;
    }
    facts.daemon = reply.value();
    facts.next = nextAlarm(timed, facts);
    if (const auto journal = answerOf(timed.journal(0)))
        facts.lastRings = lastRings(ringRecords(*journal), ShownRings);
    facts.titles = titlesOf(facts.lastRings);
}

} // namespace

HealthFacts gatherHealthFacts()
{
    HealthFacts facts;
    facts.now = QDateTime::currentMSecsSinceEpoch();
    askDaemon(facts);
    askRinger(facts);
    return facts;
}
