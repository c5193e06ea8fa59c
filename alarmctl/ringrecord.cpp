// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "alarmctl/ringrecord.h"

#include "alarmctl/texts.h"

#include <QHash>
#include <QStringList>

#include <algorithm>

using Astel::Timed::Wire::JournalEntry;

namespace {

constexpr quint32 NoCookie = 0;
constexpr double MillisecondsOfSecond = 1000;

bool isEnd(const JournalEntry &entry)
{
    return entry.what == "answered" || entry.what == "missed";
}

// A snooze that is stopped while it lasts belongs to the ring that it followed.
bool continues(const RingRecord &record, const JournalEntry &entry)
{
    if (entry.cookie == NoCookie || entry.what == "due")
        return false;
    return entry.what != "missed" || !isEnd(record.entries.last());
}

bool has(const RingRecord &record, const char *what)
{
    return std::any_of(record.entries.begin(), record.entries.end(),
                       [what](const JournalEntry &entry) { return entry.what == QLatin1String(what); });
}

QString entryText(const JournalEntry &entry, qint64 begin)
{
    QString text = entry.what;
    if (entry.moment != begin)
        text += QStringLiteral(" +%1 s").arg((entry.moment - begin) / MillisecondsOfSecond, 0, 'f', 1);
    return entry.detail.isEmpty() ? text : text + " (" + entry.detail + ')';
}

} // namespace

QList<RingRecord> ringRecords(const QList<JournalEntry> &entries)
{
    QList<RingRecord> records;
    QHash<quint32, qsizetype> latest;
    for (const JournalEntry &entry : entries) {
        const auto known = latest.constFind(entry.cookie);
        if (known != latest.cend() && continues(records.at(*known), entry)) {
            records[*known].entries.append(entry);
            continue;
        }
        latest.insert(entry.cookie, records.size());
        records.append({entry.cookie, {entry}});
    }
    return records;
}

QList<RingRecord> lastRings(const QList<RingRecord> &records, qsizetype count)
{
    QList<RingRecord> rings;
    for (auto record = records.crbegin(); record != records.crend() && rings.size() < count; ++record) {
        if (record->cookie != NoCookie)
            rings.prepend(*record);
    }
    return rings;
}

QString recordLine(const RingRecord &record, const QString &title)
{
    const qint64 begin = record.entries.first().moment;
    QStringList texts;
    for (const JournalEntry &entry : record.entries)
        texts.append(entryText(entry, begin));
    const QString subject = record.cookie == NoCookie ? QString() : alarmText(record.cookie, title) + ": ";
    return localMoment(begin) + "  " + subject + texts.join(", ");
}

QString endOf(const RingRecord &record)
{
    const JournalEntry &last = record.entries.last();
    if (last.what == "missed")
        return "missed: " + last.detail;
    if (last.what == "failed")
        return "failed: " + last.detail;
    const QString end = last.what == "answered" ? last.detail : QStringLiteral("no answer so far");
    return has(record, "due") && !has(record, "sounded") ? end + ", not heard" : end;
}
