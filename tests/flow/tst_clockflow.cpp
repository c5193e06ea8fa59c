// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "app/references.h"
#include "platform/clockwidgets/alarmlistitem.h"
#include "platform/clockwidgets/timepicker.h"
#include "platform/toolkit/applicationwindow.h"
#include "platform/toolkit/textedit.h"
#include "tests/flow/alarmscreen.h"
#include "tests/flow/finger.h"
#include "tests/flow/wholeprogram.h"
#include "tests/support/alarms.h"
#include "tests/support/places.h"

#include <QProcess>
#include <QSignalSpy>
#include <QTest>

using Flow::isMoving;
using Flow::itemNamed;
using Flow::keepScreenshot;
using Flow::picker;
using Flow::pointOf;
using Flow::rows;

namespace {

const QTime morning(6, 25);

/** Waits until the row of an alarm that was just stored stands still on the screen. */
bool waitForRows(int count)
{
    return QTest::qWaitFor([=] { return rows().size() == count && !isMoving(); });
}

} // namespace

/** What can be done with the running program, each on its own. */
class TestClockFlow : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(Flow::prepareWindow()); }
    void init() { QVERIFY(Flow::startAfresh()); }
    void theWindowStaysInPortrait();
    void anEmptyListTellsHowToMakeAnAlarm();
    void theNewAlarmButtonOpensTheEditor();
    void theTitleIsTypedAndTheTimeDragged();
    void savingShowsTheTimeLeftAndTheRow();
    void tappingTheRowOpensItsValues();
    void cancellingClosesTheEditor();
    void aDoubleTapOnARowChangesNoTime();
    void anAlarmAddedElsewhereAppearsByItself();
    void deletingInTheEditorTakesTheRowAway();
};

void TestClockFlow::theWindowStaysInPortrait()
{
    QCOMPARE(applicationWindow->styleName(), "ClockWindow");
    QVERIFY(!applicationWindow->windowIcon().isNull());
    QVERIFY(applicationWindow->isOrientationLocked());
    const QSize size = applicationWindow->size();
    applicationWindow->resize(854, 480);
    QTRY_COMPARE(applicationWindow->size(), QSize(854, 480));
    QCOMPARE(applicationWindow->orientation(), Qt::Vertical);
    applicationWindow->resize(size);
    QTRY_COMPARE(applicationWindow->size(), size);
}

void TestClockFlow::anEmptyListTellsHowToMakeAnAlarm()
{
    QTRY_VERIFY(Flow::visibleTexts().contains("No alarms yet"));
    QVERIFY(keepScreenshot("flow-empty"));
}

void TestClockFlow::theNewAlarmButtonOpensTheEditor()
{
    Flow::tap(pointOf(itemNamed("newAlarmButton")));
    QTRY_VERIFY(picker() && !isMoving());
    QVERIFY2(!itemNamed("deleteButton"), "there is nothing to delete yet");
    QVERIFY(keepScreenshot("flow-new-alarm"));
}

void TestClockFlow::theTitleIsTypedAndTheTimeDragged()
{
    Flow::tap(pointOf(itemNamed("newAlarmButton")));
    QTRY_VERIFY(picker() && !isMoving());
    Flow::tap(pointOf(itemNamed("AlarmNameInputField")));
    Flow::type("Wake up");
    const auto *title = qobject_cast<Touch::TextEdit *>(itemNamed("AlarmNameInputField"));
    QVERIFY(title);
    QTRY_COMPARE(title->text(), "Wake up");

    const QTime before = Flow::pickedTime();
    QSignalSpy released(picker(), &TimePicker::discReleased);
    Flow::dragHourHandle(-45);
    QTRY_COMPARE(released.size(), 1);
    Flow::dragMinuteHandle(120);
    QTRY_COMPARE(released.size(), 2);
    const QTime chosen = Flow::pickedTime();
    QVERIFY(chosen.hour() != before.hour());
    QVERIFY(chosen.minute() != before.minute());
    QTRY_VERIFY(Flow::visibleTexts().contains(chosen.toString("hh")));
    QVERIFY(Flow::visibleTexts().contains(chosen.toString("mm")));
    QVERIFY(keepScreenshot("flow-edited"));
}

void TestClockFlow::savingShowsTheTimeLeftAndTheRow()
{
    QVERIFY(Flow::makeAlarm("Wake up", 60));
    QVERIFY2(Flow::bannerTitle().startsWith("Alarm in "), qPrintable(Flow::bannerTitle()));
    QCOMPARE(rows().size(), 1);
    QVERIFY(rows().first()->enabled());
    QVERIFY(!Flow::visibleTexts().contains("No alarms yet"));
    QVERIFY(keepScreenshot("flow-saved"));
}

void TestClockFlow::tappingTheRowOpensItsValues()
{
    Support::addAlarm(morning, "Tea");
    QVERIFY(waitForRows(1));
    Flow::tap(pointOf(rows().first(), 0.25));
    QTRY_VERIFY(picker() && !isMoving());
    QCOMPARE(Flow::pickedTime(), morning);
    QCOMPARE(qobject_cast<Touch::TextEdit *>(itemNamed("AlarmNameInputField"))->text(), "Tea");
    QVERIFY(itemNamed("deleteButton"));
    QVERIFY(keepScreenshot("flow-existing-alarm"));
}

void TestClockFlow::cancellingClosesTheEditor()
{
    Support::addAlarm(morning, "Tea");
    QVERIFY(waitForRows(1));
    Flow::tap(pointOf(rows().first(), 0.25));
    QTRY_VERIFY(picker() && !isMoving());
    Flow::tap(pointOf(itemNamed("negativeButton")));
    QTRY_VERIFY(!picker());
    QCOMPARE(rows().size(), 1);
}

void TestClockFlow::aDoubleTapOnARowChangesNoTime()
{
    Support::addAlarm(morning, "Tea");
    QVERIFY(waitForRows(1));
    Flow::doubleTap(pointOf(rows().first()));
    QTRY_VERIFY(picker() && !isMoving());
    QCOMPARE(Flow::pickedTime(), morning);
    Flow::press("Escape");
    QTRY_VERIFY(!picker());
}

void TestClockFlow::anAlarmAddedElsewhereAppearsByItself()
{
    const QStringList arguments{"add", "06:15", "--title", "From outside", "--days", "mon,wed"};
    QCOMPARE(QProcess::execute(Places::program("alarmctl"), arguments), 0);
    QVERIFY(waitForRows(1));
    QCOMPARE(rows().first()->subTitle(), "From outside");
    QCOMPARE(rows().first()->title(), QTime(6, 15));
    QCOMPARE(rows().first()->subText(), "Mon, Wed");
    QVERIFY(keepScreenshot("flow-added-elsewhere"));
}

void TestClockFlow::deletingInTheEditorTakesTheRowAway()
{
    Support::addAlarm(morning, "Tea");
    Support::addAlarm(morning.addSecs(60), "Coffee");
    QVERIFY(waitForRows(2));
    Flow::tap(pointOf(Flow::rowTitled("Tea"), 0.25));
    QTRY_VERIFY(picker() && !isMoving());
    Flow::tap(pointOf(itemNamed("deleteButton")));
    QTRY_VERIFY(!picker() && rows().size() == 1);
    QCOMPARE(rows().first()->subTitle(), "Coffee");
    QTRY_VERIFY(!isMoving());
    QVERIFY(keepScreenshot("flow-deleted"));
}

int main(int argc, char **argv)
{
    return Flow::runInProgram(argc, argv, [] { return std::make_unique<TestClockFlow>(); });
}
#include "tst_clockflow.moc"
