// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/backup/household.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

namespace {

QString ringTone(const QString &file)
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + "/sounds/ring-tones/" + file;
}

QString toneOf(const QString &title)
{
    const auto records = Household::records();
    for (const auto &record : records) {
        if (record.event.attributes.value("TITLE") == title)
            return record.event.attributes.value("sound");
    }
    return {};
}

const QByteArray Song(70000, '\x55');

} // namespace

/** The user's own tones, with the real command and daemon. */
class TestTonesOfMyOwn : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void comeBackWithTheirAlarms();
    void mayBeLeftOut();
    void aToneThatIsNotTakenIsTold_data();
    void aToneThatIsNotTakenIsTold();
    void anotherFileOfThatNameStays();
    void comeBackInAnotherHome();

private:
    Household m_household;
};

void TestTonesOfMyOwn::initTestCase()
{
    QVERIFY(m_household.start());
}

void TestTonesOfMyOwn::init()
{
    QVERIFY(m_household.startAfresh());
}

void TestTonesOfMyOwn::comeBackWithTheirAlarms()
{
    QVERIFY(write(music("deep/my song.mp3"), Song) && write(ringTone("own.wav"), "own"));
    QVERIFY(write(music("another.mp3"), "is no alarm's"));
    QVERIFY(Household::add(dailyAlarm(7, "Song", music("deep/my song.mp3"))));
    QVERIFY(Household::add(dailyAlarm(8, "Own", ringTone("own.wav"))));
    QVERIFY(Household::add(dailyAlarm(9, "Own as well", ringTone("own.wav"))));
    QVERIFY(Household::add(dailyAlarm(10, "System's", "/usr/share/sounds/ring-tones/Clock alert 1.aac")));
    const auto records = Household::records();
    const Support::Run created = m_household.backUp({"create", m_household.file()});
    QCOMPARE(created.errors, "");
    QVERIFY2(created.output.contains("4 alarms, 0 settings files, 2 tones"), qPrintable(created.output));

    QVERIFY(m_household.startAfresh());
    QVERIFY(!QFileInfo::exists(music("deep/my song.mp3")));
    const Support::Run restored = m_household.backUp({"restore", m_household.file()});
    QCOMPARE(restored.exitCode, 0);
    QVERIFY2(restored.output.contains("4 alarms, 0 settings files, 2 tones"), qPrintable(restored.output));
    QCOMPARE(contentOf(music("deep/my song.mp3")), Song);
    QCOMPARE(contentOf(ringTone("own.wav")), "own");
    QVERIFY(!QFileInfo::exists(music("another.mp3")));
    QCOMPARE(Household::records(), records);
}

void TestTonesOfMyOwn::mayBeLeftOut()
{
    QVERIFY(write(music("song.mp3"), Song));
    QVERIFY(Household::add(dailyAlarm(7, "Song", music("song.mp3"))));
    const Support::Run created = m_household.backUp({"create", "--without-tones", m_household.file()});
    QCOMPARE(created.exitCode, 0);
    QVERIFY(created.output.contains(" 0 tones"));
    QVERIFY(contentOf(m_household.file()).size() < Song.size());
    QVERIFY(m_household.startAfresh());
    const Support::Run restored = m_household.backUp({"restore", m_household.file()});
    QCOMPARE(restored.exitCode, 0);
    QCOMPARE(restored.errorLines(),
             QStringList{"clock-backup: the tone " + music("song.mp3")
                         + " is not here: its alarms ring with the default tone"});
}

void TestTonesOfMyOwn::aToneThatIsNotTakenIsTold_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<qint64>("size"); // -1: there is no such file
    QTest::addColumn<QString>("why");

    QTest::newRow("missing") << music("none.mp3") << qint64(-1) << "no such file";
    QTest::newRow("elsewhere") << QDir::homePath() + "/a.mp3" << qint64(10) << "neither";
    QTest::newRow("large") << music("large.flac") << qint64(32 * 1024 * 1024 + 1) << "larger";
    QTest::newRow("no path") << "beep" << qint64(-1) << "no such file";
}

void TestTonesOfMyOwn::aToneThatIsNotTakenIsTold()
{
    QFETCH(const QString, path);
    QFETCH(const qint64, size);
    QFETCH(const QString, why);
    if (size >= 0)
        QVERIFY(write(path, "") && QFile::resize(path, size));
    QVERIFY(Household::add(dailyAlarm(7, "Song", path)));
    const Support::Run created = m_household.backUp({"create", m_household.file()});
    QCOMPARE(created.exitCode, 0);
    QCOMPARE(created.errorLines().size(), 1);
    QVERIFY2(created.errors.contains("the tone " + path + " is not in the backup: ") && created.errors.contains(why),
             qPrintable(created.errors));
}

void TestTonesOfMyOwn::anotherFileOfThatNameStays()
{
    QVERIFY(write(music("song.mp3"), Song));
    QVERIFY(Household::add(dailyAlarm(7, "Song", music("song.mp3"))));
    QCOMPARE(m_household.backUp({"create", m_household.file()}).exitCode, 0);
    QVERIFY(m_household.startAfresh());
    QVERIFY(write(music("song.mp3"), "another song"));
    const Support::Run restored = m_household.backUp({"restore", m_household.file()});
    QCOMPARE(restored.exitCode, 0);
    QCOMPARE(restored.errorLines(),
             QStringList{"clock-backup: " + music("song.mp3")
                         + " is another file than the tone in the backup, leaving it as it is"});
    QCOMPARE(contentOf(music("song.mp3")), "another song");
    QCOMPARE(toneOf("Song"), music("song.mp3"));
}

void TestTonesOfMyOwn::comeBackInAnotherHome()
{
    QVERIFY(write(music("song.mp3"), Song));
    QVERIFY(Household::add(dailyAlarm(7, "Song", music("song.mp3"))));
    QSettings(settingsFile(), QSettings::IniFormat).setValue("Clock/DefaultTone", music("song.mp3"));
    QCOMPARE(m_household.backUp({"create", m_household.file()}).exitCode, 0);
    QVERIFY(m_household.startAfresh());

    const QTemporaryDir home;
    const QStringList environment{"HOME=" + home.path(), "XDG_CONFIG_HOME=" + home.filePath("config"),
                                  "XDG_DATA_HOME=" + home.filePath("data")};
    for (const char *count : {"Restored 1 alarm,", "Restored 0 alarms,"}) {
        const Support::Run restored = m_household.backUp({"restore", m_household.file()}, environment);
        QCOMPARE(restored.errors, "");
        QVERIFY2(restored.output.startsWith(count), qPrintable(restored.output));
    }
    const QString song = home.filePath("Music/song.mp3");
    QCOMPARE(contentOf(song), Song);
    QCOMPARE(Household::records().size(), 1);
    QCOMPARE(toneOf("Song"), song);
    const QSettings settings(home.filePath("config/Korvo/Clock.conf"), QSettings::IniFormat);
    QCOMPARE(settings.value("Clock/DefaultTone").toString(), song);
}

QTEST_GUILESS_MAIN(TestTonesOfMyOwn)
#include "tst_tonesofmyown.moc"
