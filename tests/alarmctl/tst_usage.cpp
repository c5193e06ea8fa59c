// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/alarmctl/alarmctl.h"
#include "tests/support/privatebus.h"

#include <QJsonArray>
#include <QProcess>
#include <QTest>

namespace {

const QStringList Commands{"list", "add", "edit", "on", "off", "remove", "next", "when", "watch", "health", "journal"};

} // namespace

class TestUsage : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void helpsWithExamples();
    void helpsWithEveryCommand_data();
    void helpsWithEveryCommand();
    void refusesNonsenseWithAHintAndChangesNothing_data();
    void refusesNonsenseWithAHintAndChangesNothing();
    void refusesAToneThatIsNotThere();
    void saysInOneLineThatTheBusIsMissing_data();
    void saysInOneLineThatTheBusIsMissing();
    void saysInOneLineThatTheDaemonIsMissing_data();
    void saysInOneLineThatTheDaemonIsMissing();
    void healthSaysThatTheDaemonIsMissing_data();
    void healthSaysThatTheDaemonIsMissing();
    void saysThatItsOutputIsLost_data();
    void saysThatItsOutputIsLost();
    void showsTheTraceOnlyWhenAsked();

private:
    Support::PrivateBus m_bus;
    Support::TimedProcess m_daemon;
};

void TestUsage::initTestCase()
{
    QVERIFY(m_bus.isRunning());
    QVERIFY(m_daemon.start());
}

void TestUsage::helpsWithExamples()
{
    const Run run = alarmctl("--help");
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.errors, "");
    for (const QString &command : Commands)
        QVERIFY2(run.output.contains("\n  " + command + ' '), qPrintable(command));
    QVERIFY(run.output.contains("Examples:\n  alarmctl "));
}

void TestUsage::helpsWithEveryCommand_data()
{
    QTest::addColumn<QString>("command");

    for (const QString &command : Commands)
        QTest::newRow(qPrintable(command)) << command;
}

void TestUsage::helpsWithEveryCommand()
{
    QFETCH(const QString, command);
    const Run run = alarmctl({command, "--help"});
    QCOMPARE(run.exitCode, 0);
    QVERIFY(run.output.startsWith("Usage: alarmctl " + command));
    QVERIFY(run.output.contains("Examples:\n  alarmctl " + command));
    for (const QString &line : run.lines())
        QVERIFY2(line.size() <= 100, qPrintable(line));
}

void TestUsage::refusesNonsenseWithAHintAndChangesNothing_data()
{
    QTest::addColumn<QByteArray>("arguments");
    QTest::addColumn<QString>("complaint");
    QTest::addColumn<QString>("hint");

    const auto row = [](const char *arguments, const char *complaint, const char *hint) {
        QTest::newRow(arguments) << QByteArray(arguments) << QString(complaint)
                                 << QString("alarmctl %1--help").arg(hint);
    };
    row("", "command", "");
    row("frob", "\"frob\"", "");
    row("add", "HH:MM", "add ");
    row("add 07:00 08:00", "HH:MM", "add ");
    row("add 25:00", "\"25:00\"", "add ");
    row("add 24:00", "\"24:00\"", "add ");
    row("add 07:60", "\"07:60\"", "add ");
    row("add 7:5x", "\"7:5x\"", "add ");
    row("add 7", "\"7\"", "add ");
    row("add -1:00", "\"-1:00\"", "add ");
    row("add 07:00 --frob", "\"--frob\"", "add ");
    row("add 07:00 --title", "--title needs a value", "add ");
    row("add 07:00 --off=1", "--off takes no value", "add ");
    row("add 07:00 --snooze 5 --snooze 10", "--snooze is given twice", "add ");
    row("add 07:00 --days mon,xyz", "\"xyz\"", "add ");
    row("add 07:00 --days mon,,tue", "\"\"", "add ");
    row("add 07:00 --days 1", "\"1\"", "add ");
    row("add 07:00 --snooze 0", "\"0\"", "add ");
    row("add 07:00 --snooze 300", "\"300\"", "add ");
    row("add 07:00 --snooze 7", "\"7\"", "add ");
    row("add 07:00 --snooze five", "\"five\"", "add ");
    row("edit", "cookie", "edit ");
    row("edit 1", "nothing to change", "edit ");
    row("edit 1 2 --off", "one cookie", "edit ");
    row("edit -1 --off", "\"-1\"", "edit ");
    row("edit 1 --on --off", "at once", "edit ");
    row("edit 1 --time 25:00", "\"25:00\"", "edit ");
    row("on", "cookie", "on ");
    row("off -5", "\"-5\"", "off ");
    row("remove", "cookie", "remove ");
    row("remove 0", "\"0\"", "remove ");
    row("remove 1 x", "\"x\"", "remove ");
    row("remove 2147483648", "\"2147483648\"", "remove ");
    row("remove 99999999999999999999", "\"99999999999999999999\"", "remove ");
    row("list all", "\"all\"", "list ");
    row("next --count 0", "\"0\"", "next ");
    row("next --count -3", "\"-3\"", "next ");
    row("watch x", "\"x\"", "watch ");
    row("health now", "\"now\"", "health ");
    row("journal x", "\"x\"", "journal ");
    row("journal --count 0", "\"0\"", "journal ");
    row("journal --since yesterday", "\"yesterday\"", "journal ");
    row("journal --since 2026-02-30", "\"2026-02-30\"", "journal ");
}

void TestUsage::refusesNonsenseWithAHintAndChangesNothing()
{
    QFETCH(const QByteArray, arguments);
    QFETCH(const QString, complaint);
    QFETCH(const QString, hint);
    const Run run = alarmctl(arguments);
    QCOMPARE(run.exitCode, 2);
    QCOMPARE(run.output, "");
    QCOMPARE(run.errorLines().size(), 2);
    QVERIFY2(run.errorLines().first().contains(complaint), qPrintable(run.errors));
    QVERIFY2(run.errorLines().last().contains(hint), qPrintable(run.errors));
    QCOMPARE(alarmctl("list --json").output, "[]\n");
}

void TestUsage::refusesAToneThatIsNotThere()
{
    const Run run = alarmctl("add 07:00 --tone /no/such/tone.aac");
    QCOMPARE(run.exitCode, 1);
    QCOMPARE(run.output, "");
    QCOMPARE(run.errorLines().size(), 1);
    QVERIFY(run.errors.contains("/no/such/tone.aac"));
    QCOMPARE(alarmctl("list --json").json().array(), QJsonArray());
}

void TestUsage::saysInOneLineThatTheBusIsMissing_data()
{
    QTest::addColumn<QByteArray>("arguments");

    for (const char *arguments : {"list", "add 07:00", "edit 1 --off", "on 1", "remove 1", "next", "watch", "journal"})
        QTest::newRow(arguments) << QByteArray(arguments);
}

void TestUsage::saysInOneLineThatTheBusIsMissing()
{
    QFETCH(const QByteArray, arguments);
    const Run run = alarmctl(QString(arguments).split(' '), {"DBUS_SESSION_BUS_ADDRESS=unix:path=/nowhere"});
    QCOMPARE(run.exitCode, 1);
    QCOMPARE(run.output, "");
    QCOMPARE(run.errorLines().size(), 1);
}

void TestUsage::saysInOneLineThatTheDaemonIsMissing_data()
{
    saysInOneLineThatTheBusIsMissing_data();
}

void TestUsage::saysInOneLineThatTheDaemonIsMissing()
{
    QFETCH(const QByteArray, arguments);
    const Support::PrivateBus empty;
    const QString address = qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS");
    const Run run = alarmctl(QString(arguments).split(' '), {"DBUS_SESSION_BUS_ADDRESS=" + address});
    QCOMPARE(run.exitCode, 1);
    QCOMPARE(run.output, "");
    QCOMPARE(run.errorLines().size(), 1);
    QVERIFY2(run.errors.contains("com.astel.timed"), qPrintable(run.errors));
}

void TestUsage::healthSaysThatTheDaemonIsMissing_data()
{
    QTest::addColumn<bool>("hasBus");

    QTest::newRow("no bus") << false;
    QTest::newRow("no daemon on it") << true;
}

void TestUsage::healthSaysThatTheDaemonIsMissing()
{
    QFETCH(const bool, hasBus);
    const Support::PrivateBus empty;
    const QString address = hasBus ? qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS") : "unix:path=/nowhere";
    const QStringList environment{"DBUS_SESSION_BUS_ADDRESS=" + address};
    const Run run = alarmctl({"health"}, environment);
    QCOMPARE(run.exitCode, 1);
    QCOMPARE(run.errors, "");
    QVERIFY2(run.output.startsWith("No, no alarm will ring: alarm daemon: does not answer: "), qPrintable(run.output));
    const Run json = alarmctl({"health", "--json"}, environment);
    QCOMPARE(json.exitCode, 1);
    QCOMPARE(json.json()["verdict"]["mark"].toString(), "bad");
    QVERIFY(json.json()["daemon"].isNull());
}

void TestUsage::saysThatItsOutputIsLost_data()
{
    QTest::addColumn<QStringList>("arguments");

    QTest::newRow("help") << QStringList{"--help"};
    QTest::newRow("version") << QStringList{"--version"};
    QTest::newRow("command") << QStringList{"when", "07:00", "--zone", "UTC", "--after", "0"};
}

void TestUsage::saysThatItsOutputIsLost()
{
    QFETCH(const QStringList, arguments);
    QProcess process;
    process.setStandardOutputFile("/dev/full");
    process.start(alarmctlPath(), arguments);
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitCode(), 1);
    QCOMPARE(process.readAllStandardError(), "alarmctl: the output cannot be written\n");
}

void TestUsage::showsTheTraceOnlyWhenAsked()
{
    const QStringList nowhere{"DBUS_SESSION_BUS_ADDRESS=unix:path=/nowhere"};
    QVERIFY(!alarmctl({"add", "07:00"}, nowhere).errors.contains("QmAlarm"));
    QVERIFY(alarmctl({"add", "07:00"}, nowhere + QStringList{"CLOCK_DEBUG=1"}).errors.contains("QmAlarm::add"));
}

QTEST_GUILESS_MAIN(TestUsage)
#include "tst_usage.moc"
