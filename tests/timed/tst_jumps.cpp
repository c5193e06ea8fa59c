// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/timed/world.h"

#include <QTest>

using namespace Astel::Timed;

namespace {

constexpr qint64 FiftySixYears = 20440 * Day;
const qint64 FarSeven = utc("2082-11-07T06:00:00"); // the first in Berlin after so many years

Wire::Event sevenOn(quint32 days)
{
    Wire::Event event = daily(7, 0);
    event.recurrences[0].daysOfWeek = days;
    return event;
}

/** Rings at seven and is snoozed for ten minutes at once. */
quint32 snoozeAtSeven(World &world, quint32 flags = Wire::KeepAlive)
{
    const quint32 cookie = world.add(daily7(flags));
    world.passTo(Seven);
    (void)world.parts->life.snooze(cookie, 600, "user");
    return cookie;
}

constexpr quint32 Fridays = 1u << 5;
constexpr quint32 Saturdays = 1u << 6;

} // namespace

/** Jumps of the clock and flights, each with the ring, the miss and the journal that follow. */
class TestJumps : public QObject
{
    Q_OBJECT

private slots:
    void jumpJustBeforeAnAlarm_data();
    void jumpJustBeforeAnAlarm();
    void jumpWhileSnoozed_data();
    void jumpWhileSnoozed();
    void snoozeStaysAlignedWhenTheClockGoesBack();
    void unansweredSnoozesAreCountedOnWhenTheClockGoesBack();
    void jumpByYearsLeavesASnoozeAsItIs();
    void jumpByYearsAndBackKeepsASnooze_data();
    void jumpByYearsAndBackKeepsASnooze();
    void snoozeThatEndedBeforeTheYearsDoesNotRing();
    void flightOverTheDateLine_data();
    void flightOverTheDateLine();
};

void TestJumps::jumpJustBeforeAnAlarm_data()
{
    QTest::addColumn<qint64>("jump");
    QTest::addColumn<QStringList>("journal");
    QTest::addColumn<std::optional<qint64>>("next");

    const QStringList none;
    const std::optional<qint64> rings;
    QTest::newRow("-2 days") << -2 * Day << none << std::optional(Seven - 2 * Day);
    QTest::newRow("-1 h") << -Hour << none << std::optional(Seven);
    QTest::newRow("-1 s") << -Second << none << std::optional(Seven);
    QTest::newRow("+1 s") << Second << QStringList{"due"} << rings;
    QTest::newRow("+9 min") << 9 * Minute << QStringList{"due"} << rings;
    QTest::newRow("+11 min") << 11 * Minute << QStringList{"missed"} << std::optional(Seven + Day);
    QTest::newRow("+30 days") << 30 * Day << QStringList{"missed"} << std::optional(Seven + 30 * Day);
    // Neither rings nor is missed; fourteen leap days make it the 6th.
    QTest::newRow("+56 years") << FiftySixYears << none << std::optional(utc("2082-11-06T06:00:00"));
}

void TestJumps::jumpJustBeforeAnAlarm()
{
    QFETCH(qint64, jump);
    QFETCH(QStringList, journal);
    QFETCH(std::optional<qint64>, next);

    const qint64 before = Seven - Second / 2;
    World world(before);
    const quint32 cookie = world.add(daily(7, 0));
    world.setClock(before + jump);
    QCOMPARE(world.store.happenings(), QStringList{"clock set"});
    QCOMPARE(world.store.words(), journal);
    QCOMPARE(world.ringer.rung, next ? QList<quint32>() : QList<quint32>{cookie});
    QCOMPARE(world.moment(cookie), next ? next : std::optional(Seven));
    QCOMPARE(world.store.misses.size(), journal.contains("missed") ? 1 : 0);
    for (const Miss &miss : world.store.misses)
        QCOMPARE(miss, (Miss{cookie, Seven, before + jump, MissReason::ClockSet, false, daily(7, 0)}));
}

void TestJumps::jumpWhileSnoozed_data()
{
    QTest::addColumn<qint64>("jump");
    QTest::addColumn<QStringList>("journal");
    QTest::addColumn<State>("state");
    QTest::addColumn<qint64>("moment");

    const QStringList none;
    const qint64 end = Seven + 10 * Minute;
    // Set back behind the answer, the snooze keeps its length.
    QTest::newRow("-2 days") << -2 * Day << none << State::Snoozed << end + 5 * Second - 2 * Day;
    QTest::newRow("-1 h") << -Hour << none << State::Snoozed << end + 5 * Second - Hour;
    QTest::newRow("-1 s") << -Second << none << State::Snoozed << end;
    QTest::newRow("+1 s") << Second << none << State::Snoozed << end;
    QTest::newRow("+9 min") << 9 * Minute << none << State::Snoozed << end;
    QTest::newRow("+11 min") << 11 * Minute << QStringList{"due"} << State::Triggered << end;
    QTest::newRow("+30 days") << 30 * Day << QStringList{"missed"} << State::Waiting << Seven + 31 * Day;
    // Nothing rings for a snooze of long ago, and the alarm goes on by the clock there is.
    QTest::newRow("+56 years") << FiftySixYears << none << State::Waiting << FarSeven;
}

void TestJumps::jumpWhileSnoozed()
{
    QFETCH(qint64, jump);
    QFETCH(QStringList, journal);
    QFETCH(State, state);
    QFETCH(qint64, moment);

    World world(Seven - Hour);
    const quint32 cookie = snoozeAtSeven(world);
    QCOMPARE(world.state(cookie), State::Snoozed);
    world.pass(5 * Second);
    world.store.entries.clear();
    world.setClock(world.clock.time + jump);
    QCOMPARE(world.store.words(), journal);
    QCOMPARE(world.state(cookie), state);
    QCOMPARE(world.moment(cookie), std::optional(moment));
    // What was missed is the alarm, not its snooze.
    for (const Miss &miss : world.store.misses)
        QCOMPARE(miss.due, Seven);
}

void TestJumps::snoozeStaysAlignedWhenTheClockGoesBack()
{
    World world(Seven - Hour);
    const quint32 cookie = snoozeAtSeven(world, Wire::KeepAlive | Wire::AlignedSnooze);
    QCOMPARE(world.state(cookie), State::Snoozed);
    world.setClock(Seven - 2 * Day + 5 * Second);
    QCOMPARE(world.moment(cookie), std::optional(Seven - 2 * Day + 11 * Minute));
}

void TestJumps::unansweredSnoozesAreCountedOnWhenTheClockGoesBack()
{
    World world(Seven - Hour);
    Wire::Event event = daily(7, 0);
    event.timeoutSnooze = 300;
    event.maximalTimeoutSnoozeCounter = 1;
    const quint32 cookie = world.add(event);
    world.passTo(Seven + 2 * Minute);
    QCOMPARE(world.state(cookie), State::Snoozed);
    world.setClock(Seven - 2 * Day);
    QCOMPARE(world.moment(cookie), std::optional(Seven - 2 * Day + 5 * Minute));
    world.pass(7 * Minute);
    QCOMPARE(world.state(cookie), State::Waiting);
    QCOMPARE(world.store.words().last(), "missed");
}

void TestJumps::jumpByYearsLeavesASnoozeAsItIs()
{
    World world(Seven - Hour);
    const quint32 cookie = snoozeAtSeven(world, Wire::SingleShot | Wire::KeepAlive);
    QCOMPARE(world.state(cookie), State::Snoozed);
    world.setClock(Seven + FiftySixYears);
    QCOMPARE(world.state(cookie), State::Snoozed);
    QCOMPARE(world.moment(cookie), std::optional(Seven + 10 * Minute));
    world.pass(Minute);
    world.setClock(Seven + Minute);
    QCOMPARE(world.ringer.rung.size(), 1);
    QCOMPARE(world.moment(cookie), std::optional(Seven + 10 * Minute));
    world.passTo(Seven + 10 * Minute);
    QCOMPARE(world.ringer.rung.size(), 2);
    QVERIFY(world.parts->life.dismiss(cookie, "user"));
    QCOMPARE(world.state(cookie), State::Finished);
}

void TestJumps::jumpByYearsAndBackKeepsASnooze_data()
{
    QTest::addColumn<qint64>("back");
    QTest::addColumn<bool>("restarted");
    QTest::addColumn<QStringList>("journal");
    QTest::addColumn<State>("state");
    QTest::addColumn<qint64>("moment");

    const QStringList none;
    const QStringList due{"due"};
    const qint64 end = Seven + 10 * Minute;
    QTest::newRow("before its end") << Seven + 4 * Minute << false << none << State::Snoozed << end;
    QTest::newRow("at its end") << end << false << due << State::Triggered << end;
    QTest::newRow("a little late") << end + 9 * Minute << false << due << State::Triggered << end;
    QTest::newRow("too late") << end + Hour << false << QStringList{"missed"} << State::Waiting << Seven + Day;
    QTest::newRow("behind the answer") << Seven - Hour << false << none << State::Snoozed << end - Hour;
    QTest::newRow("to 1970") << qint64(0) << false << none << State::Snoozed << 10 * Minute;
    // A daemon that starts behind the years in which the event was put where it is doubts the clock, and rings by it.
    QTest::newRow("a little late, restarted") << end + Minute << true << due << State::Triggered << end + Minute;
    QTest::newRow("too late, restarted") << end + Hour << true << none << State::Waiting << FarSeven;
}

void TestJumps::jumpByYearsAndBackKeepsASnooze()
{
    QFETCH(qint64, back);
    QFETCH(bool, restarted);
    QFETCH(QStringList, journal);
    QFETCH(State, state);
    QFETCH(qint64, moment);

    World world(Seven - Hour);
    const quint32 cookie = snoozeAtSeven(world);
    QCOMPARE(world.state(cookie), State::Snoozed);
    world.ringer.rung.clear();
    world.store.entries.clear();
    world.setClock(Seven + Minute + FiftySixYears);
    world.pass(2 * Minute);
    QCOMPARE(world.state(cookie), State::Waiting);
    QCOMPARE(world.moment(cookie), std::optional(FarSeven));
    QVERIFY(world.ringer.rung.isEmpty());
    if (restarted) {
        world.restart(back);
        world.passTo(back);
    } else {
        world.setClock(back);
    }
    QCOMPARE(world.store.words(), journal);
    QCOMPARE(world.state(cookie), state);
    QCOMPARE(world.moment(cookie), std::optional(moment));
    QCOMPARE(world.ringer.rung.size(), journal.contains("due") ? 1 : 0);
}

void TestJumps::snoozeThatEndedBeforeTheYearsDoesNotRing()
{
    World world(Seven - Hour);
    const quint32 cookie = snoozeAtSeven(world);
    QCOMPARE(world.state(cookie), State::Snoozed);
    world.setClock(Seven + Minute + FiftySixYears);
    world.ringer.rung.clear();
    // It rang and was answered by the clock of then; what was snoozed before is served with it.
    world.passTo(FarSeven);
    QCOMPARE(world.ringer.rung, QList<quint32>{cookie});
    QVERIFY(world.parts->life.dismiss(cookie, "user"));
    world.setClock(Seven + 4 * Minute);
    QCOMPARE(world.state(cookie), State::Waiting);
    QCOMPARE(world.moment(cookie), std::optional(Seven + Day));
}

void TestJumps::flightOverTheDateLine_data()
{
    QTest::addColumn<QByteArray>("from");
    QTest::addColumn<QByteArray>("to");
    QTest::addColumn<quint32>("days");
    QTest::addColumn<qint64>("before");
    QTest::addColumn<qint64>("after");

    const auto row
        = [](const char *name, const char *from, const char *to, quint32 days, const char *before, const char *after) {
              QTest::newRow(name) << QByteArray(from) << QByteArray(to) << days << utc(before) << utc(after);
          };
    const char *apia = "Pacific/Apia";
    const char *pagoPago = "Pacific/Pago_Pago";
    const char *kiritimati = "Pacific/Kiritimati";
    // It is half past five on Friday in Pago Pago and on Saturday in Apia, half past six in Kiritimati.
    row("every day, a day back", apia, pagoPago, Wire::AllDaysOfWeek, "2026-11-20T18:00:00", "2026-11-20T18:00:00");
    row("Saturdays, a day back", apia, pagoPago, Saturdays, "2026-11-20T18:00:00", "2026-11-21T18:00:00");
    row("Saturdays, a day ahead", pagoPago, apia, Saturdays, "2026-11-21T18:00:00", "2026-11-20T18:00:00");
    row("Fridays, a day back", apia, pagoPago, Fridays, "2026-11-26T18:00:00", "2026-11-20T18:00:00");
    row("Fridays, a day ahead", pagoPago, apia, Fridays, "2026-11-20T18:00:00", "2026-11-26T18:00:00");
    row("every day, 25 hours back", kiritimati, pagoPago, Wire::AllDaysOfWeek, "2026-11-20T17:00:00",
        "2026-11-20T18:00:00");
    row("Saturdays, 25 hours back", kiritimati, pagoPago, Saturdays, "2026-11-20T17:00:00", "2026-11-21T18:00:00");
    row("Saturdays, 25 hours ahead", pagoPago, kiritimati, Saturdays, "2026-11-21T18:00:00", "2026-11-20T17:00:00");
    row("Fridays, 25 hours ahead", pagoPago, kiritimati, Fridays, "2026-11-20T18:00:00", "2026-11-26T17:00:00");
}

void TestJumps::flightOverTheDateLine()
{
    QFETCH(QByteArray, from);
    QFETCH(QByteArray, to);
    QFETCH(quint32, days);
    QFETCH(qint64, before);
    QFETCH(qint64, after);

    World world(utc("2026-11-20T16:30:00"));
    world.zone.current = *Rules::Zone::create(from);
    const quint32 cookie = world.add(sevenOn(days));
    QCOMPARE(world.moment(cookie), std::optional(before));
    world.zone.current = *Rules::Zone::create(to);
    emit world.zone.changed();
    QCOMPARE(world.moment(cookie), std::optional(after));
    QCOMPARE(world.store.happenings(), QStringList{"zone changed"});
    QCOMPARE(world.store.entries.last().detail, QString::fromUtf8(to));
    world.passTo(after - 1);
    QVERIFY(world.store.words().isEmpty());
    world.passTo(after);
    QCOMPARE(world.ringer.rung, QList<quint32>{cookie});
    QVERIFY(world.store.misses.isEmpty());
}

QTEST_GUILESS_MAIN(TestJumps)
#include "tst_jumps.moc"
