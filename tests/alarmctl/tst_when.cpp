// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/alarmctl/alarmctl.h"

#include <QJsonArray>
#include <QTest>

class TestWhen : public QObject
{
    Q_OBJECT

private slots:
    void computesMoments_data();
    void computesMoments();
    void printsAnArray();
    void saysWhereTheMomentsEnd();
    void needsNoDaemon();
    void refusesNonsense_data();
    void refusesNonsense();
};

void TestWhen::computesMoments_data()
{
    QTest::addColumn<QByteArray>("arguments");
    QTest::addColumn<QStringList>("moments");

    const auto row = [](const char *name, const char *arguments, const QStringList &moments) {
        QTest::newRow(name) << QByteArray(arguments) << moments;
    };
    row("Berlin, skipped, made up for: 03:30", "02:30 --zone Europe/Berlin --after 1774699200", {"1774747800"});
    row("Berlin, skipped, left out: the 30th", "02:30 --zone Europe/Berlin --after 1774699200 --no-fill",
        {"1774830600"});
    row("Berlin, comes twice: the first, then the next day", "02:30 --zone Europe/Berlin --after 1792843200 --count 2",
        {"1792888200", "1792978200"});
    row("Lord Howe, half an hour skipped: 02:45", "02:15 --zone Australia/Lord_Howe --after 1790985600",
        {"1791042300"});
    row("Lord Howe, half an hour skipped, left out", "02:15 --zone Australia/Lord_Howe --after 1790985600 --no-fill",
        {"1791126900"});
    row("Lord Howe, half an hour twice", "01:45 --zone Australia/Lord_Howe --after 1775260800 --count 2",
        {"1775313900", "1775402100"});
    row("Kathmandu, 05:45 ahead", "07:00 --zone Asia/Kathmandu --after 1767225600", {"1767230100"});
    row("Havana, midnight skipped", "00:30 --zone America/Havana --after 1741435200", {"1741498200"});
    row("Havana, midnight skipped, left out", "00:30 --zone America/Havana --after 1741435200 --no-fill",
        {"1741581000"});
    row("Havana, midnight twice", "00:30 --zone America/Havana --after 1761998400 --count 2",
        {"1762057800", "1762147800"});
    row("Apia, a day skipped: its ring is that of the day after",
        "08:00 --zone Pacific/Apia --after 1325196000 --count 2", {"1325268000", "1325354400"});
    row("Apia, only the day that was skipped", "08:00 --days fri --zone Pacific/Apia --after 1325196000",
        {"1325268000"});
    row("Apia, only the day that was skipped, left out",
        "08:00 --days fri --zone Pacific/Apia --after 1325196000 --no-fill", {"1325786400"});
    row("29 February", "08:00 --zone UTC --after 1835352000 --count 2", {"1835424000", "1835510400"});
    row("no 29 February", "08:00 --zone UTC --after 1803816000", {"1803888000"});
    row("no 29 February in 2100", "08:00 --zone UTC --after 4107499200", {"4107571200"});
    row("strictly later", "00:00 --zone UTC --after 0", {"86400"});
    row("before the epoch", "00:00 --zone UTC --after -86401 --count 2", {"-86400", "0"});
    row("Mondays and Fridays", "00:00 --zone UTC --after 0 --days mon,fri --count 3", {"86400", "345600", "691200"});
    row("weekdays", "00:00 --zone UTC --after 0 --days weekdays --count 3", {"86400", "345600", "432000"});
    row("one digit", "7:05 --zone UTC --after 0", {"25500"});
}

void TestWhen::computesMoments()
{
    QFETCH(const QByteArray, arguments);
    QFETCH(const QStringList, moments);
    const Run run = alarmctl("when " + arguments);
    QCOMPARE(run.errors, "");
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.output, moments.join('\n') + '\n');
}

void TestWhen::printsAnArray()
{
    const Run run = alarmctl("when 00:00 --zone UTC --after 0 --count 2 --json");
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.json().array(), QJsonArray({86400, 172800}));
}

void TestWhen::saysWhereTheMomentsEnd()
{
    const Run none = alarmctl("when 00:00 --zone UTC --after 253402300799");
    QCOMPARE(none.exitCode, 1);
    QCOMPARE(none.output, "");
    QCOMPARE(none.errors, "alarmctl: there is no such moment\n");
    const Run few = alarmctl("when 00:00 --zone UTC --after 252137404799 --count 9 --json");
    QCOMPARE(few.exitCode, 1);
    QCOMPARE(few.json().array(), QJsonArray({Q_INT64_C(252137404800)}));
    QCOMPARE(few.errors, "alarmctl: there are only 1 such moments\n");
}

void TestWhen::needsNoDaemon()
{
    const Run run
        = alarmctl({"when", "00:00", "--zone", "UTC", "--after", "0"}, {"DBUS_SESSION_BUS_ADDRESS=unix:path=/nowhere"});
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.output, "86400\n");
}

void TestWhen::refusesNonsense_data()
{
    QTest::addColumn<QByteArray>("arguments");
    QTest::addColumn<QString>("complaint");

    QTest::newRow("no time") << QByteArray("--zone UTC --after 0") << "HH:MM";
    QTest::newRow("no zone") << QByteArray("07:00 --after 0") << "--zone";
    QTest::newRow("no moment") << QByteArray("07:00 --zone UTC") << "--after";
    QTest::newRow("unknown zone") << QByteArray("07:00 --zone Mars/Olympus --after 0") << "Mars/Olympus";
    QTest::newRow("no number") << QByteArray("07:00 --zone UTC --after soon") << "soon";
    QTest::newRow("a number that is none of ours")
        << QByteArray("07:00 --zone UTC --after 9999999999999999999") << "9999999999999999999";
    QTest::newRow("hour 25") << QByteArray("25:00 --zone UTC --after 0") << "25:00";
    QTest::newRow("never") << QByteArray("07:00 --zone UTC --after 0 --days never") << "never";
    QTest::newRow("no count") << QByteArray("07:00 --zone UTC --after 0 --count 0") << "\"0\"";
    QTest::newRow("too many") << QByteArray("07:00 --zone UTC --after 0 --count 1001") << "1001";
}

void TestWhen::refusesNonsense()
{
    QFETCH(const QByteArray, arguments);
    QFETCH(const QString, complaint);
    const Run run = alarmctl("when " + arguments);
    QCOMPARE(run.exitCode, 2);
    QCOMPARE(run.output, "");
    QVERIFY2(run.errors.contains(complaint), qPrintable(run.errors));
    QVERIFY(run.errors.contains("alarmctl when --help"));
}

QTEST_GUILESS_MAIN(TestWhen)
#include "tst_when.moc"
