// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/clockwidgets/tonefoldermodel_p.h"

#include "platform/clockwidgets/toneplaces_p.h"
#include "platform/locale/locale.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using Touch::Locale;

class TestToneFolderModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void startsWithThePlaces();
    void aPlaceThatIsMissingIsLeftOut();
    void aFolderListsTheWayUpThenFoldersThenSoundFiles();
    void whatIsHiddenOrSilentByNatureIsLeftOut();
    void anEmptyFolderSaysSo();
    void theWayUpEndsAtThePlaces();
    void aFolderThatIsGoneLeadsToThePlaces();
    void drivesArePlacesByTheirNames();

private:
    static QStringList names(const ToneFolderModel &model);
    static bool makeFile(const QString &path);
    static QString home(const QString &path) { return QDir::home().filePath(path); }
};

void TestToneFolderModel::initTestCase()
{
    Locale locale("en_GB");
    QVERIFY(locale.installTrCatalog("sounds"));
    Locale::setDefault(locale);
    for (const char *path : {"Downloads/Bell 2.aac", "Downloads/bell 10.mp3", "Downloads/Alarm.ogg",
                             "Downloads/notes.txt", "Downloads/.hidden.aac", "Downloads/Songs/Sea.flac"})
        QVERIFY(makeFile(home(path)));
    QVERIFY(QDir::home().mkpath("Downloads/empty"));
    QVERIFY(QDir::home().mkpath("Downloads/.hidden"));
}

bool TestToneFolderModel::makeFile(const QString &path)
{
    QFile file(path);
    return QDir().mkpath(QFileInfo(path).path()) && file.open(QIODevice::WriteOnly);
}

QStringList TestToneFolderModel::names(const ToneFolderModel &model)
{
    QStringList names;
    for (int row = 0; row < model.rowCount(); ++row)
        names += model.index(row, 0).data().toString();
    return names;
}

void TestToneFolderModel::startsWithThePlaces()
{
    QVERIFY(QDir::home().mkpath("Music"));
    ToneFolderModel model;
    model.refresh();
    QCOMPARE(model.folder(), QString());
    QCOMPARE(model.title(), "Places");
    QCOMPARE(names(model).mid(0, 3), QStringList({"Music", "Downloads", "Home folder"}));
    QCOMPARE(model.index(0, 0).data(ToneFolderModel::PathRole).toString(), home("Music"));
    QCOMPARE(model.index(2, 0).data(ToneFolderModel::PathRole).toString(), QDir::homePath());
    QCOMPARE(model.index(0, 0).data(ToneFolderModel::KindRole).toInt(), int(ToneFolderModel::Folder));
    QVERIFY(!model.goUp());
}

void TestToneFolderModel::aPlaceThatIsMissingIsLeftOut()
{
    QVERIFY(QDir::home().rmdir("Music"));
    ToneFolderModel model;
    model.refresh();
    QCOMPARE(names(model).mid(0, 2), QStringList({"Downloads", "Home folder"}));
}

void TestToneFolderModel::aFolderListsTheWayUpThenFoldersThenSoundFiles()
{
    ToneFolderModel model;
    model.enter(home("Downloads"));
    QCOMPARE(model.title(), "Downloads");
    QCOMPARE(names(model), QStringList({"Up to Places", "empty", "Songs", "Alarm.ogg", "Bell 2.aac", "bell 10.mp3"}));
    const auto kind = [&model](int row) { return model.index(row, 0).data(ToneFolderModel::KindRole).toInt(); };
    QCOMPARE(kind(0), int(ToneFolderModel::Up));
    QCOMPARE(kind(2), int(ToneFolderModel::Folder));
    QCOMPARE(kind(3), int(ToneFolderModel::File));
    QCOMPARE(model.index(4, 0).data(ToneFolderModel::PathRole).toString(), home("Downloads/Bell 2.aac"));
}

void TestToneFolderModel::whatIsHiddenOrSilentByNatureIsLeftOut()
{
    ToneFolderModel model;
    model.enter(home("Downloads"));
    QVERIFY(names(model).filter("hidden").isEmpty());
    QVERIFY(names(model).filter("notes").isEmpty());
}

void TestToneFolderModel::anEmptyFolderSaysSo()
{
    ToneFolderModel model;
    model.enter(home("Downloads"));
    model.enter(home("Downloads/empty"));
    QCOMPARE(names(model), QStringList({"Up to Downloads", "No sound files here"}));
    QCOMPARE(model.index(1, 0).data(ToneFolderModel::KindRole).toInt(), int(ToneFolderModel::Note));
}

void TestToneFolderModel::theWayUpEndsAtThePlaces()
{
    ToneFolderModel model;
    model.enter(QDir::homePath());
    QCOMPARE(model.title(), "Home folder");
    model.enter(home("Downloads"));
    model.enter(home("Downloads/Songs"));
    QCOMPARE(model.title(), "Songs");
    for (const QString &folder : {home("Downloads"), QDir::homePath(), QString()}) {
        QVERIFY(model.goUp());
        QCOMPARE(model.folder(), folder);
    }
    QVERIFY(!model.goUp());
}

void TestToneFolderModel::aFolderThatIsGoneLeadsToThePlaces()
{
    QVERIFY(QDir::home().mkpath("Downloads/card"));
    ToneFolderModel model;
    model.enter(home("Downloads/card"));
    QVERIFY(QDir::home().rmdir("Downloads/card"));
    model.refresh();
    QCOMPARE(model.folder(), QString());
    QVERIFY(names(model).contains("Downloads"));
}

void TestToneFolderModel::drivesArePlacesByTheirNames()
{
    const QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkpath("media/STICK"));
    QVERIFY(QDir(folder.path()).mkpath("media/CARD/Songs"));
    QVERIFY(makeFile(folder.filePath("media/notes.txt")));
    const QList<TonePlace> drives = drivesIn({folder.filePath("media"), folder.filePath("missing")});
    QCOMPARE(drives.size(), 2);
    QCOMPARE(drives[0].name, "CARD");
    QCOMPARE(drives[0].path, folder.filePath("media/CARD"));
    QCOMPARE(drives[1].name, "STICK");
}

QTEST_GUILESS_MAIN(TestToneFolderModel)
#include "tst_tonefoldermodel.moc"
