// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/clockwidgets/alarmlistitem.h"
#include "tests/flow/alarmscreen.h"
#include "tests/flow/finger.h"
#include "tests/flow/wholeprogram.h"
#include "tests/support/alarms.h"
#include "tests/support/places.h"
#include "tests/support/privatebus.h"

#include <QProcess>
#include <QTest>

using Flow::bannerTitle;
using Flow::isMoving;
using Flow::keepScreenshot;
using Flow::rows;

/** The program before the daemon is there, while it is away, and once it is back: the steps follow each other. */
class TestAbsentDaemonFlow : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(Flow::prepareWindow()); }
    void withoutTheDaemonNothingIsSaidOfAlarms();
    void theListComesWithTheDaemon();
    void theListStaysWhileTheDaemonIsAway();
    void aSwitchGoesBackWhileTheDaemonIsAway();
    void theListIsInStepAgainWhenTheDaemonIsBack();

private:
    Support::TimedProcess m_daemon;
};

void TestAbsentDaemonFlow::withoutTheDaemonNothingIsSaidOfAlarms()
{
    QVERIFY(rows().isEmpty());
    QVERIFY2(!Flow::visibleTexts().contains("No alarms yet"), "nobody knows yet");
    QCOMPARE(bannerTitle(), "");
    QVERIFY(keepScreenshot("absent-1-start"));
}

void TestAbsentDaemonFlow::theListComesWithTheDaemon()
{
    QVERIFY(m_daemon.start());
    QTRY_VERIFY(Flow::visibleTexts().contains("No alarms yet"));
    Support::addAlarm(QTime(6, 25), "Tea");
    Support::addAlarm(QTime(7, 30), "Coffee", {1, 2, 3, 4, 5});
    QTRY_VERIFY(Flow::rowTitled("Tea") && Flow::rowTitled("Coffee") && !isMoving());
}

void TestAbsentDaemonFlow::theListStaysWhileTheDaemonIsAway()
{
    m_daemon.kill();
    QVERIFY(keepScreenshot("absent-2-away"));
    QCOMPARE(rows().size(), 2);
    QCOMPARE(bannerTitle(), "");
}

void TestAbsentDaemonFlow::aSwitchGoesBackWhileTheDaemonIsAway()
{
    QVERIFY(Flow::rowTitled("Tea")->enabled());
    Flow::tap(Flow::switchOf(Flow::rowTitled("Tea")));
    QTRY_VERIFY(!bannerTitle().isEmpty());
    QTRY_VERIFY(Flow::rowTitled("Tea")->enabled());
    QVERIFY(keepScreenshot("absent-3-not-saved"));
}

void TestAbsentDaemonFlow::theListIsInStepAgainWhenTheDaemonIsBack()
{
    QVERIFY(m_daemon.start());
    QVERIFY(Support::waitForChanges());
    QTRY_VERIFY(rows().size() == 2 && !isMoving());
    QCOMPARE(QProcess::execute(Places::program("alarmctl"), {"add", "06:45", "--title", "From outside"}), 0);
    QTRY_VERIFY(Flow::rowTitled("From outside") && !isMoving());
    QCOMPARE(rows().size(), 3);
    QTRY_VERIFY_WITH_TIMEOUT(bannerTitle().isEmpty() && !isMoving(), 15000);
    Flow::tap(Flow::switchOf(Flow::rowTitled("Tea")));
    QTRY_VERIFY(!Flow::rowTitled("Tea")->enabled());
    QVERIFY(Support::waitForTrigger(quint32(Flow::rowTitled("Tea")->alarmCookie()), false));
    QVERIFY(keepScreenshot("absent-4-back"));
}

int main(int argc, char **argv)
{
    return Flow::runInProgram(
        argc, argv, [] { return std::make_unique<TestAbsentDaemonFlow>(); }, Flow::Daemon::Absent);
}
#include "tst_absentdaemonflow.moc"
