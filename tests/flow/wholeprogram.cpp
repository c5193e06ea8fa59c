// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/flow/wholeprogram.h"

#include "app/references.h"
#include "app/startup.h"
#include "platform/toolkit/applicationwindow.h"
#include "tests/support/places.h"
#include "tests/support/privatebus.h"

#include <QCoreApplication>
#include <QProcess>
#include <QTest>
#include <QTimer>

namespace Flow {

namespace {

constexpr auto InnerMark = "CLOCK_FLOW_INNER";

MakeTest makeInnerTest;

void runWhenShown()
{
    if (!applicationWindow || !applicationWindow->isVisible()) {
        QTimer::singleShot(0, qApp, runWhenShown);
        return;
    }
    const std::unique_ptr<QObject> test = makeInnerTest();
    QCoreApplication::exit(QTest::qExec(test.get(), QCoreApplication::arguments()));
}

void scheduleTest()
{
    if (makeInnerTest)
        QMetaObject::invokeMethod(qApp, runWhenShown, Qt::QueuedConnection);
}
Q_COREAPP_STARTUP_FUNCTION(scheduleTest)

int runOuter(int argc, char **argv, Daemon wanted)
{
    QCoreApplication application(argc, argv);
    Support::PrivateBus bus;
    Support::TimedProcess daemon;
    if (!bus.isRunning() || (wanted == Daemon::Running && !daemon.start())) {
        qCritical("no bus, or no daemon");
        return 1;
    }
    qputenv(InnerMark, "1");
    return QProcess::execute(Places::source("tests/support/under-xvfb"),
                             QStringList(QCoreApplication::applicationFilePath()) + application.arguments().mid(1));
}

} // namespace

int runInProgram(int argc, char **argv, MakeTest makeTest, Daemon daemon)
{
    if (!qEnvironmentVariableIsSet(InnerMark))
        return runOuter(argc, argv, daemon);
    makeInnerTest = std::move(makeTest);
    return runClock(argc, argv);
}

} // namespace Flow
