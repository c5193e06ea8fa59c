// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "alarmctl/argumentvalues.h"
#include "alarmctl/command.h"
#include "alarmctl/daemonaccess.h"
#include "alarmctl/output.h"
#include "alarmctl/ringrecord.h"
#include "platform/timedclient/interface.h"

#include <algorithm>

using Astel::Timed::Wire::JournalEntry;

namespace {

constexpr qint64 MillisecondsOfSecond = 1000;

Result<QList<RingRecord>> recordsOf(const CommandLine &line)
{
    const Result<qint64> since = parseMoment(line.value("since", "0"));
    if (!since)
        return since.error();
    const Result<quint32> count = parseCount(line.value("count", "1"));
    if (!count)
        return count.error();
    const auto entries = answerOf(Astel::Timed::Interface().journal(*since * MillisecondsOfSecond));
    if (!entries)
        return entries.error();
    QList<RingRecord> records = ringRecords(*entries);
    if (line.has("count") && records.size() > *count)
        records = records.last(*count);
    return records;
}

QJsonArray jsonOf(const QList<RingRecord> &records)
{
    QList<JournalEntry> entries;
    for (const RingRecord &record : records)
        entries.append(record.entries);
    std::stable_sort(entries.begin(), entries.end(),
                     [](const JournalEntry &left, const JournalEntry &right) { return left.moment < right.moment; });
    QJsonArray array;
    for (const JournalEntry &entry : entries)
        array.append(QJsonObject{{"moment", entry.moment},
                                 {"cookie", qint64(entry.cookie)},
                                 {"what", entry.what},
                                 {"detail", entry.detail}});
    return array;
}

} // namespace

Result<> runJournal(const CommandLine &line)
{
    if (const Result<> plain = line.withoutPositionals(); !plain)
        return plain;
    const Result<QList<RingRecord>> records = recordsOf(line);
    if (!records)
        return records.error();
    if (line.has("json")) {
        printJson(jsonOf(*records));
        return Done();
    }
    const QMap<quint32, QString> titles = titlesOf(*records);
    for (const RingRecord &record : *records)
        printLine(recordLine(record, titles.value(record.cookie)));
    return Done();
}
