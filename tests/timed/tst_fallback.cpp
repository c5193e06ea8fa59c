// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/timed/world.h"

#include <QTest>

using namespace Astel::Timed;

/** What rings while the ringer does not. */
class TestFallback : public QObject
{
    Q_OBJECT

private slots:
    void ringsWhenTheRingerWasCalledInVain();
    void ringsAtOnceWhenTheRingerCannotBeCalled();
    void oneRefusalIsNoReasonToRing();
    void ringsWhenARingerThatRangHangs();
    void fallsSilentWhenTheRingerRings();
    void fallsSilentWhenTheAlarmIsAnswered();
    void soundIsWrittenDownOnceForEachRinging();
};

void TestFallback::ringsWhenTheRingerWasCalledInVain()
{
    World world(Start);
    const quint32 cookie = world.add(daily(7, 0));
    world.passTo(Seven + 15 * Second - 1);
    QVERIFY(world.fallback.rung.isEmpty());
    world.passTo(Seven + 15 * Second);
    QCOMPARE(world.fallback.rung, QList<quint32>{cookie});
    QCOMPARE(world.fallback.moments, QList<qint64>{Seven});
    QCOMPARE(world.store.entries.last().what, "failed");
    QVERIFY(world.store.entries.last().detail.contains("fallback"));
    // One that was killed is called again as well.
    world.passTo(Seven + 30 * Second);
    QCOMPARE(world.fallback.rung.size(), 2);
}

void TestFallback::ringsAtOnceWhenTheRingerCannotBeCalled()
{
    World world(Start);
    const quint32 cookie = world.add(daily(7, 0));
    world.passTo(Seven);
    for (int call = 1; call <= 3; ++call) {
        QCOMPARE(world.ringer.rung.size(), call);
        QVERIFY(world.fallback.rung.isEmpty());
        emit world.ringer.refused(cookie);
    }
    QCOMPARE(world.fallback.rung, QList<quint32>{cookie});
    QCOMPARE(world.store.words(), (QStringList{"due", "failed"}));
    // From now on it is tried at leisure.
    emit world.ringer.refused(cookie);
    QCOMPARE(world.ringer.rung.size(), 4);
    world.passTo(Seven + 15 * Second);
    QCOMPARE(world.ringer.rung.size(), 5);
}

void TestFallback::oneRefusalIsNoReasonToRing()
{
    World world(Start);
    const quint32 cookie = world.add(daily(7, 0));
    world.passTo(Seven);
    emit world.ringer.refused(cookie);
    QVERIFY(world.parts->life.rings(cookie));
    // The answer to an earlier call, which is late.
    emit world.ringer.refused(cookie);
    emit world.ringer.refused(cookie + 1);
    QCOMPARE(world.ringer.rung.size(), 2);
    world.passTo(Seven + Minute);
    QVERIFY(world.fallback.rung.isEmpty());
}

void TestFallback::ringsWhenARingerThatRangHangs()
{
    World world(Start);
    const quint32 cookie = world.add(daily(7, 0));
    world.passTo(Seven);
    QVERIFY(world.parts->life.rings(cookie));
    QVERIFY(world.parts->life.sounds(cookie, "tone.aac"));
    world.passTo(Seven + 40 * Second);
    QVERIFY(world.fallback.rung.isEmpty());
    // Asked for a sign of life every quarter of a minute, it has five seconds for it.
    world.ringer.hangs = true;
    world.passTo(Seven + 50 * Second - 1);
    QVERIFY(world.fallback.rung.isEmpty());
    world.passTo(Seven + 50 * Second);
    QCOMPARE(world.fallback.rung, QList<quint32>{cookie});
    QCOMPARE(world.ringer.rung.size(), 2);
    QCOMPARE(world.store.words(), (QStringList{"due", "rang", "sounded", "failed"}));
    world.ringer.hangs = false;
    world.fallback.stopped.clear();
    QVERIFY(world.parts->life.rings(cookie));
    QCOMPARE(world.fallback.stopped, QList<quint32>{cookie});
}

void TestFallback::fallsSilentWhenTheRingerRings()
{
    World world(Start);
    const quint32 cookie = world.add(daily(7, 0));
    world.passTo(Seven + 20 * Second);
    QVERIFY(world.fallback.stopped.isEmpty());
    QVERIFY(world.parts->life.rings(cookie));
    QCOMPARE(world.fallback.stopped, QList<quint32>{cookie});
    QVERIFY(world.ringer.stopped.isEmpty());
}

void TestFallback::fallsSilentWhenTheAlarmIsAnswered()
{
    World world(Start);
    const quint32 cookie = world.add(daily(7, 0));
    world.passTo(Seven + 20 * Second);
    QVERIFY(world.parts->life.snooze(cookie, 0, "notification"));
    QCOMPARE(world.fallback.stopped, QList<quint32>{cookie});
    QCOMPARE(world.state(cookie), State::Snoozed);
}

void TestFallback::soundIsWrittenDownOnceForEachRinging()
{
    World world(Start);
    const quint32 cookie = world.add(daily(7, 0));
    world.passTo(Seven + 40 * Second);
    for (int call = 0; call < 3; ++call)
        QVERIFY(world.parts->life.sounds(cookie, "beeps"));
    world.passTo(Seven + 50 * Second);
    QVERIFY(world.parts->life.sounds(cookie, "beeps"));
    QCOMPARE(world.store.words(), (QStringList{"due", "failed", "sounded"}));
    for (int call = 0; call < 3; ++call) {
        QVERIFY(world.parts->life.rings(cookie));
        QVERIFY(world.parts->life.sounds(cookie, "tone.aac"));
    }
    QCOMPARE(world.store.words(), (QStringList{"due", "failed", "sounded", "rang", "sounded"}));
}

QTEST_GUILESS_MAIN(TestFallback)
#include "tst_fallback.moc"
