// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/clockwidgets/alerttone.h"
#include "platform/clockwidgets/alerttonebrowsersheet.h"
#include "platform/tones/tonefiles.h"
#include "platform/toolkit/applicationwindow.h"
#include "platform/toolkit/list.h"
#include "tests/clockwidgets/tonescene.h"
#include "tests/support/look/items.h"
#include "tests/tones/tonefile.h"

#include <QAbstractItemModel>
#include <QAction>
#include <QApplication>
#include <QDir>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

class TestAlertToneBrowserSheet : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void aToneIsCalledByItsFile_data();
    void aToneIsCalledByItsFile();
    void aToneSpeaksOfChangesOnly();
    void noSoundComesFirstThenTonesThenMusic();
    void theTonesAreThereBeforeTheStoreAnswers();
    void aFileOfAnotherFolderIsListedWhileItIsChosen();
    void aToneOfAnotherDataFolderIsTheListedOne();
    void aFileThatIsGoneIsNotListed();
    void theChosenToneIsInSight();
    void aTapChoosesAndPlays();
    void anotherTapPlaysAnotherToneAlone();
    void aSecondTapOnAToneEndsItsSound();
    void noSoundIsSilent();
    void theSoundEndsWithTheSheet_data();
    void theSoundEndsWithTheSheet();
    void doneTakesTheTone();
    void cancelKeepsTheTone();
    void keysReachEveryTone();
    void looks_data();
    void looks();

private:
    [[nodiscard]] Touch::List *list() const { return m_scene.tones(); }
    [[nodiscard]] int rowOf(const QString &title) const { return int(m_scene.titles().indexOf(title)); }
    void tap(const QString &title) { m_scene.tap(list()->cellAt(rowOf(title))); }

    QString m_music;
    ToneScene m_scene;
};

void TestAlertToneBrowserSheet::initTestCase()
{
    QVERIFY(m_scene.prepare());
    m_music = Tones::musicFolder();
    QVERIFY(Support::writeTone(m_music + "/Band/02.mp3", "Zebra crossing"));
    QVERIFY(Support::writeTone(m_music + "/an_untitled_song.mp3", ""));
    QVERIFY(m_scene.fillStore());
}

void TestAlertToneBrowserSheet::init()
{
    QVERIFY(m_scene.open());
}

void TestAlertToneBrowserSheet::cleanup()
{
    m_scene.close();
    QApplication::setLayoutDirection(Qt::LeftToRight);
}

void TestAlertToneBrowserSheet::aToneIsCalledByItsFile_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("name");
    QTest::newRow("/tones/Morning_bell.aac") << "/tones/Morning_bell.aac"
                                             << "Morning bell";
    QTest::newRow("file:///a%20b/No%20sound.wav") << "/a b/No sound.wav"
                                                  << "No sound";
    QTest::newRow("/tones/a.b.c") << "/tones/a.b.c"
                                  << "a.b";
    QTest::newRow("/tones.d/whole") << "/tones.d/whole"
                                    << "whole";
}

void TestAlertToneBrowserSheet::aToneIsCalledByItsFile()
{
    QFETCH(QString, path);
    QFETCH(QString, name);
    const AlertTone tone{QString::fromUtf8(QTest::currentDataTag())};
    QCOMPARE(tone.fileName(), path);
    QCOMPARE(tone.niceName(), name);
}

void TestAlertToneBrowserSheet::aToneSpeaksOfChangesOnly()
{
    AlertTone tone("/a.aac");
    QSignalSpy changed(&tone, &AlertTone::changed);
    tone.setTone("/a.aac", "a");
    QCOMPARE(changed.size(), 0);
    tone.setTone("/b.aac", "The title");
    QCOMPARE(changed.size(), 1);
    QCOMPARE(tone.fileName(), "/b.aac");
    QCOMPARE(tone.niceName(), "The title");
}

void TestAlertToneBrowserSheet::noSoundComesFirstThenTonesThenMusic()
{
    QCOMPARE(m_scene.titles(),
             QStringList({"No sound", "Clock alert 1", "Courier", "Dewdrops", "First Light", "Glass Garden", "Harbour",
                          "Marimba Steps", "Morning Birds", "Music Box", "Pulse", "Reveille", "Thumb Piano",
                          "Village Bells", "an untitled song", "Zebra crossing"}));
}

void TestAlertToneBrowserSheet::theTonesAreThereBeforeTheStoreAnswers()
{
    AlertToneBrowserSheet sheet(m_scene.tone.get());
    sheet.appear(m_scene.window.get());
    const auto *tones = Support::itemIn<Touch::List>(&sheet)->itemModel();
    QCOMPARE(tones->rowCount(), 14);
    QCOMPARE(tones->index(0, 0).data().toString(), "No sound");
}

void TestAlertToneBrowserSheet::aFileOfAnotherFolderIsListedWhileItIsChosen()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("My_own.ogg");
    QVERIFY(Support::writeTone(path, ""));
    AlertTone elsewhere(path);
    AlertToneBrowserSheet sheet(&elsewhere);
    sheet.appear(m_scene.window.get());
    const auto *tones = Support::itemIn<Touch::List>(&sheet)->itemModel();
    QCOMPARE(tones->rowCount(), 15);
    QCOMPARE(tones->index(14, 0).data().toString(), "My own");
    QCOMPARE(sheet.selectedFile(), path);
    const auto *cells = Support::itemIn<Touch::List>(&sheet);
    QTRY_VERIFY(cells->cellAt(14));
    QVERIFY(cells->cellAt(14)->accessibleName().contains("selected"));
    QVERIFY2(!cells->cellAt(14)->accessibleName().contains("My music"), "it lies elsewhere");
}

void TestAlertToneBrowserSheet::aToneOfAnotherDataFolderIsTheListedOne()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("Courier.aac");
    QVERIFY(QFile::copy(shipped("Courier"), path));
    AlertTone again(path);
    AlertToneBrowserSheet sheet(&again);
    sheet.appear(m_scene.window.get());
    const auto *cells = Support::itemIn<Touch::List>(&sheet);
    QCOMPARE(cells->itemModel()->rowCount(), 14);
    QTRY_VERIFY(cells->cellAt(2));
    QVERIFY(cells->cellAt(2)->accessibleName().contains("Courier"));
    QVERIFY(cells->cellAt(2)->accessibleName().contains("selected"));
    QCOMPARE(sheet.selectedFile(), path);
}

void TestAlertToneBrowserSheet::aFileThatIsGoneIsNotListed()
{
    AlertTone gone("/elsewhere/Gone.ogg");
    AlertToneBrowserSheet sheet(&gone);
    sheet.appear(m_scene.window.get());
    QCOMPARE(Support::itemIn<Touch::List>(&sheet)->itemModel()->rowCount(), 14);
    QCOMPARE(sheet.selectedFile(), "/elsewhere/Gone.ogg");
}

void TestAlertToneBrowserSheet::theChosenToneIsInSight()
{
    AlertTone last(shipped("Village Bells"));
    AlertToneBrowserSheet sheet(&last);
    sheet.appear(m_scene.window.get());
    auto *tones = Support::itemIn<Touch::List>(&sheet);
    QTRY_VERIFY(tones->cellAt(13));
    QTRY_VERIFY(m_scene.window->sceneRect().contains(tones->cellAt(13)->sceneBoundingRect()));
}

void TestAlertToneBrowserSheet::aTapChoosesAndPlays()
{
    QCOMPARE(m_scene.sheet->selectedFile(), shipped("Clock alert 1"));
    QCOMPARE(m_scene.sheet->playedFile(), QString());
    tap("Courier");
    QCOMPARE(m_scene.sheet->selectedFile(), shipped("Courier"));
    QCOMPARE(m_scene.sheet->playedFile(), shipped("Courier"));
    // At once as loud as an alarm becomes after half a minute.
    QTRY_VERIFY_WITH_TIMEOUT(m_scene.server.peak(1000) > 0.4f, Patience);
    QCOMPARE(m_scene.tone->fileName(), shipped("Clock alert 1"));
}

void TestAlertToneBrowserSheet::anotherTapPlaysAnotherToneAlone()
{
    tap("Courier");
    QTRY_VERIFY_WITH_TIMEOUT(m_scene.server.peak(300) > 0.1f, Patience);
    tap("Harbour");
    QCOMPARE(m_scene.sheet->playedFile(), shipped("Harbour"));
    // Full scale could not hold two.
    QTRY_VERIFY_WITH_TIMEOUT(m_scene.server.peak(300) > 0.1f, Patience);
    QVERIFY(m_scene.server.peak(300) < 0.95f);
}

void TestAlertToneBrowserSheet::aSecondTapOnAToneEndsItsSound()
{
    tap("Courier");
    tap("Courier");
    QCOMPARE(m_scene.sheet->playedFile(), QString());
    QCOMPARE(m_scene.sheet->selectedFile(), shipped("Courier"));
    QTRY_COMPARE_WITH_TIMEOUT(m_scene.server.peak(300), 0.0f, Patience);
}

void TestAlertToneBrowserSheet::noSoundIsSilent()
{
    tap("Courier");
    tap("No sound");
    QCOMPARE(m_scene.sheet->playedFile(), QString());
    QCOMPARE(m_scene.sheet->selectedFile(), shipped("No sound"));
    QTRY_COMPARE_WITH_TIMEOUT(m_scene.server.peak(300), 0.0f, Patience);
}

void TestAlertToneBrowserSheet::theSoundEndsWithTheSheet_data()
{
    QTest::addColumn<QString>("way");
    for (const char *way : {"done", "cancel", "disappear", "window hidden"})
        QTest::newRow(way) << way;
}

void TestAlertToneBrowserSheet::theSoundEndsWithTheSheet()
{
    QFETCH(QString, way);
    tap("Courier");
    QTRY_VERIFY_WITH_TIMEOUT(m_scene.server.peak(300) > 0.1f, Patience);
    if (way == "window hidden")
        m_scene.window->hide();
    else if (way == "disappear")
        m_scene.sheet->disappear();
    else
        (way == "done" ? m_scene.done() : m_scene.cancel())->trigger();
    QCOMPARE(m_scene.sheet->playedFile(), QString());
    QTRY_COMPARE_WITH_TIMEOUT(m_scene.server.peak(300), 0.0f, Patience);
}

void TestAlertToneBrowserSheet::doneTakesTheTone()
{
    QSignalSpy changed(m_scene.tone.get(), &AlertTone::changed);
    tap("Harbour");
    m_scene.done()->trigger();
    QCOMPARE(changed.size(), 1);
    QCOMPARE(m_scene.tone->fileName(), shipped("Harbour"));
    QCOMPARE(m_scene.tone->niceName(), "Harbour");
    QVERIFY(!m_scene.sheet->isOnDisplay());
}

void TestAlertToneBrowserSheet::cancelKeepsTheTone()
{
    QSignalSpy changed(m_scene.tone.get(), &AlertTone::changed);
    tap("Harbour");
    m_scene.cancel()->trigger();
    QCOMPARE(changed.size(), 0);
    QCOMPARE(m_scene.tone->fileName(), shipped("Clock alert 1"));
    QVERIFY(!m_scene.sheet->isOnDisplay());
    // The next time it begins with the tone that is.
    m_scene.sheet->appear(m_scene.window.get());
    QCOMPARE(m_scene.sheet->selectedFile(), shipped("Clock alert 1"));
}

void TestAlertToneBrowserSheet::keysReachEveryTone()
{
    list()->cellAt(0)->setFocus(Qt::TabFocusReason);
    QTest::keyClick(m_scene.window.get(), Qt::Key_Down);
    QTest::keyClick(m_scene.window.get(), Qt::Key_Down);
    QTest::keyClick(m_scene.window.get(), Qt::Key_Space);
    QCOMPARE(m_scene.sheet->selectedFile(), shipped("Courier"));
    QVERIFY(list()->cellAt(2)->accessibleName().contains("Courier"));
    QTRY_VERIFY(list()->cellAt(2)->accessibleName().contains("selected"));
}

void TestAlertToneBrowserSheet::looks_data()
{
    addLooks();
}

void TestAlertToneBrowserSheet::looks()
{
    QVERIFY(m_scene.openInLook());
    const QImage before = m_scene.window->grab().toImage();
    tap("Dewdrops");
    QImage image;
    QTRY_VERIFY((image = m_scene.window->grab().toImage()) != before);
    QTRY_VERIFY(list()->cellAt(3)->accessibleName().contains("selected"));
    QVERIFY(m_scene.keepPicture("tonebrowser"));
}

QTEST_MAIN(TestAlertToneBrowserSheet)
#include "tst_alerttonebrowsersheet.moc"
