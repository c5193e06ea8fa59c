// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timed/sleepguard.h"
#include "tests/timed/world.h"

#include <QTest>

using namespace Astel::Timed;

class TestSleep : public QObject
{
    Q_OBJECT

private slots:
    void sleepIsDelayedWhileArmingAndRinging();
    void sleepIsDelayedUntilTheLastAlarmIsAnswered();
    void wakingRecomputesAndTells();
    void momentThatPassedAsleepRingsOrIsMissed_data();
    void momentThatPassedAsleepRingsOrIsMissed();
    void timerThatExpiresBeforeTheNoticeOfWakingWoke();
};

void TestSleep::sleepIsDelayedWhileArmingAndRinging()
{
    World world(Start);
    FakeSleep sleep;
    const SleepGuard guard(world.parts->schedule, world.parts->ringing, sleep);
    const quint32 cookie = world.add(daily(7, 0));
    QCOMPARE(sleep.delays, (QList<bool>{true, false}));
    sleep.delays.clear();
    // Nothing is armed anew for an alarm that is later.
    world.add(daily(8, 0));
    QVERIFY(sleep.delays.isEmpty());
    world.passTo(Seven);
    QVERIFY(sleep.delays.last());
    sleep.delays = {true};
    // The timer is armed while it rings as well.
    QVERIFY(world.parts->life.rings(cookie));
    world.add(daily(7, 1));
    QCOMPARE(sleep.delays, QList<bool>{true});
    QVERIFY(world.parts->life.snooze(cookie, 600, "user"));
    QVERIFY(!sleep.delays.last());
}

void TestSleep::sleepIsDelayedUntilTheLastAlarmIsAnswered()
{
    World world(Start);
    const quint32 one = world.add(daily(7, 0));
    const quint32 two = world.add(daily(7, 0));
    FakeSleep sleep;
    const SleepGuard guard(world.parts->schedule, world.parts->ringing, sleep);
    world.passTo(Seven);
    sleep.delays = {true};
    QVERIFY(world.parts->life.dismiss(one, "user"));
    QCOMPARE(sleep.delays, QList<bool>{true});
    QVERIFY(world.parts->life.dismiss(two, "user"));
    QCOMPARE(sleep.delays, (QList<bool>{true, false}));
}

void TestSleep::wakingRecomputesAndTells()
{
    World world(Start);
    const quint32 cookie = world.add(daily(7, 0));
    QStringList told;
    connect(&world.parts->life, &LifeCycle::changed, this, [&told] { told.append("changed"); });
    connect(&world.parts->life, &LifeCycle::settingsChanged, this,
            [&told](bool timeChanged) { told.append(timeChanged ? "clock" : "other"); });
    world.parts->life.goesToSleep();
    QVERIFY(told.isEmpty());
    // Nobody heard that the zone changed meanwhile.
    world.zone.current = *Rules::Zone::create("Asia/Tokyo");
    world.timer.armed.reset();
    world.parts->life.resumed();
    QCOMPARE(told, (QStringList{"changed", "other"}));
    QCOMPARE(world.moment(cookie), std::optional(utc("2026-11-20T22:00:00")));
    QCOMPARE(world.timer.armed, world.moment(cookie));
    QCOMPARE(world.store.happenings(), QStringList{"resumed"});
}

void TestSleep::momentThatPassedAsleepRingsOrIsMissed_data()
{
    QTest::addColumn<qint64>("late");
    QTest::addColumn<QStringList>("journal");

    QTest::newRow("ahead") << -Second << QStringList();
    QTest::newRow("10 min late") << 10 * Minute << QStringList{"due", "woke"};
    QTest::newRow("11 min late") << 11 * Minute << QStringList{"missed"};
}

void TestSleep::momentThatPassedAsleepRingsOrIsMissed()
{
    QFETCH(qint64, late);
    QFETCH(QStringList, journal);

    World world(Start);
    const quint32 cookie = world.add(daily(7, 0));
    world.parts->life.goesToSleep();
    world.clock.time = Seven + late;
    world.parts->life.resumed();
    QCOMPARE(world.store.words(), journal);
    if (journal.contains("missed"))
        QCOMPARE(world.store.misses,
                 (QList<Miss>{{cookie, Seven, Seven + late, MissReason::Slept, false, daily(7, 0)}}));
    else
        QVERIFY(world.store.misses.isEmpty());
}

void TestSleep::timerThatExpiresBeforeTheNoticeOfWakingWoke()
{
    World world(Start);
    const quint32 cookie = world.add(daily(7, 0));
    world.parts->life.goesToSleep();
    world.passTo(Seven);
    QCOMPARE(world.store.words(), (QStringList{"due", "woke"}));
    world.parts->life.resumed();
    QCOMPARE(world.ringer.rung, QList<quint32>{cookie});
    QVERIFY(world.parts->life.dismiss(cookie, "user"));
    world.store.entries.clear();
    world.passTo(Seven + Day);
    QCOMPARE(world.store.words(), QStringList{"due"});
}

QTEST_GUILESS_MAIN(TestSleep)
#include "tst_sleep.moc"
