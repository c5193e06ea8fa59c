// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timed/triggers.h"
#include "platform/timed/validator.h"
#include "tests/timed/world.h"

#include <QTest>

using namespace Astel::Timed;

namespace {

const qint64 Start = utc("2026-11-20T05:00:00"); // six in the morning in Berlin
const qint64 Seven = utc("2026-11-20T06:00:00");

Wire::Event daily7(quint32 flags = Wire::KeepAlive)
{
    return daily(7, 0, flags);
}

Wire::Event ticker(qint64 milliseconds, quint32 flags = Wire::SingleShot | Wire::KeepAlive)
{
    Wire::Event event;
    event.ticker = milliseconds / Second;
    event.flags = flags;
    return event;
}

} // namespace

class tst_LifeCycle : public QObject
{
    Q_OBJECT

private slots:
    void newEventStandsAsItsTimesSay_data();
    void newEventStandsAsItsTimesSay();
    void eventWithoutMomentNeverRings();
    void dueEventIsStoredAsTriggeredBeforeItRings();
    void servedEventGoesOnAsItsFlagsSay_data();
    void servedEventGoesOnAsItsFlagsSay();
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
    void fullDiskKeepsNothingFromRingingOrStopping();
    void failedCommitOfANewEventLeavesNothing();
    void comingTriggersRepeatRecurringEvents();
    void tooManyEventsAreRefused();
    void cookiesEndAtTheirLimit();
};

void tst_LifeCycle::newEventStandsAsItsTimesSay_data()
{
    QTest::addColumn<Wire::Event>("event");
    QTest::addColumn<State>("state");
    QTest::addColumn<qint64>("moment");

    Wire::Event disabled = daily7();
    disabled.ticker = 0;
    Wire::Event both = daily7();
    both.ticker = (Seven - 20 * Minute) / Second;
    Wire::Event late = daily7();
    late.ticker = (Seven + 20 * Minute) / Second;
    Wire::Event two = daily7();
    two.recurrences.append(daily(6, 30).recurrences);
    Wire::Event never = daily7();
    never.recurrences[0].daysOfMonth = 1u << 30;
    never.recurrences[0].months = 1u << 2;

    QTest::newRow("recurrence") << daily7() << State::Waiting << Seven;
    QTest::newRow("ticker") << ticker(Start + Hour) << State::Waiting << Start + Hour;
    QTest::newRow("earlier ticker wins") << both << State::Waiting << Seven - 20 * Minute;
    QTest::newRow("earlier recurrence wins") << late << State::Waiting << Seven;
    QTest::newRow("earliest of two recurrences") << two << State::Waiting << Seven - 30 * Minute;
    QTest::newRow("ticker just passed") << ticker(Start - 5 * Minute) << State::Waiting << Start - 5 * Minute;
    QTest::newRow("ticker long passed") << ticker(Start - Hour) << State::Inactive << qint64(0);
    QTest::newRow("ticker 0") << disabled << State::Inactive << qint64(0);
    QTest::newRow("neither ticker nor recurrence") << Wire::Event() << State::Inactive << qint64(0);
    QTest::newRow("30 February") << never << State::Inactive << qint64(0);
}

void tst_LifeCycle::newEventStandsAsItsTimesSay()
{
    QFETCH(Wire::Event, event);
    QFETCH(State, state);
    QFETCH(qint64, moment);

    World world(Start);
    const quint32 cookie = world.add(event);
    QCOMPARE(world.state(cookie), state);
    QCOMPARE(world.moment(cookie).value_or(0), moment);
    const QVariantMap map = world.parts->book.triggers();
    QCOMPARE(map.size(), moment ? 1 : 0);
    if (moment) {
        QCOMPARE(map.value(QString::number(cookie)), QVariant(quint64(moment) * 1000000));
        QCOMPARE(map.value(QString::number(cookie)).metaType(), QMetaType::fromType<quint64>());
        QCOMPARE(world.timer.armed, std::optional(moment));
    }
}

void tst_LifeCycle::eventWithoutMomentNeverRings()
{
    World world(Start);
    Wire::Event disabled = daily7();
    disabled.ticker = 0;
    world.add(disabled);
    world.passTo(Start + 3 * Day);
    QVERIFY(world.ringer.rung.isEmpty());
}

void tst_LifeCycle::dueEventIsStoredAsTriggeredBeforeItRings()
{
    World world(Start);
    const quint32 cookie = world.add(daily7());
    world.passTo(Seven - 1);
    QVERIFY(world.ringer.rung.isEmpty());
    world.passTo(Seven);
    QCOMPARE(world.ringer.rung, QList<quint32>{cookie});
    QCOMPARE(world.ringer.moments, QList<qint64>{Seven});
    QCOMPARE(world.ringer.storedStates, QList<State>{State::Triggered});
    QCOMPARE(world.store.words(), QStringList{"due"});
    QVERIFY(world.parts->life.rings(cookie));
    QVERIFY(world.parts->life.rings(cookie));
    QVERIFY(world.parts->life.sounds(cookie, "built-in"));
    QCOMPARE(world.store.words(), (QStringList{"due", "rang", "sounded"}));
    // While it rings it is still in the map.
    QCOMPARE(world.parts->book.triggers().size(), 1);
}

void tst_LifeCycle::servedEventGoesOnAsItsFlagsSay_data()
{
    QTest::addColumn<Wire::Event>("event");
    QTest::addColumn<std::optional<State>>("state");

    QTest::newRow("recurring") << daily7(0) << std::optional(State::Waiting);
    QTest::newRow("single shot, kept") << daily7(Wire::SingleShot | Wire::KeepAlive) << std::optional(State::Finished);
    QTest::newRow("single shot") << daily7(Wire::SingleShot) << std::optional<State>();
    QTest::newRow("ticker, kept") << ticker(Seven, Wire::KeepAlive) << std::optional(State::Finished);
    QTest::newRow("ticker") << ticker(Seven, 0) << std::optional<State>();
}

void tst_LifeCycle::servedEventGoesOnAsItsFlagsSay()
{
    QFETCH(Wire::Event, event);
    QFETCH(std::optional<State>, state);

    World world(Start);
    const quint32 cookie = world.add(event);
    world.passTo(Seven);
    world.pass(20 * Second);
    QVERIFY(world.parts->life.dismiss(cookie, "user"));
    QCOMPARE(world.ringer.stopped, QList<quint32>{cookie});
    QCOMPARE(world.parts->book.find(cookie) != nullptr, state.has_value());
    QCOMPARE(world.store.stored.contains(cookie), state.has_value());
    if (state)
        QCOMPARE(world.state(cookie), *state);
    if (state == State::Waiting)
        QCOMPARE(world.moment(cookie), std::optional(Seven + Day));
    else
        QVERIFY(world.parts->book.triggers().isEmpty());
    QVERIFY(!world.parts->life.dismiss(cookie, "user"));
}

void tst_LifeCycle::snoozeLastsAsAsked_data()
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

void tst_LifeCycle::snoozeLastsAsAsked()
{
    QFETCH(quint32, flags);
    QFETCH(qint64, answeredAfter);
    QFETCH(quint32, seconds);
    QFETCH(qint64, end);

    World world(Start);
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

void tst_LifeCycle::snoozeNeedsALengthAndARingingEvent()
{
    World world(Start);
    const quint32 waiting = world.add(daily(8, 0));
    QCOMPARE(world.parts->life.snooze(waiting, 60, "user").error().name, QLatin1String(Wire::UnknownError));
    QCOMPARE(world.parts->life.snooze(77, 60, "user").error().name, QLatin1String(Wire::UnknownError));
    QCOMPARE(world.parts->life.rings(waiting).error().name, QLatin1String(Wire::UnknownError));
    QCOMPARE(world.parts->life.sounds(waiting, "x").error().name, QLatin1String(Wire::UnknownError));
    QCOMPARE(world.parts->life.dismiss(waiting, "user").error().name, QLatin1String(Wire::UnknownError));

    const quint32 noButton = world.add(ticker(Seven));
    world.passTo(Seven);
    QCOMPARE(world.parts->life.snooze(noButton, 0, "user").error().name, QLatin1String(Wire::InvalidError));
    QCOMPARE(world.parts->life.snooze(noButton, 0xffffffffu, "user").error().name, QLatin1String(Wire::InvalidError));
    QCOMPARE(world.state(noButton), State::Triggered);
}

void tst_LifeCycle::buttonDoesWhatItsNumberSays_data()
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

void tst_LifeCycle::buttonDoesWhatItsNumberSays()
{
    QFETCH(quint32, flags);
    QFETCH(quint32, button);
    QFETCH(State, state);
    QFETCH(qint64, moment);
    QFETCH(QString, answer);

    World world(Start);
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

void tst_LifeCycle::buttonNeedsANumberAndARingingEvent()
{
    World world(Start);
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

void tst_LifeCycle::unansweredRingingSnoozesUntilItsCounterIsUsedUp()
{
    World world(Start);
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

void tst_LifeCycle::answeringBeginsTheCounterAgain()
{
    World world(Start);
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

void tst_LifeCycle::snoozedEventCanBeDismissed()
{
    World world(Start);
    const quint32 cookie = world.add(daily7(Wire::SingleShot | Wire::KeepAlive));
    world.passTo(Seven);
    QVERIFY(world.parts->life.snooze(cookie, 600, "user"));
    QVERIFY(world.parts->life.dismiss(cookie, "user"));
    QCOMPARE(world.state(cookie), State::Finished);
    world.ringer.rung.clear();
    world.passTo(Seven + 2 * Day);
    QVERIFY(world.ringer.rung.isEmpty());
}

void tst_LifeCycle::twoEventsOfOneMinuteAreAnsweredOneByOne()
{
    World world(Start);
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

void tst_LifeCycle::fullDiskKeepsNothingFromRingingOrStopping()
{
    World world(Start);
    const quint32 cookie = world.add(daily7());
    world.store.failing = true;
    world.passTo(Seven);
    QCOMPARE(world.ringer.rung, QList<quint32>{cookie});
    QVERIFY(world.parts->life.dismiss(cookie, "user"));
    QCOMPARE(world.ringer.stopped, QList<quint32>{cookie});
    QCOMPARE(world.moment(cookie), std::optional(Seven + Day));
}

void tst_LifeCycle::failedCommitOfANewEventLeavesNothing()
{
    World world(Start);
    const quint32 cookie = world.add(daily7());
    world.store.failing = true;
    QCOMPARE(world.parts->service.add(daily(6, 30)).error().name, QLatin1String(Wire::StorageError));
    QCOMPARE(world.parts->service.replace(daily(6, 30), cookie).error().name, QLatin1String(Wire::StorageError));
    QCOMPARE(world.parts->service.cancel(cookie).error().name, QLatin1String(Wire::StorageError));
    QCOMPARE(world.parts->book.events().size(), std::size_t(1));
    QCOMPARE(world.timer.armed, std::optional(Seven));
    world.store.failing = false;
    QCOMPARE(world.add(daily7()), cookie + 1);
}

void tst_LifeCycle::comingTriggersRepeatRecurringEvents()
{
    World world(Start);
    const quint32 recurring = world.add(daily7());
    const quint32 once = world.add(daily(7, 30, Wire::SingleShot));
    const auto coming = nextTriggers(world.parts->book.events(), world.zone.zone(), 4);
    const auto trigger = [](quint32 cookie, qint64 moment) { return Wire::Trigger{cookie, quint64(moment) * 1000000}; };
    QCOMPARE(coming,
             (QList<Wire::Trigger>{trigger(recurring, Seven), trigger(once, Seven + 30 * Minute),
                                   trigger(recurring, Seven + Day), trigger(recurring, Seven + 2 * Day)}));
}

void tst_LifeCycle::tooManyEventsAreRefused()
{
    World world(Start);
    for (int i = 0; i < MaximalEvents; ++i)
        world.add(daily7());
    QCOMPARE(world.parts->service.add(daily7()).error().name, QLatin1String(Wire::LimitError));
    QVERIFY(world.parts->service.replace(daily7(), 1));
    QVERIFY(*world.parts->service.cancel(2));
    QVERIFY(world.parts->service.add(daily7()));
}

void tst_LifeCycle::cookiesEndAtTheirLimit()
{
    World world(Start);
    world.store.last = 2147483646;
    world.restart(Start);
    QCOMPARE(world.add(daily7()), 2147483647u);
    QCOMPARE(world.parts->service.add(daily7()).error().name, QLatin1String(Wire::LimitError));
}

QTEST_GUILESS_MAIN(tst_LifeCycle)
#include "tst_lifecycle.moc"
