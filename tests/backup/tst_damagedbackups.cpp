// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/backup/archive.h"
#include "tests/backup/forgery.h"
#include "tests/backup/household.h"
#include "tests/backup/participant.h"

#include <QFileInfo>
#include <QProcess>
#include <QTest>

#include <sys/prctl.h>
#include <sys/stat.h>

namespace Wire = Astel::Timed::Wire;

namespace {

// What lets a super-user read every file: CAP_DAC_OVERRIDE and CAP_DAC_READ_SEARCH.
constexpr int CapabilitiesToReadAll[] = {1, 2};

/** What the program tar makes of a folder: with a file, a link that leads out, and a folder. */
QByteArray otherArchive(const QString &format)
{
    const QTemporaryDir folder;
    if (!write(folder.filePath("in/manifest.json"), "{}") || !QFile::link("/etc/passwd", folder.filePath("in/link")))
        return {};
    QProcess tar;
    tar.start("tar", {"-C", folder.filePath("in"), "--format=" + format, "-cf", "-", "manifest.json", "link", "."});
    return tar.waitForFinished() && tar.exitCode() == 0 ? tar.readAllStandardOutput() : QByteArray();
}

} // namespace

/** The real command and daemon with files that must change nothing. */
class TestDamagedBackups : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void aDamagedFileChangesNothing_data();
    void aDamagedFileChangesNothing();
    void noFileChangesNothing_data();
    void noFileChangesNothing();
    void whatTheDaemonRefusesChangesNothing_data();
    void whatTheDaemonRefusesChangesNothing();
    void theWholeFileIsTaken();

private:
    void verifyUnchanged(const Support::Run &run, const QString &complaint, const QStringList &told = {});

    Household m_household;
    QStringList m_notes;
    std::unique_ptr<NotingParticipant> m_participant;
    QList<Wire::Record> m_records;
    QByteArray m_settings;
};

void TestDamagedBackups::initTestCase()
{
    // Where this is the super-user, what this process starts is bound by permissions all the same.
    for (const int capability : CapabilitiesToReadAll)
        prctl(PR_CAPBSET_DROP, capability);
    QVERIFY(m_household.start());
    m_participant = std::make_unique<NotingParticipant>("one", m_notes);
    QVERIFY(m_participant->enlist());
    QVERIFY(Household::add(dailyAlarm(7, "Mine")));
    m_records = Household::records();
    m_settings = "[Clock]\nSnoozeTime=5\n";
    QVERIFY(write(settingsFile(), m_settings));
}

void TestDamagedBackups::verifyUnchanged(const Support::Run &run, const QString &complaint, const QStringList &told)
{
    QCOMPARE(run.exitCode, 1);
    QCOMPARE(run.output, "");
    QCOMPARE(run.errorLines().size(), 1);
    QVERIFY2(run.errors.contains(complaint), qPrintable(run.errors));
    QCOMPARE(Household::records(), m_records);
    QCOMPARE(contentOf(settingsFile()), m_settings);
    QVERIFY(!QFileInfo::exists(QFileInfo(music("new.mp3")).path()));
    QCOMPARE(m_notes, told);
    m_notes.clear();
}

void TestDamagedBackups::aDamagedFileChangesNothing_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("complaint");

    const QByteArray whole = Backup::encode(backupFromElsewhere());
    const auto flipped = [&](qsizetype byte) {
        QByteArray bytes = whole;
        bytes[byte] = char(~bytes[byte]);
        return bytes;
    };
    const auto withManifest = [&](const QByteArray &manifest) {
        return forged(whole, "manifest.json", [&](const QByteArray &) { return manifest; });
    };
    QTest::newRow("empty") << QByteArray() << "not a backup";
    QTest::newRow("text") << QByteArray("BEGIN:VCALENDAR\n") << "not a backup";
    QTest::newRow("random") << QByteArray(4096, '\xa5') << "not a backup";
    for (const int part : {2, 4, 8, 12, 15})
        QTest::addRow("%d sixteenths of it", part) << whole.left(whole.size() * part / 16) << "cut off";
    for (qsizetype byte = 0; byte < whole.size(); byte += 509)
        QTest::addRow("byte %lld", qlonglong(byte)) << flipped(byte) << (byte == 0 ? "not a backup" : "it is");
    for (const char *format : {"v7", "ustar", "gnu", "posix"})
        QTest::newRow(format) << otherArchive(format) << "not a backup";
    QTest::newRow("newer") << withManifest(R"({"format": "clock-backup", "version": 2})") << "it has version 2";
    QTest::newRow("of another program") << withManifest(R"({"format": "photos", "version": 1})") << "not a backup";
    QTest::newRow("twice the same") << whole + whole << "damaged";
    QTest::newRow("a page of zeros in it") << QByteArray(whole).replace(512, 512, QByteArray(512, '\0')) << "damaged";
}

void TestDamagedBackups::aDamagedFileChangesNothing()
{
    QFETCH(const QByteArray, bytes);
    QFETCH(const QString, complaint);
    QVERIFY(write(m_household.file(), bytes));
    const Support::Run run = m_household.backUp({"restore", m_household.file()});
    QVERIFY(run.errors.startsWith("clock-backup: " + m_household.file() + ": "));
    verifyUnchanged(run, complaint);
}

void TestDamagedBackups::noFileChangesNothing_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("complaint");

    QTest::newRow("none") << m_household.file("none") << "No such file";
    QTest::newRow("folder") << QFileInfo(m_household.file()).path() << "not a file";
    QTest::newRow("device") << "/dev/zero"
                            << "not a file";

    const QString pipe = m_household.file("pipe");
    QCOMPARE(mkfifo(QFile::encodeName(pipe), 0600), 0);
    QTest::newRow("pipe") << pipe << "not a file";
    const QString link = m_household.file("link");
    QVERIFY(QFile::link(m_household.file("gone"), link));
    QTest::newRow("link to nothing") << link << "No such file";
    const QString locked = m_household.file("locked");
    QVERIFY(write(locked, Backup::encode(backupFromElsewhere())) && QFile::setPermissions(locked, {}));
    QTest::newRow("unreadable") << locked << "Permission denied";
    const QString huge = m_household.file("huge");
    QVERIFY(write(huge, Backup::encode(backupFromElsewhere()))
            && QFile::resize(huge, Q_INT64_C(1024) * 1024 * 1024 + 1));
    QTest::newRow("huge") << huge << "too large";
}

void TestDamagedBackups::noFileChangesNothing()
{
    QFETCH(const QString, path);
    QFETCH(const QString, complaint);
    verifyUnchanged(m_household.backUp({"restore", path}), complaint);
}

void TestDamagedBackups::whatTheDaemonRefusesChangesNothing_data()
{
    QTest::addColumn<Wire::Record>("record");
    QTest::addColumn<int>("times");
    QTest::addColumn<QString>("complaint");

    Wire::Event ticker = dailyAlarm(6, "Bad");
    ticker.ticker = -2;
    QTest::newRow("ticker") << Wire::Record{ticker, "WAITING", 0} << 1 << "a ticker of -2";
    QTest::newRow("state") << Wire::Record{dailyAlarm(6, "Bad"), "LOST", 0} << 1 << "no state \"LOST\"";
    QTest::newRow("many") << Wire::Record{dailyAlarm(6, "Many"), "WAITING", 0} << 10000 << "10000 events";
}

void TestDamagedBackups::whatTheDaemonRefusesChangesNothing()
{
    QFETCH(const Wire::Record, record);
    QFETCH(const int, times);
    QFETCH(const QString, complaint);
    Backup::Archive archive = backupFromElsewhere();
    archive.records += QList<Wire::Record>(times, record);
    QVERIFY(write(m_household.file(), Backup::encode(archive)));
    verifyUnchanged(m_household.backUp({"restore", m_household.file()}), complaint,
                    {"one: restoreStarts", "one: restoreFinished"});
}

void TestDamagedBackups::theWholeFileIsTaken()
{
    QVERIFY(write(m_household.file(), Backup::encode(backupFromElsewhere())));
    const Support::Run run = m_household.backUp({"restore", m_household.file()});
    QCOMPARE(run.errors, "");
    QCOMPARE(run.output,
             "Restored 1 alarm, 1 settings file, 1 tone\n"
             "1 alarm kept: not in the backup, or changed since\n");
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(Household::records().size(), 2);
    QCOMPARE(contentOf(settingsFile()), "[Clock]\nSnoozeTime=30\n");
    QCOMPARE(contentOf(music("new.mp3")), "sound");
    QCOMPARE(m_notes, (QStringList{"one: restoreStarts", "one: restoreFinished"}));
}

QTEST_GUILESS_MAIN(TestDamagedBackups)
#include "tst_damagedbackups.moc"
