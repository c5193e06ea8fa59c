// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "alarms/qmalarm.h"
#include "alarms/qmalarmevent.h"
#include "platform/timedclient/event.h"
#include "tests/alarms/stoppedclock.h"
#include "tests/support/logcapture.h"
#include "tests/support/privatebus.h"

#include <QTest>

using Clock::QmAlarmEvent;
namespace Wire = Astel::Timed::Wire;

namespace {

// A Wednesday, weekday 3.
const QDate Wednesday(2026, 11, 18);
const QTime Eight(8, 0);
const QTime Seven(7, 0);

QmAlarmEvent sampleAlarm(const QTime &time = Seven)
{
    QmAlarmEvent alarm;
    alarm.setApplication("clock");
    alarm.setTitle(QString::fromUtf8("Früh"));
    alarm.setTone("/usr/share/sounds/ring-tones/Clock alert 1.aac");
    alarm.setAlarmTime(time);
    return alarm;
}

Wire::Event wireOf(QmAlarmEvent &alarm)
{
    Astel::Timed::Event event;
    alarm.toAstelTimedEvent(event);
    return event.toWire();
}

QString secondsOf(const QDate &date, const QTime &time)
{
    return QString::number(QDateTime(date, time).toSecsSinceEpoch());
}

} // namespace

class TestEventMapping : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void mapsAnEnabledOneTimeAlarm();
    void mapsADisabledOneTimeAlarm();
    void takesTheRecurrenceFromTheTriggerTime();
    void takesTheWeeklyRecurrenceFromTheTriggerTime();
    void mapsAnEnabledRepeatingAlarm();
    void mapsADisabledRepeatingAlarm();
    void movesTheTriggerToTheNextRepeatDay_data();
    void movesTheTriggerToTheNextRepeatDay();
    void movesTheTriggerOnFromTodayWhateverItsDate();
    void comparesAndMovesTheTriggerTime();
    void leavesATriggerOfTodayWhateverItsDate();
    void writesRepeatDaysInTheirOrder();
    void setsTheFixedProperties();
    void logsItsSteps();
    void logsAnExceptionAndKeepsWhatItHas();
    void keepsWhatCameBeforeABadRepeatDay();
    void storesWhatIsLeftOfAFailedMapping();

private:
    /** The attributes that the daemon holds of a record that was added. */
    QVariantMap stored(QmAlarmEvent &alarm);

    Support::PrivateBus m_bus;
    Support::TimedProcess m_daemon;
};

void TestEventMapping::initTestCase()
{
    QCOMPARE(QDateTime(Wednesday, Eight).offsetFromUtc(), 20700);
    QVERIFY(m_bus.isRunning());
    QVERIFY(m_daemon.start());
}

QVariantMap TestEventMapping::stored(QmAlarmEvent &alarm)
{
    const quint32 cookie = Clock::QmAlarm().add(alarm);
    Astel::Timed::Interface timed;
    QDBusPendingReply<QVariantMap> reply = timed.query_attributes(cookie);
    reply.waitForFinished();
    QVariantMap attributes = reply.value();
    attributes.remove("STATE");
    return attributes;
}

void TestEventMapping::mapsAnEnabledOneTimeAlarm()
{
    const StoppedClock clock(QDateTime(Wednesday, Eight));
    QmAlarmEvent alarm = sampleAlarm();
    const QDateTime trigger = alarm.triggerTime();
    const Wire::Event wire = wireOf(alarm);
    QCOMPARE(wire.ticker, Wire::NoTicker);
    QVERIFY(wire.flags & Wire::SingleShot);
    const Wire::Recurrence expected{1u << 7, 1, Wire::AllDaysOfWeek, Wire::AllDaysOfMonth, Wire::AllMonths, true};
    QVERIFY(wire.recurrences == QList<Wire::Recurrence>{expected});
    QCOMPARE(alarm.triggerTime(), trigger);
    const QVariantMap attributes{{"APPLICATION", "clock"},
                                 {"TITLE", QString::fromUtf8("Früh")},
                                 {"enabled", "1"},
                                 {"sound", "/usr/share/sounds/ring-tones/Clock alert 1.aac"},
                                 {"snooze", "10"},
                                 {"alarmtime", "07:00"},
                                 {"trigger", secondsOf(Wednesday, Seven)},
                                 {"PLUGIN", "libclockalarm"}};
    QCOMPARE(stored(alarm), attributes);
}

void TestEventMapping::mapsADisabledOneTimeAlarm()
{
    const StoppedClock clock(QDateTime(Wednesday, Eight));
    QmAlarmEvent alarm = sampleAlarm(QTime(7, 5));
    alarm.setEnabled(false);
    alarm.setTitle("");
    const Wire::Event wire = wireOf(alarm);
    QCOMPARE(wire.ticker, 0);
    QVERIFY(!(wire.flags & Wire::SingleShot));
    QVERIFY(wire.recurrences.isEmpty());
    const QVariantMap attributes = stored(alarm);
    QCOMPARE(attributes.value("enabled"), "0");
    QCOMPARE(attributes.value("alarmtime"), "07:05");
    QCOMPARE(attributes.value("TITLE"), "");
    QVERIFY(attributes.contains("TITLE"));
    QVERIFY(!attributes.contains("recurrence"));
}

void TestEventMapping::takesTheRecurrenceFromTheTriggerTime()
{
    const StoppedClock clock(QDateTime(Wednesday, Eight));
    QmAlarmEvent alarm = sampleAlarm();
    alarm.setTriggerTime(QDateTime(Wednesday, QTime(21, 45)));
    const Wire::Event wire = wireOf(alarm);
    QCOMPARE(wire.recurrences.first().hours, 1u << 21);
    QCOMPARE(wire.recurrences.first().minutes, Q_UINT64_C(1) << 45);
    QCOMPARE(wire.attributes.value("alarmtime"), "07:00");
}

void TestEventMapping::takesTheWeeklyRecurrenceFromTheTriggerTime()
{
    const StoppedClock clock(QDateTime(Wednesday, Eight));
    QmAlarmEvent alarm = sampleAlarm();
    alarm.setRepeatDays({4});
    alarm.setTriggerTime(QDateTime(Wednesday, QTime(21, 45)));
    const Wire::Event wire = wireOf(alarm);
    QCOMPARE(wire.recurrences.first().hours, 1u << 21);
    QCOMPARE(wire.recurrences.first().minutes, Q_UINT64_C(1) << 45);
    QCOMPARE(wire.attributes.value("alarmtime"), "07:00");
}

void TestEventMapping::mapsAnEnabledRepeatingAlarm()
{
    const StoppedClock clock(QDateTime(Wednesday, Eight));
    QmAlarmEvent alarm = sampleAlarm();
    alarm.setRepeatDays({1, 2, 3, 4, 5});
    const Wire::Event wire = wireOf(alarm);
    QCOMPARE(wire.ticker, Wire::NoTicker);
    QVERIFY(!(wire.flags & Wire::SingleShot));
    const Wire::Recurrence expected{1u << 7, 1, 0x3e, Wire::AllDaysOfMonth, Wire::AllMonths, true};
    QVERIFY(wire.recurrences == QList<Wire::Recurrence>{expected});
    const QVariantMap attributes = stored(alarm);
    QCOMPARE(attributes.value("recurrence"), "12345");
    QCOMPARE(attributes.value("trigger"), secondsOf(Wednesday.addDays(1), Seven));
    QCOMPARE(alarm.triggerTime(), QDateTime(Wednesday.addDays(1), Seven));
}

void TestEventMapping::mapsADisabledRepeatingAlarm()
{
    const StoppedClock clock(QDateTime(Wednesday, Eight));
    QmAlarmEvent alarm = sampleAlarm();
    alarm.setRepeatDays({3});
    alarm.setEnabled(false);
    const Wire::Event wire = wireOf(alarm);
    QCOMPARE(wire.ticker, 0);
    QVERIFY(wire.recurrences.isEmpty());
    QVERIFY(!(wire.flags & Wire::SingleShot));
    const QVariantMap attributes = stored(alarm);
    QCOMPARE(attributes.value("recurrence"), "3");
    QCOMPARE(attributes.value("trigger"), secondsOf(Wednesday.addDays(7), Seven));
}

void TestEventMapping::movesTheTriggerToTheNextRepeatDay_data()
{
    QTest::addColumn<QTime>("now");
    QTest::addColumn<QList<int>>("days");
    QTest::addColumn<int>("daysAhead");

    const QTime past(8, 0);
    QTest::newRow("weekdays, after the time") << past << QList<int>{1, 2, 3, 4, 5} << 1;
    QTest::newRow("today only, after the time") << past << QList<int>{3} << 7;
    QTest::newRow("today only, a millisecond after") << QTime(7, 0, 0, 1) << QList<int>{3} << 7;
    QTest::newRow("today only, on the time") << QTime(7, 0) << QList<int>{3} << 0;
    QTest::newRow("today only, before the time") << QTime(6, 59) << QList<int>{3} << 0;
    QTest::newRow("tomorrow, before the time") << QTime(6, 59) << QList<int>{4} << 1;
    QTest::newRow("yesterday") << QTime(6, 59) << QList<int>{2} << 6;
    QTest::newRow("Sunday") << past << QList<int>{0} << 4;
    QTest::newRow("the soonest comes last") << past << QList<int>{2, 1, 6, 5} << 2;
    QTest::newRow("every day, after the time") << past << QList<int>{0, 1, 2, 3, 4, 5, 6} << 1;
}

void TestEventMapping::movesTheTriggerToTheNextRepeatDay()
{
    QFETCH(const QTime, now);
    QFETCH(const QList<int>, days);
    QFETCH(const int, daysAhead);
    const StoppedClock clock(QDateTime(Wednesday, now));
    QmAlarmEvent alarm = sampleAlarm();
    alarm.setRepeatDays(days);
    const Wire::Event wire = wireOf(alarm);
    QCOMPARE(alarm.triggerTime(), QDateTime(Wednesday.addDays(daysAhead), Seven));
    QCOMPARE(wire.attributes.value("trigger"), secondsOf(Wednesday.addDays(daysAhead), Seven));
}

void TestEventMapping::movesTheTriggerOnFromTodayWhateverItsDate()
{
    const StoppedClock clock(QDateTime(Wednesday, Eight));
    QmAlarmEvent alarm = sampleAlarm();
    alarm.setRepeatDays({1, 2, 3, 4, 5});
    for (const int days : {-100, 100}) {
        alarm.setTriggerTime(QDateTime(Wednesday.addDays(days), Seven));
        const Wire::Event wire = wireOf(alarm);
        QCOMPARE(alarm.triggerTime(), QDateTime(Wednesday.addDays(1), Seven));
        QCOMPARE(wire.attributes.value("trigger"), secondsOf(Wednesday.addDays(1), Seven));
    }
}

void TestEventMapping::comparesAndMovesTheTriggerTime()
{
    const StoppedClock clock(QDateTime(Wednesday, Eight));
    const QDateTime evening(Wednesday, QTime(21, 45));
    QmAlarmEvent alarm = sampleAlarm(Seven);
    alarm.setTriggerTime(evening);
    alarm.setRepeatDays({3});
    wireOf(alarm);
    QCOMPARE(alarm.triggerTime(), evening);
    alarm.setRepeatDays({4});
    wireOf(alarm);
    QCOMPARE(alarm.triggerTime(), evening.addDays(1));
}

void TestEventMapping::leavesATriggerOfTodayWhateverItsDate()
{
    const StoppedClock clock(QDateTime(Wednesday, QTime(6, 59)));
    QmAlarmEvent alarm = sampleAlarm();
    alarm.setRepeatDays({1, 2, 3, 4, 5});
    const QDateTime longAgo(Wednesday.addDays(-100), Seven);
    alarm.setTriggerTime(longAgo);
    const Support::LogCapture log;
    const Wire::Event wire = wireOf(alarm);
    QVERIFY(log.lines(QtDebugMsg).contains("Will trigger today..Don't touch it.."));
    QCOMPARE(alarm.triggerTime(), longAgo);
    QCOMPARE(wire.attributes.value("trigger"), QString::number(longAgo.toSecsSinceEpoch()));
}

void TestEventMapping::writesRepeatDaysInTheirOrder()
{
    const StoppedClock clock(QDateTime(Wednesday, Eight));
    QmAlarmEvent alarm = sampleAlarm();
    alarm.setRepeatDays({6, 0, 6});
    const Support::LogCapture log;
    QCOMPARE(wireOf(alarm).attributes.value("recurrence"), "606");
    QVERIFY(log.lines(QtDebugMsg).contains("Recurrence list : QList(6, 0, 6)"));
    QCOMPARE(alarm.repeatDays(), QList<int>({6, 0, 6}));
}

void TestEventMapping::setsTheFixedProperties()
{
    const StoppedClock clock(QDateTime(Wednesday, Eight));
    QmAlarmEvent alarm = sampleAlarm();
    alarm.setSnooze(5);
    const Wire::Event wire = wireOf(alarm);
    QCOMPARE(wire.flags, quint32(Wire::AllFlags));
    QCOMPARE(wire.buttons.size(), 1);
    QCOMPARE(wire.buttons.first().snooze, 300);
    QCOMPARE(wire.timeoutSnooze, 300);
    QCOMPARE(wire.maximalTimeoutSnoozeCounter, 3u);
    QCOMPARE(wire.attributes.value("snooze"), "5");
    QCOMPARE(wire.attributes.value("PLUGIN"), "libclockalarm");
}

void TestEventMapping::logsItsSteps()
{
    const StoppedClock clock(QDateTime(Wednesday, Eight));
    QmAlarmEvent alarm = sampleAlarm();
    const Support::LogCapture log;
    wireOf(alarm);
    QCOMPARE(log.lines(QtDebugMsg),
             QStringList({"QmAlarmEvent::toAstelTimedEvent entered", "QmAlarmEvent::toAstelTimedEvent exited"}));
}

void TestEventMapping::logsAnExceptionAndKeepsWhatItHas()
{
    QmAlarmEvent alarm;
    alarm.setApplication("clock");
    const Support::LogCapture log;
    const Wire::Event wire = wireOf(alarm);
    QCOMPARE(log.lines(QtDebugMsg),
             QStringList({"QmAlarmEvent::toAstelTimedEvent entered", "\"hour -1 is not in the range 0 to 23\""}));
    QCOMPARE(wire.attributes.keys(), QStringList({"APPLICATION", "TITLE", "enabled", "snooze", "sound"}));
    QCOMPARE(wire.flags, 0u);
}

void TestEventMapping::keepsWhatCameBeforeABadRepeatDay()
{
    const StoppedClock clock(QDateTime(Wednesday, Eight));
    QmAlarmEvent alarm = sampleAlarm();
    alarm.setRepeatDays({1, 9});
    const Wire::Event wire = wireOf(alarm);
    QVERIFY(wire.attributes.contains("alarmtime"));
    QVERIFY(wire.attributes.contains("trigger"));
    QVERIFY(!wire.attributes.contains("recurrence"));
    QVERIFY(!wire.attributes.contains("PLUGIN"));
    QCOMPARE(wire.recurrences.first().daysOfWeek, 2u);
}

void TestEventMapping::storesWhatIsLeftOfAFailedMapping()
{
    QmAlarmEvent alarm;
    alarm.setApplication("clock");
    const QVariantMap attributes = stored(alarm);
    QCOMPARE(attributes.value("APPLICATION"), "clock");
    QVERIFY(!attributes.contains("PLUGIN"));
}

QTEST_GUILESS_MAIN(TestEventMapping)
#include "tst_eventmapping.moc"
