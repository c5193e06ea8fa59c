// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/backup/household.h"
#include "tests/backup/participant.h"
#include "tests/support/places.h"

#include <QFileInfo>
#include <QProcess>
#include <QTest>

namespace Wire = Astel::Timed::Wire;

/** A restore that is cut off, which whoever takes part sees and holds up. */
class TestInterruptedRestores : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup() { m_participant.reset(); }
    void oneThatIsKilledChangesNothingAndCanBeRepeated();
    void aDaemonThatDiesMeanwhileLeavesEverythingAsItWas();
    void oneThatEndedBeforeTheFilesCanBeRepeated();

private:
    /** Starts a restore and waits until it has made ready and tells that it starts. */
    bool startRestore(QProcess &restore, const QString &timeout);
    void verifyUnchanged();
    void verifyRestored(const Support::Run &run, const QString &output);

    Household m_household;
    QStringList m_notes;
    std::unique_ptr<NotingParticipant> m_participant;
    QList<Wire::Record> m_records;
};

void TestInterruptedRestores::initTestCase()
{
    QVERIFY(m_household.start());
}

void TestInterruptedRestores::init()
{
    m_notes.clear();
    QVERIFY(m_household.startAfresh());
    QVERIFY(Household::add(dailyAlarm(7, "Mine")));
    m_records = Household::records();
    QVERIFY(write(settingsFile(), "[Clock]\nSnoozeTime=5\n"));
    m_participant = std::make_unique<NotingParticipant>("slow", m_notes, NotingParticipant::Manner::Hangs);
    QVERIFY(m_participant->enlist());
    QVERIFY(write(m_household.file(), Backup::encode(backupFromElsewhere())));
}

bool TestInterruptedRestores::startRestore(QProcess &restore, const QString &timeout)
{
    restore.start(Places::program("clock-backup"), {"restore", "--timeout", timeout, m_household.file()});
    return QTest::qWaitFor([this] { return m_notes.contains("slow: restoreStarts"); });
}

void TestInterruptedRestores::verifyUnchanged()
{
    QCOMPARE(Household::records(), m_records);
    QCOMPARE(contentOf(settingsFile()), "[Clock]\nSnoozeTime=5\n");
    QVERIFY(!QFileInfo::exists(music("new.mp3")));
}

void TestInterruptedRestores::verifyRestored(const Support::Run &run, const QString &output)
{
    QCOMPARE(run.exitCode, 0);
    QVERIFY2(run.output.startsWith(output), qPrintable(run.output));
    QCOMPARE(Household::records().size(), 2);
    QCOMPARE(contentOf(settingsFile()), "[Clock]\nSnoozeTime=30\n");
    QCOMPARE(contentOf(music("new.mp3")), "sound");
}

void TestInterruptedRestores::oneThatIsKilledChangesNothingAndCanBeRepeated()
{
    QProcess restore;
    QVERIFY(startRestore(restore, "600"));
    restore.kill();
    QVERIFY(restore.waitForFinished());
    verifyUnchanged();
    verifyRestored(m_household.backUp({"restore", "--timeout", "1", m_household.file()}),
                   "Restored 1 alarm, 1 settings file, 1 tone\n");
}

void TestInterruptedRestores::aDaemonThatDiesMeanwhileLeavesEverythingAsItWas()
{
    QProcess restore;
    QVERIFY(startRestore(restore, "2"));
    m_household.daemon().kill();
    QTRY_COMPARE_WITH_TIMEOUT(restore.state(), QProcess::NotRunning, 20000);
    QCOMPARE(restore.exitCode(), 1);
    QVERIFY(restore.readAllStandardError().contains("the alarm daemon cannot be reached"));
    QCOMPARE(restore.readAllStandardOutput(), "");
    QVERIFY(m_household.daemon().start());
    verifyUnchanged();
    QVERIFY2(!QFileInfo::exists(music("")), "a folder is left behind");
    QTRY_COMPARE(m_notes, (QStringList{"slow: restoreStarts", "slow: restoreFinished"}));
}

void TestInterruptedRestores::oneThatEndedBeforeTheFilesCanBeRepeated()
{
    QCOMPARE(m_household.backUp({"restore", "--timeout", "1", m_household.file()}).exitCode, 0);
    QVERIFY(write(settingsFile(), "[Clock]\nSnoozeTime=5\n") && QFile::remove(music("new.mp3")));
    verifyRestored(m_household.backUp({"restore", "--timeout", "1", m_household.file()}),
                   "Restored 0 alarms, 1 settings file, 1 tone\n1 alarm needed nothing");
}

QTEST_GUILESS_MAIN(TestInterruptedRestores)
#include "tst_interruptedrestores.moc"
