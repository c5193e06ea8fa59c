// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timed/missedteller.h"

#include "platform/locale/locale.h"
#include "platform/timed/missednotice.h"
#include "platform/timed/noticetexts.h"
#include "tests/timed/world.h"

#include <QTest>

using namespace Astel::Timed;
using Notices::Notice;

namespace {

Wire::Event titled(const QString &title, int minute = 0, quint32 flags = Wire::KeepAlive)
{
    Wire::Event event = daily(7, minute, flags);
    event.attributes = {{"TITLE", title}};
    return event;
}

Miss miss(quint32 cookie, MissReason reason = MissReason::Off)
{
    return {cookie, Seven, Seven + Hour, reason, false, titled(QStringLiteral("Alarm %1").arg(cookie))};
}

} // namespace

/** What the user is told of missed alarms, and what becomes of "ring now". */
class TestMissedTeller : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void noticeSaysWhatWhenAndWhy_data();
    void noticeSaysWhatWhenAndWhy();
    void noticeOfMany();
    void onlyItsOwnActionsNameACookie();

    void startTellsAllAtOnceAndLaterOnesOneByOne();
    void untoldMissOutlivesTheDaemon();
    void missThatIsNotShownIsToldWhenSomebodyAppears();
    void missUnderWayIsNotToldTwice();

    void ringNowRingsOnceMore_data();
    void ringNowRingsOnceMore();
    void ringNowOfADeletedAlarmBringsItBackForOnce();
    void ringNowServesNoMomentAhead();
    void ringNowNeedsAMissedOrStoredAlarmThatIsSilent();
};

void TestMissedTeller::initTestCase()
{
    // Whatever the language of the machine.
    Touch::Locale::setDefault(Touch::Locale(QStringLiteral("en_GB")));
    NoticeTexts::install();
}

void TestMissedTeller::noticeSaysWhatWhenAndWhy_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<MissReason>("reason");
    QTest::addColumn<QString>("body");

    const auto row = [](const char *title, MissReason reason, const char *body) {
        QTest::newRow(body) << title << reason << body;
    };
    row("Wake up", MissReason::Off, "Wake up (Fri, 20 Nov, 07:00): the device was off");
    row("", MissReason::Slept, "Alarm (Fri, 20 Nov, 07:00): the device did not wake up in time");
    row("  two\n lines ", MissReason::ClockSet, "two lines (Fri, 20 Nov, 07:00): the clock was set to a later time");
    row("x", MissReason::Late, "x (Fri, 20 Nov, 07:00): the device was not ready in time");
    row("x", MissReason::Unanswered, "x (Fri, 20 Nov, 07:00): it rang, but nobody answered");
}

void TestMissedTeller::noticeSaysWhatWhenAndWhy()
{
    QFETCH(QString, title);
    QFETCH(MissReason, reason);
    QFETCH(QString, body);

    const auto berlin = Rules::Zone::create("Europe/Berlin");
    const Notice notice = missedNotice({{7, Seven, Seven, reason, false, titled(title)}}, *berlin);
    QCOMPARE(notice.summary, "Missed alarm");
    QCOMPARE(notice.body, body);
    QCOMPARE(notice.actions.size(), 1);
    QCOMPARE(notice.actions[0].label, "Ring now");
    QCOMPARE(cookieToRing(notice.actions[0].key), std::optional(7u));
}

void TestMissedTeller::noticeOfMany()
{
    QList<Miss> misses;
    for (quint32 cookie = 1; cookie <= 10; ++cookie)
        misses.append(miss(cookie));
    misses[1].cookie = 1;
    const Notice notice = missedNotice(misses, *Rules::Zone::create("UTC"));
    QCOMPARE(notice.summary, "10 missed alarms");
    const QStringList lines = notice.body.split('\n');
    QCOMPARE(lines.size(), 9);
    QCOMPARE(lines.first(), "Alarm 1 (Fri, 20 Nov, 06:00): the device was off");
    QCOMPARE(lines.last(), "and 2 more");
    QStringList labels;
    for (const Notice::Action &action : notice.actions)
        labels.append(action.label);
    QCOMPARE(labels, (QStringList{"Ring now: Alarm 1", "Ring now: Alarm 3", "Ring now: Alarm 4"}));
}

void TestMissedTeller::onlyItsOwnActionsNameACookie()
{
    for (const char *key : {"", "default", "7", "com.astel.timed.ring-now.", "com.astel.timed.ring-now.x",
                            "com.astel.timed.ring-now.7x", "org.example.ring-now.7"})
        QCOMPARE(cookieToRing(key), std::nullopt);
}

void TestMissedTeller::startTellsAllAtOnceAndLaterOnesOneByOne()
{
    World world(Start);
    world.add(titled("One"));
    world.add(titled("Two"));
    world.restart(Seven + Hour);
    FakeNotifier notifier;
    MissedTeller teller(world.parts->book, world.parts->life, notifier, world.zone);
    teller.start();
    QCOMPARE(notifier.notices.size(), 1);
    QCOMPARE(notifier.notices[0].summary, "2 missed alarms");
    QCOMPARE(world.parts->book.untold().size(), 2);
    notifier.answer(true);
    QVERIFY(world.parts->book.untold().isEmpty());

    notifier.notices.clear();
    world.setClock(Seven + Day + Hour);
    QCOMPARE(notifier.notices.size(), 2);
    notifier.answer(true);
    QVERIFY(world.parts->book.untold().isEmpty());
}

void TestMissedTeller::untoldMissOutlivesTheDaemon()
{
    World world(Start);
    world.add(titled("One", 0, Wire::SingleShot));
    world.restart(Seven + Hour);
    world.restart(Seven + 2 * Hour);
    FakeNotifier notifier;
    MissedTeller teller(world.parts->book, world.parts->life, notifier, world.zone);
    teller.start();
    QCOMPARE(notifier.notices.size(), 1);
    QVERIFY(notifier.notices[0].body.startsWith("One ("));
    notifier.answer(true);
    world.restart(Seven + 3 * Hour);
    QVERIFY(world.parts->book.untold().isEmpty());
}

void TestMissedTeller::missThatIsNotShownIsToldWhenSomebodyAppears()
{
    World world(Start);
    world.add(titled("One"));
    world.add(titled("Two"));
    FakeNotifier notifier;
    notifier.present = false;
    MissedTeller teller(world.parts->book, world.parts->life, notifier, world.zone);
    teller.start();
    world.setClock(Seven + Hour);
    notifier.answer(false);
    QCOMPARE(world.parts->book.untold().size(), 2);
    notifier.notices.clear();
    emit notifier.appeared();
    QCOMPARE(notifier.notices.size(), 1);
    QCOMPARE(notifier.notices[0].summary, "2 missed alarms");
    notifier.answer(true);
    emit notifier.appeared();
    QCOMPARE(notifier.notices.size(), 1);
}

void TestMissedTeller::missUnderWayIsNotToldTwice()
{
    World world(Start);
    world.add(titled("One"));
    world.add(titled("Two", 30));
    FakeNotifier notifier;
    MissedTeller teller(world.parts->book, world.parts->life, notifier, world.zone);
    teller.start();
    world.setClock(Seven + 20 * Minute);
    emit notifier.appeared();
    world.setClock(Seven + Hour);
    QCOMPARE(notifier.notices.size(), 2);
    QVERIFY(notifier.notices[1].body.startsWith("Two ("));
}

void TestMissedTeller::ringNowRingsOnceMore_data()
{
    QTest::addColumn<quint32>("flags");
    QTest::addColumn<std::optional<State>>("after");

    QTest::newRow("recurring") << quint32(Wire::KeepAlive) << std::optional(State::Waiting);
    QTest::newRow("single shot, kept") << quint32(Wire::SingleShot | Wire::KeepAlive) << std::optional(State::Finished);
    QTest::newRow("single shot, stored no more") << quint32(Wire::SingleShot) << std::optional<State>();
}

void TestMissedTeller::ringNowRingsOnceMore()
{
    QFETCH(quint32, flags);
    QFETCH(std::optional<State>, after);

    World world(Start);
    const quint32 cookie = world.add(titled("One", 0, flags));
    world.restart(Seven + Hour);
    FakeNotifier notifier;
    {
        MissedTeller teller(world.parts->book, world.parts->life, notifier, world.zone);
        teller.start();
        notifier.answer(true);
    }
    // The notice outlives the daemon that showed it.
    world.restart(Seven + 2 * Hour);
    MissedTeller next(world.parts->book, world.parts->life, notifier, world.zone);
    next.start();
    emit notifier.chosen(notifier.notices[0].actions[0].key);
    QCOMPARE(world.ringer.rung, QList<quint32>{cookie});
    QCOMPARE(world.store.words(), (QStringList{"missed", "due"}));
    QVERIFY(world.parts->life.dismiss(cookie, "user"));
    QCOMPARE(world.parts->book.find(cookie) != nullptr, after.has_value());
    if (after)
        QCOMPARE(world.state(cookie), *after);
}

void TestMissedTeller::ringNowOfADeletedAlarmBringsItBackForOnce()
{
    World world(Start);
    const quint32 cookie = world.add(daily(7, 0));
    world.restart(Seven + Hour);
    QVERIFY(*world.parts->service.cancel(cookie));
    QVERIFY(world.parts->life.ringNow(cookie));
    QCOMPARE(world.ringer.rung, QList<quint32>{cookie});
    QVERIFY(world.parts->life.dismiss(cookie, "user"));
    QVERIFY(!world.parts->book.find(cookie));
}

void TestMissedTeller::ringNowServesNoMomentAhead()
{
    World world(Seven - 5 * Minute);
    const quint32 cookie = world.add(daily(7, 0));
    QVERIFY(world.parts->life.ringNow(cookie));
    QCOMPARE(world.state(cookie), State::Triggered);
    world.pass(Minute);
    QVERIFY(world.parts->life.dismiss(cookie, "user"));
    QCOMPARE(world.moment(cookie), std::optional(Seven));
}

void TestMissedTeller::ringNowNeedsAMissedOrStoredAlarmThatIsSilent()
{
    World world(Start);
    const quint32 cookie = world.add(daily(7, 0));
    world.passTo(Seven);
    QCOMPARE(world.parts->life.ringNow(cookie).error().name, QLatin1String(Wire::UnknownError));
    QCOMPARE(world.parts->life.ringNow(4711).error().name, QLatin1String(Wire::UnknownError));
    QCOMPARE(world.ringer.rung, QList<quint32>{cookie});
}

QTEST_GUILESS_MAIN(TestMissedTeller)
#include "tst_missedteller.moc"
