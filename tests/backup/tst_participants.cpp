// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/backup/archive.h"
#include "tests/backup/household.h"
#include "tests/backup/participant.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTest>

using Manner = NotingParticipant::Manner;

/** Who takes part, with the real command and daemon. */
class TestParticipants : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void eachIsToldInItsTurn_data();
    void eachIsToldInItsTurn();
    void oneThatDoesNotRunIsLeftAlone();
    void oneThatFailsHoldsUpNobody_data();
    void oneThatFailsHoldsUpNobody();
    void eachIsToldThatItIsFinishedWhenItFails();
    void settingsOfEachAreTaken();
    void aFileThatDescribesNobodyIsIgnored_data();
    void aFileThatDescribesNobodyIsIgnored();
    void settingsOfNobodyAreLeftOut();
    void tonesThatLeadOutAreLeftOut();
    void refusesNonsense_data();
    void refusesNonsense();
    void helps();

private:
    Household m_household;
    QStringList m_notes;
};

void TestParticipants::initTestCase()
{
    QVERIFY(m_household.start());
}

void TestParticipants::init()
{
    m_notes.clear();
    QVERIFY(m_household.startAfresh());
}

void TestParticipants::eachIsToldInItsTurn_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("occasion");

    QTest::newRow("create") << "create"
                            << "backup";
    QTest::newRow("restore") << "restore"
                             << "restore";
}

void TestParticipants::eachIsToldInItsTurn()
{
    QFETCH(const QString, command);
    QFETCH(const QString, occasion);
    QCOMPARE(m_household.backUp({"create", m_household.file()}).exitCode, 0);
    const NotingParticipant second("b", m_notes);
    const NotingParticipant first("a", m_notes);
    QVERIFY(first.enlist() && second.enlist());
    const Support::Run run = m_household.backUp({command, m_household.file()});
    QCOMPARE(run.errors, "");
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(m_notes,
             (QStringList{"a: " + occasion + "Starts", "b: " + occasion + "Starts", "a: " + occasion + "Finished",
                          "b: " + occasion + "Finished"}));
}

void TestParticipants::oneThatDoesNotRunIsLeftAlone()
{
    {
        const NotingParticipant gone("gone", m_notes);
        QVERIFY(gone.enlist());
    }
    const NotingParticipant here("here", m_notes);
    QVERIFY(here.enlist());
    const Support::Run run = m_household.backUp({"create", m_household.file()});
    QCOMPARE(run.errors, "");
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(m_notes, (QStringList{"here: backupStarts", "here: backupFinished"}));
}

void TestParticipants::oneThatFailsHoldsUpNobody_data()
{
    QTest::addColumn<Manner>("manner");
    QTest::addColumn<QStringList>("complaints");

    QTest::newRow("hangs") << Manner::Hangs
                           << QStringList{"clock-backup: bad does not answer backupStarts, going on without it"};
    QTest::newRow("refuses") << Manner::Refuses
                             << QStringList{"clock-backup: bad refuses backupStarts (busy now), going on"};
    QTest::newRow("warns") << Manner::Warns
                           << QStringList{"clock-backup: bad answers backupStarts with 3, going on",
                                          "clock-backup: bad answers backupFinished with 3, going on"};
}

void TestParticipants::oneThatFailsHoldsUpNobody()
{
    QFETCH(const Manner, manner);
    QFETCH(const QStringList, complaints);
    QVERIFY(Household::add(dailyAlarm(7, "Mine")));
    const NotingParticipant bad("bad", m_notes, manner);
    const NotingParticipant good("good", m_notes);
    QVERIFY(bad.enlist() && good.enlist());
    QElapsedTimer clock;
    clock.start();
    const Support::Run run = m_household.backUp({"create", "--timeout", "1", m_household.file()});
    QVERIFY2(clock.elapsed() < 8000, qPrintable(QString::number(clock.elapsed())));
    QCOMPARE(run.errorLines(), complaints);
    QCOMPARE(run.exitCode, 0);
    QVERIFY(run.output.startsWith("Backed up 1 alarm,"));
    // The bad one learns that it is over as well; the message may arrive behind the others.
    QTRY_COMPARE(m_notes.filter("bad"), (QStringList{"bad: backupStarts", "bad: backupFinished"}));
    QCOMPARE(m_notes.filter("good"), (QStringList{"good: backupStarts", "good: backupFinished"}));
}

void TestParticipants::eachIsToldThatItIsFinishedWhenItFails()
{
    const NotingParticipant participant("a", m_notes);
    QVERIFY(participant.enlist());
    m_household.daemon().kill();
    QCOMPARE(m_household.backUp({"create", m_household.file("none")}).exitCode, 1);
    QCOMPARE(m_notes, (QStringList{"a: backupStarts", "a: backupFinished"}));
}

void TestParticipants::settingsOfEachAreTaken()
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    const NotingParticipant first("a", m_notes);
    const NotingParticipant second("b", m_notes);
    const NotingParticipant third("c", m_notes);
    QVERIFY(first.enlist("a.conf") && second.enlist("deep/er/b.conf") && third.enlist("none.conf"));
    QVERIFY(write(folder + "/a.conf", "a") && write(folder + "/deep/er/b.conf", "b"));
    const Support::Run created = m_household.backUp({"create", m_household.file()});
    QVERIFY2(created.output.contains("2 settings files"), qPrintable(created.output));

    QVERIFY(write(folder + "/a.conf", "another"));
    QVERIFY(QDir(folder + "/deep").removeRecursively());
    const Support::Run restored = m_household.backUp({"restore", m_household.file()});
    QVERIFY2(restored.output.contains("2 settings files"), qPrintable(restored.output));
    QCOMPARE(contentOf(folder + "/a.conf"), "a");
    QCOMPARE(contentOf(folder + "/deep/er/b.conf"), "b");
}

void TestParticipants::aFileThatDescribesNobodyIsIgnored_data()
{
    QTest::addColumn<QByteArray>("content");

    QTest::newRow("empty") << QByteArray();
    QTest::newRow("noise") << QByteArray("\0\1\2[[[==", 8);
    QTest::newRow("no service") << QByteArray("[Participant]\nName=a\nPath=/part\n");
    QTest::newRow("settings elsewhere") << QByteArray(
        "[Participant]\nName=a\nService=org.example.a\nPath=/part\nSettings=../secret\n");
}

void TestParticipants::aFileThatDescribesNobodyIsIgnored()
{
    QFETCH(const QByteArray, content);
    const NotingParticipant participant("a", m_notes);
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    const QString file = folder + "/clock-backup/participants/org.example.a.conf";
    QVERIFY(write(file, content));
    const Support::Run run = m_household.backUp({"create", m_household.file()});
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.errorLines(), QStringList{"clock-backup: " + file + " describes no participant, ignoring"});
    QVERIFY(m_notes.isEmpty());
}

void TestParticipants::settingsOfNobodyAreLeftOut()
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    const Backup::Archive archive{
        QDateTime::currentDateTimeUtc(), {}, {{"evil.conf", "x"}, {"../evil.conf", "x"}, {"/tmp/evil", "x"}}, {}};
    QVERIFY(write(m_household.file(), Backup::encode(archive)));
    const Support::Run run = m_household.backUp({"restore", m_household.file()});
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.output, "Restored 0 alarms, 0 settings files, 0 tones\n");
    QCOMPARE(run.errorLines().size(), 3);
    QVERIFY(!QFileInfo::exists(folder + "/evil.conf"));
    QVERIFY(!QFileInfo::exists(folder + "/../evil.conf"));
    QVERIFY(!QFileInfo::exists("/tmp/evil"));
}

void TestParticipants::tonesThatLeadOutAreLeftOut()
{
    const QString music = QStandardPaths::writableLocation(QStandardPaths::MusicLocation);
    const Backup::Archive archive{QDateTime::currentDateTimeUtc(),
                                  {},
                                  {},
                                  {{"/a", "music", "../evil.mp3", "x"},
                                   {"/b", "music", "/tmp/evil.mp3", "x"},
                                   {"/c", "config", "evil.mp3", "x"}}};
    QVERIFY(write(m_household.file(), Backup::encode(archive)));
    const Support::Run run = m_household.backUp({"restore", m_household.file()});
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.output, "Restored 0 alarms, 0 settings files, 0 tones\n");
    QCOMPARE(run.errorLines(),
             (QStringList{"clock-backup: there is no place here for the tone /a, leaving it out",
                          "clock-backup: there is no place here for the tone /b, leaving it out",
                          "clock-backup: there is no place here for the tone /c, leaving it out"}));
    QVERIFY(!QFileInfo::exists(music + "/../evil.mp3"));
    QVERIFY(!QFileInfo::exists("/tmp/evil.mp3"));
}

void TestParticipants::refusesNonsense_data()
{
    QTest::addColumn<QStringList>("arguments");

    QTest::newRow("nothing") << QStringList();
    QTest::newRow("command") << QStringList{"frob"};
    QTest::newRow("no file") << QStringList{"create"};
    QTest::newRow("no name") << QStringList{"create", ""};
    QTest::newRow("two files") << QStringList{"restore", "a", "b"};
    QTest::newRow("option") << QStringList{"create", "--frob", "a"};
    QTest::newRow("timeout") << QStringList{"create", "--timeout", "soon", "a"};
    QTest::newRow("no time") << QStringList{"create", "--timeout", "0", "a"};
    QTest::newRow("too long") << QStringList{"restore", "--timeout=601", "a"};
}

void TestParticipants::refusesNonsense()
{
    QFETCH(const QStringList, arguments);
    const Support::Run run = m_household.backUp(arguments);
    QCOMPARE(run.exitCode, 2);
    QCOMPARE(run.output, "");
    QCOMPARE(run.errorLines().size(), 2);
    QVERIFY(run.errorLines().last().startsWith("Try \"clock-backup "));
}

void TestParticipants::helps()
{
    QVERIFY(m_household.backUp({"--help"}).output.startsWith("Usage: clock-backup COMMAND"));
    for (const QString &command : QStringList{"create", "restore"})
        QVERIFY(m_household.backUp({command, "--help"}).output.startsWith("Usage: clock-backup " + command + " FILE"));
}

QTEST_GUILESS_MAIN(TestParticipants)
#include "tst_participants.moc"
