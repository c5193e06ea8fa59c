// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "desktopproxy.h"
#include "platform/toolkit/applicationservice.h"
#include "tests/support/privatebus.h"

#include <limits>
#include <QDBusConnection>
#include <QDBusInterface>
#include <QElapsedTimer>
#include <QProcess>
#include <QTest>

using namespace Touch;

/** The probe is a program with an application service; it says on its output what it is asked to do. */
class TestApplicationService : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void ownsItsNameWhileItLives();
    void registersTheFirstFreeNumber();
    void runsOnceAndIsLaunchedByTheSecondStart();
    void handsOverInATenthOfASecond();
    void startsItselfASecondTime();
    void handsOverBeforeItSetsAnythingUp();
    void whoOnlyAsksIsAnsweredAtOnce_data();
    void whoOnlyAsksIsAnsweredAtOnce();
    void handsOverTheTokenOfItsLauncher();
    void failsIfTheOtherOneDoesNotAnswer();
    void goesOnWithoutABus();
    void takesLaunchesWithArguments();
    void isActivatedByTheDesktop();
    void itsDesktopFileIsNamedAfterItsService();
    void endsOnRequest();
    void endsWhenItsWindowIsClosed();
    void endsWithASheetOpen_data();
    void endsWithASheetOpen();

private:
    static bool start(QProcess &process, const QStringList &arguments = {});
    static bool says(QProcess &process, const QByteArray &line);
    static bool runSecond(QProcess &process, const QString &variable, const QString &value);
    static QDBusInterface remote();

    Support::PrivateBus m_bus;
};

namespace {

const QString name = QStringLiteral("com.astel.touch.Probe");

} // namespace

void TestApplicationService::initTestCase()
{
    QVERIFY(m_bus.isRunning());
}

bool TestApplicationService::start(QProcess &process, const QStringList &arguments)
{
    process.setReadChannel(QProcess::StandardOutput);
    process.start(QStringLiteral(PROBE), arguments);
    return process.waitForStarted() && process.waitForReadyRead() && process.readLine() == "running\n";
}

bool TestApplicationService::says(QProcess &process, const QByteArray &line)
{
    return QTest::qWaitFor([&process] { return process.canReadLine(); }, 20000) && process.readLine() == line + '\n';
}

bool TestApplicationService::runSecond(QProcess &process, const QString &variable, const QString &value)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(variable, value);
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(PROBE), QStringList());
    return process.waitForFinished();
}

QDBusInterface TestApplicationService::remote()
{
    return QDBusInterface(name, ApplicationService::objectPath(name), QStringLiteral("com.astel.touch.Application"));
}

void TestApplicationService::ownsItsNameWhileItLives()
{
    QCOMPARE(ApplicationService::objectPath(QStringLiteral("com.korvo.clock")), QStringLiteral("/com/korvo/clock"));
    QCOMPARE(ApplicationService::objectPath(QStringLiteral("com.two-words")), QStringLiteral("/com/two_words"));
    {
        ApplicationService service(name);
        QVERIFY(!service.isRegistered());
        QVERIFY(service.registeredName().isEmpty());
        QVERIFY(service.registerService());
        QVERIFY(service.registerService());
        QVERIFY(service.isRegistered());
        QCOMPARE(service.registeredName(), name);
        QVERIFY(Support::PrivateBus::waitForService(name));
    }
    QVERIFY(Support::PrivateBus::waitForService(name, false));
}

void TestApplicationService::registersTheFirstFreeNumber()
{
    ApplicationService first(name);
    ApplicationService second(name);
    first.incrementAndRegister();
    second.incrementAndRegister();
    QCOMPARE(first.registeredName(), name + QLatin1Char('1'));
    QCOMPARE(second.registeredName(), name + QLatin1Char('2'));
}

void TestApplicationService::runsOnceAndIsLaunchedByTheSecondStart()
{
    QProcess first;
    QVERIFY(start(first));
    QProcess second;
    second.start(QStringLiteral(PROBE), QStringList());
    QVERIFY(second.waitForFinished());
    QCOMPARE(second.exitStatus(), QProcess::NormalExit);
    QCOMPARE(second.exitCode(), 0);
    QVERIFY(second.readAllStandardOutput().isEmpty());
    QVERIFY(first.bytesAvailable() > 0 || first.waitForReadyRead());
    QCOMPARE(first.readLine(), QByteArray("launch\n"));
    first.kill();
    QVERIFY(first.waitForFinished());
}

// A busy machine makes any one start slow, but not all of them.
void TestApplicationService::handsOverInATenthOfASecond()
{
#ifdef __SANITIZE_ADDRESS__
    constexpr qint64 longest = 1000; // the sanitizer's own start takes most of it
#else
    constexpr qint64 longest = 100;
#endif
    QProcess first;
    QVERIFY(start(first));
    qint64 fastest = std::numeric_limits<qint64>::max();
    for (int i = 0; i < 20 && fastest >= longest; ++i) {
        QElapsedTimer clock;
        clock.start();
        QProcess second;
        second.start(QStringLiteral(PROBE), QStringList());
        QVERIFY(second.waitForFinished());
        fastest = qMin(fastest, clock.elapsed());
        QCOMPARE(second.exitCode(), 0);
        QVERIFY(says(first, "launch"));
    }
    QVERIFY2(fastest < longest, qPrintable(QStringLiteral("%1 ms at best").arg(fastest)));
    first.kill();
    QVERIFY(first.waitForFinished());
}

void TestApplicationService::startsItselfASecondTime()
{
    QProcess process;
    QVERIFY(start(process));
    // The second one finds the name taken and has the first one launch.
    QVERIFY(remote().call(QStringLiteral("launchWithArguments"), QStringList(QStringLiteral("again"))).type()
            == QDBusMessage::ReplyMessage);
    QVERIFY(says(process, "again"));
    QVERIFY(says(process, "launch"));
    process.kill();
    QVERIFY(process.waitForFinished());
}

void TestApplicationService::handsOverBeforeItSetsAnythingUp()
{
    QProcess first;
    QVERIFY(start(first));
    QProcess second;
    // An application object could not be made with this.
    QVERIFY(runSecond(second, QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("none")));
    QCOMPARE(second.exitStatus(), QProcess::NormalExit);
    QCOMPARE(second.exitCode(), 0);
    QVERIFY(second.readAllStandardError().isEmpty());
    QVERIFY(says(first, "launch"));
    first.kill();
    QVERIFY(first.waitForFinished());
}

void TestApplicationService::whoOnlyAsksIsAnsweredAtOnce_data()
{
    QTest::addColumn<QString>("argument");
    QTest::addColumn<QByteArray>("answer");

    QTest::newRow("version") << QStringLiteral("--version") << QByteArray("probe 1.2\n");
    QTest::newRow("help") << QStringLiteral("--help")
                          << QByteArray("Usage: probe [OPTION]\n\nOptions:\n  --help            show this help\n"
                                        "  --version         show the version\n");
}

void TestApplicationService::whoOnlyAsksIsAnsweredAtOnce()
{
    QFETCH(QString, argument);
    QFETCH(QByteArray, answer);
    QProcess first;
    QVERIFY(start(first));
    QProcess asking;
    // No application object could be made with this.
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("none"));
    asking.setProcessEnvironment(environment);
    asking.start(QStringLiteral(PROBE), {argument});
    QVERIFY(asking.waitForFinished());
    QCOMPARE(asking.exitCode(), 0);
    QCOMPARE(asking.readAllStandardOutput(), answer);
    QVERIFY(asking.readAllStandardError().isEmpty());
    // The one that runs was not asked for anything: its next word is about what follows.
    QDBusInterface probe = remote();
    probe.call(QStringLiteral("launchWithArguments"), QStringList{QStringLiteral("after")});
    QVERIFY(says(first, "after"));
    first.kill();
    QVERIFY(first.waitForFinished());
}

void TestApplicationService::handsOverTheTokenOfItsLauncher()
{
    QProcess first;
    QVERIFY(start(first));
    QProcess second;
    QVERIFY(runSecond(second, QStringLiteral("XDG_ACTIVATION_TOKEN"), QStringLiteral("-token")));
    QVERIFY(says(first, "launch-token"));
    QProcess third;
    QVERIFY(runSecond(third, QStringLiteral("DESKTOP_STARTUP_ID"), QStringLiteral("-id")));
    QVERIFY(says(first, "launch-token-id"));
    first.kill();
    QVERIFY(first.waitForFinished());
}

void TestApplicationService::failsIfTheOtherOneDoesNotAnswer()
{
    // A name without the object.
    QVERIFY(QDBusConnection::sessionBus().registerService(name));
    QProcess process;
    process.start(QStringLiteral(PROBE), QStringList());
    QTRY_COMPARE_WITH_TIMEOUT(process.state(), QProcess::NotRunning, 20000);
    QCOMPARE(process.exitCode(), 1);
    QVERIFY(process.readAllStandardError().contains("runs but does not answer"));
    QVERIFY(QDBusConnection::sessionBus().unregisterService(name));
}

void TestApplicationService::goesOnWithoutABus()
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), QStringLiteral("unix:path=/none"));
    process.setProcessEnvironment(environment);
    QVERIFY(start(process));
    process.kill();
    QVERIFY(process.waitForFinished());
}

void TestApplicationService::takesLaunchesWithArguments()
{
    QProcess process;
    QVERIFY(start(process));
    QDBusInterface probe = remote();
    QCOMPARE(
        probe.call(QStringLiteral("launchWithArguments"), QStringList{QStringLiteral("a"), QStringLiteral("b")}).type(),
        QDBusMessage::ReplyMessage);
    QVERIFY(process.bytesAvailable() > 0 || process.waitForReadyRead());
    QCOMPARE(process.readLine(), QByteArray("a b\n"));
    process.kill();
    QVERIFY(process.waitForFinished());
}

void TestApplicationService::isActivatedByTheDesktop()
{
    QProcess process;
    QVERIFY(start(process));
    DesktopProxy desktop(name, ApplicationService::objectPath(name), QDBusConnection::sessionBus());
    const QVariantMap token{{QStringLiteral("activation-token"), QStringLiteral("-1")}};
    desktop.Activate(token);
    QVERIFY(says(process, "launch-1"));
    desktop.Open({QStringLiteral("file:///a"), QStringLiteral("file:///b")}, QVariantMap());
    QVERIFY(says(process, "file:///a file:///b"));
    desktop.ActivateAction(QStringLiteral("wave"), QVariantList(), QVariantMap());
    QVERIFY(says(process, "launch-1"));
    QVERIFY(says(process, "wave"));
    QDBusPendingReply<> unknown = desktop.ActivateAction(QStringLiteral("dance"), QVariantList(), QVariantMap());
    unknown.waitForFinished();
    QVERIFY(!unknown.isError());
    QVERIFY(says(process, "launch-1"));
    process.kill();
    QVERIFY(process.waitForFinished());
}

void TestApplicationService::itsDesktopFileIsNamedAfterItsService()
{
    QProcess process;
    QVERIFY(start(process));
    DesktopProxy desktop(name, ApplicationService::objectPath(name), QDBusConnection::sessionBus());
    desktop.ActivateAction(QStringLiteral("identify"), QVariantList(), QVariantMap());
    QVERIFY(says(process, "launch"));
    QVERIFY(says(process, name.toUtf8()));
    process.kill();
    QVERIFY(process.waitForFinished());
}

void TestApplicationService::endsOnRequest()
{
    QProcess process;
    QVERIFY(start(process));
    remote().call(QStringLiteral("exit"));
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitCode(), 0);
}

void TestApplicationService::endsWhenItsWindowIsClosed()
{
    QProcess process;
    QVERIFY(start(process));
    remote().call(QStringLiteral("close"));
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitCode(), 0);
}

void TestApplicationService::endsWithASheetOpen_data()
{
    QTest::addColumn<QString>("request");
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("close") << "close" << QStringList();
    QTest::newRow("exit") << "exit" << QStringList();
    QTest::newRow("quit") << "launchWithArguments" << QStringList("quit");
}

void TestApplicationService::endsWithASheetOpen()
{
    QFETCH(QString, request);
    QFETCH(QStringList, arguments);
    QProcess process;
    QVERIFY(start(process, {QStringLiteral("--sheet")}));
    QDBusInterface probe = remote();
    if (arguments.isEmpty())
        probe.call(request);
    else
        probe.call(request, arguments);
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitCode(), 0);
}

QTEST_GUILESS_MAIN(TestApplicationService)
#include "tst_applicationservice.moc"
