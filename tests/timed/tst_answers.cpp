// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timed/lifecycle.h"
#include "tests/timed/world.h"

#include <QTest>

using namespace Astel::Timed;

/** What becomes of a ringing event by an answer, or for want of one, with time in the test's hand. */
class TestAnswers : public QObject
{
    Q_OBJECT

private slots:
    void snoozeLastsAsAsked_data();
    void snoozeLastsAsAsked();
    void snoozeNeedsALengthAndARingingEvent();
    void buttonDoesWhatItsNumberSays_data();
    void buttonDoesWhatItsNumberSays();
    void buttonNeedsANumberAndARingingEvent();
    void unansweredRingingSnoozesUntilItsCounterIsUsedUp();
    void answeringBeginsTheCounterAgain();
    void snoozedEventCanBeDismissed();
    void twoEventsOfOneMinuteAreAnsweredOneByOne();
};

void TestAnswers::snoozeLastsAsAsked_data()
{
    QTest::addColumn<quint32>("flags");
    QTest::addColumn<qint64>("answeredAfter");
    QTest::addColumn<quint32>("seconds");
    QTest::addColumn<qint64>("end");

    QTest::newRow("as asked") << 0u << 7 * Second << 300u << Seven + 307 * Second;
    QTest::newRow("first button") << 0u << 7 * Second << 0u << Seven + 607 * Second;
    QTest::newRow("aligned, rounded up") << quint32(Wire::AlignedSnooze) << 7 * Second << 300u << Seven + 6 * Minute;
    QTest::newRow("aligned, whole already") << quint32(Wire::AlignedSnooze) << qint64(0) << 300u << Seven + 5 * Minute;
}

void TestAnswers::snoozeLastsAsAsked()
{
    QFETCH(quint32, flags);
    QFETCH(qint64, answeredAfter);
    QFETCH(quint32, seconds);
    QFETCH(qint64, end);

    World world(Seven - Hour);
    const quint32 cookie = world.add(daily7(flags));
    world.passTo(Seven + answeredAfter);
    const auto until = world.parts->life.snooze(cookie, seconds, "user");
    QVERIFY(until);
    QCOMPARE(*until, end);
    QCOMPARE(world.state(cookie), State::Snoozed);
    QCOMPARE(world.moment(cookie), std::optional(end));
    QCOMPARE(world.ringer.stopped, QList<quint32>{cookie});

    world.ringer.rung.clear();
    world.passTo(end);
    QCOMPARE(world.state(cookie), State::Triggered);
    QCOMPARE(world.ringer.rung, QList<quint32>{cookie});
    QVERIFY(world.parts->life.dismiss(cookie, "user"));
    QCOMPARE(world.moment(cookie), std::optional(Seven + Day));
}

void TestAnswers::snoozeNeedsALengthAndARingingEvent()
{
    World world(Seven - Hour);
    const quint32 waiting = world.add(daily(8, 0));
    QCOMPARE(world.parts->life.snooze(waiting, 60, "user").error().name, QLatin1String(Wire::UnknownError));
    QCOMPARE(world.parts->life.snooze(77, 60, "user").error().name, QLatin1String(Wire::UnknownError));
    QCOMPARE(world.parts->life.rings(waiting).error().name, QLatin1String(Wire::UnknownError));
    QCOMPARE(world.parts->life.sounds(waiting, "x").error().name, QLatin1String(Wire::UnknownError));
    QCOMPARE(world.parts->life.impaired(waiting, "x").error().name, QLatin1String(Wire::UnknownError));
    QCOMPARE(world.parts->life.dismiss(waiting, "user").error().name, QLatin1String(Wire::UnknownError));

    Wire::Event bare = daily7();
    bare.buttons.clear();
    const quint32 noButton = world.add(bare);
    world.passTo(Seven);
    QCOMPARE(world.parts->life.snooze(noButton, 0, "user").error().name, QLatin1String(Wire::InvalidError));
    QCOMPARE(world.parts->life.snooze(noButton, 0xffffffffu, "user").error().name, QLatin1String(Wire::InvalidError));
    QCOMPARE(world.state(noButton), State::Triggered);
}

void TestAnswers::buttonDoesWhatItsNumberSays_data()
{
    QTest::addColumn<quint32>("flags");
    QTest::addColumn<quint32>("button");
    QTest::addColumn<State>("state");
    QTest::addColumn<qint64>("moment");
    QTest::addColumn<QString>("answer");

    const quint32 aligned = Wire::AlignedSnooze;
    QTest::newRow("stop") << 0u << 1u << State::Waiting << Seven + Day << "stop by user";
    QTest::newRow("snooze") << 0u << 2u << State::Snoozed << Seven + 607 * Second << "snooze of 600 s by user";
    QTest::newRow("other snooze") << 0u << 3u << State::Snoozed << Seven + 307 * Second << "snooze of 300 s by user";
    QTest::newRow("aligned") << aligned << 3u << State::Snoozed << Seven + 6 * Minute << "snooze of 300 s by user";
}

void TestAnswers::buttonDoesWhatItsNumberSays()
{
    QFETCH(quint32, flags);
    QFETCH(quint32, button);
    QFETCH(State, state);
    QFETCH(qint64, moment);
    QFETCH(QString, answer);

    World world(Seven - Hour);
    Wire::Event event = daily7(flags);
    event.buttons = {{0, {}}, {600, {}}, {300, {}}};
    const quint32 cookie = world.add(event);
    world.passTo(Seven + 7 * Second);
    const auto until = world.parts->life.press(cookie, button, "user");
    QVERIFY(until);
    QCOMPARE(*until, state == State::Snoozed ? std::optional(moment) : std::nullopt);
    QCOMPARE(world.state(cookie), state);
    QCOMPARE(world.moment(cookie), std::optional(moment));
    QCOMPARE(world.ringer.stopped, QList<quint32>{cookie});
    QCOMPARE(world.store.stored.at(cookie).state(), state);
    QCOMPARE(world.store.entries.last().what, "answered");
    QCOMPARE(world.store.entries.last().detail, answer);
}

void TestAnswers::buttonNeedsANumberAndARingingEvent()
{
    World world(Seven - Hour);
    const quint32 cookie = world.add(daily7());
    const auto refusal
        = [&](quint32 of, quint32 button) { return world.parts->life.press(of, button, "user").error().name; };
    QCOMPARE(refusal(cookie, 1), QLatin1String(Wire::UnknownError));
    QCOMPARE(refusal(77, 1), QLatin1String(Wire::UnknownError));
    world.passTo(Seven);
    QCOMPARE(refusal(cookie, 0), QLatin1String(Wire::InvalidError));
    QCOMPARE(refusal(cookie, 3), QLatin1String(Wire::InvalidError));
    QCOMPARE(world.state(cookie), State::Triggered);
    QVERIFY(world.parts->life.press(cookie, 2, "user"));
    QCOMPARE(refusal(cookie, 1), QLatin1String(Wire::UnknownError));
    QCOMPARE(world.state(cookie), State::Snoozed);
}

void TestAnswers::unansweredRingingSnoozesUntilItsCounterIsUsedUp()
{
    World world(Seven - Hour);
    Wire::Event event = daily7();
    event.timeoutSnooze = 300;
    event.maximalTimeoutSnoozeCounter = 2;
    const quint32 cookie = world.add(event);
    // Rings for two minutes, snoozes for five: at 7:00, 7:07 and 7:14.
    for (const qint64 begin : {Seven, Seven + 7 * Minute, Seven + 14 * Minute}) {
        world.passTo(begin);
        QVERIFY(world.parts->life.rings(cookie));
        QCOMPARE(world.state(cookie), State::Triggered);
        world.passTo(begin + 2 * Minute - 1);
        QCOMPARE(world.state(cookie), State::Triggered);
        if (begin != Seven + 14 * Minute) {
            world.passTo(begin + 2 * Minute);
            QCOMPARE(world.moment(cookie), std::optional(begin + 7 * Minute));
        }
    }
    world.passTo(Seven + 16 * Minute);
    QCOMPARE(world.store.words(),
             (QStringList{"due", "rang", "answered", "due", "rang", "answered", "due", "rang", "missed"}));
    QCOMPARE(world.ringer.stopped.size(), 3);
    QCOMPARE(world.state(cookie), State::Waiting);
    QCOMPARE(world.moment(cookie), std::optional(Seven + Day));
}

void TestAnswers::answeringBeginsTheCounterAgain()
{
    World world(Seven - Hour);
    Wire::Event event = daily7();
    event.timeoutSnooze = 300;
    event.maximalTimeoutSnoozeCounter = 1;
    const quint32 cookie = world.add(event);
    world.passTo(Seven + 7 * Minute);
    QVERIFY(world.parts->life.snooze(cookie, 60, "user"));
    world.pass(Minute);
    QVERIFY(world.parts->life.rings(cookie));
    world.pass(2 * Minute);
    QCOMPARE(world.state(cookie), State::Snoozed);
    QVERIFY(!world.store.words().contains("missed"));
}

void TestAnswers::snoozedEventCanBeDismissed()
{
    World world(Seven - Hour);
    const quint32 cookie = world.add(daily7(Wire::SingleShot | Wire::KeepAlive));
    world.passTo(Seven);
    QVERIFY(world.parts->life.snooze(cookie, 600, "user"));
    QVERIFY(world.parts->life.dismiss(cookie, "user"));
    QCOMPARE(world.state(cookie), State::Finished);
    world.ringer.rung.clear();
    world.passTo(Seven + 2 * Day);
    QVERIFY(world.ringer.rung.isEmpty());
}

void TestAnswers::twoEventsOfOneMinuteAreAnsweredOneByOne()
{
    World world(Seven - Hour);
    const quint32 one = world.add(daily7());
    const quint32 two = world.add(daily7());
    world.passTo(Seven);
    QCOMPARE(world.ringer.rung, (QList<quint32>{one, two}));
    QVERIFY(world.parts->life.rings(one));
    QVERIFY(world.parts->life.rings(two));
    QVERIFY(world.parts->life.dismiss(one, "user"));
    QCOMPARE(world.state(two), State::Triggered);
    QCOMPARE(world.ringer.stopped, QList<quint32>{one});
    QVERIFY(world.parts->life.snooze(two, 600, "user"));
    QCOMPARE(world.state(one), State::Waiting);
    QCOMPARE(world.state(two), State::Snoozed);
}

QTEST_GUILESS_MAIN(TestAnswers)
#include "tst_answers.moc"
