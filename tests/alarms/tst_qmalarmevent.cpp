// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "alarms/qmalarmevent.h"
#include "tests/alarms/stoppedclock.h"

#include <QTest>

using Clock::QmAlarmEvent;

namespace {

const QDate Today(2026, 11, 18);
const QTime SevenThirty(7, 30);

} // namespace

class TestQmAlarmEvent : public QObject
{
    Q_OBJECT

private slots:
    void startsWithTheDefaults();
    void returnsWhatWasSet();
    void copiesEveryField();
    void anchorsTheTriggerTimeToToday();
    void readsTheRunningClock();
    void rollsOverByOneDayOnce();
    void rollsOverOnTheVeryMoment();
    void leavesAPastOfSeveralDaysInThePast();
    void rollsOnlySwitchedOffOneTimeAlarmsOver_data();
    void rollsOnlySwitchedOffOneTimeAlarmsOver();
    void keepsTitlesAsTheyAre_data();
    void keepsTitlesAsTheyAre();
    void keepsEightBitsOfTheSnooze();
};

void TestQmAlarmEvent::startsWithTheDefaults()
{
    const QmAlarmEvent alarm;
    QCOMPARE(alarm.cookie(), 4294967295u);
    QVERIFY(alarm.alarmTime().isNull());
    QVERIFY(alarm.triggerTime().isNull());
    QVERIFY(alarm.title().isNull());
    QVERIFY(alarm.tone().isNull());
    QVERIFY(alarm.application().isNull());
    QVERIFY(alarm.isEnabled());
    QVERIFY(alarm.repeatDays().isEmpty());
    QVERIFY(!alarm.isRecurring());
    QCOMPARE(alarm.snooze(), quint8(10));
    QCOMPARE(alarm.nextTrigger(), Q_UINT64_C(0));
}

void TestQmAlarmEvent::returnsWhatWasSet()
{
    QmAlarmEvent alarm;
    const QDateTime trigger(Today, SevenThirty);
    QVERIFY(alarm.setCookie(7));
    QVERIFY(alarm.setAlarmTime(QTime(6, 0)));
    QVERIFY(alarm.setTriggerTime(trigger));
    QVERIFY(alarm.setTitle("Work"));
    QVERIFY(alarm.setTone("/tone.aac"));
    QVERIFY(alarm.setApplication("clock"));
    QVERIFY(alarm.setEnabled(false));
    QVERIFY(alarm.setRepeatDays({5, 1, 1}));
    QVERIFY(alarm.setSnooze(20));
    QVERIFY(alarm.setNextTrigger(Q_UINT64_C(0xffffffffffffffff)));
    QCOMPARE(alarm.cookie(), 7u);
    QCOMPARE(alarm.alarmTime(), QTime(6, 0));
    QCOMPARE(alarm.triggerTime(), trigger);
    QCOMPARE(alarm.title(), "Work");
    QCOMPARE(alarm.tone(), "/tone.aac");
    QCOMPARE(alarm.application(), "clock");
    QVERIFY(!alarm.isEnabled());
    QCOMPARE(alarm.repeatDays(), QList<int>({5, 1, 1}));
    QVERIFY(alarm.isRecurring());
    QCOMPARE(alarm.snooze(), quint8(20));
    QCOMPARE(alarm.nextTrigger(), Q_UINT64_C(0xffffffffffffffff));
}

void TestQmAlarmEvent::copiesEveryField()
{
    QmAlarmEvent alarm;
    alarm.setCookie(7);
    alarm.setAlarmTime(SevenThirty);
    alarm.setTitle("Work");
    alarm.setTone("/tone.aac");
    alarm.setApplication("clock");
    alarm.setEnabled(false);
    alarm.setRepeatDays({1});
    alarm.setSnooze(20);
    alarm.setNextTrigger(9);
    QmAlarmEvent copy = alarm;
    alarm.setTitle("Other");
    alarm.setRepeatDays({});
    QCOMPARE(copy.cookie(), 7u);
    QCOMPARE(copy.alarmTime(), SevenThirty);
    QCOMPARE(copy.triggerTime(), alarm.triggerTime());
    QCOMPARE(copy.title(), "Work");
    QCOMPARE(copy.tone(), "/tone.aac");
    QCOMPARE(copy.application(), "clock");
    QVERIFY(!copy.isEnabled());
    QCOMPARE(copy.repeatDays(), QList<int>({1}));
    QCOMPARE(copy.snooze(), quint8(20));
    QCOMPARE(copy.nextTrigger(), Q_UINT64_C(9));
}

void TestQmAlarmEvent::anchorsTheTriggerTimeToToday()
{
    const StoppedClock clock(QDateTime(Today, QTime(9, 0, 12, 345)));
    QmAlarmEvent alarm;
    alarm.setTriggerTime(QDateTime(Today.addDays(9), QTime(1, 0)));
    alarm.setAlarmTime(SevenThirty);
    QCOMPARE(alarm.alarmTime(), SevenThirty);
    QCOMPARE(alarm.triggerTime(), QDateTime(Today, SevenThirty));
    QCOMPARE(alarm.triggerTime().timeSpec(), Qt::LocalTime);
}

void TestQmAlarmEvent::readsTheRunningClock()
{
    QmAlarmEvent alarm;
    QDate before;
    do {
        before = QDate::currentDate();
        alarm.setAlarmTime(SevenThirty);
    } while (before != QDate::currentDate());
    QCOMPARE(alarm.triggerTime(), QDateTime(before, SevenThirty));
}

void TestQmAlarmEvent::rollsOverByOneDayOnce()
{
    StoppedClock clock(QDateTime(Today, QTime(9, 0)));
    QmAlarmEvent alarm;
    alarm.setAlarmTime(SevenThirty);
    alarm.setEnabled(false);
    alarm.rollOverIfPassed();
    QCOMPARE(alarm.triggerTime(), QDateTime(Today.addDays(1), SevenThirty));
    alarm.rollOverIfPassed();
    QCOMPARE(alarm.triggerTime(), QDateTime(Today.addDays(1), SevenThirty));
    clock.set(QDateTime(Today.addDays(1), SevenThirty));
    alarm.rollOverIfPassed();
    QCOMPARE(alarm.triggerTime(), QDateTime(Today.addDays(2), SevenThirty));
}

void TestQmAlarmEvent::rollsOverOnTheVeryMoment()
{
    StoppedClock clock(QDateTime(Today, SevenThirty).addMSecs(-1));
    QmAlarmEvent alarm;
    alarm.setAlarmTime(SevenThirty);
    alarm.setEnabled(false);
    alarm.rollOverIfPassed();
    QCOMPARE(alarm.triggerTime(), QDateTime(Today, SevenThirty));
    clock.set(QDateTime(Today, SevenThirty));
    alarm.rollOverIfPassed();
    QCOMPARE(alarm.triggerTime(), QDateTime(Today.addDays(1), SevenThirty));
}

void TestQmAlarmEvent::leavesAPastOfSeveralDaysInThePast()
{
    const StoppedClock clock(QDateTime(Today, QTime(9, 0)));
    QmAlarmEvent alarm;
    alarm.setEnabled(false);
    alarm.setTriggerTime(QDateTime(Today.addDays(-5), SevenThirty));
    alarm.rollOverIfPassed();
    QCOMPARE(alarm.triggerTime(), QDateTime(Today.addDays(-4), SevenThirty));
}

void TestQmAlarmEvent::rollsOnlySwitchedOffOneTimeAlarmsOver_data()
{
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<QList<int>>("days");

    QTest::newRow("on") << true << QList<int>();
    QTest::newRow("on and repeating") << true << QList<int>{1};
    QTest::newRow("off and repeating") << false << QList<int>{1};
}

void TestQmAlarmEvent::rollsOnlySwitchedOffOneTimeAlarmsOver()
{
    QFETCH(const bool, enabled);
    QFETCH(const QList<int>, days);
    const StoppedClock clock(QDateTime(Today, QTime(9, 0)));
    QmAlarmEvent alarm;
    alarm.setAlarmTime(SevenThirty);
    alarm.setEnabled(enabled);
    alarm.setRepeatDays(days);
    alarm.rollOverIfPassed();
    QCOMPARE(alarm.triggerTime(), QDateTime(Today, SevenThirty));
}

void TestQmAlarmEvent::keepsTitlesAsTheyAre_data()
{
    QTest::addColumn<QString>("given");
    QTest::addColumn<QString>("kept");

    QTest::newRow("null") << QString() << "";
    QTest::newRow("empty") << ""
                           << "";
    QTest::newRow("blanks") << "  Work "
                            << "  Work ";
}

void TestQmAlarmEvent::keepsTitlesAsTheyAre()
{
    QFETCH(const QString, given);
    QFETCH(const QString, kept);
    QmAlarmEvent alarm;
    QVERIFY(alarm.setTitle(given));
    QCOMPARE(alarm.title(), kept);
    QVERIFY(!alarm.title().isNull());
}

void TestQmAlarmEvent::keepsEightBitsOfTheSnooze()
{
    QmAlarmEvent alarm;
    QVERIFY(alarm.setSnooze(300));
    QCOMPARE(alarm.snooze(), quint8(44));
}

QTEST_APPLESS_MAIN(TestQmAlarmEvent)
#include "tst_qmalarmevent.moc"
