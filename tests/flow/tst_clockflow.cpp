// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "app/references.h"
#include "platform/clockwidgets/alarmlistitem.h"
#include "platform/clockwidgets/timepicker.h"
#include "platform/toolkit/applicationwindow.h"
#include "platform/toolkit/banner.h"
#include "platform/toolkit/switch.h"
#include "platform/toolkit/textedit.h"
#include "tests/flow/finger.h"
#include "tests/flow/wholeprogram.h"
#include "tests/support/places.h"

#include <QProcess>
#include <QSignalSpy>
#include <QTest>

#include <algorithm>

using Flow::isMoving;
using Flow::itemNamed;
using Flow::keepScreenshot;
using Flow::pointOf;

namespace {

/** The alarm rows on the screen, from top to bottom. */
QList<AlarmListItem *> rows()
{
    QList<AlarmListItem *> found;
    const auto items = applicationWindow->scene()->items();
    for (QGraphicsItem *item : items) {
        auto *row = qobject_cast<AlarmListItem *>(item->toGraphicsObject());
        if (row && row->isVisible())
            found.append(row);
    }
    std::sort(found.begin(), found.end(),
              [](const auto *a, const auto *b) { return a->scenePos().y() < b->scenePos().y(); });
    return found;
}

QString bannerTitle()
{
    const auto sceneWindows = applicationWindow->sceneWindows();
    for (const Touch::SceneWindow *sceneWindow : sceneWindows) {
        const auto *banner = qobject_cast<const Touch::Banner *>(sceneWindow);
        if (banner && banner->isOnDisplay())
            return banner->title();
    }
    return QString();
}

TimePicker *picker()
{
    return qobject_cast<TimePicker *>(itemNamed("timePicker"));
}

/** Drags a handle of the dial round by an angle, in degrees. */
void dragHandle(const QPointF &handle, qreal angle)
{
    const QPointF centre = picker()->rect().center();
    const QPointF target = QTransform().translate(centre.x(), centre.y()).rotate(angle).map(handle - centre);
    const auto part = [](const QPointF &point) {
        return pointOf(picker(), point.x() / picker()->size().width(), point.y() / picker()->size().height());
    };
    Flow::drag(part(handle), part(target));
}

/** Where the switch of a row is. */
QPoint switchOf(int row)
{
    const AlarmListItem *item = rows().at(row);
    const auto children = item->childItems();
    for (QGraphicsItem *child : children) {
        if (const auto *object = qobject_cast<Touch::Switch *>(child->toGraphicsObject()))
            return pointOf(object);
    }
    return pointOf(item, 0.9);
}

int runAlarmctl(const QStringList &arguments)
{
    return QProcess::execute(Places::program("alarmctl"), arguments);
}

} // namespace

class TestClockFlow : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void theWindowStaysInPortrait();
    void anEmptyListTellsHowToMakeAnAlarm();
    void theNewAlarmButtonOpensTheEditor();
    void theTitleIsTypedAndTheTimeDragged();
    void savingShowsTheTimeLeftAndTheRow();
    void tappingTheRowOpensItsValues();
    void cancellingClosesTheEditor();
    void aDoubleTapOnARowChangesNoTime();
    void anAlarmAddedElsewhereAppearsByItself();
    void switchingOnShowsTheTimeLeft();
    void deletingInTheEditorTakesTheRowAway();

private:
    QTime m_chosen;
};

void TestClockFlow::initTestCase()
{
    QVERIFY(QTest::qWaitForWindowExposed(applicationWindow));
    // There is no window manager that would give the focus.
    QCOMPARE(QProcess::execute("xdotool", {"windowfocus", QString::number(applicationWindow->winId())}), 0);
    QVERIFY(QTest::qWaitForWindowActive(applicationWindow));
}

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
    QVERIFY(rows().isEmpty());
    QTRY_VERIFY(!isMoving());
    QVERIFY(keepScreenshot("1-empty"));
}

void TestClockFlow::theNewAlarmButtonOpensTheEditor()
{
    QVERIFY(itemNamed("newAlarmButton"));
    Flow::tap(pointOf(itemNamed("newAlarmButton")));
    QTRY_VERIFY(picker() && !isMoving());
    QCOMPARE(QTime(picker()->hours(), picker()->minutes()), QTime(8, 0));
    QVERIFY2(!itemNamed("deleteButton"), "there is nothing to delete yet");
    QVERIFY(keepScreenshot("2-new-alarm"));
}

void TestClockFlow::theTitleIsTypedAndTheTimeDragged()
{
    Flow::tap(pointOf(itemNamed("AlarmNameInputField")));
    Flow::type("Wake up");
    auto *title = qobject_cast<Touch::TextEdit *>(itemNamed("AlarmNameInputField"));
    QVERIFY(title);
    QTRY_COMPARE(title->text(), "Wake up");

    const QTime before(picker()->hours(), picker()->minutes());
    QSignalSpy released(picker(), &TimePicker::discReleased);
    dragHandle(picker()->hourHandle(), -45);
    QTRY_COMPARE(released.size(), 1);
    dragHandle(picker()->minuteHandle(), 120);
    QTRY_COMPARE(released.size(), 2);
    m_chosen = QTime(picker()->hours(), picker()->minutes());
    QVERIFY(m_chosen.hour() != before.hour());
    QVERIFY(m_chosen.minute() != before.minute());
    QTRY_VERIFY(Flow::visibleTexts().contains(m_chosen.toString("hh")));
    QVERIFY(Flow::visibleTexts().contains(m_chosen.toString("mm")));
    QVERIFY(keepScreenshot("3-edited"));
}

void TestClockFlow::savingShowsTheTimeLeftAndTheRow()
{
    Flow::tap(pointOf(itemNamed("positiveButton")));
    QTRY_VERIFY(bannerTitle().startsWith("Alarm in "));
    QTRY_COMPARE(rows().size(), 1);
    QCOMPARE(rows().first()->title(), m_chosen);
    QCOMPARE(rows().first()->subTitle(), "Wake up");
    QVERIFY(rows().first()->enabled());
    QTRY_VERIFY(!isMoving());
    QVERIFY(!Flow::visibleTexts().contains("No alarms yet"));
    QVERIFY(keepScreenshot("4-saved"));
}

void TestClockFlow::tappingTheRowOpensItsValues()
{
    Flow::tap(pointOf(rows().first(), 0.25));
    QTRY_VERIFY(picker() && !isMoving());
    QCOMPARE(QTime(picker()->hours(), picker()->minutes()), m_chosen);
    QCOMPARE(qobject_cast<Touch::TextEdit *>(itemNamed("AlarmNameInputField"))->text(), "Wake up");
    QVERIFY(itemNamed("deleteButton"));
    QVERIFY(keepScreenshot("5-existing-alarm"));
}

void TestClockFlow::cancellingClosesTheEditor()
{
    Flow::tap(pointOf(itemNamed("negativeButton")));
    QTRY_VERIFY(!picker());
    QCOMPARE(rows().size(), 1);
}

void TestClockFlow::aDoubleTapOnARowChangesNoTime()
{
    QTRY_VERIFY(!isMoving());
    Flow::doubleTap(pointOf(rows().first()));
    QTRY_VERIFY(picker() && !isMoving());
    QCOMPARE(QTime(picker()->hours(), picker()->minutes()), m_chosen);
    Flow::press("Escape");
    QTRY_VERIFY(!picker());
}

void TestClockFlow::anAlarmAddedElsewhereAppearsByItself()
{
    QCOMPARE(runAlarmctl({"add", "06:15", "--title", "From outside", "--days", "mon,wed"}), 0);
    QTRY_COMPARE(rows().size(), 2);
    const auto isFromOutside = [](const AlarmListItem *row) { return row->subTitle() == "From outside"; };
    const auto shown = rows();
    const auto row = std::find_if(shown.begin(), shown.end(), isFromOutside);
    QVERIFY(row != shown.end());
    QCOMPARE((*row)->title(), QTime(6, 15));
    QCOMPARE((*row)->subText(), "Mon, Wed");
    QVERIFY(keepScreenshot("6-added-elsewhere"));
}

void TestClockFlow::switchingOnShowsTheTimeLeft()
{
    QTRY_VERIFY(bannerTitle().isEmpty());
    Flow::tap(switchOf(0));
    QTRY_VERIFY(!rows().first()->enabled());
    QVERIFY(keepScreenshot("7-switched-off"));
    QVERIFY(bannerTitle().isEmpty());
    Flow::tap(switchOf(0));
    QTRY_VERIFY(bannerTitle().startsWith("Alarm in "));
    QVERIFY(rows().first()->enabled());
    QTRY_VERIFY(!isMoving());
    QVERIFY(keepScreenshot("8-switched-on"));
}

void TestClockFlow::deletingInTheEditorTakesTheRowAway()
{
    const long cookie = rows().last()->alarmCookie();
    Flow::tap(pointOf(rows().last(), 0.25));
    QTRY_VERIFY(picker() && !isMoving());
    Flow::tap(pointOf(itemNamed("deleteButton")));
    QTRY_VERIFY(!picker());
    QTRY_COMPARE(rows().size(), 1);
    QVERIFY(rows().first()->alarmCookie() != cookie);
    QTRY_VERIFY(!isMoving());
    QVERIFY(keepScreenshot("9-deleted"));
}

int main(int argc, char **argv)
{
    return Flow::runInProgram(argc, argv, [] { return std::make_unique<TestClockFlow>(); });
}
#include "tst_clockflow.moc"
