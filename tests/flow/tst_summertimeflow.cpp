// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "app/references.h"
#include "mainview/mashuppage.h"
#include "platform/clockwidgets/alarmlistitem.h"
#include "platform/toolkit/applicationwindow.h"
#include "platform/toolkit/messagebox.h"
#include "tests/flow/alarmscreen.h"
#include "tests/flow/finger.h"
#include "tests/flow/wholeprogram.h"
#include "tests/support/alarms.h"
#include "tests/support/summertime.h"

#include <QTest>
#include <QTime>

using Flow::isMoving;
using Flow::keepScreenshot;
using Flow::rows;

namespace {

constexpr auto SkippedTime = "CLOCK_FLOW_SKIPPED_TIME";

Touch::MessageBox *dialog()
{
    return qobject_cast<Touch::MessageBox *>(applicationWindow->topSceneWindow());
}

} // namespace

/** An alarm at a time that the coming change to summer time skips. */
class TestSummerTimeFlow : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(Flow::prepareWindow()); }
    void switchedOnItGoesOffAgainAndTheDialogOpens();
};

void TestSummerTimeFlow::switchedOnItGoesOffAgainAndTheDialogOpens()
{
    QVERIFY(Flow::startAfresh());
    Support::addSwitchedOffAlarm(QTime::fromString(qEnvironmentVariable(SkippedTime), "hh:mm"), "Early");
    mainPage->resetContent();
    QTRY_VERIFY(rows().size() == 1 && !isMoving());
    QVERIFY(!rows().first()->enabled());
    QVERIFY(keepScreenshot("summertime-1-off"));
    Flow::tap(Flow::switchOf(rows().first()));
    QTRY_VERIFY(dialog() && !isMoving());
    QTRY_VERIFY(!rows().first()->enabled());
    QCOMPARE(Flow::bannerTitle(), "");
    QVERIFY(keepScreenshot("summertime-2-dialog"));
}

int main(int argc, char **argv)
{
    // The bus, the daemon and the program within live in the same zone.
    if (!qEnvironmentVariableIsSet(SkippedTime))
        qputenv(SkippedTime, Support::skipAnHourSoon().toString("hh:mm").toLatin1());
    return Flow::runInProgram(argc, argv, [] { return std::make_unique<TestSummerTimeFlow>(); });
}
#include "tst_summertimeflow.moc"
