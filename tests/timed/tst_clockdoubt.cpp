// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/timed/world.h"

#include <QTest>

using namespace Astel::Timed;

namespace {

const qint64 BuildDate = utc("2026-02-01T05:00:00");

} // namespace

/** A device without a battery for its clock starts when its system was built, and is told the time later. */
class TestClockDoubt : public QObject
{
    Q_OBJECT

private slots:
    void nothingFalseRingsAndNothingIsLost_data();
    void nothingFalseRingsAndNothingIsLost();
    void snoozeWaitsForTheRightTime();
    void snoozeOfADoubtedClockBeginsAgain();
    void eventOfADoubtedClockIsNotMissed();
    void alarmRingsByADoubtedClockThatStays();
    void smallCorrectionEndsNoDoubt();
};

void TestClockDoubt::nothingFalseRingsAndNothingIsLost_data()
{
    QTest::addColumn<qint64>("first");
    QTest::addColumn<qint64>("set");
    QTest::addColumn<QStringList>("journal");

    for (const qint64 first : {qint64(0), BuildDate}) {
        const QByteArray name = first == 0 ? "1970, " : "build date, ";
        QTest::newRow(name + "set before the alarm") << first << Start + Minute << QStringList();
        QTest::newRow(name + "set to the very moment") << first << Seven << QStringList{"due"};
        QTest::newRow(name + "set five minutes late") << first << Seven + 5 * Minute << QStringList{"due"};
        QTest::newRow(name + "set an hour late") << first << Seven + Hour << QStringList{"missed"};
    }
}

void TestClockDoubt::nothingFalseRingsAndNothingIsLost()
{
    QFETCH(qint64, first);
    QFETCH(qint64, set);
    QFETCH(QStringList, journal);

    World world(Start);
    const quint32 recurring = world.add(daily(7, 0));
    const quint32 once = world.add(daily(7, 0, Wire::SingleShot | Wire::KeepAlive));
    world.restart(first);
    world.pass(10 * Minute);
    QVERIFY(world.store.words().isEmpty());
    QCOMPARE(world.moment(recurring), std::optional(Seven));

    world.setClock(set);
    QCOMPARE(world.store.words(), journal + journal);
    const bool rings = journal.contains("due");
    QCOMPARE(world.ringer.rung, rings ? (QList<quint32>{recurring, once}) : QList<quint32>());
    if (journal.isEmpty())
        QCOMPARE(world.moment(once), std::optional(Seven));
    QVERIFY(world.state(recurring) == (rings ? State::Triggered : State::Waiting));
}

void TestClockDoubt::snoozeWaitsForTheRightTime()
{
    World world(Start);
    const quint32 cookie = world.add(daily(7, 0));
    world.passTo(Seven);
    QVERIFY(world.parts->life.snooze(cookie, 600, "user"));
    world.ringer.rung.clear();
    world.restart(BuildDate);
    world.pass(30 * Minute);
    QVERIFY(world.ringer.rung.isEmpty());
    world.setClock(Seven + 12 * Minute);
    QCOMPARE(world.ringer.rung, QList<quint32>{cookie});
}

void TestClockDoubt::snoozeOfADoubtedClockBeginsAgain()
{
    World world(BuildDate - 60 * Day);
    const quint32 cookie = world.add(daily(7, 0, Wire::SingleShot | Wire::KeepAlive));
    world.passTo(*world.moment(cookie));
    QVERIFY(world.parts->life.snooze(cookie, 600, "user"));
    world.setClock(Start);
    QCOMPARE(world.state(cookie), State::Snoozed);
    QCOMPARE(world.moment(cookie), std::optional(Start + 10 * Minute));
    QVERIFY(world.store.misses.isEmpty());
}

void TestClockDoubt::eventOfADoubtedClockIsNotMissed()
{
    World world(Start);
    world.add(daily(7, 0));
    world.restart(BuildDate);
    const quint32 fresh = world.add(daily(8, 0, Wire::SingleShot));
    QCOMPARE(world.moment(fresh), std::optional(BuildDate + 2 * Hour));
    world.setClock(Start + Minute);
    QCOMPARE(world.moment(fresh), std::optional(Seven + Hour));
    QVERIFY(world.store.misses.isEmpty());
}

void TestClockDoubt::alarmRingsByADoubtedClockThatStays()
{
    World world(Start);
    const quint32 cookie = world.add(daily(7, 0));
    world.restart(BuildDate);
    world.passTo(BuildDate + Hour);
    QCOMPARE(world.ringer.rung, QList<quint32>{cookie});
    QVERIFY(world.parts->life.dismiss(cookie, "user"));
    QCOMPARE(world.moment(cookie), std::optional(BuildDate + Hour + Day));
    world.setClock(Start + Minute);
    QCOMPARE(world.moment(cookie), std::optional(Seven));
    QVERIFY(world.store.misses.isEmpty());
}

void TestClockDoubt::smallCorrectionEndsNoDoubt()
{
    World world(Start);
    const quint32 cookie = world.add(daily(7, 0));
    world.restart(BuildDate);
    world.setClock(BuildDate + 3 * Second);
    QCOMPARE(world.moment(cookie), std::optional(Seven));
    QCOMPARE(world.timer.armed, std::optional(BuildDate + Hour));
    world.setClock(Seven + Minute);
    QCOMPARE(world.ringer.rung, QList<quint32>{cookie});
}

QTEST_GUILESS_MAIN(TestClockDoubt)
#include "tst_clockdoubt.moc"
