// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timed/bootmoment.h"
#include "tests/support/fulldisk.h"
#include "tests/support/logcapture.h"
#include "tests/timed/storefolder.h"
#include "tests/timed/world.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>
#include <unistd.h>

using namespace Astel::Timed;

namespace {

constexpr quint32 Boots = Wire::KeepAlive | Wire::Boot;

} // namespace

/** The file through which the system learns for when the device is to be turned on. */
class TestBootMoment : public QObject
{
    Q_OBJECT

private slots:
    void fileFollowsTheNextMoment();
    void lastChangeIsWrittenAtTheEnd();
    void missingFolderIsReported();
    void fullDiskIsReportedAndLeavesTheMomentOfBefore();
    void missingHardwareClockIsReported();

private:
    static QByteArray content(const QTemporaryDir &folder)
    {
        QFile file(folder.filePath(QString::number(getuid())));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("none");
    }
    static bool makeWakeAlarm(const QTemporaryDir &clocks)
    {
        QFile file(clocks.filePath("rtc0/wakealarm"));
        return QDir(clocks.path()).mkdir("rtc0") && file.open(QIODevice::WriteOnly);
    }
};

void TestBootMoment::fileFollowsTheNextMoment()
{
    const QTemporaryDir folder;
    const QTemporaryDir clocks;
    QVERIFY(makeWakeAlarm(clocks));
    World world(Start);
    BootMoment boot(world.parts->book, world.parts->schedule, world.clock, folder.path(), clocks.path());
    boot.update();
    QCOMPARE(content(folder), "none");
    QCOMPARE(boot.facts(), (QVariantMap{{"boot_ready", true}, {"boot_reason", ""}}));

    world.add(daily(6, 30, Wire::KeepAlive));
    const quint32 later = world.add(daily(8, 0, Boots));
    QTRY_COMPARE(content(folder), QByteArray::number((Seven + Hour) / 1000) + '\n');
    const quint32 first = world.add(daily(7, 0, Boots));
    QTRY_COMPARE(content(folder), QByteArray::number(Seven / 1000) + '\n');
    QCOMPARE(boot.facts().value("boot_moment").toULongLong(), quint64(Seven) * 1000000);
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size(), 1);

    // One that rings is no reason to turn the device on.
    world.passTo(Seven);
    QTRY_COMPARE(content(folder), QByteArray::number((Seven + Hour) / 1000) + '\n');
    QVERIFY(world.parts->life.snooze(first, 600, "user"));
    QTRY_COMPARE(content(folder), QByteArray::number((Seven + 10 * Minute) / 1000) + '\n');
    QVERIFY(*world.parts->service.cancel(first));
    QVERIFY(*world.parts->service.cancel(later));
    QTRY_COMPARE(content(folder), "none");
}

void TestBootMoment::lastChangeIsWrittenAtTheEnd()
{
    const QTemporaryDir folder;
    World world(Start);
    {
        BootMoment boot(world.parts->book, world.parts->schedule, world.clock, folder.path(), "/nonexistent");
        boot.update();
        world.add(daily(7, 0, Boots));
        QCOMPARE(content(folder), "none");
    }
    QCOMPARE(content(folder), QByteArray::number(Seven / 1000) + '\n');
}

void TestBootMoment::missingFolderIsReported()
{
    World world(Start);
    BootMoment boot(world.parts->book, world.parts->schedule, world.clock, "/nonexistent", "/nonexistent");
    boot.update();
    QCOMPARE(boot.facts().value("boot_ready"), false);
    QVERIFY(boot.facts().value("boot_reason").toString().startsWith("/nonexistent: "));
    world.add(daily(7, 0, Boots));
    const Support::LogCapture log;
    boot.update();
    QCOMPARE(log.lines(QtWarningMsg).size(), 1);
    world.add(daily(6, 30, Boots));
    boot.update();
    QCOMPARE(log.lines(QtWarningMsg).size(), 1);
    QVERIFY(boot.facts().value("boot_reason").toString().startsWith("/nonexistent/"));
}

void TestBootMoment::fullDiskIsReportedAndLeavesTheMomentOfBefore()
{
    const QTemporaryDir folder;
    const QTemporaryDir clocks;
    QVERIFY(makeWakeAlarm(clocks));
    World world(Start);
    BootMoment boot(world.parts->book, world.parts->schedule, world.clock, folder.path(), clocks.path());
    world.add(daily(7, 0, Boots));
    boot.update();
    const QByteArray before = QByteArray::number(Seven / 1000) + '\n';
    QCOMPARE(content(folder), before);
    world.add(daily(6, 30, Boots));
    {
        const Support::LogCapture log;
        const Support::FullDisk full;
        boot.update();
        QCOMPARE(log.lines(QtWarningMsg).size(), 1);
    }
    QCOMPARE(boot.facts().value("boot_ready"), false);
    QCOMPARE(content(folder), before);
    boot.update();
    QCOMPARE(boot.facts().value("boot_ready"), true);
    QCOMPARE(content(folder), QByteArray::number((Seven - Hour / 2) / 1000) + '\n');
}

void TestBootMoment::missingHardwareClockIsReported()
{
    const QTemporaryDir folder;
    const QTemporaryDir clocks;
    World world(Start);
    BootMoment boot(world.parts->book, world.parts->schedule, world.clock, folder.path(), clocks.path());
    boot.update();
    QCOMPARE(boot.facts(),
             (QVariantMap{{"boot_ready", false}, {"boot_reason", "no hardware clock can turn the device on"}}));
    // Its driver may be loaded late.
    QVERIFY(makeWakeAlarm(clocks));
    QCOMPARE(boot.facts().value("boot_ready"), true);
}

QTEST_GUILESS_MAIN(TestBootMoment)
#include "tst_bootmoment.moc"
