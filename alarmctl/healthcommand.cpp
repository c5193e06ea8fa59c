// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "alarmctl/command.h"
#include "alarmctl/findings.h"
#include "alarmctl/output.h"
#include "alarmctl/texts.h"

namespace {

QString word(Mark mark)
{
    switch (mark) {
    case Mark::Good:
        return QStringLiteral("ok");
    case Mark::Warning:
        return QStringLiteral("warning");
    case Mark::Bad:
        break;
    }
    return QStringLiteral("bad");
}

QJsonArray jsonOf(const QList<Finding> &findings)
{
    QJsonArray array;
    for (const Finding &finding : findings)
        array.append(QJsonObject{{"mark", word(finding.mark)}, {"subject", finding.subject}, {"text", finding.text}});
    return array;
}

QJsonValue jsonOf(const std::optional<NextAlarm> &alarm)
{
    if (!alarm)
        return {};
    return QJsonObject{{"cookie", qint64(alarm->cookie)},
                       {"moment", alarm->moment},
                       {"title", alarm->title},
                       {"tone", alarm->tone},
                       {"plugin", alarm->plugin}};
}

QJsonArray ringsJson(const HealthFacts &facts)
{
    QJsonArray array;
    for (const RingRecord &record : facts.lastRings)
        array.append(QJsonObject{{"moment", record.entries.first().moment},
                                 {"cookie", qint64(record.cookie)},
                                 {"title", facts.titles.value(record.cookie)},
                                 {"end", endOf(record)}});
    return array;
}

QJsonValue jsonOf(const std::optional<QVariantMap> &facts)
{
    return facts ? QJsonValue(QJsonObject::fromVariantMap(*facts)) : QJsonValue();
}

void printAll(const HealthFacts &facts, const Verdict &verdict, const QList<Finding> &findings)
{
    printLine(verdict.text);
    for (const Finding &finding : findings)
        printLine(QStringLiteral("%1  %2: %3").arg(word(finding.mark), -7).arg(finding.subject, finding.text));
    if (!facts.lastRings.isEmpty())
        printLine("last rings:");
    for (const RingRecord &record : facts.lastRings)
        printLine(QStringLiteral("  %1  %2: %3")
                      .arg(localMoment(record.entries.first().moment),
                           alarmText(record.cookie, facts.titles.value(record.cookie)), endOf(record)));
}

} // namespace

Result<> runHealth(const CommandLine &line)
{
    if (const Result<> plain = line.withoutPositionals(); !plain)
        return plain;
    const HealthFacts facts = gatherHealthFacts();
    const QList<Finding> findings = findingsOf(facts);
    const Verdict verdict = verdictOf(facts, findings);
    if (line.has("json"))
        printJson(QJsonObject{{"verdict", QJsonObject{{"mark", word(verdict.mark)}, {"text", verdict.text}}},
                              {"findings", jsonOf(findings)},
                              {"next", jsonOf(facts.next)},
                              {"daemon", jsonOf(facts.daemon)},
                              {"ringer", jsonOf(facts.ringer)},
                              {"rings", ringsJson(facts)}});
    else
        printAll(facts, verdict, findings);
    if (verdict.mark == Mark::Bad)
        return failure({});
    return Done();
}
