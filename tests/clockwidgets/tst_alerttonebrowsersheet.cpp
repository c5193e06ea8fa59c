// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/clockwidgets/alerttone.h"
#include "platform/clockwidgets/alerttonebrowsersheet.h"
#include "platform/locale/locale.h"
#include "platform/tones/tonefiles.h"
#include "platform/tones/tonefiller.h"
#include "platform/toolkit/applicationwindow.h"
#include "platform/toolkit/basicsheetheader.h"
#include "platform/toolkit/list.h"
#include "platform/toolkit/theme.h"
#include "tests/ringer/soundserver.h"
#include "tests/support/look/items.h"
#include "tests/support/places.h"
#include "tests/tones/tonefile.h"

#include <memory>
#include <QAbstractItemModel>
#include <QAction>
#include <QApplication>
#include <QDir>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using Touch::Locale;
using Touch::Theme;

namespace {

constexpr auto Patience = 30'000;

QString shipped(const QString &name)
{
    return Places::sharedData("sounds/ring-tones/" + name + ".aac");
}

} // namespace

class tst_AlertToneBrowserSheet : public QObject
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
    [[nodiscard]] Touch::List *list() const { return Support::itemIn<Touch::List>(m_sheet.get()); }
    [[nodiscard]] QAbstractItemModel *model() const { return list()->itemModel(); }
    [[nodiscard]] QStringList titles() const;
    [[nodiscard]] int rowOf(const QString &title) const { return int(titles().indexOf(title)); }
    void tap(const QString &title);
    void fillStore();
    [[nodiscard]] QAction *action(bool completes) const;

    Support::SoundServer m_server;
    QString m_music;
    std::unique_ptr<Touch::ApplicationWindow> m_window;
    std::unique_ptr<AlertTone> m_tone;
    std::unique_ptr<AlertToneBrowserSheet> m_sheet;
};

void tst_AlertToneBrowserSheet::initTestCase()
{
    qputenv("CLOCK_REDUCED_MOTION", "1");
    Locale locale("en_GB");
    QVERIFY(locale.installTrCatalog("sounds"));
    Locale::setDefault(locale);
    QVERIFY(m_server.start());
    m_music = Tones::musicFolder();
    QVERIFY(Support::writeTone(m_music + "/Band/02.mp3", "Zebra crossing"));
    QVERIFY(Support::writeTone(m_music + "/an_untitled_song.mp3", ""));
    fillStore();
}

void tst_AlertToneBrowserSheet::fillStore()
{
    Tones::ToneFiller filler;
    QSignalSpy filled(&filler, &Tones::ToneFiller::filled);
    filler.start();
    QVERIFY(filled.wait(Patience));
}

void tst_AlertToneBrowserSheet::init()
{
    m_window = std::make_unique<Touch::ApplicationWindow>();
    m_window->resize(480, 854);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    m_tone = std::make_unique<AlertTone>(shipped("Clock alert 1"));
    m_sheet = std::make_unique<AlertToneBrowserSheet>(m_tone.get());
    m_sheet->appear(m_window.get());
    QTRY_VERIFY_WITH_TIMEOUT(rowOf("Zebra crossing") >= 0, Patience);
    QTRY_VERIFY(list()->cellAt(0));
}

void tst_AlertToneBrowserSheet::cleanup()
{
    m_sheet.reset();
    m_window.reset();
}

QStringList tst_AlertToneBrowserSheet::titles() const
{
    QStringList titles;
    for (int row = 0; row < model()->rowCount(); ++row)
        titles += model()->index(row, 0).data().toString();
    return titles;
}

void tst_AlertToneBrowserSheet::tap(const QString &title)
{
    const auto *cell = list()->cellAt(rowOf(title));
    QVERIFY(cell);
    QTest::mouseClick(m_window->viewport(), Qt::LeftButton, {},
                      m_window->mapFromScene(cell->sceneBoundingRect().center()));
}

QAction *tst_AlertToneBrowserSheet::action(bool completes) const
{
    const auto *header = qobject_cast<Touch::BasicSheetHeader *>(m_sheet->headerWidget());
    return completes ? header->positiveAction() : header->negativeAction();
}

void tst_AlertToneBrowserSheet::aToneIsCalledByItsFile_data()
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

void tst_AlertToneBrowserSheet::aToneIsCalledByItsFile()
{
    QFETCH(QString, path);
    QFETCH(QString, name);
    const AlertTone tone{QString::fromUtf8(QTest::currentDataTag())};
    QCOMPARE(tone.fileName(), path);
    QCOMPARE(tone.niceName(), name);
}

void tst_AlertToneBrowserSheet::aToneSpeaksOfChangesOnly()
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

void tst_AlertToneBrowserSheet::noSoundComesFirstThenTonesThenMusic()
{
    QCOMPARE(titles(),
             QStringList({"No sound", "Clock alert 1", "Courier", "Dewdrops", "First Light", "Glass Garden", "Harbour",
                          "Marimba Steps", "Morning Birds", "Music Box", "Pulse", "Reveille", "Thumb Piano",
                          "Village Bells", "an untitled song", "Zebra crossing"}));
}

void tst_AlertToneBrowserSheet::theTonesAreThereBeforeTheStoreAnswers()
{
    AlertToneBrowserSheet sheet(m_tone.get());
    sheet.appear(m_window.get());
    const auto *tones = Support::itemIn<Touch::List>(&sheet)->itemModel();
    QCOMPARE(tones->rowCount(), 14);
    QCOMPARE(tones->index(0, 0).data().toString(), "No sound");
}

void tst_AlertToneBrowserSheet::aFileOfAnotherFolderIsListedWhileItIsChosen()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("My_own.ogg");
    QVERIFY(Support::writeTone(path, ""));
    AlertTone elsewhere(path);
    AlertToneBrowserSheet sheet(&elsewhere);
    sheet.appear(m_window.get());
    const auto *tones = Support::itemIn<Touch::List>(&sheet)->itemModel();
    QCOMPARE(tones->rowCount(), 15);
    QCOMPARE(tones->index(14, 0).data().toString(), "My own");
    QCOMPARE(sheet.selectedFile(), path);
    const auto *cells = Support::itemIn<Touch::List>(&sheet);
    QTRY_VERIFY(cells->cellAt(14));
    QVERIFY(cells->cellAt(14)->accessibleName().contains("selected"));
    QVERIFY2(!cells->cellAt(14)->accessibleName().contains("My music"), "it lies elsewhere");
}

void tst_AlertToneBrowserSheet::aToneOfAnotherDataFolderIsTheListedOne()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("Courier.aac");
    QVERIFY(QFile::copy(shipped("Courier"), path));
    AlertTone again(path);
    AlertToneBrowserSheet sheet(&again);
    sheet.appear(m_window.get());
    const auto *cells = Support::itemIn<Touch::List>(&sheet);
    QCOMPARE(cells->itemModel()->rowCount(), 14);
    QTRY_VERIFY(cells->cellAt(2));
    QVERIFY(cells->cellAt(2)->accessibleName().contains("Courier"));
    QVERIFY(cells->cellAt(2)->accessibleName().contains("selected"));
    QCOMPARE(sheet.selectedFile(), path);
}

void tst_AlertToneBrowserSheet::aFileThatIsGoneIsNotListed()
{
    AlertTone gone("/elsewhere/Gone.ogg");
    AlertToneBrowserSheet sheet(&gone);
    sheet.appear(m_window.get());
    QCOMPARE(Support::itemIn<Touch::List>(&sheet)->itemModel()->rowCount(), 14);
    QCOMPARE(sheet.selectedFile(), "/elsewhere/Gone.ogg");
}

void tst_AlertToneBrowserSheet::theChosenToneIsInSight()
{
    AlertTone last(shipped("Village Bells"));
    AlertToneBrowserSheet sheet(&last);
    sheet.appear(m_window.get());
    auto *tones = Support::itemIn<Touch::List>(&sheet);
    QTRY_VERIFY(tones->cellAt(13));
    QTRY_VERIFY(m_window->sceneRect().contains(tones->cellAt(13)->sceneBoundingRect()));
}

void tst_AlertToneBrowserSheet::aTapChoosesAndPlays()
{
    QCOMPARE(m_sheet->selectedFile(), shipped("Clock alert 1"));
    QCOMPARE(m_sheet->playedFile(), QString());
    tap("Courier");
    QCOMPARE(m_sheet->selectedFile(), shipped("Courier"));
    QCOMPARE(m_sheet->playedFile(), shipped("Courier"));
    // At once as loud as an alarm becomes after half a minute.
    QTRY_VERIFY_WITH_TIMEOUT(m_server.peak(1000) > 0.4f, Patience);
    QCOMPARE(m_tone->fileName(), shipped("Clock alert 1"));
}

void tst_AlertToneBrowserSheet::anotherTapPlaysAnotherToneAlone()
{
    tap("Courier");
    QTRY_VERIFY_WITH_TIMEOUT(m_server.peak(300) > 0.1f, Patience);
    tap("Harbour");
    QCOMPARE(m_sheet->playedFile(), shipped("Harbour"));
    // Full scale could not hold two.
    QTRY_VERIFY_WITH_TIMEOUT(m_server.peak(300) > 0.1f, Patience);
    QVERIFY(m_server.peak(300) < 0.95f);
}

void tst_AlertToneBrowserSheet::aSecondTapOnAToneEndsItsSound()
{
    tap("Courier");
    tap("Courier");
    QCOMPARE(m_sheet->playedFile(), QString());
    QCOMPARE(m_sheet->selectedFile(), shipped("Courier"));
    QTRY_COMPARE_WITH_TIMEOUT(m_server.peak(300), 0.0f, Patience);
}

void tst_AlertToneBrowserSheet::noSoundIsSilent()
{
    tap("Courier");
    tap("No sound");
    QCOMPARE(m_sheet->playedFile(), QString());
    QCOMPARE(m_sheet->selectedFile(), shipped("No sound"));
    QTRY_COMPARE_WITH_TIMEOUT(m_server.peak(300), 0.0f, Patience);
}

void tst_AlertToneBrowserSheet::theSoundEndsWithTheSheet_data()
{
    QTest::addColumn<QString>("way");
    for (const char *way : {"done", "cancel", "disappear", "window hidden"})
        QTest::newRow(way) << way;
}

void tst_AlertToneBrowserSheet::theSoundEndsWithTheSheet()
{
    QFETCH(QString, way);
    tap("Courier");
    QTRY_VERIFY_WITH_TIMEOUT(m_server.peak(300) > 0.1f, Patience);
    if (way == "window hidden")
        m_window->hide();
    else if (way == "disappear")
        m_sheet->disappear();
    else
        action(way == "done")->trigger();
    QCOMPARE(m_sheet->playedFile(), QString());
    QTRY_COMPARE_WITH_TIMEOUT(m_server.peak(300), 0.0f, Patience);
}

void tst_AlertToneBrowserSheet::doneTakesTheTone()
{
    QSignalSpy changed(m_tone.get(), &AlertTone::changed);
    tap("Harbour");
    action(true)->trigger();
    QCOMPARE(changed.size(), 1);
    QCOMPARE(m_tone->fileName(), shipped("Harbour"));
    QCOMPARE(m_tone->niceName(), "Harbour");
    QVERIFY(!m_sheet->isOnDisplay());
}

void tst_AlertToneBrowserSheet::cancelKeepsTheTone()
{
    QSignalSpy changed(m_tone.get(), &AlertTone::changed);
    tap("Harbour");
    action(false)->trigger();
    QCOMPARE(changed.size(), 0);
    QCOMPARE(m_tone->fileName(), shipped("Clock alert 1"));
    QVERIFY(!m_sheet->isOnDisplay());
    // The next time it begins with the tone that is.
    m_sheet->appear(m_window.get());
    QCOMPARE(m_sheet->selectedFile(), shipped("Clock alert 1"));
}

void tst_AlertToneBrowserSheet::keysReachEveryTone()
{
    list()->cellAt(0)->setFocus(Qt::TabFocusReason);
    QTest::keyClick(m_window.get(), Qt::Key_Down);
    QTest::keyClick(m_window.get(), Qt::Key_Down);
    QTest::keyClick(m_window.get(), Qt::Key_Space);
    QCOMPARE(m_sheet->selectedFile(), shipped("Courier"));
    QVERIFY(list()->cellAt(2)->accessibleName().contains("Courier"));
    QTRY_VERIFY(list()->cellAt(2)->accessibleName().contains("selected"));
}

void tst_AlertToneBrowserSheet::looks_data()
{
    QTest::addColumn<Theme::Variant>("variant");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::newRow("light") << Theme::Variant::Light << Qt::LeftToRight;
    QTest::newRow("dark") << Theme::Variant::Dark << Qt::LeftToRight;
    QTest::newRow("rtl") << Theme::Variant::Dark << Qt::RightToLeft;
}

void tst_AlertToneBrowserSheet::looks()
{
    QFETCH(Theme::Variant, variant);
    QFETCH(Qt::LayoutDirection, direction);
    Theme::instance().setVariant(variant);
    cleanup();
    QApplication::setLayoutDirection(direction);
    init();
    const QImage before = m_window->grab().toImage();
    tap("Dewdrops");
    QImage image;
    QTRY_VERIFY((image = m_window->grab().toImage()) != before);
    QTRY_VERIFY(list()->cellAt(3)->accessibleName().contains("selected"));
    image = m_window->grab().toImage();
    const QDir folder(QCoreApplication::applicationDirPath() + "/../screenshots");
    QVERIFY(QDir().mkpath(folder.path()));
    QVERIFY(image.save(folder.filePath(QStringLiteral("tonebrowser-%1.png").arg(QTest::currentDataTag()))));
    QApplication::setLayoutDirection(Qt::LeftToRight);
}

QTEST_MAIN(tst_AlertToneBrowserSheet)
#include "tst_alerttonebrowsersheet.moc"
