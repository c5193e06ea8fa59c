// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "app/clockapplicationservice.h"

#include "app/references.h"
#include "tests/support/logcapture.h"
#include "tests/support/privatebus.h"

#include <QTest>

class TestClockApplicationService : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(m_bus.isRunning()); }
    void itsLifeIsLogged();
    void itBearsTheApplicationsName();
    void allButTheLaunchIsThatOfTheBase();
    void aLaunchBeforeThePageExistsOnlyRunsTheBase();

private:
    Support::PrivateBus m_bus;
};

void TestClockApplicationService::itsLifeIsLogged()
{
    const Support::LogCapture log;
    delete new ClockApplicationService;
    QCOMPARE(log.lines(QtDebugMsg),
             (QStringList{"ClockApplicationService::ClockApplicationService",
                          "ClockApplicationService::~ClockApplicationService"}));
}

void TestClockApplicationService::itBearsTheApplicationsName()
{
    ClockApplicationService service;
    QVERIFY(service.registerService());
    QCOMPARE(service.registeredName(), "com.korvo.clock");
}

void TestClockApplicationService::allButTheLaunchIsThatOfTheBase()
{
    const ClockApplicationService service;
    QVERIFY(!service.parent());
    // No signals, slots or properties of its own.
    QCOMPARE(service.metaObject(), &Touch::ApplicationService::staticMetaObject);
}

void TestClockApplicationService::aLaunchBeforeThePageExistsOnlyRunsTheBase()
{
    QVERIFY(!mainPage);
    ClockApplicationService service;
    const Support::LogCapture log;
    service.launch();
    QCOMPARE(log.lines(QtDebugMsg),
             (QStringList{"ClockApplicationService::launch starts", "ClockApplicationService::launch end"}));
}

QTEST_MAIN(TestClockApplicationService)
#include "tst_clockapplicationservice.moc"
