// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "alarms/qmalarm.h"

#include "alarms/qmalarmevent.h"
#include "alarms/utility.h"
#include "tests/support/alarms.h"
#include "tests/support/logcapture.h"
#include "tests/support/privatebus.h"

#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

using Clock::QmAlarm;
using Clock::QmAlarmEvent;

namespace {

constexpr quint32 NotStored = 4294967295u;

QList<quint32> storedCookies()
{
    bool failed = true;
    const QList<quint32> cookies = QmAlarm().query(failed);
    return failed ? QList<quint32>{NotStored} : cookies;
}

} // namespace

class TestQmAlarm : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();
    void addsAnAlarm();
    void movesTheTriggerTimeOfTheRecordItAdds();
    void replacesAnAlarmUnderANewCookie();
    void failsToReplaceAnUnknownAlarm();
    void deletesAnAlarm();
    void deletesAnUnknownAlarmWithoutComplaint();
    void queriesItsOwnAlarmsInTheirOrder();
    void keepsWhatWasStoredWhenTheDaemonDies();
    void listsNothingWhereThereIsNothing();
    void sortsAlarmsForTheList();
    void logsTheSorting();
    void failsWithoutADaemon();
    void sortingWithoutADaemonLeavesTheList();

private:
    Support::PrivateBus m_bus;
    Support::TimedProcess m_daemon;
};

void TestQmAlarm::initTestCase()
{
    QVERIFY(m_bus.isRunning());
    QVERIFY(m_daemon.start());
    QSignalSpy spy(Clock::Utility::instance(), &Clock::Utility::valueChanged);
    Clock::Utility::instance()->subscribeToContextFramework();
    QVERIFY(spy.wait());
}

void TestQmAlarm::cleanup()
{
    QVERIFY(Support::removeAllAlarms());
}

void TestQmAlarm::addsAnAlarm()
{
    const Support::LogCapture log;
    const quint32 cookie = Support::addAlarm(QTime(7, 5));
    const QStringList lines = log.lines(QtDebugMsg);
    QVERIFY(cookie >= 1 && cookie <= 2147483647u);
    QCOMPARE(lines.first(), "QmAlarm::add entered");
    QCOMPARE(lines.last(), "QmAlarm::add exited");
    const QmAlarmEvent alarm(cookie);
    QCOMPARE(alarm.alarmTime(), QTime(7, 5));
    QCOMPARE(alarm.title(), "Alarm");
    QVERIFY(alarm.isEnabled());
    QTRY_VERIFY(QmAlarmEvent(cookie).nextTrigger() > Q_UINT64_C(1000000000000000000));
}

void TestQmAlarm::movesTheTriggerTimeOfTheRecordItAdds()
{
    const int today = QDate::currentDate().dayOfWeek() % 7;
    QmAlarmEvent alarm = Support::alarmAt(QTime(7, 5));
    alarm.setRepeatDays({(today + 2) % 7});
    const QDateTime before = alarm.triggerTime();
    QVERIFY(QmAlarm().add(alarm) != NotStored);
    QVERIFY(alarm.triggerTime() > before);
    QCOMPARE(alarm.triggerTime().date().dayOfWeek() % 7, (today + 2) % 7);
}

void TestQmAlarm::replacesAnAlarmUnderANewCookie()
{
    const quint32 cookie = Support::addAlarm(QTime(7, 5));
    QmAlarmEvent alarm(cookie);
    alarm.setAlarmTime(QTime(8, 10));
    const quint32 replaced = QmAlarm().replace(alarm, cookie);
    QVERIFY(replaced != NotStored);
    QVERIFY(replaced > cookie);
    QCOMPARE(storedCookies(), QList<quint32>{replaced});
    QCOMPARE(QmAlarmEvent(replaced).alarmTime(), QTime(8, 10));
}

void TestQmAlarm::failsToReplaceAnUnknownAlarm()
{
    QmAlarmEvent alarm = Support::alarmAt(QTime(7, 5));
    const Support::LogCapture log;
    QCOMPARE(QmAlarm().replace(alarm, 2147483647u), NotStored);
    static const QRegularExpression line("^Failed to replace event\\. Reason : \".+\"$");
    QCOMPARE(log.lines(QtDebugMsg).filter(line).size(), 1);
}

void TestQmAlarm::deletesAnAlarm()
{
    const quint32 cookie = Support::addAlarm(QTime(7, 5));
    const Support::LogCapture log;
    QVERIFY(QmAlarm().deleteEvent(cookie));
    QCOMPARE(log.lines(QtDebugMsg), QStringList{QString("Delete cookie %1 successfully").arg(cookie)});
    QVERIFY(storedCookies().isEmpty());
}

void TestQmAlarm::deletesAnUnknownAlarmWithoutComplaint()
{
    QVERIFY(QmAlarm().deleteEvent(2147483647u));
}

void TestQmAlarm::queriesItsOwnAlarmsInTheirOrder()
{
    const quint32 first = Support::addAlarm(QTime(9, 0));
    QmAlarmEvent foreign = Support::alarmAt(QTime(8, 0));
    foreign.setApplication("calendar");
    const quint32 other = QmAlarm().add(foreign);
    QVERIFY(other != NotStored);
    const quint32 second = Support::addSwitchedOffAlarm(QTime(7, 0));
    const Support::LogCapture log;
    bool failed = true;
    QCOMPARE(QmAlarm().query(failed), QList<quint32>({first, second}));
    QVERIFY(!failed);
    QCOMPARE(log.lines(QtDebugMsg), QStringList({"QmAlarm::query entered", "QmAlarm::query exited"}));
    QVERIFY(QmAlarm().deleteEvent(other));
}

void TestQmAlarm::keepsWhatWasStoredWhenTheDaemonDies()
{
    const quint32 cookie = Support::addAlarm(QTime(7, 5));
    m_daemon.kill();
    QVERIFY(m_daemon.start());
    QCOMPARE(storedCookies(), QList<quint32>{cookie});
    const QmAlarmEvent alarm(cookie);
    QVERIFY(alarm.isEnabled());
    QCOMPARE(alarm.alarmTime(), QTime(7, 5));
}

void TestQmAlarm::listsNothingWhereThereIsNothing()
{
    QList<QmAlarmEvent> alarms{QmAlarmEvent()};
    QVERIFY(!QmAlarm().queryAndSortAlarmCookies(alarms));
    QVERIFY(alarms.isEmpty());
}

void TestQmAlarm::sortsAlarmsForTheList()
{
    const QTime now = QTime::currentTime();
    const QTime soon = QTime(now.hour(), now.minute()).addSecs(3600);
    const QTime later = soon.addSecs(3600);
    const quint32 onLater = Support::addAlarm(later);
    const quint32 offSix = Support::addSwitchedOffAlarm(QTime(6, 0));
    const quint32 onSoon = Support::addAlarm(soon);
    const quint32 offFive = Support::addSwitchedOffAlarm(QTime(5, 0));
    const QmAlarmEvent unstored = Support::alarmAt(QTime(7, 5));
    const QList<quint32> expected{onSoon, onLater, offFive, offSix};
    const auto sorted = [&unstored] {
        QList<QmAlarmEvent> alarms{unstored};
        QList<quint32> cookies;
        if (!QmAlarm().queryAndSortAlarmCookies(alarms)) {
            for (const QmAlarmEvent &alarm : std::as_const(alarms))
                cookies.append(alarm.cookie());
        }
        return cookies;
    };
    QTRY_COMPARE(sorted(), expected);
}

void TestQmAlarm::logsTheSorting()
{
    const quint32 cookie = Support::addSwitchedOffAlarm(QTime(5, 0));
    const quint64 trigger = QmAlarmEvent(cookie).nextTrigger();
    const Support::LogCapture log;
    QList<QmAlarmEvent> alarms;
    QVERIFY(!QmAlarm().queryAndSortAlarmCookies(alarms));
    const QStringList lines = log.lines(QtDebugMsg);
    const QString signature = "bool Clock::QmAlarm::queryAndSortAlarmCookies(QList<Clock::QmAlarmEvent>&)";
    QCOMPARE(lines.first(), signature + " entered");
    QVERIFY(lines.contains(QString("trigger time is : %1").arg(trigger)));
    QCOMPARE(lines.last(), signature + " exited");
}

void TestQmAlarm::failsWithoutADaemon()
{
    m_daemon.kill();
    const Support::LogCapture log;
    QmAlarmEvent alarm = Support::alarmAt(QTime(7, 5));
    QCOMPARE(QmAlarm().add(alarm), NotStored);
    QCOMPARE(QmAlarm().replace(alarm, 1), NotStored);
    QVERIFY(!QmAlarm().deleteEvent(1));
    bool failed = false;
    QVERIFY(QmAlarm().query(failed).isEmpty());
    QVERIFY(failed);
    const QStringList lines = log.lines(QtDebugMsg);
    QCOMPARE(lines.count("QmAlarm::add exited"), 1);
    QCOMPARE(lines.last(), "QmAlarm::query exited");
    for (const char *what : {"add event", "replace event", "delete event", "query"}) {
        const QRegularExpression line(QString("^Failed to %1\\. Reason : \".+\"$").arg(QLatin1String(what)));
        QVERIFY2(!lines.filter(line).isEmpty(), what);
    }
    QVERIFY(m_daemon.start());
}

void TestQmAlarm::sortingWithoutADaemonLeavesTheList()
{
    m_daemon.kill();
    QmAlarmEvent alarm = Support::alarmAt(QTime(7, 5));
    alarm.setCookie(7);
    QList<QmAlarmEvent> alarms{alarm};
    const Support::LogCapture log;
    QVERIFY(QmAlarm().queryAndSortAlarmCookies(alarms));
    QCOMPARE(alarms.size(), 1);
    QCOMPARE(alarms.first().cookie(), 7u);
    QCOMPARE(alarms.first().title(), "Alarm");
    QCOMPARE(log.lines(QtDebugMsg).last(), "QmAlarm::query exited");
    QVERIFY(m_daemon.start());
}

QTEST_GUILESS_MAIN(TestQmAlarm)
#include "tst_qmalarm.moc"
