// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/timed/world.h"

#include <QTest>

using namespace Astel::Timed;

namespace {

enum class How {
    Restart,
    ClockSet,
};

void goTo(World &world, How how, qint64 now)
{
    if (how == How::Restart)
        world.restart(now);
    else
        world.setClock(now);
}

} // namespace

/** What becomes of events when time does not simply pass: daemon off, clock set, other zone, ringer away. */
class TestTimeChanges : public QObject
{
    Q_OBJECT

private slots:
    void momentThatPassedRingsOrIsMissed_data();
    void momentThatPassedRingsOrIsMissed();
    void missedSingleShotIsFinished();
    void clockSetBackRecomputes();
    void clockSetBackASecondDoesNotRingAgain();
    void snoozeKeepsItsLengthWhenTheClockGoesBack();
    void ringingGoesOnWhenTheClockIsSet_data();
    void ringingGoesOnWhenTheClockIsSet();
    void clockWithoutBatteryLosesNothing();
    void clockThatWasAheadByYearsIsForgotten();
    void clockThatJumpsByYearsNeitherRingsNorLoses();
    void otherZoneRecomputesFromTheRule();
    void changesAreToldBeforeTheSettings();

    void restartResumesRinging();
    void restartAfterTheRingTimeGoesOnAsIfUnanswered();
    void restartRearmsASnooze_data();
    void restartRearmsASnooze();
    void restartLeavesAFinishedEventAlone();
    void restartNeverReusesACookie();

    void silentRingerIsCalledAgain();
    void silentRingerIsCalledAgainAfterARestart();
    void silentRingerIsCalledAgainWhenTheClockGoesBack();
    void ringerThatDiesIsCalledAgain();
    void cancelledAndReplacedEventsFallSilent();
};

void TestTimeChanges::momentThatPassedRingsOrIsMissed_data()
{
    QTest::addColumn<How>("how");
    QTest::addColumn<qint64>("late");
    QTest::addColumn<QStringList>("journal");

    for (const How how : {How::Restart, How::ClockSet}) {
        const QByteArray name = how == How::Restart ? "off, " : "set, ";
        QTest::newRow(name + "not passed") << how << -Second << QStringList{};
        QTest::newRow(name + "1 s late") << how << Second << QStringList{"due"};
        QTest::newRow(name + "9 min late") << how << 9 * Minute << QStringList{"due"};
        QTest::newRow(name + "10 min late") << how << 10 * Minute << QStringList{"due"};
        QTest::newRow(name + "11 min late") << how << 11 * Minute << QStringList{"missed"};
        QTest::newRow(name + "30 days late") << how << 30 * Day << QStringList{"missed"};
        QTest::newRow(name + "56 years late") << how << 56 * 365 * Day << QStringList{};
    }
}

void TestTimeChanges::momentThatPassedRingsOrIsMissed()
{
    QFETCH(How, how);
    QFETCH(qint64, late);
    QFETCH(QStringList, journal);

    World world(Start);
    const quint32 cookie = world.add(daily(7, 0));
    goTo(world, how, Seven + late);
    QCOMPARE(world.store.words(), journal);
    const bool rings = journal.contains("due");
    QCOMPARE(world.ringer.rung.size(), rings ? 1 : 0);
    QCOMPARE(world.state(cookie), rings ? State::Triggered : State::Waiting);
    if (!rings)
        QVERIFY(*world.moment(cookie) > world.clock.time && *world.moment(cookie) <= world.clock.time + Day);
}

void TestTimeChanges::missedSingleShotIsFinished()
{
    World world(Start);
    const quint32 kept = world.add(daily(7, 0, Wire::SingleShot | Wire::KeepAlive));
    const quint32 gone = world.add(daily(7, 0, Wire::SingleShot));
    world.restart(Seven + Hour);
    QCOMPARE(world.state(kept), State::Finished);
    QVERIFY(!world.parts->book.find(gone));
    QCOMPARE(world.store.words(), (QStringList{"missed", "missed"}));
}

void TestTimeChanges::clockSetBackRecomputes()
{
    World world(Start);
    const quint32 recurring = world.add(daily(7, 0));
    Wire::Event fixed;
    fixed.ticker = Seven / Second;
    const quint32 once = world.add(fixed);
    world.setClock(Start - 2 * Day);
    QCOMPARE(world.moment(recurring), std::optional(Seven - 2 * Day));
    QCOMPARE(world.moment(once), std::optional(Seven));
    QCOMPARE(world.timer.armed, std::optional(Seven - 2 * Day));
}

void TestTimeChanges::clockSetBackASecondDoesNotRingAgain()
{
    World world(Start);
    const quint32 cookie = world.add(daily(7, 0));
    world.passTo(Seven + 100);
    QVERIFY(world.parts->life.dismiss(cookie, "user"));
    world.setClock(Seven - Second);
    QCOMPARE(world.moment(cookie), std::optional(Seven + Day));
}

void TestTimeChanges::snoozeKeepsItsLengthWhenTheClockGoesBack()
{
    World world(Start);
    const quint32 cookie = world.add(daily(7, 0));
    world.passTo(Seven);
    QVERIFY(world.parts->life.snooze(cookie, 600, "user"));
    world.setClock(Seven - 2 * Day);
    QCOMPARE(world.state(cookie), State::Snoozed);
    QCOMPARE(world.moment(cookie), std::optional(Seven - 2 * Day + 10 * Minute));
}

void TestTimeChanges::ringingGoesOnWhenTheClockIsSet_data()
{
    QTest::addColumn<qint64>("jump");

    QTest::newRow("back by an hour") << -Hour;
    QTest::newRow("forward by a minute") << Minute;
    QTest::newRow("forward by an hour") << Hour;
    QTest::newRow("forward by years") << 20440 * Day;
}

void TestTimeChanges::ringingGoesOnWhenTheClockIsSet()
{
    QFETCH(qint64, jump);

    World world(Start);
    const quint32 cookie = world.add(daily(7, 0));
    world.passTo(Seven + Minute);
    QVERIFY(world.parts->life.rings(cookie));
    world.setClock(world.clock.time + jump);
    QCOMPARE(world.state(cookie), State::Triggered);
    QVERIFY(world.ringer.stopped.isEmpty());
    world.pass(2 * Minute - 1);
    QVERIFY(world.ringer.stopped.isEmpty());
    world.pass(1);
    QCOMPARE(world.ringer.stopped, QList<quint32>{cookie});
}

void TestTimeChanges::clockWithoutBatteryLosesNothing()
{
    World world(Start);
    const quint32 cookie = world.add(daily(7, 0, Wire::SingleShot | Wire::KeepAlive));
    world.restart(0);
    QCOMPARE(world.moment(cookie), std::optional(Seven));
    world.pass(Minute);
    QVERIFY(world.ringer.rung.isEmpty());
    // The network tells the time: five minutes late, so it rings.
    world.setClock(Seven + 5 * Minute);
    QCOMPARE(world.ringer.rung, QList<quint32>{cookie});
}

void TestTimeChanges::clockThatWasAheadByYearsIsForgotten()
{
    World world(Start + 1461 * Day);
    const quint32 cookie = world.add(daily(7, 0));
    world.restart(Start);
    QCOMPARE(world.timer.armed, std::optional(Seven));
    world.passTo(Seven);
    QCOMPARE(world.ringer.rung, QList<quint32>{cookie});
    QVERIFY(world.parts->life.dismiss(cookie, "user"));
    QCOMPARE(world.moment(cookie), std::optional(Seven + Day));
}

void TestTimeChanges::clockThatJumpsByYearsNeitherRingsNorLoses()
{
    World world(Start);
    const quint32 recurring = world.add(daily(7, 0, Wire::SingleShot));
    Wire::Event fixed;
    fixed.ticker = Seven / Second;
    const quint32 once = world.add(fixed);
    world.setClock(Start + 20440 * Day);
    QCOMPARE(world.state(recurring), State::Waiting);
    QCOMPARE(world.state(once), State::Inactive);
    world.setClock(Start);
    QCOMPARE(world.moment(recurring), std::optional(Seven));
    QCOMPARE(world.moment(once), std::optional(Seven));
    QVERIFY(world.ringer.rung.isEmpty());
    QVERIFY(world.store.words().isEmpty());
}

void TestTimeChanges::otherZoneRecomputesFromTheRule()
{
    World world(Start);
    const quint32 cookie = world.add(daily(7, 0));
    world.zone.current = *Rules::Zone::create("America/New_York");
    emit world.zone.changed();
    QCOMPARE(world.moment(cookie), std::optional(utc("2026-11-20T12:00:00")));
    QCOMPARE(world.timer.armed, world.moment(cookie));
    world.zone.current = *Rules::Zone::create("Asia/Tokyo");
    emit world.zone.changed();
    QCOMPARE(world.moment(cookie), std::optional(utc("2026-11-20T22:00:00")));
}

void TestTimeChanges::changesAreToldBeforeTheSettings()
{
    World world(Start);
    world.add(daily(7, 0));
    QStringList told;
    connect(&world.parts->life, &LifeCycle::changed, this, [&told] { told.append("changed"); });
    connect(&world.parts->life, &LifeCycle::settingsChanged, this,
            [&told](bool timeChanged) { told.append(timeChanged ? "clock" : "zone"); });
    world.setClock(Start + Minute);
    emit world.zone.changed();
    QCOMPARE(told, (QStringList{"changed", "clock", "changed", "zone"}));
}

void TestTimeChanges::restartResumesRinging()
{
    World world(Start);
    const quint32 cookie = world.add(daily(7, 0));
    world.passTo(Seven);
    world.restart(Seven + Minute);
    QCOMPARE(world.state(cookie), State::Triggered);
    QCOMPARE(world.ringer.rung, (QList<quint32>{cookie, cookie}));
    QCOMPARE(world.store.words(), QStringList{"due"});
    QVERIFY(world.parts->life.rings(cookie));
    world.pass(Minute);
    QCOMPARE(world.store.words(), (QStringList{"due", "rang", "missed"}));
}

void TestTimeChanges::restartAfterTheRingTimeGoesOnAsIfUnanswered()
{
    World world(Start);
    Wire::Event event = daily(7, 0);
    event.timeoutSnooze = 300;
    event.maximalTimeoutSnoozeCounter = 3;
    const quint32 cookie = world.add(event);
    world.passTo(Seven);
    world.restart(Seven + 3 * Minute);
    QCOMPARE(world.state(cookie), State::Snoozed);
    QCOMPARE(world.moment(cookie), std::optional(Seven + 7 * Minute));

    world.passTo(Seven + 7 * Minute);
    world.restart(Seven + Day / 2);
    QCOMPARE(world.state(cookie), State::Waiting);
    QCOMPARE(world.store.words().last(), "missed");
}

void TestTimeChanges::restartRearmsASnooze_data()
{
    QTest::addColumn<qint64>("offUntil");
    QTest::addColumn<State>("state");

    QTest::newRow("ahead") << Seven + 4 * Minute << State::Snoozed;
    QTest::newRow("just ended") << Seven + 12 * Minute << State::Triggered;
    QTest::newRow("ended long ago") << Seven + 12 * Hour << State::Waiting;
}

void TestTimeChanges::restartRearmsASnooze()
{
    QFETCH(qint64, offUntil);
    QFETCH(State, state);

    World world(Start);
    const quint32 cookie = world.add(daily(7, 0));
    world.passTo(Seven);
    QVERIFY(world.parts->life.snooze(cookie, 600, "user"));
    world.ringer.rung.clear();
    world.restart(offUntil);
    QCOMPARE(world.state(cookie), state);
    QCOMPARE(world.ringer.rung.size(), state == State::Triggered ? 1 : 0);
    if (state == State::Snoozed)
        QCOMPARE(world.timer.armed, std::optional(Seven + 10 * Minute));
}

void TestTimeChanges::restartLeavesAFinishedEventAlone()
{
    World world(Start);
    const quint32 cookie = world.add(daily(7, 0, Wire::SingleShot | Wire::KeepAlive));
    world.passTo(Seven);
    QVERIFY(world.parts->life.dismiss(cookie, "user"));
    world.restart(Seven + Minute);
    QCOMPARE(world.state(cookie), State::Finished);
    QVERIFY(!world.timer.armed);
}

void TestTimeChanges::restartNeverReusesACookie()
{
    World world(Start);
    const quint32 first = world.add(daily(7, 0));
    QVERIFY(*world.parts->service.cancel(first));
    world.restart(Start);
    QVERIFY(world.add(daily(7, 0)) > first);
}

void TestTimeChanges::silentRingerIsCalledAgain()
{
    World world(Start);
    const quint32 cookie = world.add(daily(7, 0));
    const auto callsAt = [&](qint64 moment) {
        world.passTo(moment);
        return world.ringer.rung.size();
    };
    QCOMPARE(callsAt(Seven), 1);
    QCOMPARE(callsAt(Seven + 5 * Second - 1), 1);
    QCOMPARE(callsAt(Seven + 5 * Second), 2);
    QCOMPARE(callsAt(Seven + 10 * Second), 3);
    QCOMPARE(world.store.words(), QStringList{"due"});
    QCOMPARE(callsAt(Seven + 15 * Second), 4);
    QCOMPARE(world.store.words(), (QStringList{"due", "failed"}));
    QCOMPARE(callsAt(Seven + 29 * Second), 4);
    QCOMPARE(callsAt(Seven + 30 * Second), 5);
    QVERIFY(world.parts->life.rings(cookie));
    QCOMPARE(callsAt(Seven + 119 * Second), 5);
}

void TestTimeChanges::silentRingerIsCalledAgainAfterARestart()
{
    World world(Start);
    world.add(daily(7, 0));
    world.restart(Seven + Minute);
    QCOMPARE(world.ringer.rung.size(), 1);
    world.pass(5 * Second);
    QCOMPARE(world.ringer.rung.size(), 2);
}

void TestTimeChanges::silentRingerIsCalledAgainWhenTheClockGoesBack()
{
    World world(Start);
    world.add(daily(7, 0));
    world.passTo(Seven);
    world.setClock(Seven - Hour);
    QCOMPARE(world.ringer.rung.size(), 1);
    world.pass(5 * Second);
    QCOMPARE(world.ringer.rung.size(), 2);
}

void TestTimeChanges::ringerThatDiesIsCalledAgain()
{
    World world(Start);
    const quint32 cookie = world.add(daily(7, 0));
    emit world.ringer.vanished();
    QVERIFY(world.ringer.rung.isEmpty());
    world.passTo(Seven);
    QVERIFY(world.parts->life.rings(cookie));
    emit world.ringer.vanished();
    QCOMPARE(world.ringer.rung.size(), 2);
    emit world.ringer.vanished();
    emit world.ringer.vanished();
    emit world.ringer.vanished();
    QCOMPARE(world.ringer.rung.size(), 3);
    // Told once.
    QCOMPARE(world.store.words(), (QStringList{"due", "rang", "impaired"}));
    world.pass(5 * Second);
    QCOMPARE(world.ringer.rung.size(), 4);
}

void TestTimeChanges::cancelledAndReplacedEventsFallSilent()
{
    World world(Start);
    const quint32 cancelled = world.add(daily(7, 0));
    const quint32 replaced = world.add(daily(7, 0));
    world.passTo(Seven);
    QVERIFY(*world.parts->service.cancel(cancelled));
    QVERIFY(world.parts->service.replace(daily(8, 0), replaced));
    QCOMPARE(world.ringer.stopped, (QList<quint32>{cancelled, replaced}));
    world.ringer.rung.clear();
    world.pass(10 * Minute);
    QVERIFY(world.ringer.rung.isEmpty());
}

QTEST_GUILESS_MAIN(TestTimeChanges)
#include "tst_timechanges.moc"
