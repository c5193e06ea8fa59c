// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/context/contextpublisher.h"
#include "platform/timed/busservice.h"
#include "platform/timed/health.h"
#include "tests/support/privatebus.h"
#include "tests/timed/buswatch.h"
#include "tests/timed/world.h"

#include <QDBusMessage>
#include <QTest>

using namespace Astel::Timed;

namespace {

/** The object of a world on the bus. */
struct Served
{
    explicit Served(World &world)
        : health(world.parts->book, world.parts->schedule, world.timer, world.zone, world.store)
        , publisher(Wire::TriggerProperty, world.parts->book.triggers(), bus)
        , service({world.clock, world.zone, world.parts->book, health, world.parts->service, world.parts->backup,
                   world.parts->life})
    {
        isThere = bus.registerObject(Wire::Path, &service) && bus.registerService(Wire::Service);
        service.publishThrough(publisher);
    }
    ~Served() { bus.unregisterService(Wire::Service); }

    QDBusConnection bus = QDBusConnection::sessionBus();
    Health health;
    ContextPublisher publisher;
    BusService service;
    bool isThere = false;
};

QDBusPendingCall restore(const QDBusConnection &client, const Wire::Records &records)
{
    auto call = QDBusMessage::createMethodCall(Wire::Service, Wire::Path, Wire::Interface, "restore_events");
    call << QVariant::fromValue(records);
    return client.asyncCall(call);
}

} // namespace

/** The object on the bus, in this process, with time in the test's hand. */
class TestBusService : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void settingsChangedComesAfterThePublication_data();
    void settingsChangedComesAfterThePublication();
    void eachRestoredEventIsAChangeOfItsOwn();
    void veryManyRestoredEventsArePublishedAtOnce();
    void aRefusedRestorePublishesNothing();

private:
    Support::PrivateBus m_bus;
    QDBusConnection m_client{"client"};
};

void TestBusService::initTestCase()
{
    QVERIFY(m_bus.isRunning());
    m_client = QDBusConnection::connectToBus(QDBusConnection::SessionBus, "client");
}

void TestBusService::settingsChangedComesAfterThePublication_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<qint64>("jump");
    QTest::addColumn<QStringList>("arrived");

    QTest::newRow("zone") << QByteArray("America/New_York") << qint64(0) << QStringList{"published 1", "settings zone"};
    QTest::newRow("clock") << QByteArray("Europe/Berlin") << -2 * Day << QStringList{"published 1", "settings clock"};
    QTest::newRow("clock, nothing changes") << QByteArray("Europe/Berlin") << Second << QStringList{"settings clock"};
}

void TestBusService::settingsChangedComesAfterThePublication()
{
    QFETCH(QByteArray, zone);
    QFETCH(qint64, jump);
    QFETCH(QStringList, arrived);

    World world(Start);
    world.add(daily(7, 0));
    const Served served(world);
    QVERIFY(served.isThere);
    BusWatch watch(m_client);
    world.zone.current = *Rules::Zone::create(zone);
    if (jump)
        world.setClock(world.clock.time + jump);
    else
        emit world.zone.changed();
    QTRY_COMPARE(watch.arrived, arrived);
}

void TestBusService::eachRestoredEventIsAChangeOfItsOwn()
{
    World world(Start);
    world.add(daily(7, 0));
    const Served served(world);
    QVERIFY(served.isThere);
    BusWatch watch(m_client);
    Wire::Event off = daily(8, 0);
    off.ticker = 0;
    const Wire::Records records{
        {{daily(6, 30), "WAITING", 0}, {daily(7, 0), "WAITING", 0}, {off, "INACTIVE", 0}, {daily(9, 0), "WAITING", 0}}};
    watch.expect(restore(m_client, records));
    // The second one is there already; the third one has no trigger.
    QTRY_COMPARE(watch.arrived, (QStringList{"reply", "published 3", "published 3", "published 3"}));
    QCOMPARE(watch.lastMap.keys(), (QStringList{"1", "2", "4"}));
}

void TestBusService::veryManyRestoredEventsArePublishedAtOnce()
{
    World world(Start);
    const Served served(world);
    QVERIFY(served.isThere);
    BusWatch watch(m_client);
    Wire::Records records;
    records.records.fill({daily(6, 30), "WAITING", 0}, 501);
    watch.expect(restore(m_client, records));
    QTRY_COMPARE(watch.arrived, (QStringList{"reply", "published 501"}));
}

void TestBusService::aRefusedRestorePublishesNothing()
{
    World world(Start);
    const Served served(world);
    QVERIFY(served.isThere);
    BusWatch watch(m_client);
    watch.expect(restore(m_client, {{{daily(6, 30), "WAITING", 0}, {daily(7, 0), "ASLEEP", 0}}}));
    QTRY_COMPARE(watch.arrived, QStringList{Wire::InvalidError});
    watch.expect(restore(m_client, {{{daily(6, 30), "WAITING", 0}}}));
    QTRY_COMPARE(watch.arrived, (QStringList{Wire::InvalidError, "reply", "published 1"}));
}

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    Wire::registerTypes();
    TestBusService test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_busservice.moc"
