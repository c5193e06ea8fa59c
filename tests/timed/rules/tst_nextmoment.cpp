// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timed/rules/nextmoment.h"
#include "platform/timed/rules/zone.h"

#include <QDateTime>
#include <QElapsedTimer>
#include <QTest>

using namespace Astel::Timed::Rules;

namespace {

constexpr quint32 AllHours = (1u << 24) - 1;
constexpr quint64 AllMinutes = (Q_UINT64_C(1) << 60) - 1;
constexpr quint32 AllWeekdays = (1u << 7) - 1;
constexpr quint32 AllDays = 0xfffffffeu;
constexpr quint32 AllMonths = 0x1ffeu;

enum class Gaps {
    Fill,
    Skip,
};

Rule at(int hour, int minute, Gaps gaps = Gaps::Fill)
{
    return {1u << hour, Q_UINT64_C(1) << minute, AllWeekdays, AllDays, AllMonths, gaps == Gaps::Fill};
}

Rule onDate(int month, int day, int hour, int minute, quint32 weekdays = AllWeekdays)
{
    return {1u << hour, Q_UINT64_C(1) << minute, weekdays, 1u << day, 1u << month, true};
}

qint64 moment(const char *text)
{
    QDateTime result = QDateTime::fromString(QString::fromLatin1(text), Qt::ISODate);
    result.setTimeSpec(Qt::UTC);
    return result.toSecsSinceEpoch();
}

Zone zone(const QByteArray &id)
{
    return *Zone::create(id);
}

} // namespace

class TestNextMoment : public QObject
{
    Q_OBJECT

private slots:
    void dailyTime_data();
    void dailyTime();
    void sparseRule_data();
    void sparseRule();
    void ruleThatCannotMatchEndsQuickly_data();
    void ruleThatCannotMatchEndsQuickly();
    void everyMinuteGoesThroughAGapWithoutPause();
    void filledTimeComesAfterAnEarlierLaterOne();
    void unknownZoneIsRefusedWithItsName();
    void environmentChoosesTheLocalZone_data();
    void environmentChoosesTheLocalZone();
};

void TestNextMoment::dailyTime_data()
{
    QTest::addColumn<QByteArray>("zoneId");
    QTest::addColumn<Rule>("rule");
    QTest::addColumn<QString>("after");
    QTest::addColumn<QString>("expected");

    const auto row = [](const char *name, const char *id, const Rule &rule, const char *after, const char *expected) {
        QTest::newRow(name) << QByteArray(id) << rule << QString::fromLatin1(after) << QString::fromLatin1(expected);
    };
    // The moments are UTC.
    row("plain day", "Europe/Berlin", at(7, 0), "2026-01-10T12:00:00", "2026-01-11T06:00:00");
    row("strictly later", "Europe/Berlin", at(7, 0), "2026-01-10T06:00:00", "2026-01-11T06:00:00");
    row("a second before", "Europe/Berlin", at(7, 0), "2026-01-10T05:59:59", "2026-01-10T06:00:00");
    row("spring gap filled", "Europe/Berlin", at(2, 30), "2026-03-28T12:00:00", "2026-03-29T01:30:00");
    row("spring gap skipped", "Europe/Berlin", at(2, 30, Gaps::Skip), "2026-03-28T12:00:00", "2026-03-30T00:30:00");
    row("start of the gap", "Europe/Berlin", at(2, 0), "2026-03-28T12:00:00", "2026-03-29T01:00:00");
    row("end of the gap", "Europe/Berlin", at(3, 0), "2026-03-28T12:00:00", "2026-03-29T01:00:00");
    row("day after the gap", "Europe/Berlin", at(2, 30), "2026-03-29T01:30:00", "2026-03-30T00:30:00");
    row("autumn, first of two", "Europe/Berlin", at(2, 30), "2026-10-24T12:00:00", "2026-10-25T00:30:00");
    row("autumn, not the second", "Europe/Berlin", at(2, 30), "2026-10-25T00:30:00", "2026-10-26T01:30:00");
    row("autumn, between the two", "Europe/Berlin", at(2, 30), "2026-10-25T01:10:00", "2026-10-26T01:30:00");
    row("half-hour gap filled", "Australia/Lord_Howe", at(2, 15), "2026-10-03T12:00:00", "2026-10-03T15:45:00");
    row("half-hour gap skipped", "Australia/Lord_Howe", at(2, 15, Gaps::Skip), "2026-10-03T12:00:00",
        "2026-10-04T15:15:00");
    row("half-hour overlap", "Australia/Lord_Howe", at(1, 45), "2026-04-04T12:00:00", "2026-04-04T14:45:00");
    row("45-minute offset", "Asia/Kathmandu", at(6, 0), "2026-05-01T00:14:59", "2026-05-01T00:15:00");
    row("45-minute offset, next", "Asia/Kathmandu", at(6, 0), "2026-05-01T00:15:00", "2026-05-02T00:15:00");
    row("gap at midnight filled", "America/Havana", at(0, 30), "2026-03-07T12:00:00", "2026-03-08T05:30:00");
    row("gap at midnight skipped", "America/Havana", at(0, 30, Gaps::Skip), "2026-03-07T12:00:00",
        "2026-03-09T04:30:00");
    row("overlap at midnight", "America/Havana", at(0, 30), "2026-10-31T12:00:00", "2026-11-01T04:30:00");
    row("skipped day filled", "Pacific/Apia", at(7, 0), "2011-12-29T18:00:00", "2011-12-30T17:00:00");
    row("skipped day rings once", "Pacific/Apia", at(7, 0), "2011-12-30T17:00:00", "2011-12-31T17:00:00");
    row("skipped day left out", "Pacific/Apia", at(7, 0, Gaps::Skip), "2011-12-29T18:00:00", "2011-12-30T17:00:00");
    row("beyond the zone's table", "Europe/Berlin", at(7, 0), "2050-07-01T12:00:00", "2050-07-02T05:00:00");
    row("gap beyond the table", "Europe/Berlin", at(2, 30), "2050-03-26T12:00:00", "2050-03-27T01:30:00");
    row("before the epoch", "Europe/Berlin", at(7, 0), "1965-07-01T12:00:00", "1965-07-02T06:00:00");
    row("POSIX description", "CET-1CEST,M3.5.0,M10.5.0/3", at(2, 30), "2026-03-28T12:00:00", "2026-03-29T01:30:00");
    row("UTC", "UTC", at(0, 0), "2026-12-31T23:59:59", "2027-01-01T00:00:00");
}

void TestNextMoment::dailyTime()
{
    QFETCH(QByteArray, zoneId);
    QFETCH(Rule, rule);
    QFETCH(QString, after);
    QFETCH(QString, expected);

    const auto found = nextMoment(rule, zone(zoneId), moment(after.toLatin1()));
    QVERIFY(found);
    QCOMPARE(QDateTime::fromSecsSinceEpoch(*found, Qt::UTC).toString("yyyy-MM-ddTHH:mm:ss"), expected);
}

void TestNextMoment::sparseRule_data()
{
    QTest::addColumn<Rule>("rule");
    QTest::addColumn<QString>("after");
    QTest::addColumn<QString>("expected");

    constexpr quint32 sunday = 1u << 0;
    constexpr quint32 monday = 1u << 1;
    Rule mondays = at(7, 0);
    mondays.daysOfWeek = monday;
    Rule quarters = at(9, 15);
    quarters.minutes |= Q_UINT64_C(1) << 45;
    quarters.hours |= 1u << 20;

    const auto row = [](const char *name, const Rule &rule, const char *after, const char *expected) {
        QTest::newRow(name) << rule << QString::fromLatin1(after) << QString::fromLatin1(expected);
    };
    row("weekday", mondays, "2026-11-20T12:00:00", "2026-11-23T07:00:00");
    row("later minute of the hour", quarters, "2026-11-20T09:15:00", "2026-11-20T09:45:00");
    row("later hour of the day", quarters, "2026-11-20T09:45:00", "2026-11-20T20:15:00");
    row("29 February", onDate(2, 29, 7, 0), "2026-01-01T00:00:00", "2028-02-29T07:00:00");
    row("29 February over 2100", onDate(2, 29, 7, 0), "2096-03-01T00:00:00", "2104-02-29T07:00:00");
    row("29 February, a Sunday", onDate(2, 29, 7, 0, sunday), "2026-01-01T00:00:00", "2032-02-29T07:00:00");
    row("forty years, the longest wait", onDate(2, 29, 7, 0, sunday), "2088-02-29T07:00:00", "2128-02-29T07:00:00");
    row("Friday the 13th of November", onDate(11, 13, 7, 0, 1u << 5), "2026-11-14T00:00:00", "2037-11-13T07:00:00");
    row("31st", onDate(12, 31, 23, 59), "2026-12-31T23:59:00", "2027-12-31T23:59:00");
}

void TestNextMoment::sparseRule()
{
    QFETCH(Rule, rule);
    QFETCH(QString, after);
    QFETCH(QString, expected);

    const auto found = nextMoment(rule, zone("UTC"), moment(after.toLatin1()));
    QVERIFY(found);
    QCOMPARE(QDateTime::fromSecsSinceEpoch(*found, Qt::UTC).toString("yyyy-MM-ddTHH:mm:ss"), expected);
}

void TestNextMoment::ruleThatCannotMatchEndsQuickly_data()
{
    QTest::addColumn<Rule>("rule");
    QTest::addColumn<qint64>("after");

    const qint64 now = moment("2026-11-20T12:00:00");
    QTest::newRow("30 February") << onDate(2, 30, 7, 0) << now;
    QTest::newRow("31 April") << onDate(4, 31, 7, 0) << now;
    QTest::newRow("empty sets") << Rule{} << now;
    Rule noHours = at(7, 0);
    noHours.hours = 0;
    QTest::newRow("no hour on any day") << noHours << now;
    Rule alwaysInTheGap = at(2, 30, Gaps::Skip);
    alwaysInTheGap.daysOfWeek = 1;
    alwaysInTheGap.daysOfMonth = 0xfe000000u;
    alwaysInTheGap.months = 1u << 3;
    QTest::newRow("only in gaps that are left out") << alwaysInTheGap << now;
    QTest::newRow("end of time") << at(7, 0) << std::numeric_limits<qint64>::max();
}

void TestNextMoment::ruleThatCannotMatchEndsQuickly()
{
    QFETCH(Rule, rule);
    QFETCH(qint64, after);

    const Zone berlin = zone("Europe/Berlin");
    QElapsedTimer elapsed;
    elapsed.start();
    QVERIFY(!nextMoment(rule, berlin, after));
    QVERIFY2(elapsed.elapsed() < 3000, qPrintable(QString::number(elapsed.elapsed())));
}

void TestNextMoment::everyMinuteGoesThroughAGapWithoutPause()
{
    const Rule always{AllHours, AllMinutes, AllWeekdays, AllDays, AllMonths, true};
    const Zone havana = zone("America/Havana");
    qint64 now = moment("2026-03-08T04:00:00");
    for (int i = 0; i < 180; ++i) {
        const auto next = nextMoment(always, havana, now);
        QCOMPARE(next, std::optional(now + 60));
        now = *next;
    }
}

void TestNextMoment::filledTimeComesAfterAnEarlierLaterOne()
{
    // 02:30 is read as 03:30 in that night, so 03:10 comes first.
    Rule rule = at(2, 30);
    rule.hours |= 1u << 3;
    rule.minutes |= Q_UINT64_C(1) << 10;
    const Zone berlin = zone("Europe/Berlin");
    QList<qint64> found;
    qint64 now = moment("2026-03-28T12:00:00");
    for (int i = 0; i < 3; ++i) {
        now = *nextMoment(rule, berlin, now);
        found.append(now);
    }
    QCOMPARE(
        found,
        (QList<qint64>{moment("2026-03-29T01:10:00"), moment("2026-03-29T01:30:00"), moment("2026-03-30T00:10:00")}));
}

void TestNextMoment::unknownZoneIsRefusedWithItsName()
{
    QString error;
    QVERIFY(!Zone::create("Atlantis/Capital", &error));
    QCOMPARE(error, QStringLiteral("unknown time zone \"Atlantis/Capital\""));
    QVERIFY(!Zone::create("", &error));
    QVERIFY(!Zone::create("../../../etc/passwd", &error));
}

void TestNextMoment::environmentChoosesTheLocalZone_data()
{
    QTest::addColumn<QByteArray>("environment");
    QTest::addColumn<qint64>("offset");

    QTest::newRow("identifier") << QByteArray("Asia/Kathmandu") << qint64(20700);
    QTest::newRow("with colon") << QByteArray(":Asia/Kathmandu") << qint64(20700);
    QTest::newRow("path") << QByteArray("/usr/share/zoneinfo/Asia/Kathmandu") << qint64(20700);
    QTest::newRow("POSIX description") << QByteArray("<+05>-5") << qint64(18000);
    QTest::newRow("empty means UTC") << QByteArray("") << qint64(0);
}

void TestNextMoment::environmentChoosesTheLocalZone()
{
    QFETCH(QByteArray, environment);
    QFETCH(qint64, offset);

    const QByteArray before = qgetenv("TZ");
    qputenv("TZ", environment);
    const auto local = Zone::local();
    qputenv("TZ", before);
    QVERIFY(local);
    QCOMPARE(local->stretchAt(moment("2026-11-20T12:00:00")).offset, offset);
}

QTEST_GUILESS_MAIN(TestNextMoment)
#include "tst_nextmoment.moc"
