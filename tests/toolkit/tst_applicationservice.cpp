// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/applicationservice.h"
#include "tests/support/privatebus.h"

#include <QDBusConnection>
#include <QDBusInterface>
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
    void takesLaunchesWithArguments();
    void endsOnRequest();
    void endsWhenItsWindowIsClosed();
    void endsWithASheetOpen_data();
    void endsWithASheetOpen();

private:
    static bool start(QProcess &process, const QStringList &arguments = {});
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

QDBusInterface TestApplicationService::remote()
{
    return QDBusInterface(name, ApplicationService::objectPath(name), QStringLiteral("com.astel.touch.Application"));
}

void TestApplicationService::ownsItsNameWhileItLives()
{
    QCOMPARE(ApplicationService::objectPath(QStringLiteral("com.korvo.clock")), QStringLiteral("/com/korvo/clock"));
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
