// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/context/contextpublisher.h"
#include "platform/timed/busservice.h"
#include "platform/timed/health.h"
#include "tests/support/privatebus.h"
#include "tests/timed/buswatch.h"
#include "tests/timed/world.h"

#include <QTest>

using namespace Astel::Timed;

/** The object on the bus, in this process, with time in the test's hand. */
class tst_BusService : public QObject
{
    Q_OBJECT

private slots:
    void settingsChangedComesAfterThePublication_data();
    void settingsChangedComesAfterThePublication();

private:
    Support::PrivateBus m_bus;
};

void tst_BusService::settingsChangedComesAfterThePublication_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<qint64>("jump");
    QTest::addColumn<QStringList>("arrived");

    QTest::newRow("zone") << QByteArray("America/New_York") << qint64(0) << QStringList{"published 1", "settings zone"};
    QTest::newRow("clock") << QByteArray("Europe/Berlin") << -2 * Day << QStringList{"published 1", "settings clock"};
    QTest::newRow("clock, nothing changes") << QByteArray("Europe/Berlin") << Second << QStringList{"settings clock"};
}

void tst_BusService::settingsChangedComesAfterThePublication()
{
    QFETCH(QByteArray, zone);
    QFETCH(qint64, jump);
    QFETCH(QStringList, arrived);

    QVERIFY(m_bus.isRunning());
    World world(utc("2026-11-20T05:00:00"));
    world.add(daily(7, 0));
    auto bus = QDBusConnection::sessionBus();
    Health health(world.parts->book, world.parts->schedule, world.timer, world.zone, world.store);
    ContextPublisher publisher(Wire::TriggerProperty, world.parts->book.triggers(), bus);
    BusService service({world.clock, world.zone, world.parts->book, health, world.parts->service, world.parts->life});
    QVERIFY(bus.registerObject(Wire::Path, &service));
    QVERIFY(bus.registerService(Wire::Service));
    service.publishThrough(publisher);

    BusWatch watch(QDBusConnection::connectToBus(QDBusConnection::SessionBus, "client"));
    world.zone.current = *Rules::Zone::create(zone);
    if (jump)
        world.setClock(world.clock.time + jump);
    else
        emit world.zone.changed();
    QTRY_COMPARE(watch.arrived, arrived);
    QVERIFY(bus.unregisterService(Wire::Service));
}

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    Wire::registerTypes();
    tst_BusService test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_busservice.moc"
