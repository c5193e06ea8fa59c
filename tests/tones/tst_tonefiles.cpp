// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/tones/tonefiles.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

class TestToneFiles : public QObject
{
    Q_OBJECT

private slots:
    void tonesLieInTheDataFolders();
    void soundFilesAreToldByTheirNames_data();
    void soundFilesAreToldByTheirNames();
    void foldersAreSearchedToTheBottom();
    void foldersThatAreMissingHoldNothing();
    void theWholeHomeIsNoMusicFolder_data();
    void theWholeHomeIsNoMusicFolder();
    void aNameIsMadeFromTheFile_data();
    void aNameIsMadeFromTheFile();
};

void TestToneFiles::tonesLieInTheDataFolders()
{
    qputenv("XDG_DATA_HOME", "/home/me/data");
    qputenv("XDG_DATA_DIRS", "/one:/usr/share");
    QCOMPARE(
        Tones::ringToneFolders(),
        QStringList({"/usr/share/sounds/ring-tones", "/home/me/data/sounds/ring-tones", "/one/sounds/ring-tones"}));
}

void TestToneFiles::soundFilesAreToldByTheirNames_data()
{
    QTest::addColumn<bool>("isSound");
    for (const char *name : {"a.aac", "a.MP3", "a b.ogg", "a.b.flac", "a.m4a", "a.wav", "a.opus", "a.oga"})
        QTest::newRow(name) << true;
    for (const char *name : {"aac", "a.jpg", "a.aac.part", "a.mp3~", "cover"})
        QTest::newRow(name) << false;
}

void TestToneFiles::soundFilesAreToldByTheirNames()
{
    QFETCH(bool, isSound);
    QCOMPARE(Tones::isSoundFile(QTest::currentDataTag()), isSound);
}

void TestToneFiles::foldersAreSearchedToTheBottom()
{
    const QTemporaryDir folder;
    QVERIFY(QDir().mkpath(folder.filePath("a/b")));
    for (const char *name : {"one.aac", "a/b/two.mp3", "a/cover.jpg"}) {
        QFile file(folder.filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write("12345"), 5);
    }
    const auto scan = Tones::scanFolders({folder.path()});
    QCOMPARE(scan.files.size(), 2);
    QCOMPARE(scan.files.value(folder.filePath("a/b/two.mp3")).size, 5);
    QVERIFY(scan.files.value(folder.filePath("one.aac")).modified > 0);
    QCOMPARE(QSet<QString>(scan.folders.begin(), scan.folders.end()),
             QSet<QString>({folder.path(), folder.filePath("a"), folder.filePath("a/b")}));
}

void TestToneFiles::foldersThatAreMissingHoldNothing()
{
    const auto scan = Tones::scanFolders({"/nowhere/at/all"});
    QVERIFY(scan.files.isEmpty());
    QVERIFY(scan.folders.isEmpty());
}

void TestToneFiles::theWholeHomeIsNoMusicFolder_data()
{
    QTest::addColumn<QByteArray>("named");
    QTest::addColumn<QString>("folder");
    QTest::newRow("none") << QByteArray("$HOME/") << QString();
    QTest::newRow("none, without a slash") << QByteArray("$HOME") << QString();
    QTest::newRow("one in the home") << QByteArray("$HOME/Songs") << QDir::home().filePath("Songs");
}

void TestToneFiles::theWholeHomeIsNoMusicFolder()
{
    QFETCH(QByteArray, named);
    QFETCH(QString, folder);
    const QDir settings(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation));
    QVERIFY(settings.mkpath("."));
    QFile folders(settings.filePath("user-dirs.dirs"));
    QVERIFY(folders.open(QIODevice::WriteOnly));
    folders.write("XDG_MUSIC_DIR=\"" + named + "\"\n");
    folders.close();
    QCOMPARE(Tones::musicFolder(), folder);
}

void TestToneFiles::aNameIsMadeFromTheFile_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("/a/Morning_bell.aac") << "Morning bell";
    QTest::newRow("/a/No. 5.live.mp3") << "No. 5.live";
    QTest::newRow("/a.b/whole") << "whole";
    QTest::newRow("/a/No_sound.aac") << "No sound";
    QTest::newRow("/a/.aac") << "";
}

void TestToneFiles::aNameIsMadeFromTheFile()
{
    QFETCH(QString, name);
    QCOMPARE(Tones::nameFromFile(QTest::currentDataTag()), name);
    QCOMPARE(Tones::isNoSound(QTest::currentDataTag()), name == "No sound");
}

QTEST_GUILESS_MAIN(TestToneFiles)
#include "tst_tonefiles.moc"
