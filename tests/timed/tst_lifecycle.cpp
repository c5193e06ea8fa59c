// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timed/triggers.h"
#include "platform/timed/validator.h"
#include "tests/timed/world.h"

#include <QTest>

using namespace Astel::Timed;

namespace {

Wire::Event ticker(qint64 milliseconds, quint32 flags = Wire::SingleShot | Wire::KeepAlive)
{
    Wire::Event event;
    event.ticker = milliseconds / Second;
    event.flags = flags;
    return event;
}

} // namespace

/** From a new event to one that was served, with time in the test's hand. */
class TestLifeCycle : public QObject
{
    Q_OBJECT

private slots:
    void newEventStandsAsItsTimesSay_data();
    void newEventStandsAsItsTimesSay();
    void eventWithoutMomentNeverRings();
    void dueEventIsStoredAsTriggeredBeforeItRings();
    void servedEventGoesOnAsItsFlagsSay_data();
    void servedEventGoesOnAsItsFlagsSay();
    void fullDiskKeepsNothingFromRingingOrStopping();
    void failedCommitOfANewEventLeavesNothing();
    void comingTriggersRepeatRecurringEvents();
    void tooManyEventsAreRefused();
    void cookiesEndAtTheirLimit();
    void textsThatTwoEventsHoldAreKeptOnce();
};

void TestLifeCycle::newEventStandsAsItsTimesSay_data()
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

void TestLifeCycle::newEventStandsAsItsTimesSay()
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

void TestLifeCycle::eventWithoutMomentNeverRings()
{
    World world(Start);
    Wire::Event disabled = daily7();
    disabled.ticker = 0;
    world.add(disabled);
    world.passTo(Start + 3 * Day);
    QVERIFY(world.ringer.rung.isEmpty());
}

void TestLifeCycle::dueEventIsStoredAsTriggeredBeforeItRings()
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
    QVERIFY(world.parts->life.impaired(cookie, "no display"));
    QVERIFY(world.parts->life.impaired(cookie, "no display"));
    QCOMPARE(world.store.words(), (QStringList{"due", "rang", "sounded", "impaired"}));
    for (int trouble = 0; trouble < 20; ++trouble)
        QVERIFY(world.parts->life.impaired(cookie, QString::number(trouble)));
    QCOMPARE(world.store.words().count("impaired"), 8);
    // While it rings it is still in the map.
    QCOMPARE(world.parts->book.triggers().size(), 1);
}

void TestLifeCycle::servedEventGoesOnAsItsFlagsSay_data()
{
    QTest::addColumn<Wire::Event>("event");
    QTest::addColumn<std::optional<State>>("state");

    QTest::newRow("recurring") << daily7(0) << std::optional(State::Waiting);
    QTest::newRow("single shot, kept") << daily7(Wire::SingleShot | Wire::KeepAlive) << std::optional(State::Finished);
    QTest::newRow("single shot") << daily7(Wire::SingleShot) << std::optional<State>();
    QTest::newRow("ticker, kept") << ticker(Seven, Wire::KeepAlive) << std::optional(State::Finished);
    QTest::newRow("ticker") << ticker(Seven, 0) << std::optional<State>();
}

void TestLifeCycle::servedEventGoesOnAsItsFlagsSay()
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

void TestLifeCycle::fullDiskKeepsNothingFromRingingOrStopping()
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

void TestLifeCycle::failedCommitOfANewEventLeavesNothing()
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

void TestLifeCycle::comingTriggersRepeatRecurringEvents()
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

void TestLifeCycle::tooManyEventsAreRefused()
{
    World world(Start);
    for (int i = 0; i < MaximalEvents; ++i)
        world.add(daily7());
    QCOMPARE(world.parts->service.add(daily7()).error().name, QLatin1String(Wire::LimitError));
    QVERIFY(world.parts->service.replace(daily7(), 1));
    QVERIFY(*world.parts->service.cancel(2));
    QVERIFY(world.parts->service.add(daily7()));
}

void TestLifeCycle::cookiesEndAtTheirLimit()
{
    World world(Start);
    world.store.last = 2147483646;
    world.restart(Start);
    QCOMPARE(world.add(daily7()), 2147483647u);
    QCOMPARE(world.parts->service.add(daily7()).error().name, QLatin1String(Wire::LimitError));
}

void TestLifeCycle::textsThatTwoEventsHoldAreKeptOnce()
{
    World world(Start);
    Wire::Event one = daily7();
    one.attributes = {{"APPLICATION", "clock"}, {"PLUGIN", "screen"}, {"TITLE", "One"}};
    Wire::Event two = daily7();
    two.attributes = {{"APPLICATION", "clock"}, {"NOTE", "more"}, {"TITLE", "Two"}};
    const quint32 first = world.add(one);
    const quint32 second = world.add(two);
    const Wire::Attributes older = world.parts->book.find(first)->wire().attributes;
    const Wire::Attributes newer = world.parts->book.find(second)->wire().attributes;
    QCOMPARE(older, one.attributes);
    QCOMPARE(newer, two.attributes);
    const auto place = [](const QString &text) { return static_cast<const void *>(text.constData()); };
    const auto application = newer.constFind("APPLICATION");
    QCOMPARE(place(application.key()), place(older.constFind("APPLICATION").key()));
    QCOMPARE(place(*application), place(older["APPLICATION"]));
    QCOMPARE(place(newer.constFind("TITLE").key()), place(older.constFind("TITLE").key()));
}

QTEST_GUILESS_MAIN(TestLifeCycle)
#include "tst_lifecycle.moc"
