// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "app/startup.h"
#include "backup/backupclientadaptor.h"
#include "backup/clockbackup.h"
#include "tests/support/privatebus.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QTest>
#include <QTimer>

namespace {

/** What was seen of the participant while the program ran, and the order of the ends. */
struct Seen
{
    bool isExported = false;
    bool hasParent = true;
    QStringList ends;
};
Seen seen;

void noteEnd(QObject *object, const QString &name)
{
    QObject::connect(object, &QObject::destroyed, [name] { seen.ends.append(name); });
}

void watch()
{
    auto *participant = qobject_cast<ClockBackup *>(QDBusConnection::sessionBus().objectRegisteredAt("/backupclient"));
    auto *adaptor = participant ? participant->findChild<backupclientAdaptor *>() : nullptr;
    if (adaptor) {
        seen.isExported = true;
        seen.hasParent = participant->parent();
        noteEnd(participant, "participant");
        noteEnd(adaptor, "adaptor");
    }
    noteEnd(qApp, "application");
    QCoreApplication::exit();
}

void watchOnceItRuns()
{
    QTimer::singleShot(0, qApp, watch);
}
Q_COREAPP_STARTUP_FUNCTION(watchOnceItRuns)

} // namespace

/** One run of the program in this process, with its part in backups. */
class TestBackupParticipant : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void itIsExportedByItsAdaptor();
    void itOutlivesTheApplication();
};

void TestBackupParticipant::initTestCase()
{
    qputenv("CLOCK_REDUCED_MOTION", "1");
    const Support::PrivateBus bus;
    QVERIFY(bus.isRunning());
    int argc = 1;
    char name[] = "clock";
    char *argv[] = {name, nullptr};
    QCOMPARE(runClock(argc, argv), 0);
}

void TestBackupParticipant::itIsExportedByItsAdaptor()
{
    QVERIFY(seen.isExported);
    QVERIFY(!seen.hasParent);
}

void TestBackupParticipant::itOutlivesTheApplication()
{
    QCOMPARE(seen.ends, (QStringList{"application", "participant", "adaptor"}));
}

QTEST_APPLESS_MAIN(TestBackupParticipant)
#include "tst_backupparticipant.moc"
