// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/notices/buspresence.h"
#include "tests/support/answersfirst.h"
#include "tests/support/privatebus.h"

#include <memory>
#include <optional>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QSignalSpy>
#include <QTest>

using Notices::BusPresence;

namespace {

const auto Service = QStringLiteral("org.example.Server");

// Answered by the bus itself.
QDBusMessage question()
{
    return QDBusMessage::createMethodCall("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
                                          "GetId");
}

} // namespace

class TestBusPresence : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();
    void serviceThatIsThereAppearsOnce();
    void tellsWhoComesAndGoes();
    void isKnownBeforeWhatWasAskedLater();

private:
    static QDBusConnection bus() { return QDBusConnection::sessionBus(); }

    std::unique_ptr<Support::PrivateBus> m_bus;
};

void TestBusPresence::initTestCase()
{
    m_bus = std::make_unique<Support::PrivateBus>();
    QVERIFY(m_bus->isRunning());
}

void TestBusPresence::cleanup()
{
    bus().unregisterService(Service);
}

void TestBusPresence::serviceThatIsThereAppearsOnce()
{
    QVERIFY(bus().registerService(Service));
    const BusPresence presence(Service, bus());
    QVERIFY(!presence.isPresent());
    QSignalSpy appeared(&presence, &BusPresence::appeared);
    QVERIFY(appeared.wait());
    QVERIFY(presence.isPresent());
    QVERIFY(bus().unregisterService(Service));
    QTRY_VERIFY(!presence.isPresent());
    QCOMPARE(appeared.count(), 1);
}

void TestBusPresence::tellsWhoComesAndGoes()
{
    const BusPresence presence(Service, bus());
    QSignalSpy appeared(&presence, &BusPresence::appeared);
    QSignalSpy vanished(&presence, &BusPresence::vanished);
    for (int times = 1; times <= 2; ++times) {
        QVERIFY(bus().registerService(Service));
        QTRY_COMPARE(appeared.count(), times);
        QVERIFY(presence.isPresent());
        QVERIFY(bus().unregisterService(Service));
        QTRY_COMPARE(vanished.count(), times);
        QVERIFY(!presence.isPresent());
    }
}

void TestBusPresence::isKnownBeforeWhatWasAskedLater()
{
    QVERIFY(bus().registerService(Service));
    std::optional<Support::AnswersFirst> busyMachine(std::in_place);
    const BusPresence presence(Service, bus());
    const QDBusPendingCallWatcher proof(bus().asyncCall(question()));
    QVERIFY(proof.isFinished());
    busyMachine.reset();

    const QDBusPendingCallWatcher later(bus().asyncCall(question()));
    QSignalSpy answered(&later, &QDBusPendingCallWatcher::finished);
    bool wasKnown = false;
    connect(&later, &QDBusPendingCallWatcher::finished, this, [&] { wasKnown = presence.isPresent(); });
    // All answers have come when the first is told of.
    QVERIFY(bus().interface()->isServiceRegistered(Service));
    QVERIFY(answered.wait());
    QVERIFY(wasKnown);
}

QTEST_GUILESS_MAIN(TestBusPresence)
#include "tst_buspresence.moc"
