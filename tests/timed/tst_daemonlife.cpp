// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/support/places.h"
#include "tests/support/privatebus.h"
#include "tests/timed/buswatch.h"
#include "tests/timed/daemonclient.h"
#include "tests/timed/world.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace Astel::Timed;

/** The real program as it rings, ends and starts again, on a bus of its own. */
class TestDaemonLife : public QObject, private DaemonClient
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();

    void cookiesGrowOverRestartAndDeletion();
    void acknowledgedEventOutlivesAKill();
    void acknowledgedEventRingsAfterAKill();
    void dueEventRingsAndIsAnswered();
    void buttonsArePressedByNumber();
    void ringerThatGoesIsCalledAgain();
    void secondDaemonSaysWhyItEnds();
    void alarmsRingAlsoWhereNobodyCanFollowThem();
    void terminatedDaemonEndsCleanly();

private:
    Support::PrivateBus m_bus;
    Support::TimedProcess m_daemon;
};

void TestDaemonLife::initTestCase()
{
    QVERIFY(m_bus.isRunning());
    Wire::registerTypes();
    QVERIFY(m_daemon.start());
}

void TestDaemonLife::cleanup()
{
    QVERIFY(cancelAll());
}

void TestDaemonLife::cookiesGrowOverRestartAndDeletion()
{
    const uint first = add(daily(7, 0));
    QVERIFY(ask<bool>("cancel", {first}));
    m_daemon.terminate();
    QVERIFY(m_daemon.start());
    const uint second = add(daily(7, 0));
    QVERIFY(second > first);
    m_daemon.kill();
    QVERIFY(m_daemon.start());
    QVERIFY(add(daily(7, 0)) > second);
}

void TestDaemonLife::acknowledgedEventOutlivesAKill()
{
    Wire::Event event = daily(7, 0);
    event.attributes = {{"TITLE", "Wake up"}};
    const uint cookie = add(event);
    m_daemon.kill();
    QVERIFY(m_daemon.start());
    QCOMPARE(stateOf(cookie), "WAITING");
    QCOMPARE(ask<QVariantMap>("query_attributes", {cookie}).value("TITLE"), "Wake up");
    QCOMPARE(ask<QList<Wire::Trigger>>("next_triggers", {1u}).value(0).cookie, cookie);
}

void TestDaemonLife::acknowledgedEventRingsAfterAKill()
{
    const NotingRinger ringer(QDBusConnection::connectToBus(QDBusConnection::SessionBus, "ringer"));
    Wire::Event event;
    event.ticker = QDateTime::currentSecsSinceEpoch() + 3;
    const uint cookie = add(event);
    m_daemon.kill();
    QVERIFY(ringer.calls.isEmpty());
    QVERIFY(m_daemon.start());
    QTRY_COMPARE_WITH_TIMEOUT(ringer.calls, QStringList{QStringLiteral("ring %1").arg(cookie)}, 10000);
    QVERIFY(QDateTime::currentSecsSinceEpoch() >= event.ticker);
}

void TestDaemonLife::dueEventRingsAndIsAnswered()
{
    NotingRinger ringer(QDBusConnection::connectToBus(QDBusConnection::SessionBus, "ringer"));
    const qint64 begin = QDateTime::currentMSecsSinceEpoch();
    Wire::Event event;
    event.ticker = begin / 1000 + 1;
    event.flags = Wire::SingleShot | Wire::KeepAlive;
    const uint cookie = add(event);
    const QString ring = QStringLiteral("ring %1").arg(cookie);
    QTRY_COMPARE(ringer.calls, QStringList{ring});
    QCOMPARE(stateOf(cookie), "TRIGGERED");
    QVERIFY(errorOf("rings", {cookie}).isEmpty());
    QVERIFY(errorOf("sounds", {cookie, "/tone.aac"}).isEmpty());

    const auto until = ask<qulonglong>("snooze", {cookie, 1u, "user"});
    QVERIFY(until > quint64(begin) * 1000000);
    QCOMPARE(stateOf(cookie), "SNOOZED");
    const QString stop = QStringLiteral("stop %1").arg(cookie);
    QTRY_COMPARE(ringer.calls, (QStringList{ring, stop, ring}));
    QVERIFY(errorOf("dismiss", {cookie, "user"}).isEmpty());
    QCOMPARE(stateOf(cookie), "FINISHED");

    QStringList words;
    const auto journal = ask<QList<Wire::JournalEntry>>("journal", {begin});
    for (const Wire::JournalEntry &entry : journal)
        words.append(entry.what);
    QCOMPARE(words, (QStringList{"due", "rang", "sounded", "answered", "due", "answered"}));
}

void TestDaemonLife::buttonsArePressedByNumber()
{
    const NotingRinger ringer(QDBusConnection::connectToBus(QDBusConnection::SessionBus, "ringer"));
    Wire::Event event;
    event.ticker = QDateTime::currentSecsSinceEpoch();
    event.flags = Wire::SingleShot | Wire::KeepAlive;
    event.buttons = {{0, {}}, {1, {}}};
    const uint cookie = add(event);
    QTRY_COMPARE(ringer.calls.size(), 1);
    for (const uint button : {0u, 3u, 4294967295u})
        QCOMPARE(errorOf("press", {cookie, button, "user"}), Wire::InvalidError);
    QCOMPARE(errorOf("press", {cookie, 1u, QString(200, 'x')}), Wire::LimitError);
    QCOMPARE(stateOf(cookie), "TRIGGERED");

    QVERIFY(ask<qulonglong>("press", {cookie, 2u, "user"}) > qulonglong(event.ticker) * 1000000000);
    QTRY_COMPARE(ringer.calls.size(), 3);
    const QDBusPendingReply<qulonglong> stopped = call("press", {cookie, 1u, "user"});
    QTRY_VERIFY(stopped.isFinished());
    QVERIFY(stopped.isValid());
    QCOMPARE(stopped.value(), 0u);
    QCOMPARE(stateOf(cookie), "FINISHED");
    QCOMPARE(errorOf("press", {cookie, 1u, "user"}), Wire::UnknownError);
}

void TestDaemonLife::ringerThatGoesIsCalledAgain()
{
    Wire::Event event;
    event.ticker = QDateTime::currentSecsSinceEpoch();
    uint cookie = 0;
    {
        NotingRinger ringer(QDBusConnection::connectToBus(QDBusConnection::SessionBus, "ringer"));
        cookie = add(event);
        QTRY_COMPARE(ringer.calls.size(), 1);
        QVERIFY(errorOf("rings", {cookie}).isEmpty());
    }
    const NotingRinger next(QDBusConnection::connectToBus(QDBusConnection::SessionBus, "ringer"));
    // On a busy machine the quick calls find nobody there yet; the one behind them is 15 s later.
    QTRY_VERIFY_WITH_TIMEOUT(next.calls.contains(QStringLiteral("ring %1").arg(cookie)), 30000);
}

void TestDaemonLife::secondDaemonSaysWhyItEnds()
{
    const auto run = [](const QString &dataHome) {
        QProcess second;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("XDG_DATA_HOME", dataHome);
        second.setProcessEnvironment(environment);
        second.start(Places::program("timed"), QStringList());
        second.waitForFinished();
        return QString::number(second.exitCode()) + ' ' + second.readAllStandardError();
    };
    const QString sameStore = run(qEnvironmentVariable("XDG_DATA_HOME"));
    QVERIFY2(sameStore.startsWith("1 ") && sameStore.contains("another daemon is using it"), qPrintable(sameStore));
    const QTemporaryDir elsewhere;
    const QString sameName = run(elsewhere.path());
    QVERIFY2(sameName.startsWith("1 ") && sameName.contains("com.astel.timed is taken"), qPrintable(sameName));
}

void TestDaemonLife::alarmsRingAlsoWhereNobodyCanFollowThem()
{
    m_daemon.terminate();
    auto squatter = QDBusConnection::connectToBus(QDBusConnection::SessionBus, "squatter");
    QVERIFY(squatter.registerService("com.astel.context.Alarm.Trigger"));
    QVERIFY(m_daemon.start());
    NotingRinger ringer(QDBusConnection::connectToBus(QDBusConnection::SessionBus, "ringer"));
    Wire::Event event;
    event.ticker = QDateTime::currentSecsSinceEpoch();
    const uint cookie = add(event);
    QTRY_COMPARE(ringer.calls, QStringList{QStringLiteral("ring %1").arg(cookie)});
    squatter.unregisterService("com.astel.context.Alarm.Trigger");
    m_daemon.terminate();
    QVERIFY(m_daemon.start());
}

void TestDaemonLife::terminatedDaemonEndsCleanly()
{
    const uint cookie = add(daily(7, 0));
    m_daemon.terminate();
    QVERIFY(Support::PrivateBus::waitForService(Wire::Service, false));
    QVERIFY(!QFile::exists(qEnvironmentVariable("XDG_DATA_HOME") + "/timed/events.db-wal"));
    QVERIFY(m_daemon.start());
    QCOMPARE(stateOf(cookie), "WAITING");
}

QTEST_GUILESS_MAIN(TestDaemonLife)
#include "tst_daemonlife.moc"
