// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timed/answerteller.h"

#include "platform/locale/locale.h"
#include "platform/timed/noticetexts.h"
#include "tests/timed/world.h"

#include <QTest>

using namespace Astel::Timed;
using Notices::Notice;

namespace {

Wire::Event wakeUp(quint32 flags)
{
    Wire::Event event = daily(7, 0, flags);
    event.attributes = {{"TITLE", "Wake <b>up</b>"}};
    return event;
}

/** An alarm that rings, in a world whose answers are told. */
struct Told
{
    explicit Told(quint32 flags = Wire::KeepAlive)
        : cookie(world.add(wakeUp(flags)))
    {
        world.passTo(Seven);
    }

    World world{Seven - Minute};
    FakeNotifier notifier;
    const AnswerTeller teller{world.parts->life, notifier, world.zone};
    const quint32 cookie;
};

} // namespace

/** What the user is shown of an alarm after the answer. */
class TestAnswerTeller : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void snoozedAlarmSaysWhenItRingsAgain();
    void noticeOfASnoozeStopsIt();
    void noticeOfASnoozeGoesWhenItRings();
    void noticeOfASnoozeOutlivesTheDaemon();
    void stoppedAlarmRingsAgainWhenAskedFor_data();
    void stoppedAlarmRingsAgainWhenAskedFor();
    void offerGoesWithTheAlarm();
    void offerIsForOneTime();
    void offerEndsWhenItsTimeIsOver();
    void onlyItsOwnActionsCount();
};

void TestAnswerTeller::initTestCase()
{
    // Whatever the language of the machine.
    Touch::Locale::setDefault(Touch::Locale(QStringLiteral("en_GB")));
    NoticeTexts::install();
}

void TestAnswerTeller::snoozedAlarmSaysWhenItRingsAgain()
{
    Told alarm;
    auto &[world, notifier, teller, cookie] = alarm;
    QVERIFY(world.parts->life.snooze(cookie, 900, "test"));
    QCOMPARE(notifier.notices.size(), 1);
    QCOMPARE(notifier.notices[0].summary, "Wake <b>up</b>");
    QCOMPARE(notifier.notices[0].body, "Snoozed, rings again at 07:15.");
    QCOMPARE(notifier.notices[0].actions.size(), 1);
    QCOMPARE(notifier.notices[0].actions[0].label, "Stop");
    QCOMPARE(notifier.notices[0].urgency, Notice::Urgency::Low);
}

void TestAnswerTeller::noticeOfASnoozeStopsIt()
{
    Told alarm;
    auto &[world, notifier, teller, cookie] = alarm;
    QVERIFY(world.parts->life.snooze(cookie, 900, "test"));
    emit notifier.chosen(notifier.notices[0].actions[0].key);
    QCOMPARE(world.state(cookie), State::Waiting);
    QCOMPARE(world.moment(cookie), Seven + Day);
    QCOMPARE(notifier.closed, QStringList(notifier.notices[0].tag));
}

void TestAnswerTeller::noticeOfASnoozeGoesWhenItRings()
{
    Told alarm;
    auto &[world, notifier, teller, cookie] = alarm;
    QVERIFY(world.parts->life.snooze(cookie, 900, "test"));
    world.passTo(Seven + 15 * Minute);
    QCOMPARE(world.state(cookie), State::Triggered);
    QCOMPARE(notifier.closed, QStringList(notifier.notices[0].tag));
}

void TestAnswerTeller::noticeOfASnoozeOutlivesTheDaemon()
{
    World world(Seven - Minute);
    const quint32 cookie = world.add(wakeUp(Wire::KeepAlive));
    world.passTo(Seven);
    QVERIFY(world.parts->life.snooze(cookie, 900, "test"));
    world.restart(Seven + Minute);
    FakeNotifier notifier;
    const AnswerTeller teller(world.parts->life, notifier, world.zone);
    world.parts->life.start();
    QCOMPARE(notifier.notices.size(), 1);
    emit notifier.appeared();
    QCOMPARE(notifier.notices.size(), 2);
    QCOMPARE(notifier.notices[1].body, "Snoozed, rings again at 07:15.");
    QCOMPARE(notifier.notices[1].tag, notifier.notices[0].tag);
}

void TestAnswerTeller::stoppedAlarmRingsAgainWhenAskedFor_data()
{
    QTest::addColumn<quint32>("flags");
    QTest::newRow("recurring") << quint32(Wire::KeepAlive);
    QTest::newRow("single shot, kept") << quint32(Wire::SingleShot | Wire::KeepAlive);
    QTest::newRow("single shot, stored no more") << quint32(Wire::SingleShot);
}

void TestAnswerTeller::stoppedAlarmRingsAgainWhenAskedFor()
{
    QFETCH(quint32, flags);
    Told alarm(flags);
    auto &[world, notifier, teller, cookie] = alarm;
    QVERIFY(world.parts->life.dismiss(cookie, "test"));
    QCOMPARE(notifier.notices.size(), 1);
    const Notice offer = notifier.notices[0];
    QCOMPARE(offer.body, "Stopped.");
    QCOMPARE(offer.actions[0].label, "Ring again in 5 minutes");

    world.passTo(Seven + Minute);
    emit notifier.chosen(offer.actions[0].key);
    QCOMPARE(world.state(cookie), State::Snoozed);
    QCOMPARE(world.moment(cookie), Seven + 6 * Minute);
    QCOMPARE(notifier.closed, QStringList(offer.tag));
    QCOMPARE(notifier.notices.last().body, "Snoozed, rings again at 07:06.");
    world.passTo(Seven + 6 * Minute);
    QCOMPARE(world.state(cookie), State::Triggered);
}

void TestAnswerTeller::offerGoesWithTheAlarm()
{
    Told alarm;
    auto &[world, notifier, teller, cookie] = alarm;
    QVERIFY(world.parts->life.dismiss(cookie, "test"));
    QVERIFY(*world.parts->service.cancel(cookie));
    QCOMPARE(notifier.closed, QStringList(notifier.notices[0].tag));
    emit notifier.chosen(notifier.notices[0].actions[0].key);
    QVERIFY(!world.parts->book.find(cookie));
}

void TestAnswerTeller::offerIsForOneTime()
{
    Told alarm;
    auto &[world, notifier, teller, cookie] = alarm;
    QVERIFY(world.parts->life.dismiss(cookie, "test"));
    const QString again = notifier.notices[0].actions[0].key;
    emit notifier.chosen(again);
    world.passTo(Seven + Minute);
    emit notifier.chosen(again);
    QCOMPARE(world.moment(cookie), Seven + 5 * Minute);
}

void TestAnswerTeller::offerEndsWhenItsTimeIsOver()
{
    QCOMPARE(AnswerTeller::TimeToTakeBack, std::chrono::milliseconds(5 * Minute));
    World world(Seven - Minute);
    FakeNotifier notifier;
    const AnswerTeller teller(world.parts->life, notifier, world.zone, std::chrono::milliseconds(50));
    const quint32 cookie = world.add(wakeUp(Wire::KeepAlive));
    world.passTo(Seven);
    QVERIFY(world.parts->life.dismiss(cookie, "test"));
    const Notice offer = notifier.notices[0];
    QCOMPARE(notifier.closed, QStringList());
    QTRY_COMPARE(notifier.closed, QStringList(offer.tag));
    emit notifier.chosen(offer.actions[0].key);
    QCOMPARE(world.state(cookie), State::Waiting);
    QCOMPARE(world.moment(cookie), Seven + Day);
}

void TestAnswerTeller::onlyItsOwnActionsCount()
{
    Told alarm;
    auto &[world, notifier, teller, cookie] = alarm;
    QVERIFY(world.parts->life.snooze(cookie, 900, "test"));
    for (const char *key : {"", "default", "com.astel.timed.stop.", "com.astel.timed.stop.x", "com.astel.timed.stop.99",
                            "com.astel.timed.again.1", "org.example.stop.1"})
        emit notifier.chosen(key);
    QCOMPARE(world.state(cookie), State::Snoozed);
}

QTEST_GUILESS_MAIN(TestAnswerTeller)
#include "tst_answerteller.moc"
