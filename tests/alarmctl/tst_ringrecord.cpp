// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "alarmctl/ringrecord.h"

#include "alarmctl/texts.h"

#include <QTest>

using Entries = QList<Astel::Timed::Wire::JournalEntry>;

namespace {

const Entries Answered{{1000, 7, "due", "12 ms late"},
                       {1300, 7, "rang", ""},
                       {1900, 7, "sounded", "/tones/tea.aac"},
                       {13000, 7, "answered", "stop by libclockalarm"}};

/** "7: due rang, 8: missed". */
QString shape(const Entries &entries)
{
    QStringList records;
    for (const RingRecord &record : ringRecords(entries)) {
        QStringList words;
        for (const auto &entry : record.entries)
            words.append(entry.what);
        records.append(QString("%1: %2").arg(record.cookie).arg(words.join(' ')));
    }
    return records.join(", ");
}

} // namespace

class TestRingRecord : public QObject
{
    Q_OBJECT

private slots:
    void entriesOfATriggerAreOneRecord_data();
    void entriesOfATriggerAreOneRecord();
    void aRecordIsOneLine();
    void aRecordSaysHowItEnded_data();
    void aRecordSaysHowItEnded();
    void theLastRingsAreThoseOfAlarms();
    void durationsHaveTwoUnits_data();
    void durationsHaveTwoUnits();
};

void TestRingRecord::entriesOfATriggerAreOneRecord_data()
{
    QTest::addColumn<Entries>("entries");
    QTest::addColumn<QString>("records");

    QTest::newRow("none") << Entries() << "";
    QTest::newRow("one") << Answered << "7: due rang sounded answered";
    QTest::newRow("snoozed, and again") << Entries{{1, 7, "due", ""},
                                                   {2, 7, "rang", ""},
                                                   {3, 7, "answered", "snooze"},
                                                   {9, 7, "due", ""}}
                                        << "7: due rang answered, 7: due";
    QTest::newRow("two at once") << Entries{{1, 7, "due", ""},  {1, 8, "due", ""},      {2, 7, "rang", ""},
                                            {2, 8, "rang", ""}, {3, 7, "answered", ""}, {4, 8, "missed", ""}}
                                 << "7: due rang answered, 8: due rang missed";
    QTest::newRow("it woke the device") << Entries{{1, 7, "due", ""}, {1, 7, "woke", ""}, {2, 7, "rang", ""}}
                                        << "7: due woke rang";
    QTest::newRow("missed while it was off")
        << Entries{{1, 7, "due", ""}, {3, 7, "answered", ""}, {9, 7, "missed", "off"}} << "7: due answered, 7: missed";
    QTest::newRow("missed twice") << Entries{{1, 7, "missed", ""}, {9, 7, "missed", ""}} << "7: missed, 7: missed";
    QTest::newRow("due again without an end") << Entries{{1, 7, "due", ""}, {9, 7, "due", ""}} << "7: due, 7: due";
    QTest::newRow("a snooze that is stopped")
        << Entries{{1, 7, "due", ""}, {3, 7, "answered", "snooze"}, {5, 7, "answered", "stop"}}
        << "7: due answered answered";
    QTest::newRow("of no alarm") << Entries{{1, 0, "clock set", ""}, {2, 0, "resumed", ""}}
                                 << "0: clock set, 0: resumed";
    QTest::newRow("cut off before") << Entries{{1, 7, "sounded", ""}, {2, 7, "answered", ""}} << "7: sounded answered";
}

void TestRingRecord::entriesOfATriggerAreOneRecord()
{
    QFETCH(const Entries, entries);
    QFETCH(const QString, records);
    QCOMPARE(shape(entries), records);
}

void TestRingRecord::aRecordIsOneLine()
{
    const QList<RingRecord> records = ringRecords(Answered);
    QCOMPARE(recordLine(records.first(), "Tea"),
             "1970-01-01 00:00:01  \"Tea\" (7): due (12 ms late), rang +0.3 s, sounded +0.9 s (/tones/tea.aac), "
             "answered +12.0 s (stop by libclockalarm)");
    QVERIFY(recordLine(records.first(), {}).contains("  alarm 7: due "));
    QCOMPARE(recordLine({0, {{1000, 0, "zone changed", "Asia/Kathmandu"}}}, {}),
             "1970-01-01 00:00:01  zone changed (Asia/Kathmandu)");
}

void TestRingRecord::aRecordSaysHowItEnded_data()
{
    QTest::addColumn<Entries>("entries");
    QTest::addColumn<QString>("end");

    QTest::newRow("answered") << Answered << "stop by libclockalarm";
    QTest::newRow("answered before it was heard")
        << Entries{{1, 7, "due", ""}, {2, 7, "rang", ""}, {3, 7, "answered", "stop by hand"}}
        << "stop by hand, not heard";
    QTest::newRow("rings") << Answered.first(3) << "no answer so far";
    QTest::newRow("missed") << Entries{{1, 7, "missed", "its moment passed 11 min ago"}}
                            << "missed: its moment passed 11 min ago";
    QTest::newRow("no ringer") << Entries{{1, 7, "due", ""}, {15, 7, "failed", "no answer"}} << "failed: no answer";
}

void TestRingRecord::aRecordSaysHowItEnded()
{
    QFETCH(const Entries, entries);
    QFETCH(const QString, end);
    QCOMPARE(endOf(ringRecords(entries).first()), end);
}

void TestRingRecord::theLastRingsAreThoseOfAlarms()
{
    const QList<RingRecord> records = ringRecords({{1, 7, "missed", ""},
                                                   {2, 8, "missed", ""},
                                                   {3, 0, "clock set", ""},
                                                   {4, 9, "due", ""},
                                                   {5, 0, "resumed", ""}});
    QCOMPARE(lastRings(records, 2), QList<RingRecord>({records.at(1), records.at(3)}));
    QCOMPARE(lastRings(records, 5).size(), 3);
}

void TestRingRecord::durationsHaveTwoUnits_data()
{
    QTest::addColumn<qint64>("seconds");
    QTest::addColumn<QString>("text");

    QTest::newRow("none") << 0LL << "0 s";
    QTest::newRow("seconds") << 59LL << "59 s";
    QTest::newRow("minutes") << 61LL << "1 min 1 s";
    QTest::newRow("hours") << 4379LL << "1 h 12 min";
    QTest::newRow("just under a day") << 86399LL << "23 h 59 min";
    QTest::newRow("days") << 273600LL << "3 d 4 h";
}

void TestRingRecord::durationsHaveTwoUnits()
{
    QFETCH(const qint64, seconds);
    QFETCH(const QString, text);
    QCOMPARE(durationText(seconds * 1000), text);
}

QTEST_GUILESS_MAIN(TestRingRecord)
#include "tst_ringrecord.moc"
