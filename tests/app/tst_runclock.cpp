// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "app/clockapplicationservice.h"
#include "app/references.h"
#include "app/startup.h"
#include "mainview/mashuppage.h"
#include "platform/toolkit/application.h"
#include "platform/toolkit/applicationwindow.h"
#include "tests/support/logcapture.h"
#include "tests/support/privatebus.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QPointer>
#include <QTest>
#include <QTimer>

namespace {

constexpr int status = 7;
constexpr auto Other = "another process";
constexpr auto Raised = "the window is raised";

/** What was seen of the program while it ran, and at its end. */
struct Seen
{
    QString identifier;
    bool hasService = false;
    bool isShown = false;
    bool isLocked = false;
    bool isRaised = false;
    bool isPageKept = false;
    QStringList linesOfStart;
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

/** Writes into the log that the window is brought back into sight. */
class RaiseNote : public QObject
{
public:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::WindowStateChange && !applicationWindow->isMinimized())
            qDebug("%s", Raised);
        return false;
    }
};

/** As another process asks for it, with the window out of sight. */
void requestLaunch()
{
    applicationWindow->showMinimized();
    RaiseNote note;
    applicationWindow->installEventFilter(&note);
    capture->clear();
    const auto launch = QDBusMessage::createMethodCall("com.korvo.clock", "/com/korvo/clock",
                                                       "com.astel.touch.Application", "launch");
    QDBusConnection(Other).send(launch);
    seen.isRaised = QTest::qWaitFor([] { return !applicationWindow->isMinimized(); });
    seen.linesOfLaunch = capture->lines(QtDebugMsg);
}

void watch()
{
    seen.linesOfStart = capture->lines();
    seen.critical = capture->lines(QtCriticalMsg);
    const auto *application = qobject_cast<Touch::Application *>(qApp);
    seen.identifier = application->identifier();
    seen.hasService = dynamic_cast<ClockApplicationService *>(application->service()) != nullptr;
    seen.isShown = applicationWindow->isVisible() && mainPage->isOnDisplay();
    seen.isLocked = applicationWindow->isOrientationLocked() && applicationWindow->orientation() == Qt::Vertical;
    noteEnd(mainPage, "page");
    noteEnd(applicationWindow, "window");
    noteEnd(qApp, "application");
    requestLaunch();
    const QPointer<MashupPage> page = mainPage;
    mainPage->dismiss();
    seen.isPageKept = QTest::qWaitFor([&] { return page && !page->isInTransition() && !page->isOnDisplay(); });
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
    void theApplicationHasItsIdentifierAndItsService();
    void theStepsComeInTheirOrder();
    void bothFailuresAreCritical();
    void theWindowIsShownAllTheSame();
    void theWindowStaysInPortrait();
    void aLaunchResetsBetweenItsTwoLinesAndThenRaises();
    void thePageIsKeptWhenItIsDone();
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

void TestRunClock::theApplicationHasItsIdentifierAndItsService()
{
    QCOMPARE(seen.identifier, "clock");
    QVERIFY(seen.hasService);
}

void TestRunClock::theStepsComeInTheirOrder()
{
    const QStringList marks{"ClockApplicationService::ClockApplicationService",
                            "void Clock::Utility::subscribeToContextFramework()", "could not register dbus service",
                            "could not register dbus object"};
    QStringList lines = seen.linesOfStart;
    lines.removeIf([&](const QString &line) { return !marks.contains(line); });
    QCOMPARE(lines, marks);
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
                            "void AlarmsWidget::resetContent()", "ClockApplicationService::launch end", Raised};
    QStringList lines = seen.linesOfLaunch;
    lines.removeIf([&](const QString &line) { return !marks.contains(line); });
    // The window system confirms the new state by telling it again.
    lines.removeDuplicates();
    QCOMPARE(lines, marks);
    QVERIFY(seen.isRaised);
}

void TestRunClock::thePageIsKeptWhenItIsDone()
{
    QVERIFY(seen.isPageKept);
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
