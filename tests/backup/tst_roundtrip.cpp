// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "alarms/qmalarm.h"
#include "alarms/qmalarmevent.h"
#include "alarms/utility.h"
#include "app/settings.h"
#include "platform/backup/archive.h"
#include "tests/backup/household.h"
#include "tests/support/alarms.h"
#include "tests/support/fulldisk.h"
#include "tests/support/places.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <QTest>

#include <algorithm>

namespace Wire = Astel::Timed::Wire;

namespace {

constexpr int Alarms = 200;

/** Alarms of every kind, as the application saves them. */
bool addAlarms()
{
    for (int i = 0; i < Alarms; ++i) {
        const QList<int> days = i % 3 == 0 ? QList<int>{1, 2, 3, 4, 5} : i % 3 == 1 ? QList<int>{i % 7} : QList<int>();
        auto alarm = Support::alarmAt(QTime(i % 24, i % 60), QString::fromUtf8("Früh ⏰ %1").arg(i), days);
        alarm.setTone(Places::sharedData("sounds/ring-tones/Clock alert 1.aac"));
        alarm.setSnooze(quint8(5 + i % 3 * 5));
        alarm.setEnabled(i % 4 != 0);
        if (Clock::QmAlarm().add(alarm) == Clock::QmAlarmEvent::NotStored)
            return false;
    }
    return true;
}

void writeSettings()
{
    QSettings settings(Settings::Organisation, Settings::Application);
    settings.setValue(Settings::DefaultAlarmTimeKey, QTime(6, 45));
    settings.setValue(Settings::SnoozeTimeKey, 20);
}

} // namespace

/** The real command against the real daemon, into files and back. */
class TestRoundTrip : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void twoHundredAlarmsComeBackOnANewDevice();
    void theyComeBackWithNewCookies();
    void nothingIsDoubled();
    void alarmsThatAreThereNowStay();
    void anAlarmThatWasChangedSinceRingsBesideTheOneOfTheBackup();
    void aOneTimeAlarmThatIsOverComesBackSwitchedOff();
    void onlyWhatIsMeantForABackupIsTaken();
    void theFileIsForItsOwnerAlone();
    void anEarlierBackupIsReplacedAndNothingElse();
    void aBackupThatCannotBeWrittenLeavesTheEarlierOne();
    void aFullDiskLeavesTheEarlierBackup();
    void aFullDiskStopsTheRestore();
    void settingsThatCannotBeWrittenStopTheRestore();

private:
    Household m_household;
};

void TestRoundTrip::initTestCase()
{
    QVERIFY(m_household.start());
}

void TestRoundTrip::init()
{
    QVERIFY(m_household.startAfresh());
}

void TestRoundTrip::twoHundredAlarmsComeBackOnANewDevice()
{
    QVERIFY(addAlarms());
    writeSettings();
    const auto records = Household::records();
    QCOMPARE(records.size(), Alarms);
    const QByteArray settings = contentOf(settingsFile());
    QVERIFY(!settings.isEmpty());
    const Support::Run created = m_household.backUp({"create", m_household.file()});
    QCOMPARE(created.errors, "");
    QCOMPARE(created.exitCode, 0);
    QCOMPARE(created.output,
             QStringLiteral("Backed up 200 alarms, 1 settings file, 0 tones to %1\n").arg(m_household.file()));

    QVERIFY(m_household.startAfresh());
    QVERIFY(Household::records().isEmpty());
    const Support::Run restored = m_household.backUp({"restore", m_household.file()});
    QCOMPARE(restored.errors, "");
    QCOMPARE(restored.exitCode, 0);
    QCOMPARE(restored.output, "Restored 200 alarms, 1 settings file, 0 tones\n");
    QCOMPARE(Household::records(), records);
    QCOMPARE(contentOf(settingsFile()), settings);
}

void TestRoundTrip::theyComeBackWithNewCookies()
{
    QVERIFY(addAlarms());
    const auto records = Household::records();
    const QList<quint32> before = Household::cookies();
    QCOMPARE(m_household.backUp({"create", m_household.file()}).exitCode, 0);
    for (const quint32 cookie : before)
        QVERIFY(Clock::QmAlarm().deleteEvent(cookie));
    QVERIFY(Household::records().isEmpty());

    QCOMPARE(m_household.backUp({"restore", m_household.file()}).exitCode, 0);
    QCOMPARE(Household::records(), records);
    const QList<quint32> after = Household::cookies();
    QVERIFY(*std::min_element(after.cbegin(), after.cend()) > *std::max_element(before.cbegin(), before.cend()));
}

void TestRoundTrip::nothingIsDoubled()
{
    QVERIFY(addAlarms());
    const auto records = Household::records();
    QCOMPARE(m_household.backUp({"create", m_household.file()}).exitCode, 0);
    for (int time = 0; time < 2; ++time) {
        const Support::Run restored = m_household.backUp({"restore", m_household.file()});
        QCOMPARE(restored.exitCode, 0);
        QCOMPARE(restored.output,
                 "Restored 0 alarms, 0 settings files, 0 tones\n"
                 "200 alarms needed nothing: there already, or over\n");
        QCOMPARE(Household::records(), records);
    }
    QVERIFY(m_household.startAfresh());
    QCOMPARE(m_household.backUp({"restore", m_household.file()}).exitCode, 0);
    QCOMPARE(m_household.backUp({"restore", m_household.file()}).exitCode, 0);
    QCOMPARE(Household::records(), records);
}

void TestRoundTrip::alarmsThatAreThereNowStay()
{
    QVERIFY(Household::add(dailyAlarm(7, "Then")));
    QCOMPARE(m_household.backUp({"create", m_household.file()}).exitCode, 0);
    QVERIFY(m_household.startAfresh());
    const quint32 now = Household::add(dailyAlarm(8, "Now"));
    const Support::Run restored = m_household.backUp({"restore", m_household.file()});
    QCOMPARE(restored.exitCode, 0);
    QCOMPARE(restored.output,
             "Restored 1 alarm, 0 settings files, 0 tones\n"
             "1 alarm kept: not in the backup, or changed since\n");
    const auto records = Household::records();
    QCOMPARE(records.size(), 2);
    QCOMPARE(records[0].event, dailyAlarm(8, "Now"));
    QCOMPARE(records[1].event, dailyAlarm(7, "Then"));
    QVERIFY(Household::cookies().contains(now));
}

void TestRoundTrip::anAlarmThatWasChangedSinceRingsBesideTheOneOfTheBackup()
{
    const quint32 cookie = Support::addAlarm(QTime(7, 30), "Work", {1, 2, 3});
    Support::addAlarm(QTime(9, 0), "Untouched", {6});
    QCOMPARE(m_household.backUp({"create", m_household.file()}).exitCode, 0);
    const auto then = Household::records();
    Clock::QmAlarmEvent changed(cookie);
    changed.setAlarmTime(QTime(6, 0));
    QVERIFY(Clock::QmAlarm().replace(changed, cookie) != Clock::QmAlarmEvent::NotStored);
    const auto now = Household::records();

    for (const char *count : {"Restored 1 alarm,", "Restored 0 alarms,"}) {
        const Support::Run restored = m_household.backUp({"restore", m_household.file()});
        QVERIFY2(restored.output.startsWith(count), qPrintable(restored.output));
        QVERIFY2(restored.output.contains("\n1 alarm kept: not in the backup, or changed since\n"),
                 qPrintable(restored.output));
        const auto both = Household::records();
        QCOMPARE(both.size(), 3);
        for (const auto &record : then + now) {
            QVERIFY(both.contains(record));
            QCOMPARE(record.state, "WAITING");
        }
    }
}

void TestRoundTrip::aOneTimeAlarmThatIsOverComesBackSwitchedOff()
{
    // A moment in the past that was ahead when the backup was made.
    Wire::Event once = dailyAlarm(7, "Once");
    once.flags |= Wire::SingleShot;
    const quint64 yesterday = quint64(QDateTime::currentSecsSinceEpoch() - 86400) * 1'000'000'000;
    const Backup::Archive archive{QDateTime::currentDateTimeUtc(), {{once, "WAITING", yesterday}}, {}, {}};
    QVERIFY(write(m_household.file(), Backup::encode(archive)));
    const Support::Run restored = m_household.backUp({"restore", m_household.file()});
    QCOMPARE(restored.exitCode, 0);
    QCOMPARE(restored.output,
             "Restored 1 alarm, 0 settings files, 0 tones\n"
             "1 one-time alarm switched off: the time has passed since the backup\n");
    QCOMPARE(Household::records(), (QList<Wire::Record>{{once, "FINISHED", 0}}));
}

void TestRoundTrip::onlyWhatIsMeantForABackupIsTaken()
{
    Wire::Event reminder = dailyAlarm(9, "Not for a backup");
    reminder.flags &= ~quint32(Wire::Backup);
    QVERIFY(Household::add(reminder));
    QVERIFY(Household::add(dailyAlarm(7, "For a backup")));
    QVERIFY(m_household.backUp({"create", m_household.file()}).output.startsWith("Backed up 1 alarm,"));
}

void TestRoundTrip::theFileIsForItsOwnerAlone()
{
    QCOMPARE(m_household.backUp({"create", m_household.file()}).exitCode, 0);
    const auto mine = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser;
    QCOMPARE(QFile::permissions(m_household.file()), mine);
    QVERIFY(QFile::setPermissions(m_household.file(), mine | QFile::ReadOther | QFile::ReadGroup));
    QCOMPARE(m_household.backUp({"create", m_household.file()}).exitCode, 0);
    QCOMPARE(QFile::permissions(m_household.file()), mine);
}

void TestRoundTrip::anEarlierBackupIsReplacedAndNothingElse()
{
    QCOMPARE(m_household.backUp({"create", m_household.file()}).exitCode, 0);
    QVERIFY(Household::add(dailyAlarm(7, "One more")));
    QVERIFY(m_household.backUp({"create", m_household.file()}).output.startsWith("Backed up 1 alarm,"));

    const QString letter = m_household.file("letter.txt");
    QVERIFY(write(letter, "Dear"));
    const Support::Run run = m_household.backUp({"create", letter});
    QCOMPARE(run.exitCode, 1);
    QCOMPARE(
        run.errorLines(),
        QStringList{"clock-backup: " + letter + ": there is something else of that name, and it is not overwritten"});
    QCOMPARE(contentOf(letter), "Dear");
    QCOMPARE(m_household.backUp({"create", QFileInfo(letter).path()}).exitCode, 1);
}

void TestRoundTrip::aBackupThatCannotBeWrittenLeavesTheEarlierOne()
{
    QVERIFY(Household::add(dailyAlarm(7, "Then")));
    const QString file = m_household.file("early.backup");
    QCOMPARE(m_household.backUp({"create", file}).exitCode, 0);
    const QByteArray early = contentOf(file);
    m_household.daemon().kill();
    const Support::Run run = m_household.backUp({"create", file});
    QCOMPARE(run.exitCode, 1);
    QCOMPARE(run.errorLines().size(), 1);
    QVERIFY2(run.errors.contains("the alarm daemon cannot be reached"), qPrintable(run.errors));
    QCOMPARE(contentOf(file), early);
    QCOMPARE(m_household.backUp({"create", "/nowhere/at/all"}).exitCode, 1);
}

void TestRoundTrip::aFullDiskLeavesTheEarlierBackup()
{
    QVERIFY(Household::add(dailyAlarm(7, "Then")));
    QCOMPARE(m_household.backUp({"create", m_household.file()}).exitCode, 0);
    const QByteArray early = contentOf(m_household.file());
    QVERIFY(Household::add(dailyAlarm(8, "Now")));
    const Support::FullDisk full;
    for (const QString &file : {m_household.file(), m_household.file("new.backup")}) {
        const Support::Run run = m_household.backUp({"create", file});
        QCOMPARE(run.exitCode, 1);
        QCOMPARE(run.output, "");
        QCOMPARE(run.errorLines(), QStringList{"clock-backup: " + file + ": File too large"});
    }
    QCOMPARE(contentOf(m_household.file()), early);
    QVERIFY(!QFileInfo::exists(m_household.file("new.backup")));
}

void TestRoundTrip::aFullDiskStopsTheRestore()
{
    QVERIFY(Household::add(dailyAlarm(7, "Then")));
    writeSettings();
    QCOMPARE(m_household.backUp({"create", m_household.file()}).exitCode, 0);
    QVERIFY(m_household.startAfresh());
    const Support::FullDisk full;
    const Support::Run run = m_household.backUp({"restore", m_household.file()});
    QCOMPARE(run.exitCode, 1);
    QCOMPARE(run.output, "");
    QCOMPARE(run.errorLines(), QStringList{"clock-backup: " + settingsFile() + " cannot be written: File too large"});
    QVERIFY(Household::records().isEmpty());
    QVERIFY(!QFileInfo::exists(settingsFile()));
}

void TestRoundTrip::settingsThatCannotBeWrittenStopTheRestore()
{
    QVERIFY(Household::add(dailyAlarm(7, "Then")));
    writeSettings();
    QCOMPARE(m_household.backUp({"create", m_household.file()}).exitCode, 0);
    QVERIFY(m_household.startAfresh());
    // A file stands where the folder of the settings would be.
    const QString folder = QFileInfo(settingsFile()).path();
    QVERIFY(write(folder, "no folder"));
    const Support::Run restored = m_household.backUp({"restore", m_household.file()});
    QCOMPARE(restored.exitCode, 1);
    QVERIFY2(restored.errors.contains(folder), qPrintable(restored.errors));
    QVERIFY(Household::records().isEmpty());
}

QTEST_GUILESS_MAIN(TestRoundTrip)
#include "tst_roundtrip.moc"
