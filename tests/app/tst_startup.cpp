// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/support/places.h"
#include "tests/support/privatebus.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusReply>
#include <QProcess>
#include <QRegularExpression>
#include <QTest>

namespace {

constexpr auto Service = "com.korvo.clock";
constexpr auto BackupService = "com.korvo.clock.Backup";

/** The real program, with what it logs. */
class Program
{
public:
    bool start(const QString &name = "clock")
    {
        m_process.setProcessChannelMode(QProcess::MergedChannels);
        m_process.start(Places::program(name), QStringList());
        return m_process.waitForStarted();
    }
    ~Program()
    {
        m_process.kill();
        m_process.waitForFinished();
    }

    /** Waits for a line; false if it does not come. */
    bool logs(const QString &line)
    {
        return QTest::qWaitFor([&] { return lines().contains(line); });
    }
    QStringList lines()
    {
        m_output += m_process.readAll();
        QStringList trimmed;
        const auto all = QString::fromUtf8(m_output).split('\n');
        for (const QString &line : all)
            trimmed.append(line.trimmed());
        return trimmed;
    }
    /** The exit status, or -1 if it does not end. */
    int status()
    {
        const bool hasEnded = QTest::qWaitFor([&] { return m_process.state() == QProcess::NotRunning; });
        return hasEnded && m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode() : -1;
    }
    bool isRunning() const { return m_process.state() == QProcess::Running; }

private:
    QProcess m_process;
    QByteArray m_output;
};

bool request(const QString &method, const QVariantList &arguments = {})
{
    auto message = QDBusMessage::createMethodCall(Service, "/com/korvo/clock", "com.astel.touch.Application", method);
    message.setArguments(arguments);
    return QDBusConnection::sessionBus().call(message).type() == QDBusMessage::ReplyMessage;
}

/** What a user who asks at the command line is told, with its white space made even. */
QString gdbus(const QStringList &arguments)
{
    QProcess process;
    process.start("gdbus",
                  arguments.mid(0, 1) + QStringList{"--session", "--dest", BackupService, "--object-path"}
                      + arguments.mid(1));
    process.waitForFinished();
    return QString::fromUtf8(process.readAllStandardOutput()).simplified();
}

} // namespace

class TestStartup : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();
    void everythingStartsAndEndsInItsOrder();
    void theBackupParticipantAnswers_data();
    void theBackupParticipantAnswers();
    void theBackupParticipantIsKnownToOtherPrograms();
    void aLaunchRequestResetsThePage();
    void aLaunchWithArgumentsDoesNotReset();
    void aSecondProcessHandsOverAndEnds();
    void aTakenBackupNameIsOnlyLogged();
    void aProcessThatRunsBesideTheFirstShowsItsWindow();

private:
    Support::PrivateBus m_bus;
};

void TestStartup::initTestCase()
{
    QVERIFY(m_bus.isRunning());
}

void TestStartup::cleanup()
{
    QVERIFY(Support::PrivateBus::waitForService(Service, false));
}

void TestStartup::everythingStartsAndEndsInItsOrder()
{
    Program program;
    QVERIFY(program.start());
    QVERIFY(Support::PrivateBus::waitForService(BackupService));
    QVERIFY(request("exit"));
    QCOMPARE(program.status(), 0);
    const QStringList marks{
        "ClockApplicationService::ClockApplicationService", "void Clock::Utility::subscribeToContextFramework()",
        "virtual AlarmsWidget::~AlarmsWidget() entered", "virtual AlarmsWidget::~AlarmsWidget() exited",
        "ClockApplicationService::~ClockApplicationService"};
    QStringList seen = program.lines();
    seen.removeIf([&](const QString &line) { return !marks.contains(line); });
    QCOMPARE(seen, marks);
    QVERIFY(program.lines().filter("could not register").isEmpty());
}

void TestStartup::theBackupParticipantAnswers_data()
{
    QTest::addColumn<QString>("method");
    for (const char *method : {"backupStarts", "backupFinished", "restoreStarts", "restoreFinished"})
        QTest::newRow(method) << method;
}

void TestStartup::theBackupParticipantAnswers()
{
    QFETCH(QString, method);
    Program program;
    QVERIFY(program.start());
    QVERIFY(Support::PrivateBus::waitForService(BackupService));
    const auto call = QDBusMessage::createMethodCall(BackupService, "/backupclient", "com.korvo.backupclient", method);
    const QDBusReply<uchar> reply = QDBusConnection::sessionBus().call(call);
    QVERIFY(reply.isValid());
    QCOMPARE(reply.value(), uchar(0));
    QVERIFY(program.logs(method));
    // It runs on, and has not touched its alarms.
    const QStringList lines = program.lines();
    QVERIFY(lines.mid(lines.indexOf(method)).filter("AlarmsWidget").isEmpty());
    QVERIFY(request("exit"));
    QCOMPARE(program.status(), 0);
}

void TestStartup::theBackupParticipantIsKnownToOtherPrograms()
{
    Program program;
    QVERIFY(program.start());
    QVERIFY(Support::PrivateBus::waitForService(BackupService));
    const QString interface("interface com.korvo.backupclient { methods: backupStarts(out y ); backupFinished(out y ); "
                            "restoreStarts(out y ); restoreFinished(out y ); signals: properties: };");
    const QString introspected = gdbus({"introspect", "/backupclient"});
    QVERIFY2(introspected.contains(interface), qPrintable(introspected));
    static const QRegularExpression standard("interface org\\.freedesktop\\.DBus\\.");
    QCOMPARE(introspected.count("interface "), introspected.count(standard) + 1);
    for (const char *method : {"backupStarts", "backupFinished", "restoreStarts", "restoreFinished"}) {
        const QString name = QString("com.korvo.backupclient.%1").arg(method);
        QCOMPARE(gdbus({"call", "/backupclient", "--method", name}), "(byte 0x00,)");
        QVERIFY(program.logs(method));
    }
    QVERIFY(request("exit"));
    QCOMPARE(program.status(), 0);
}

void TestStartup::aLaunchRequestResetsThePage()
{
    Program program;
    QVERIFY(program.start());
    QVERIFY(Support::PrivateBus::waitForService(BackupService));
    QVERIFY(request("launch"));
    QVERIFY(program.logs("ClockApplicationService::launch end"));
    const QStringList lines = program.lines();
    const auto start = lines.indexOf("ClockApplicationService::launch starts");
    QVERIFY(start >= 0);
    QCOMPARE(lines.value(start + 1), "void MashupPage::resetContent()");
    QCOMPARE(lines.value(start + 2), "void AlarmsWidget::resetContent()");
    QVERIFY(lines.indexOf("ClockApplicationService::launch end") > start + 2);
    QVERIFY(request("exit"));
    QCOMPARE(program.status(), 0);
}

void TestStartup::aLaunchWithArgumentsDoesNotReset()
{
    Program program;
    QVERIFY(program.start());
    QVERIFY(Support::PrivateBus::waitForService(BackupService));
    QVERIFY(request("launchWithArguments", {QStringList{"--any"}}));
    QVERIFY(request("exit"));
    QCOMPARE(program.status(), 0);
    QVERIFY(program.lines().filter("resetContent").isEmpty());
}

void TestStartup::aSecondProcessHandsOverAndEnds()
{
    Program first;
    QVERIFY(first.start());
    QVERIFY(Support::PrivateBus::waitForService(BackupService));
    Program second;
    QVERIFY(second.start());
    QCOMPARE(second.status(), 0);
    QVERIFY(first.logs("ClockApplicationService::launch starts"));
    QVERIFY(first.isRunning());
    QVERIFY(request("exit"));
    QCOMPARE(first.status(), 0);
}

void TestStartup::aTakenBackupNameIsOnlyLogged()
{
    QVERIFY(QDBusConnection::sessionBus().registerService(BackupService));
    qputenv("QT_MESSAGE_PATTERN", "%{type}: %{message}");
    Program program;
    QVERIFY(program.start());
    qunsetenv("QT_MESSAGE_PATTERN");
    QVERIFY(program.logs("critical: could not register dbus service"));
    QVERIFY(program.lines().filter("could not register dbus object").isEmpty());
    QVERIFY(Support::PrivateBus::waitForService(Service));
    QVERIFY(request("exit"));
    QCOMPARE(program.status(), 0);
    QVERIFY(QDBusConnection::sessionBus().unregisterService(BackupService));
}

void TestStartup::aProcessThatRunsBesideTheFirstShowsItsWindow()
{
    Program first;
    QVERIFY(first.start());
    QVERIFY(Support::PrivateBus::waitForService(BackupService));
    qputenv("QT_MESSAGE_PATTERN", "%{type}: %{message}");
    Program second;
    QVERIFY(second.start("another-clock"));
    qunsetenv("QT_MESSAGE_PATTERN");
    QVERIFY(second.logs("critical: could not register dbus service"));
    QVERIFY(second.logs("info: the window is on the screen"));
    QVERIFY2(second.lines().filter("could not register dbus object").isEmpty(), "the path is each process's own");
    QVERIFY(first.isRunning());
    QVERIFY(first.lines().filter("ClockApplicationService::launch").isEmpty());
    QVERIFY(request("exit"));
    QCOMPARE(first.status(), 0);
}

QTEST_GUILESS_MAIN(TestStartup)
#include "tst_startup.moc"
