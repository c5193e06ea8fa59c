// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/clockwidgets/timepicker.h"

#include "platform/locale/locale.h"
#include "tests/clockwidgets/pickerscene.h"

#include <QPainter>
#include <QSignalSpy>
#include <QTest>

using Touch::Locale;

class TestTimePicker : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void foldsAnyNumber_data();
    void foldsAnyNumber();
    void tellsOnlyRealChanges();
    void isReadAndSetWithoutBeingSeen();
    void turnsWithTheWheel();
    void obeysKeys();
    void followsTheTimeFormat();
    void readsHoursInTheDirectionOfTheLanguage();
    void goesClockwiseInEveryLanguage();
    void paintsNothingOutsideItself();
};

void TestTimePicker::init()
{
    Locale::setDefault(Locale(u"en_GB"_qs));
}

void TestTimePicker::foldsAnyNumber_data()
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

void TestTimePicker::foldsAnyNumber()
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

void TestTimePicker::tellsOnlyRealChanges()
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

void TestTimePicker::isReadAndSetWithoutBeingSeen()
{
    Locale::setDefault(Locale(u"en_GB"_qs));
    PickerScene scene(7, 5);
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

void TestTimePicker::turnsWithTheWheel()
{
    PickerScene scene(7, 59);
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

void TestTimePicker::obeysKeys()
{
    PickerScene scene(23, 58);
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

void TestTimePicker::followsTheTimeFormat()
{
    PickerScene scene(19, 20);
    QVERIFY(scene.stage.show());
    const QImage twentyFour = scene.stage.window.grab().toImage();
    Locale::getDefault().setTimeFormat24h(Locale::TwelveHour);
    QVERIFY(scene.stage.window.grab().toImage() != twentyFour);
    QCOMPARE(scene.time(), QTime(19, 20));
}

// Both write the same digits.
void TestTimePicker::readsHoursInTheDirectionOfTheLanguage()
{
    const auto pictureIn = [](const QString &locale) {
        Locale::setDefault(Locale(locale));
        PickerScene scene(9, 30);
        return scene.stage.show() ? scene.stage.window.grab().toImage() : QImage();
    };
    QImage english = pictureIn("en_GB");
    QImage hebrew = pictureIn("he_IL");
    const QRect halves(200, 200, 80, 80);
    QVERIFY2(english.copy(halves) != hebrew.copy(halves), "00–11 begins on the right");
    for (QImage *picture : {&english, &hebrew}) {
        QPainter painter(picture);
        painter.fillRect(halves, Qt::black);
    }
    QVERIFY(english == hebrew);
}

void TestTimePicker::goesClockwiseInEveryLanguage()
{
    Locale::setDefault(Locale(u"ar_EG"_qs));
    PickerScene scene(0, 0);
    scene.picker->setLayoutDirection(Qt::RightToLeft);
    QVERIFY(scene.stage.show());
    scene.stage.tap(scene.onHours(90));
    QCOMPARE(scene.time(), QTime(3, 0));
    scene.stage.tap(scene.onMinutes(90));
    QCOMPARE(scene.time(), QTime(3, 15));
    scene.stage.key(Qt::Key_Left);
    scene.stage.key(Qt::Key_Up);
    QCOMPARE(scene.time(), QTime(4, 15));
    scene.stage.key(Qt::Key_Right);
    scene.stage.key(Qt::Key_Up);
    QCOMPARE(scene.time(), QTime(4, 16));
}

void TestTimePicker::paintsNothingOutsideItself()
{
    PickerScene scene(7, 0);
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

QTEST_MAIN(TestTimePicker)
#include "tst_timepicker.moc"
