// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/backup/places.h"

#include <QDir>
#include <QStandardPaths>
#include <QTest>

class TestPlaces : public QObject
{
    Q_OBJECT

private slots:
    void noPathLeadsOut_data();
    void noPathLeadsOut();
    void knowsTheFoldersOfTones_data();
    void knowsTheFoldersOfTones();
    void hasNoPlaceForWhatLeadsOut();
};

void TestPlaces::noPathLeadsOut_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<bool>("within");

    QTest::newRow("file") << "a.mp3" << true;
    QTest::newRow("folder") << "a b/c.mp3" << true;
    QTest::newRow("dots in a name") << "..a/b..mp3" << true;
    QTest::newRow("hidden") << ".a/b" << true;
    QTest::newRow("empty") << "" << false;
    QTest::newRow("absolute") << "/etc/passwd" << false;
    QTest::newRow("up") << "../a" << false;
    QTest::newRow("up and down") << "a/../../b" << false;
    QTest::newRow("here") << "./a" << false;
    QTest::newRow("folder itself") << "." << false;
    QTest::newRow("ends in a slash") << "a/" << false;
    QTest::newRow("two slashes") << "a//b" << false;
    QTest::newRow("zero") << QString(u"a\0b"_qs) << false;
}

void TestPlaces::noPathLeadsOut()
{
    QFETCH(const QString, path);
    QFETCH(const bool, within);
    QCOMPARE(Backup::staysWithin(path), within);
}

void TestPlaces::knowsTheFoldersOfTones_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("place");
    QTest::addColumn<QString>("path");
    QTest::addColumn<bool>("isSystems");

    const QString home = QDir::homePath();
    QTest::newRow("music") << home + "/Music/a/b.mp3"
                           << "music"
                           << "a/b.mp3" << false;
    QTest::newRow("ring tone") << home + "/.local/share/sounds/ring-tones/b.wav"
                               << "ring-tones"
                               << "b.wav" << false;
    QTest::newRow("elsewhere") << home + "/b.mp3"
                               << ""
                               << "" << false;
    QTest::newRow("by another way") << home + "/Music/../b.mp3"
                                    << ""
                                    << "" << false;
    QTest::newRow("beside") << home + "/Music2/b.mp3"
                            << ""
                            << "" << false;
    QTest::newRow("the folder itself") << home + "/Music"
                                       << ""
                                       << "" << false;
    QTest::newRow("the system's") << "/usr/share/sounds/ring-tones/Clock alert 1.aac"
                                  << ""
                                  << "" << true;
    QTest::newRow("root") << "/b.mp3"
                          << ""
                          << "" << false;
}

void TestPlaces::knowsTheFoldersOfTones()
{
    QFETCH(const QString, file);
    QFETCH(const QString, place);
    QFETCH(const QString, path);
    QFETCH(const bool, isSystems);
    const auto found = Backup::tonePlaceOf(file);
    QCOMPARE(found ? found->place : QString(), place);
    QCOMPARE(found ? found->path : QString(), path);
    if (found)
        QCOMPARE(Backup::toneFileAt(*found), file);
    QCOMPARE(Backup::isSystemTone(file), isSystems);
}

void TestPlaces::hasNoPlaceForWhatLeadsOut()
{
    QCOMPARE(Backup::toneFileAt({"music", "../.profile"}), "");
    QCOMPARE(Backup::toneFileAt({"music", "/etc/passwd"}), "");
    QCOMPARE(Backup::toneFileAt({"music", ""}), "");
    QCOMPARE(Backup::toneFileAt({"home", ".profile"}), "");
}

QTEST_GUILESS_MAIN(TestPlaces)
#include "tst_places.moc"
