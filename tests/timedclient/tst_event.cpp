// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timedclient/event.h"
#include "platform/timedclient/exception.h"

#include <functional>
#include <QTest>

using Astel::Timed::Event;
using Astel::Timed::Exception;
namespace Wire = Astel::Timed::Wire;

using Step = std::function<void(Event &)>;
Q_DECLARE_METATYPE(Step)

class TestEvent : public QObject
{
    Q_OBJECT

private slots:
    void isEmptyAtFirst();
    void carriesAttributes();
    void setsEachFlag_data();
    void setsEachFlag();
    void carriesTheSetsOfARecurrence();
    void fillsWholeSets();
    void keepsReferencesWhileMoreAreAdded();
    void copiesEverything();
    void acceptsTheEndsOfEveryRange();
    void raisesAnExceptionThatSaysWhatIsWrong_data();
    void raisesAnExceptionThatSaysWhatIsWrong();
};

void TestEvent::isEmptyAtFirst()
{
    const Wire::Event wire = Event().toWire();
    QCOMPARE(wire.ticker, -1);
    QVERIFY(wire == Wire::Event());
}

void TestEvent::carriesAttributes()
{
    Event event;
    event.setAttribute("TITLE", "first");
    event.setAttribute("TITLE", "");
    event.setAttribute("sound", QString::fromUtf8("/töne/Wecker 1.aac"));
    const Wire::Attributes expected{{"TITLE", ""}, {"sound", QString::fromUtf8("/töne/Wecker 1.aac")}};
    QCOMPARE(event.toWire().attributes, expected);
}

void TestEvent::setsEachFlag_data()
{
    QTest::addColumn<Step>("step");
    QTest::addColumn<quint32>("flag");

    QTest::newRow("single shot") << Step(&Event::setSingleShotFlag) << 1u;
    QTest::newRow("keep alive") << Step(&Event::setKeepAliveFlag) << 2u;
    QTest::newRow("boot") << Step(&Event::setBootFlag) << 4u;
    QTest::newRow("alarm") << Step(&Event::setAlarmFlag) << 8u;
    QTest::newRow("backup") << Step(&Event::setBackupFlag) << 16u;
    QTest::newRow("reminder") << Step(&Event::setReminderFlag) << 32u;
    QTest::newRow("aligned snooze") << Step(&Event::setAlignedSnoozeFlag) << 64u;
    QTest::newRow("first snooze button hidden") << Step(&Event::hideSnoozeButton1) << 128u;
}

void TestEvent::setsEachFlag()
{
    QFETCH(const Step, step);
    QFETCH(const quint32, flag);
    Event event;
    step(event);
    QCOMPARE(event.toWire().flags, flag);
    event.setBootFlag();
    QCOMPARE(event.toWire().flags, flag | Wire::Boot);
}

void TestEvent::carriesTheSetsOfARecurrence()
{
    Event event;
    Event::Recurrence &recurrence = event.addRecurrence();
    recurrence.addHour(7);
    recurrence.addHour(23);
    recurrence.addMinute(0);
    recurrence.addMinute(59);
    recurrence.addDayOfWeek(0);
    recurrence.addDayOfWeek(6);
    recurrence.addDayOfMonth(1);
    recurrence.addDayOfMonth(31);
    recurrence.addMonth(1);
    recurrence.addMonth(12);
    recurrence.setFillingGapsFlag();
    const Wire::Recurrence expected{0x800080u, Q_UINT64_C(0x800000000000001), 0x41u, 0x80000002u, 0x1002u, true};
    QVERIFY(event.toWire().recurrences == QList<Wire::Recurrence>{expected});
}

void TestEvent::fillsWholeSets()
{
    Event event;
    Event::Recurrence &recurrence = event.addRecurrence();
    recurrence.everyDayOfWeek();
    recurrence.everyDayOfMonth();
    recurrence.everyMonth();
    Event other;
    Event::Recurrence &single = other.addRecurrence();
    for (int day = 0; day <= 6; ++day)
        single.addDayOfWeek(day);
    for (int day = 1; day <= 31; ++day)
        single.addDayOfMonth(day);
    for (int month = 1; month <= 12; ++month)
        single.addMonth(month);
    QVERIFY(event.toWire() == other.toWire());
    QVERIFY(!event.toWire().recurrences.first().fillingGaps);
}

void TestEvent::keepsReferencesWhileMoreAreAdded()
{
    Event event;
    Event::Button &button = event.addButton();
    Event::Recurrence &recurrence = event.addRecurrence();
    for (int count = 0; count < 1000; ++count) {
        event.addButton();
        event.addRecurrence();
    }
    button.setSnooze(300);
    button.setAttribute("label", "later");
    recurrence.addHour(1);
    const Wire::Event wire = event.toWire();
    QCOMPARE(wire.buttons.size(), 1001);
    QCOMPARE(wire.buttons.first().snooze, 300);
    QCOMPARE(wire.buttons.first().attributes, (Wire::Attributes{{"label", "later"}}));
    QCOMPARE(wire.recurrences.first().hours, 2u);
}

void TestEvent::copiesEverything()
{
    Event event;
    event.setTicker(1298448000);
    event.setTimeoutSnooze(600);
    event.setMaximalTimeoutSnoozeCounter(3);
    Event::Button &button = event.addButton();
    const Event copy = event;
    button.setSnooze(300);
    QCOMPARE(copy.toWire().ticker, 1298448000);
    QCOMPARE(copy.toWire().timeoutSnooze, 600);
    QCOMPARE(copy.toWire().maximalTimeoutSnoozeCounter, 3u);
    QCOMPARE(copy.toWire().buttons.first().snooze, 0);
    QCOMPARE(event.toWire().buttons.first().snooze, 300);
}

void TestEvent::acceptsTheEndsOfEveryRange()
{
    Event event;
    event.setTicker(0);
    event.setTimeoutSnooze(0);
    event.setMaximalTimeoutSnoozeCounter(0);
    event.addButton().setSnooze(0);
    Event::Recurrence &recurrence = event.addRecurrence();
    recurrence.addHour(0);
    recurrence.addMinute(0);
    QCOMPARE(event.toWire().ticker, 0);
    QCOMPARE(event.toWire().recurrences.first().hours, 1u);
    QCOMPARE(event.toWire().recurrences.first().minutes, Q_UINT64_C(1));
}

void TestEvent::raisesAnExceptionThatSaysWhatIsWrong_data()
{
    QTest::addColumn<Step>("step");
    QTest::addColumn<QString>("message");

    const auto recurrence = [](void (Event::Recurrence::*add)(int), int value) {
        return Step([=](Event &event) { (event.addRecurrence().*add)(value); });
    };
    using R = Event::Recurrence;
    QTest::newRow("hour 24") << recurrence(&R::addHour, 24) << "hour 24 is not in the range 0 to 23";
    QTest::newRow("hour -1") << recurrence(&R::addHour, -1) << "hour -1 is not in the range 0 to 23";
    QTest::newRow("minute 60") << recurrence(&R::addMinute, 60) << "minute 60 is not in the range 0 to 59";
    QTest::newRow("minute -1") << recurrence(&R::addMinute, -1) << "minute -1 is not in the range 0 to 59";
    QTest::newRow("weekday 7") << recurrence(&R::addDayOfWeek, 7) << "day of the week 7 is not in the range 0 to 6";
    QTest::newRow("weekday -1") << recurrence(&R::addDayOfWeek, -1) << "day of the week -1 is not in the range 0 to 6";
    QTest::newRow("day 0") << recurrence(&R::addDayOfMonth, 0) << "day of the month 0 is not in the range 1 to 31";
    QTest::newRow("day 32") << recurrence(&R::addDayOfMonth, 32) << "day of the month 32 is not in the range 1 to 31";
    QTest::newRow("month 0") << recurrence(&R::addMonth, 0) << "month 0 is not in the range 1 to 12";
    QTest::newRow("month 13") << recurrence(&R::addMonth, 13) << "month 13 is not in the range 1 to 12";
    QTest::newRow("attribute of no name") << Step([](Event &event) { event.setAttribute("", "value"); })
                                          << "the name of an attribute is empty (its value is \"value\")";
    QTest::newRow("button attribute of no name")
        << Step([](Event &event) { event.addButton().setAttribute({}, "value"); })
        << "the name of an attribute is empty (its value is \"value\")";
    QTest::newRow("ticker -1") << Step([](Event &event) { event.setTicker(-1); }) << "ticker -1 is negative";
    QTest::newRow("snooze -1") << Step([](Event &event) { event.addButton().setSnooze(-1); })
                               << "snooze of a button -1 is negative";
    QTest::newRow("timeout snooze -1") << Step([](Event &event) { event.setTimeoutSnooze(-1); })
                                       << "timeout snooze -1 is negative";
    QTest::newRow("counter -1") << Step([](Event &event) { event.setMaximalTimeoutSnoozeCounter(-1); })
                                << "maximal timeout snooze counter -1 is negative";
}

void TestEvent::raisesAnExceptionThatSaysWhatIsWrong()
{
    QFETCH(const Step, step);
    QFETCH(const QString, message);
    Event event;
    QString raised;
    QByteArray what;
    try {
        step(event);
    } catch (const Exception &exception) {
        raised = exception.message();
        const std::exception &base = exception;
        what = base.what();
    }
    QCOMPARE(raised, message);
    QCOMPARE(what, message.toUtf8());
    const Wire::Event wire = event.toWire();
    QVERIFY(wire.attributes.isEmpty());
    QCOMPARE(wire.ticker, Wire::NoTicker);
    QVERIFY(wire.recurrences.isEmpty() || wire.recurrences.first() == Wire::Recurrence());
    QVERIFY(wire.buttons.isEmpty() || wire.buttons.first() == Wire::Button());
}

QTEST_APPLESS_MAIN(TestEvent)
#include "tst_event.moc"
