// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "app/references.h"
#include "app/startup.h"
#include "mainview/mashuppage.h"
#include "platform/toolkit/applicationwindow.h"
#include "tests/support/logcapture.h"
#include "tests/support/privatebus.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QTest>
#include <QTimer>

namespace {

constexpr int status = 7;
constexpr auto Other = "another process";

/** What was seen of the program while it ran, and at its end. */
struct Seen
{
    bool isShown = false;
    bool isLocked = false;
    bool isRaised = false;
    QStringList ends;
    QStringList linesOfLaunch;
    QStringList critical;
    int status = -1;
};
Seen seen;
Support::LogCapture *capture = nullptr;

void noteEnd(QObject *object, const QString &name)
{
    QObject::connect(object, &QObject::destroyed, [name] { seen.ends.append(name); });
}

/** As another process asks for it, with the window out of sight. */
void requestLaunch()
{
    applicationWindow->showMinimized();
    capture->clear();
    const auto launch = QDBusMessage::createMethodCall("com.korvo.clock", "/com/korvo/clock",
                                                       "com.astel.touch.Application", "launch");
    QDBusConnection(Other).send(launch);
    seen.isRaised = QTest::qWaitFor([] { return !applicationWindow->isMinimized(); });
    seen.linesOfLaunch = capture->lines(QtDebugMsg);
}

void watch()
{
    seen.critical = capture->lines(QtCriticalMsg);
    seen.isShown = applicationWindow->isVisible() && mainPage->isOnDisplay();
    seen.isLocked = applicationWindow->isOrientationLocked() && applicationWindow->orientation() == Qt::Vertical;
    noteEnd(mainPage, "page");
    noteEnd(applicationWindow, "window");
    noteEnd(qApp, "application");
    requestLaunch();
    QCoreApplication::exit(status);
}

/** Takes what the program wants on the bus, as soon as there is an application object. */
void takeNames()
{
    static QObject occupant;
    QDBusConnection::sessionBus().registerObject("/backupclient", &occupant);
    QDBusConnection::connectToBus(QDBusConnection::SessionBus, Other).registerService("com.korvo.clock.Backup");
    // The event loop, and with it this timer, starts when everything has been registered.
    QTimer::singleShot(0, qApp, watch);
}
Q_COREAPP_STARTUP_FUNCTION(takeNames)

} // namespace

/** One run of the program in this process, in which the name and the path of its backup are taken already. */
class TestRunClock : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void bothFailuresAreCritical();
    void theWindowIsShownAllTheSame();
    void theWindowStaysInPortrait();
    void aLaunchResetsBetweenItsTwoLinesAndThenRaises();
    void pageWindowAndApplicationEndInThisOrder();
    void theEventLoopsValueIsReturned();
};

void TestRunClock::initTestCase()
{
    qputenv("CLOCK_REDUCED_MOTION", "1");
    const Support::PrivateBus bus;
    QVERIFY(bus.isRunning());
    Support::LogCapture log;
    capture = &log;
    int argc = 1;
    char name[] = "clock";
    char *argv[] = {name, nullptr};
    seen.status = runClock(argc, argv);
}

void TestRunClock::bothFailuresAreCritical()
{
    QCOMPARE(seen.critical, (QStringList{"could not register dbus service", "could not register dbus object"}));
}

void TestRunClock::theWindowIsShownAllTheSame()
{
    QVERIFY(seen.isShown);
}

void TestRunClock::theWindowStaysInPortrait()
{
    QVERIFY(seen.isLocked);
}

void TestRunClock::aLaunchResetsBetweenItsTwoLinesAndThenRaises()
{
    const QStringList marks{"ClockApplicationService::launch starts", "void MashupPage::resetContent()",
                            "void AlarmsWidget::resetContent()", "ClockApplicationService::launch end"};
    QStringList lines = seen.linesOfLaunch;
    lines.removeIf([&](const QString &line) { return !marks.contains(line); });
    QCOMPARE(lines, marks);
    QVERIFY(seen.isRaised);
}

void TestRunClock::pageWindowAndApplicationEndInThisOrder()
{
    QCOMPARE(seen.ends, (QStringList{"page", "window", "application"}));
    QVERIFY2(mainPage && applicationWindow, "the references are never cleared");
}

void TestRunClock::theEventLoopsValueIsReturned()
{
    QCOMPARE(seen.status, status);
}

QTEST_APPLESS_MAIN(TestRunClock)
#include "tst_runclock.moc"
