// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/locale/locale.h"
#include "tests/clockwidgets/pickerscene.h"

#include <QSignalSpy>
#include <QTest>

using Touch::Locale;

/// What fingers do with the time picker.
class TestTimePickerTouch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void dragsTheHour();
    void theHourGoesOnIntoTheOtherHalfOfTheDay();
    void dragsTheMinute();
    void theMinutePastTheTopLeavesTheHourAlone();
    void aFastDragGoesByFives();
    void grippingAHandleOffItsMiddleMovesNothing();
    void aTapOnARingGoesThere();
    void aTapStaysInTheHalfOfTheDay();
    void aTapInTheMiddleChangesTheHalfOfTheDay();
    void eachOfTwoQuickTapsCounts();
    void saysWhichDiscIsTouchedBeforeItChanges();
    void isReleasedWhenSomeoneElseTakesTheTouch();
    void takesNoTouchOutsideTheRings();
    void hasHandlesForFingers();
};

void TestTimePickerTouch::init()
{
    Locale::setDefault(Locale(u"en_GB"_qs));
}

void TestTimePickerTouch::dragsTheHour()
{
    PickerScene scene(7, 20);
    QVERIFY(scene.stage.show());
    scene.stage.press(scene.picker->hourHandle());
    for (const int degrees : {220, 235, 250, 272})
        scene.stage.move(scene.onHours(degrees));
    scene.stage.release(scene.onHours(272));
    QCOMPARE(scene.time(), QTime(9, 20));
    QCOMPARE(scene.changes.count(), 2);
    // The handle comes to rest on the hour.
    QVERIFY(QLineF(scene.picker->hourHandle(), scene.onHours(270)).length() < 1);
}

void TestTimePickerTouch::theHourGoesOnIntoTheOtherHalfOfTheDay()
{
    PickerScene scene(11, 0);
    QVERIFY(scene.stage.show());
    scene.stage.press(scene.picker->hourHandle());
    for (const int degrees : {350, 0, 30, 60})
        scene.stage.move(scene.onHours(degrees));
    QCOMPARE(scene.time(), QTime(14, 0));
    for (const int degrees : {30, 0, 330, 300})
        scene.stage.move(scene.onHours(degrees));
    QCOMPARE(scene.time(), QTime(10, 0));
    // Once round the dial is half a day, twice is the day.
    for (int degrees = 310; degrees <= 300 + 720; degrees += 10)
        scene.stage.move(scene.onHours(degrees));
    QCOMPARE(scene.time(), QTime(10, 0));
    scene.stage.release(scene.onHours(300));
    QCOMPARE(scene.time(), QTime(10, 0));
}

void TestTimePickerTouch::dragsTheMinute()
{
    PickerScene scene(7, 20);
    QVERIFY(scene.stage.show());
    scene.stage.press(scene.picker->minuteHandle());
    for (const int degrees : {126, 132, 138})
        scene.stage.move(scene.onMinutes(degrees), 200);
    scene.stage.release(scene.onMinutes(138));
    QCOMPARE(scene.time(), QTime(7, 23));
    QCOMPARE(scene.changes.count(), 3);
}

void TestTimePickerTouch::theMinutePastTheTopLeavesTheHourAlone()
{
    PickerScene scene(7, 55);
    QVERIFY(scene.stage.show());
    scene.stage.press(scene.picker->minuteHandle());
    for (const int degrees : {342, 354, 6, 12})
        scene.stage.move(scene.onMinutes(degrees), 200);
    QCOMPARE(scene.time(), QTime(7, 2));
    for (const int degrees : {0, 348})
        scene.stage.move(scene.onMinutes(degrees), 200);
    QCOMPARE(scene.time(), QTime(7, 58));
}

void TestTimePickerTouch::aFastDragGoesByFives()
{
    PickerScene scene(7, 0);
    QVERIFY(scene.stage.show());
    scene.stage.press(scene.picker->minuteHandle());
    for (int degrees = 15; degrees <= 99; degrees += 12) {
        scene.stage.move(scene.onMinutes(degrees), 20);
        QCOMPARE(scene.picker->minutes() % 5, 0);
    }
    QCOMPARE(scene.time(), QTime(7, 15));
    // And by single minutes again when it slows down.
    scene.stage.move(scene.onMinutes(102), 200);
    QCOMPARE(scene.time(), QTime(7, 17));
}

void TestTimePickerTouch::grippingAHandleOffItsMiddleMovesNothing()
{
    PickerScene scene(7, 20);
    QVERIFY(scene.stage.show());
    scene.stage.press(scene.picker->minuteHandle() + QPointF(20, 5));
    scene.stage.move(scene.picker->minuteHandle() + QPointF(20, 5));
    scene.stage.release(scene.picker->minuteHandle() + QPointF(20, 5));
    scene.stage.tap(scene.picker->hourHandle() + QPointF(-18, 0));
    QCOMPARE(scene.time(), QTime(7, 20));
    QCOMPARE(scene.changes.count(), 0);
}

void TestTimePickerTouch::aTapOnARingGoesThere()
{
    PickerScene scene(7, 20);
    QVERIFY(scene.stage.show());
    scene.stage.tap(scene.onMinutes(271));
    QCOMPARE(scene.time(), QTime(7, 45));
    scene.stage.tap(scene.onMinutes(359));
    QCOMPARE(scene.time(), QTime(7, 0));
    scene.stage.tap(scene.onHours(92));
    QCOMPARE(scene.time(), QTime(3, 0));
    QCOMPARE(scene.changes.count(), 3);
}

void TestTimePickerTouch::aTapStaysInTheHalfOfTheDay()
{
    PickerScene scene(19, 0);
    QVERIFY(scene.stage.show());
    scene.stage.tap(scene.onHours(0));
    QCOMPARE(scene.time(), QTime(12, 0));
    scene.stage.tap(scene.onHours(350 - 30));
    QCOMPARE(scene.time(), QTime(23, 0));
}

void TestTimePickerTouch::aTapInTheMiddleChangesTheHalfOfTheDay()
{
    PickerScene scene(7, 20);
    QVERIFY(scene.stage.show());
    QSignalSpy pressed(scene.picker, &TimePicker::discPressed);
    scene.stage.tap(middle);
    QCOMPARE(scene.time(), QTime(19, 20));
    scene.stage.tap(middle + QPointF(0, 20));
    QCOMPARE(scene.time(), QTime(7, 20));
    scene.stage.press(middle);
    scene.stage.release(middle + QPointF(0, 150));
    QCOMPARE(scene.time(), QTime(7, 20));
    QCOMPARE(pressed.count(), 0);
}

void TestTimePickerTouch::eachOfTwoQuickTapsCounts()
{
    PickerScene scene(7, 20);
    QVERIFY(scene.stage.show());
    scene.stage.doubleTap(middle);
    QCOMPARE(scene.time(), QTime(7, 20));
    QCOMPARE(scene.changes.count(), 2);
}

void TestTimePickerTouch::saysWhichDiscIsTouchedBeforeItChanges()
{
    PickerScene scene(7, 20);
    QVERIFY(scene.stage.show());
    QStringList order;
    connect(scene.picker, &TimePicker::discPressed, this, [&](const bool &hour, const bool &minute) {
        order << (hour ? "hour" : "") + QStringLiteral("pressed") + (minute ? "minute" : "");
    });
    connect(scene.picker, &TimePicker::timeChanged, this, [&] { order << "changed"; });
    connect(scene.picker, &TimePicker::discReleased, this, [&] { order << "released"; });
    scene.stage.tap(scene.onHours(0));
    QCOMPARE(order, QStringList({"hourpressed", "changed", "released"}));
    order.clear();
    scene.stage.tap(scene.picker->minuteHandle());
    QCOMPARE(order, QStringList({"pressedminute", "released"}));
}

void TestTimePickerTouch::isReleasedWhenSomeoneElseTakesTheTouch()
{
    PickerScene scene(7, 20);
    QVERIFY(scene.stage.show());
    QSignalSpy released(scene.picker, &TimePicker::discReleased);
    scene.stage.press(scene.picker->hourHandle());
    scene.picker->ungrabMouse();
    QCOMPARE(released.count(), 1);
    scene.stage.move(scene.onHours(0));
    scene.stage.release(scene.onHours(0));
    QCOMPARE(released.count(), 1);
    QCOMPARE(scene.time(), QTime(7, 20));
}

void TestTimePickerTouch::takesNoTouchOutsideTheRings()
{
    PickerScene scene(7, 20);
    QVERIFY(scene.stage.show());
    QSignalSpy pressed(scene.picker, &TimePicker::discPressed);
    scene.stage.tap({8, 8});
    QCOMPARE(pressed.count(), 0);
    QCOMPARE(scene.changes.count(), 0);
}

void TestTimePickerTouch::hasHandlesForFingers()
{
    PickerScene scene(6, 0);
    QVERIFY(scene.stage.show());
    QSignalSpy pressed(scene.picker, &TimePicker::discPressed);
    for (const QPointF &offset : {QPointF(24, 0), QPointF(-24, 0), QPointF(0, 24), QPointF(0, -24)}) {
        scene.stage.tap(scene.picker->hourHandle() + offset);
        QCOMPARE(pressed.last(), QVariantList({true, false}));
        scene.stage.tap(scene.picker->minuteHandle() + offset);
        QCOMPARE(pressed.last(), QVariantList({false, true}));
    }
    QCOMPARE(scene.changes.count(), 0);
}

QTEST_MAIN(TestTimePickerTouch)
#include "tst_timepickertouch.moc"
