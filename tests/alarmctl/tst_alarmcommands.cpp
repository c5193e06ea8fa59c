// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "alarms/utility.h"
#include "tests/alarmctl/alarmctl.h"
#include "tests/support/privatebus.h"

#include <QDateTime>
#include <QFile>
#include <QJsonArray>
#include <QJsonObject>
#include <QSettings>
#include <QTest>

namespace {

QJsonArray listed()
{
    return alarmctl("list --json").json().array();
}

/** The only alarm there is. */
QJsonObject onlyAlarm()
{
    const QJsonArray alarms = listed();
    return alarms.size() == 1 ? alarms.first().toObject() : QJsonObject();
}

int cookieOf(const Run &run)
{
    return run.exitCode == 0 ? run.output.trimmed().toInt() : -1;
}

int add(const QByteArray &arguments)
{
    return cookieOf(alarmctl("add " + arguments));
}

QByteArray number(int cookie)
{
    return QByteArray::number(cookie);
}

} // namespace

class TestAlarmCommands : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();
    void listsNothingAtFirst();
    void addsAnAlarmWithDefaults();
    void addsAnAlarmWithEverything();
    void addsASwitchedOffAlarm();
    void startsFromThePreferences();
    void tellsWhyTheDaemonRefused();
    void listsInTheOrderOfTheApplication();
    void listsInLines();
    void editsOneThingAtATime_data();
    void editsOneThingAtATime();
    void switchesOnAndOff();
    void leavesAlarmsThatNeedNoSwitchingAlone();
    void removesSeveral();
    void touchesNothingIfOneAlarmIsUnknown();
    void showsWhatIsNext();
    void healthMissesTheRinger();
    void healthOfNoAlarmIsGood();
    void keepsAnAlarmWhenTheDaemonIsKilled();

private:
    Support::PrivateBus m_bus;
    Support::TimedProcess m_daemon;
    QTemporaryDir m_tones;
};

void TestAlarmCommands::initTestCase()
{
    QVERIFY(m_bus.isRunning());
    QVERIFY(m_daemon.start());
    QFile tone(m_tones.filePath("My tone.aac"));
    QVERIFY(tone.open(QIODevice::WriteOnly));
}

void TestAlarmCommands::cleanup()
{
    for (const QJsonValue alarm : listed())
        QCOMPARE(alarmctl("remove " + number(alarm["cookie"].toInt())).exitCode, 0);
    QCOMPARE(listed(), QJsonArray());
}

void TestAlarmCommands::listsNothingAtFirst()
{
    const Run run = alarmctl("list");
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.output, "");
    QCOMPARE(run.errors, "");
    QCOMPARE(alarmctl("list --json").output, "[]\n");
}

void TestAlarmCommands::addsAnAlarmWithDefaults()
{
    const Run run = alarmctl("add 7:05");
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.errors, "");
    const int cookie = run.output.trimmed().toInt();
    QVERIFY(cookie > 0);
    QCOMPARE(run.output, QString::number(cookie) + '\n');
    const QJsonObject alarm = onlyAlarm();
    QCOMPARE(alarm.keys(),
             QStringList({"cookie", "days", "enabled", "nextTrigger", "snooze", "time", "title", "tone"}));
    QCOMPARE(alarm["cookie"].toInt(), cookie);
    QCOMPARE(alarm["time"].toString(), "07:05");
    QCOMPARE(alarm["title"], QJsonValue(""));
    QCOMPARE(alarm["enabled"], QJsonValue(true));
    QCOMPARE(alarm["days"].toArray(), QJsonArray());
    QCOMPARE(alarm["snooze"].toInt(), 10);
    QCOMPARE(alarm["tone"].toString(), Clock::Utility::defaultAlertTone());
    QVERIFY(alarm["nextTrigger"].isDouble());
    const qint64 nanoseconds = alarm["nextTrigger"].toInteger();
    const QDateTime trigger = QDateTime::fromMSecsSinceEpoch(nanoseconds / 1000000);
    QCOMPARE(trigger.time(), QTime(7, 5));
    QCOMPARE(nanoseconds % 1000000000, 0);
    QVERIFY(trigger > QDateTime::currentDateTime().addSecs(-60));
    QVERIFY(trigger < QDateTime::currentDateTime().addDays(1).addSecs(60));
}

void TestAlarmCommands::addsAnAlarmWithEverything()
{
    const QString tone = m_tones.filePath("My tone.aac");
    const QString title = QString::fromUtf8("Früh \"auf\" 🐓");
    const Run run = alarmctl(
        {"add", "23:59", "--title=" + title, "--days", "Fri,mon,fri", "--snooze", "30", "--tone", tone, "--json"});
    QCOMPARE(run.exitCode, 0);
    const QJsonObject alarm = onlyAlarm();
    QCOMPARE(run.json().object(), (QJsonObject{{"cookie", alarm["cookie"]}}));
    QCOMPARE(alarm["time"].toString(), "23:59");
    QCOMPARE(alarm["title"].toString(), title);
    QCOMPARE(alarm["days"].toArray(), QJsonArray({5, 1}));
    QCOMPARE(alarm["snooze"].toInt(), 30);
    QCOMPARE(alarm["tone"].toString(), tone);
}

void TestAlarmCommands::addsASwitchedOffAlarm()
{
    QVERIFY(add("06:00 --off --days daily") > 0);
    const QJsonObject alarm = onlyAlarm();
    QCOMPARE(alarm["enabled"], QJsonValue(false));
    QCOMPARE(alarm["days"].toArray(), QJsonArray({0, 1, 2, 3, 4, 5, 6}));
    QVERIFY(alarm["nextTrigger"].isNull());
    QVERIFY(alarm.contains("nextTrigger"));
}

void TestAlarmCommands::startsFromThePreferences()
{
    const QString tone = m_tones.filePath("My tone.aac");
    QSettings settings("Korvo", "Clock");
    settings.setValue("Clock/SnoozeTime", 20);
    settings.setValue("Clock/DefaultTone", tone);
    settings.sync();
    QVERIFY(add("06:00") > 0);
    QCOMPARE(onlyAlarm()["snooze"].toInt(), 20);
    QCOMPARE(onlyAlarm()["tone"].toString(), tone);
    cleanup();
    settings.setValue("Clock/SnoozeTime", 7);
    settings.setValue("Clock/DefaultTone", m_tones.filePath("deleted.aac"));
    settings.sync();
    QVERIFY(add("06:00") > 0);
    QCOMPARE(onlyAlarm()["snooze"].toInt(), 10);
    QCOMPARE(onlyAlarm()["tone"].toString(), Clock::Utility::defaultAlertTone());
    settings.clear();
    settings.sync();
}

void TestAlarmCommands::tellsWhyTheDaemonRefused()
{
    const Run run = alarmctl({"add", "07:00", "--title", QString(5000, 'x')});
    QCOMPARE(run.exitCode, 1);
    QCOMPARE(run.output, "");
    QCOMPARE(run.errorLines().size(), 1);
    QVERIFY2(run.errors.contains("TITLE") && run.errors.contains("4096"), qPrintable(run.errors));
}

void TestAlarmCommands::listsInTheOrderOfTheApplication()
{
    const int offSix = add("06:00 --off");
    const int on = add("12:00");
    const int offFive = add("05:00 --off");
    QList<int> cookies;
    for (const QJsonValue alarm : listed())
        cookies.append(alarm["cookie"].toInt());
    QCOMPARE(cookies, QList<int>({on, offFive, offSix}));
}

void TestAlarmCommands::listsInLines()
{
    QVERIFY(cookieOf(alarmctl({"add", "07:30", "--title", "Two\nlines", "--days", "weekdays", "--snooze", "5"})) > 0);
    QVERIFY(add("06:00 --off") > 0);
    const QStringList lines = alarmctl("list").lines();
    QCOMPARE(lines.size(), 2);
    QVERIFY2(lines.first().endsWith("  07:30  on   mon,tue,wed,thu,fri  snooze  5  Two lines"), qPrintable(lines[0]));
    QVERIFY2(lines.last().endsWith("  06:00  off  once  snooze 10"), qPrintable(lines[1]));
}

void TestAlarmCommands::editsOneThingAtATime_data()
{
    QTest::addColumn<QByteArray>("arguments");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QJsonValue>("value");

    QTest::newRow("time") << QByteArray("--time 08:15") << "time" << QJsonValue("08:15");
    QTest::newRow("title") << QByteArray("--title Other") << "title" << QJsonValue("Other");
    QTest::newRow("no title") << QByteArray("--title=") << "title" << QJsonValue("");
    QTest::newRow("days") << QByteArray("--days sat,sun") << "days" << QJsonValue(QJsonArray{6, 0});
    QTest::newRow("never") << QByteArray("--days never") << "days" << QJsonValue(QJsonArray());
    QTest::newRow("snooze") << QByteArray("--snooze 15") << "snooze" << QJsonValue(15);
    QTest::newRow("off") << QByteArray("--off") << "enabled" << QJsonValue(false);
}

void TestAlarmCommands::editsOneThingAtATime()
{
    QFETCH(const QByteArray, arguments);
    QFETCH(const QString, key);
    QFETCH(const QJsonValue, value);
    const int cookie = add("07:30 --title Work --days weekdays --snooze 5");
    const QJsonObject before = onlyAlarm();
    const int edited = cookieOf(alarmctl("edit " + number(cookie) + ' ' + arguments));
    QVERIFY(edited > cookie);
    const QJsonObject after = onlyAlarm();
    QCOMPARE(after["cookie"].toInt(), edited);
    QCOMPARE(after[key], value);
    for (const QString &other : before.keys()) {
        if (other != key && other != "cookie" && other != "nextTrigger")
            QCOMPARE(after[other], before[other]);
    }
}

void TestAlarmCommands::switchesOnAndOff()
{
    const int first = add("07:30");
    const int off = cookieOf(alarmctl("off " + number(first)));
    QVERIFY(off > first);
    QCOMPARE(onlyAlarm()["enabled"], QJsonValue(false));
    QVERIFY(onlyAlarm()["nextTrigger"].isNull());
    const Run on = alarmctl("on --json " + number(off));
    QCOMPARE(on.exitCode, 0);
    QCOMPARE(on.json().array(), QJsonArray({onlyAlarm()["cookie"]}));
    QCOMPARE(onlyAlarm()["enabled"], QJsonValue(true));
    QVERIFY(onlyAlarm()["nextTrigger"].isDouble());
    QCOMPARE(onlyAlarm()["time"].toString(), "07:30");
}

void TestAlarmCommands::leavesAlarmsThatNeedNoSwitchingAlone()
{
    const int cookie = add("07:30");
    const Run run = alarmctl("on " + number(cookie) + ' ' + number(cookie));
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.output, QString::number(cookie) + '\n');
    QCOMPARE(onlyAlarm()["cookie"].toInt(), cookie);
}

void TestAlarmCommands::removesSeveral()
{
    const int first = add("07:30");
    const int second = add("08:30");
    const int third = add("09:30 --off");
    const Run run = alarmctl("remove " + number(first) + ' ' + number(third));
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.output, "");
    QCOMPARE(run.errors, "");
    QCOMPARE(onlyAlarm()["cookie"].toInt(), second);
}

void TestAlarmCommands::touchesNothingIfOneAlarmIsUnknown()
{
    const int cookie = add("07:30");
    const QJsonObject before = onlyAlarm();
    for (const QByteArray command : {"remove ", "off ", "on "}) {
        const Run run = alarmctl(command + number(cookie) + " 2147483647");
        QCOMPARE(run.exitCode, 1);
        QCOMPARE(run.output, "");
        QCOMPARE(run.errors, "alarmctl: there is no alarm 2147483647\n");
        QCOMPARE(onlyAlarm(), before);
    }
    const Run edit = alarmctl("edit 2147483647 --off");
    QCOMPARE(edit.exitCode, 1);
    QCOMPARE(edit.errorLines().size(), 1);
}

void TestAlarmCommands::showsWhatIsNext()
{
    QCOMPARE(alarmctl("next").output, "");
    QCOMPARE(alarmctl("next --json").output, "[]\n");
    const int cookie = add("07:30 --days daily");
    const qint64 trigger = onlyAlarm()["nextTrigger"].toInteger();
    const qint64 day = 86400LL * 1000000000;
    const QJsonArray expected{QJsonObject{{"cookie", cookie}, {"nextTrigger", trigger}},
                              QJsonObject{{"cookie", cookie}, {"nextTrigger", trigger + day}}};
    QCOMPARE(alarmctl("next --count 2 --json").json().array(), expected);
    const QStringList lines = alarmctl("next").lines();
    QCOMPARE(lines.size(), 1);
    const QString moment = QDateTime::fromMSecsSinceEpoch(trigger / 1000000).toString("yyyy-MM-dd HH:mm:ss");
    QCOMPARE(lines.first().simplified(), QString("%1 %2").arg(cookie).arg(moment));
}

void TestAlarmCommands::healthMissesTheRinger()
{
    QVERIFY(add("07:30 --title Work") > 0);
    const Run health = alarmctl("health");
    QCOMPARE(health.exitCode, 1);
    QCOMPARE(health.errors, "");
    QVERIFY2(health.output.startsWith("No, the next alarm would not be heard: ringer: does not start: "),
             qPrintable(health.output));
    QVERIFY(health.output.contains("\nok       next alarm: \"Work\" ("));
    QVERIFY(health.output.contains("\nok       armed: for 20"));
    QVERIFY(health.output.contains("\nok       storage: sound\n"));
    const Run json = alarmctl("health --json");
    QCOMPARE(json.exitCode, 1);
    QCOMPARE(json.json()["daemon"]["events"].toInt(), 1);
    QCOMPARE(json.json()["next"]["title"].toString(), "Work");
    QVERIFY(json.json()["ringer"].isNull());
}

void TestAlarmCommands::healthOfNoAlarmIsGood()
{
    const Run health = alarmctl("health");
    QCOMPARE(health.exitCode, 0);
    QCOMPARE(health.lines().first(), "No alarm is set.");
}

void TestAlarmCommands::keepsAnAlarmWhenTheDaemonIsKilled()
{
    const int cookie = add("07:30");
    m_daemon.kill();
    QVERIFY(m_daemon.start());
    QCOMPARE(onlyAlarm()["cookie"].toInt(), cookie);
    QVERIFY(onlyAlarm()["nextTrigger"].isDouble());
}

QTEST_GUILESS_MAIN(TestAlarmCommands)
#include "tst_alarmcommands.moc"
