// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "app/references.h"
#include "platform/clockwidgets/alarmlistitem.h"
#include "platform/toolkit/applicationwindow.h"
#include "platform/toolkit/button.h"
#include "platform/toolkit/objectmenu.h"
#include "tests/flow/alarmscreen.h"
#include "tests/flow/finger.h"
#include "tests/flow/wholeprogram.h"
#include "tests/support/look/items.h"

#include <QTest>

using Flow::isMoving;
using Flow::itemNamed;
using Flow::keepScreenshot;
using Flow::picker;
using Flow::pointOf;
using Flow::rows;
using Flow::rowTitled;

/** The life of three alarms, from the first touch to the last, with a picture after each step. */
class TestAlarmLife : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(Flow::prepareWindow()); }
    void alarmsAreMadeChangedSwitchedAndDeleted();

private:
    void makeThree();
    void changeOne();
    void switchOneOffAndOn();
    void deleteOneByLongPress();
};

void TestAlarmLife::alarmsAreMadeChangedSwitchedAndDeleted()
{
    QVERIFY(Flow::startAfresh());
    for (const auto step : {&TestAlarmLife::makeThree, &TestAlarmLife::changeOne, &TestAlarmLife::switchOneOffAndOn,
                            &TestAlarmLife::deleteOneByLongPress}) {
        (this->*step)();
        if (QTest::currentTestFailed())
            return;
    }
}

void TestAlarmLife::makeThree()
{
    const QStringList titles{"Wake up", "Tea", "Pick up the children"};
    for (int i = 0; i < titles.size(); ++i) {
        QVERIFY2(Flow::makeAlarm(titles.at(i), 30 * (i + 1)), qPrintable(titles.at(i)));
        QVERIFY(Flow::bannerTitle().startsWith("Alarm in "));
        QCOMPARE(rows().size(), i + 1);
        QVERIFY(rowTitled(titles.at(i))->enabled());
        QVERIFY(keepScreenshot(QString("life-%1-added").arg(i + 1)));
    }
}

void TestAlarmLife::changeOne()
{
    const long cookie = rowTitled("Tea")->alarmCookie();
    Flow::tap(pointOf(rowTitled("Tea"), 0.25));
    QTRY_VERIFY(picker() && !isMoving());
    const QTime before = Flow::pickedTime();
    Flow::dragMinuteHandle(120);
    QTRY_VERIFY(Flow::pickedTime().minute() != before.minute());
    const QTime chosen = Flow::pickedTime();
    Flow::tap(pointOf(itemNamed("positiveButton")));
    QTRY_VERIFY(!picker() && !isMoving());
    QTRY_VERIFY(rowTitled("Tea") && rowTitled("Tea")->title() == chosen);
    QVERIFY2(rowTitled("Tea")->alarmCookie() != cookie, "it took the place of the other");
    QCOMPARE(rows().size(), 3);
    QVERIFY(keepScreenshot("life-4-changed"));
}

void TestAlarmLife::switchOneOffAndOn()
{
    QTRY_VERIFY_WITH_TIMEOUT(Flow::bannerTitle().isEmpty() && !isMoving(), 15000);
    Flow::tap(Flow::switchOf(rowTitled("Tea")));
    QTRY_VERIFY(!rowTitled("Tea")->enabled());
    QVERIFY(keepScreenshot("life-5-switched-off"));
    QVERIFY(Flow::bannerTitle().isEmpty());
    Flow::tap(Flow::switchOf(rowTitled("Tea")));
    QTRY_VERIFY(Flow::bannerTitle().startsWith("Alarm in "));
    QVERIFY(rowTitled("Tea")->enabled());
    QTRY_VERIFY(!isMoving());
    QVERIFY(keepScreenshot("life-6-switched-on"));
    QTRY_VERIFY_WITH_TIMEOUT(Flow::bannerTitle().isEmpty() && !isMoving(), 15000);
}

void TestAlarmLife::deleteOneByLongPress()
{
    const auto menu = [] { return qobject_cast<Touch::ObjectMenu *>(applicationWindow->topSceneWindow()); };
    Flow::hold(pointOf(rowTitled("Tea"), 0.25));
    QTRY_VERIFY(menu());
    Flow::lift();
    QTRY_VERIFY(!isMoving());
    QVERIFY2(!picker(), "a long press is no tap");
    QVERIFY(keepScreenshot("life-7-menu"));
    const auto *entry = Support::itemIn<Touch::Button>(menu()->centralWidget());
    QVERIFY(entry);
    QCOMPARE(entry->text(), "Delete");
    Flow::tap(pointOf(entry));
    QTRY_VERIFY(rows().size() == 2 && !rowTitled("Tea"));
    QTRY_VERIFY(!isMoving() && !menu());
    QVERIFY(keepScreenshot("life-8-deleted"));
}

int main(int argc, char **argv)
{
    return Flow::runInProgram(argc, argv, [] { return std::make_unique<TestAlarmLife>(); });
}
#include "tst_alarmlife.moc"
