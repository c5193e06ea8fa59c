// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/clockwidgets/timepicker.h"

#include "platform/locale/locale.h"
#include "tests/clockwidgets/stage.h"

#include <QPainter>
#include <QSignalSpy>
#include <QTest>
#include <QtMath>
#include <QWheelEvent>

using Touch::Locale;

namespace {

const QPointF middle(200, 200);

struct Scene
{
    explicit Scene(int hours, int minutes)
        : picker(new TimePicker(hours, minutes))
        , stage(picker, {40, 40, 400, 400})
        , changes(picker, &TimePicker::timeChanged)
    { }

    QTime time() const { return {picker->hours(), picker->minutes()}; }
    /// The point of a ring at an angle from the top.
    QPointF onRing(const QPointF &handle, qreal degrees) const
    {
        const qreal radius = QLineF(middle, handle).length();
        const qreal radians = qDegreesToRadians(degrees);
        return middle + QPointF(radius * qSin(radians), -radius * qCos(radians));
    }
    QPointF onHours(qreal degrees) const { return onRing(picker->hourHandle(), degrees); }
    QPointF onMinutes(qreal degrees) const { return onRing(picker->minuteHandle(), degrees); }
    void wheel(const QPointF &point, int delta)
    {
        const QPointF inView = stage.window.mapFromScene(picker->mapToScene(point));
        QWheelEvent event(inView, stage.window.viewport()->mapToGlobal(inView), {}, {0, delta}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(stage.window.viewport(), &event);
    }

    TimePicker *picker;
    Stage stage;
    QSignalSpy changes;
};

} // namespace

class tst_TimePicker : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void foldsAnyNumber_data();
    void foldsAnyNumber();
    void tellsOnlyRealChanges();
    void isReadAndSetWithoutBeingSeen();
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
    void turnsWithTheWheel();
    void obeysKeys();
    void followsTheTimeFormat();
    void paintsNothingOutsideItself();
};

void tst_TimePicker::init()
{
    Locale::setDefault(Locale(u"en_GB"_qs));
}

void tst_TimePicker::foldsAnyNumber_data()
{
    QTest::addColumn<int>("hours");
    QTest::addColumn<int>("minutes");
    QTest::addColumn<QTime>("time");
    QTest::newRow("plain") << 7 << 0 << QTime(7, 0);
    QTest::newRow("hour before midnight") << -1 << 0 << QTime(23, 0);
    QTest::newRow("hour 24") << 24 << 30 << QTime(0, 30);
    QTest::newRow("far below") << -25 << -1 << QTime(23, 59);
    QTest::newRow("far above") << 49 << 125 << QTime(1, 5);
    QTest::newRow("minute 60") << 7 << 60 << QTime(7, 0);
}

void tst_TimePicker::foldsAnyNumber()
{
    QFETCH(int, hours);
    QFETCH(int, minutes);
    QFETCH(QTime, time);
    const TimePicker made(hours, minutes);
    QCOMPARE(QTime(made.hours(), made.minutes()), time);
    TimePicker changed(12, 34);
    changed.setHours(hours);
    changed.setMinutes(minutes);
    QCOMPARE(QTime(changed.hours(), changed.minutes()), time);
}

void tst_TimePicker::isReadAndSetWithoutBeingSeen()
{
    Locale::setDefault(Locale(u"en_GB"_qs));
    Scene scene(7, 5);
    QAccessibleInterface *picker = QAccessible::queryAccessibleInterface(scene.picker);
    QCOMPARE(picker->role(), QAccessible::Dial);
    QCOMPARE(picker->text(QAccessible::Name), "07:05");
    QAccessibleValueInterface *value = picker->valueInterface();
    QVERIFY(value);
    QCOMPARE(value->currentValue().toInt(), 7 * 60 + 5);
    QCOMPARE(value->minimumValue().toInt(), 0);
    QCOMPARE(value->maximumValue().toInt(), 24 * 60 - 1);

    value->setCurrentValue(21 * 60 + 40);
    QCOMPARE(scene.time(), QTime(21, 40));
    picker->actionInterface()->doAction(QAccessibleActionInterface::increaseAction());
    QCOMPARE(scene.time(), QTime(22, 40));
    picker->actionInterface()->doAction(QAccessibleActionInterface::decreaseAction());
    QCOMPARE(scene.time(), QTime(21, 40));
}

void tst_TimePicker::tellsOnlyRealChanges()
{
    TimePicker picker(7, 0);
    QSignalSpy spy(&picker, &TimePicker::timeChanged);
    picker.setHours(7);
    picker.setHours(31);
    picker.setMinutes(60);
    QCOMPARE(spy.count(), 0);
    picker.setHours(6);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.last(), QVariantList({6, 0}));
}

void tst_TimePicker::dragsTheHour()
{
    Scene scene(7, 20);
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

void tst_TimePicker::theHourGoesOnIntoTheOtherHalfOfTheDay()
{
    Scene scene(11, 0);
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

void tst_TimePicker::dragsTheMinute()
{
    Scene scene(7, 20);
    QVERIFY(scene.stage.show());
    scene.stage.press(scene.picker->minuteHandle());
    for (const int degrees : {126, 132, 138})
        scene.stage.move(scene.onMinutes(degrees), 200);
    scene.stage.release(scene.onMinutes(138));
    QCOMPARE(scene.time(), QTime(7, 23));
    QCOMPARE(scene.changes.count(), 3);
}

void tst_TimePicker::theMinutePastTheTopLeavesTheHourAlone()
{
    Scene scene(7, 55);
    QVERIFY(scene.stage.show());
    scene.stage.press(scene.picker->minuteHandle());
    for (const int degrees : {342, 354, 6, 12})
        scene.stage.move(scene.onMinutes(degrees), 200);
    QCOMPARE(scene.time(), QTime(7, 2));
    for (const int degrees : {0, 348})
        scene.stage.move(scene.onMinutes(degrees), 200);
    QCOMPARE(scene.time(), QTime(7, 58));
}

void tst_TimePicker::aFastDragGoesByFives()
{
    Scene scene(7, 0);
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

void tst_TimePicker::grippingAHandleOffItsMiddleMovesNothing()
{
    Scene scene(7, 20);
    QVERIFY(scene.stage.show());
    scene.stage.press(scene.picker->minuteHandle() + QPointF(20, 5));
    scene.stage.move(scene.picker->minuteHandle() + QPointF(20, 5));
    scene.stage.release(scene.picker->minuteHandle() + QPointF(20, 5));
    scene.stage.tap(scene.picker->hourHandle() + QPointF(-18, 0));
    QCOMPARE(scene.time(), QTime(7, 20));
    QCOMPARE(scene.changes.count(), 0);
}

void tst_TimePicker::aTapOnARingGoesThere()
{
    Scene scene(7, 20);
    QVERIFY(scene.stage.show());
    scene.stage.tap(scene.onMinutes(271));
    QCOMPARE(scene.time(), QTime(7, 45));
    scene.stage.tap(scene.onMinutes(359));
    QCOMPARE(scene.time(), QTime(7, 0));
    scene.stage.tap(scene.onHours(92));
    QCOMPARE(scene.time(), QTime(3, 0));
    QCOMPARE(scene.changes.count(), 3);
}

void tst_TimePicker::aTapStaysInTheHalfOfTheDay()
{
    Scene scene(19, 0);
    QVERIFY(scene.stage.show());
    scene.stage.tap(scene.onHours(0));
    QCOMPARE(scene.time(), QTime(12, 0));
    scene.stage.tap(scene.onHours(350 - 30));
    QCOMPARE(scene.time(), QTime(23, 0));
}

void tst_TimePicker::aTapInTheMiddleChangesTheHalfOfTheDay()
{
    Scene scene(7, 20);
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

void tst_TimePicker::eachOfTwoQuickTapsCounts()
{
    Scene scene(7, 20);
    QVERIFY(scene.stage.show());
    scene.stage.doubleTap(middle);
    QCOMPARE(scene.time(), QTime(7, 20));
    QCOMPARE(scene.changes.count(), 2);
}

void tst_TimePicker::saysWhichDiscIsTouchedBeforeItChanges()
{
    Scene scene(7, 20);
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

void tst_TimePicker::isReleasedWhenSomeoneElseTakesTheTouch()
{
    Scene scene(7, 20);
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

void tst_TimePicker::takesNoTouchOutsideTheRings()
{
    Scene scene(7, 20);
    QVERIFY(scene.stage.show());
    QSignalSpy pressed(scene.picker, &TimePicker::discPressed);
    scene.stage.tap({8, 8});
    QCOMPARE(pressed.count(), 0);
    QCOMPARE(scene.changes.count(), 0);
}

void tst_TimePicker::hasHandlesForFingers()
{
    Scene scene(6, 0);
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

void tst_TimePicker::turnsWithTheWheel()
{
    Scene scene(7, 59);
    QVERIFY(scene.stage.show());
    scene.wheel(scene.onHours(0), 120);
    QCOMPARE(scene.time(), QTime(8, 59));
    scene.wheel(scene.onMinutes(90), 120);
    QCOMPARE(scene.time(), QTime(8, 0));
    scene.wheel(scene.onMinutes(90), -240);
    QCOMPARE(scene.time(), QTime(8, 58));
    // Fine wheels send a step in parts.
    scene.wheel(scene.onHours(0), 60);
    QCOMPARE(scene.time(), QTime(8, 58));
    scene.wheel(scene.onHours(0), 60);
    QCOMPARE(scene.time(), QTime(9, 58));
}

void tst_TimePicker::obeysKeys()
{
    Scene scene(23, 58);
    QVERIFY(scene.stage.show());
    scene.stage.key(Qt::Key_Up);
    QCOMPARE(scene.time(), QTime(0, 58));
    scene.stage.key(Qt::Key_Down);
    QCOMPARE(scene.time(), QTime(23, 58));
    scene.stage.key(Qt::Key_PageUp);
    QCOMPARE(scene.time(), QTime(11, 58));
    scene.stage.key(Qt::Key_Right);
    scene.stage.key(Qt::Key_PageUp);
    QCOMPARE(scene.time(), QTime(11, 3));
    scene.stage.key(Qt::Key_PageDown);
    scene.stage.key(Qt::Key_Down);
    QCOMPARE(scene.time(), QTime(11, 57));
    scene.stage.key(Qt::Key_Left);
    scene.stage.key(Qt::Key_PageDown);
    QCOMPARE(scene.time(), QTime(23, 57));
}

void tst_TimePicker::followsTheTimeFormat()
{
    Scene scene(19, 20);
    QVERIFY(scene.stage.show());
    const QImage twentyFour = scene.stage.window.grab().toImage();
    Locale::getDefault().setTimeFormat24h(Locale::TwelveHour);
    QVERIFY(scene.stage.window.grab().toImage() != twentyFour);
    QCOMPARE(scene.time(), QTime(19, 20));
}

void tst_TimePicker::paintsNothingOutsideItself()
{
    Scene scene(7, 0);
    QVERIFY(scene.stage.show());
    scene.stage.key(Qt::Key_Right);
    for (const int minutes : {0, 15, 30, 45}) {
        scene.picker->setMinutes(minutes);
        scene.stage.press(scene.picker->minuteHandle());
        QImage image(420, 420, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        painter.translate(10, 10);
        scene.picker->paint(&painter, nullptr);
        painter.end();
        scene.stage.release(scene.picker->minuteHandle());
        QVERIFY(qAlpha(image.pixel(210, 210 - 160)) > 0);
        for (int i = 0; i < 420; ++i) {
            for (const QPoint &outside : {QPoint(i, 9), QPoint(i, 410), QPoint(9, i), QPoint(410, i)})
                QCOMPARE(qAlpha(image.pixel(outside)), 0);
        }
    }
}

QTEST_MAIN(tst_TimePicker)
#include "tst_timepicker.moc"
