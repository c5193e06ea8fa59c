// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/clockwidgets/tonefilesheet_p.h"

#include "platform/clockwidgets/alerttone.h"
#include "platform/clockwidgets/alerttonebrowsersheet.h"
#include "platform/locale/locale.h"
#include "platform/tones/tonefiles.h"
#include "platform/tones/tonefiller.h"
#include "platform/toolkit/applicationwindow.h"
#include "platform/toolkit/banner.h"
#include "platform/toolkit/basiclistitem.h"
#include "platform/toolkit/basicsheetheader.h"
#include "platform/toolkit/list.h"
#include "platform/toolkit/theme.h"
#include "tests/ringer/soundserver.h"
#include "tests/support/look/items.h"
#include "tests/support/places.h"
#include "tests/tones/tonefile.h"

#include <memory>
#include <QAction>
#include <QApplication>
#include <QDir>
#include <QSignalSpy>
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

/// A file of one's own as a tone, as the user finds it from the tone browser.
class tst_ToneFileSheet : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void aFileThatIsFoundIsHeardAndChosen();
    void doneTakesTheFile();
    void aFileThatWouldNotBeHeardIsRefused_data();
    void aFileThatWouldNotBeHeardIsRefused();
    void musicThatCannotBePlayedIsRefusedToo();
    void whatIsJudgedTooLateIsNotChosen();
    void cancelLeadsBackToTheTones();
    void escapeLeadsUpAndThenOut();
    void theNextTimeItStartsWhereItWasLeft();
    void itGoesWithTheTones();
    void aNoteTakesNoTap();
    void everyRowIsTold();
    void theSoundEndsWhileOneLooks();
    void looks_data();
    void looks();

private:
    [[nodiscard]] ToneFileSheet *files() const;
    [[nodiscard]] Touch::List *list() const { return Support::itemIn<Touch::List>(files(), "toneFileList"); }
    [[nodiscard]] QString notice() const;
    [[nodiscard]] QStringList tones() const;
    void openFiles();
    /// Taps the rows of these names, one after the other.
    void follow(const QStringList &names);
    void keepPicture(const QString &name);

    Support::SoundServer m_server;
    const QString m_folder = QDir::home().filePath("Downloads/Ringtones");
    std::unique_ptr<Touch::ApplicationWindow> m_window;
    std::unique_ptr<AlertTone> m_tone;
    std::unique_ptr<AlertToneBrowserSheet> m_sheet;
};

void tst_ToneFileSheet::initTestCase()
{
    qputenv("CLOCK_REDUCED_MOTION", "1");
    Locale locale("en_GB");
    QVERIFY(locale.installTrCatalog("sounds"));
    Locale::setDefault(locale);
    QVERIFY(m_server.start());
    QVERIFY(QDir().mkpath(m_folder));
    QVERIFY(QDir::home().mkpath("Downloads/empty"));
    QVERIFY(QFile::copy(shipped("Courier"), m_folder + "/Bell_2.aac"));
    QVERIFY(Support::writeTone(m_folder + "/broken.mp3", "Broken"));
    QVERIFY(Support::writeSine(m_folder + "/silent.wav", 0, 5000));
    QVERIFY(Support::writeTone(Tones::musicFolder() + "/Zebra.mp3", "Zebra crossing"));
    Tones::ToneFiller filler;
    QSignalSpy filled(&filler, &Tones::ToneFiller::filled);
    filler.start();
    QVERIFY(filled.wait(Patience));
}

void tst_ToneFileSheet::init()
{
    m_window = std::make_unique<Touch::ApplicationWindow>();
    m_window->resize(480, 854);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    m_tone = std::make_unique<AlertTone>(shipped("Clock alert 1"));
    m_sheet = std::make_unique<AlertToneBrowserSheet>(m_tone.get());
    m_sheet->appear(m_window.get());
    QTRY_VERIFY_WITH_TIMEOUT(tones().contains("Zebra crossing"), Patience);
}

void tst_ToneFileSheet::cleanup()
{
    m_sheet.reset();
    m_window.reset();
}

ToneFileSheet *tst_ToneFileSheet::files() const
{
    return qobject_cast<ToneFileSheet *>(m_window->topSceneWindow());
}

QString tst_ToneFileSheet::notice() const
{
    const auto sceneWindows = m_window->sceneWindows();
    for (Touch::SceneWindow *sceneWindow : sceneWindows) {
        if (auto *banner = qobject_cast<Touch::Banner *>(sceneWindow); banner && banner->isOnDisplay())
            return banner->title();
    }
    return {};
}

QStringList tst_ToneFileSheet::tones() const
{
    const auto *model = Support::itemIn<Touch::List>(m_sheet.get())->itemModel();
    QStringList titles;
    for (int row = 0; row < model->rowCount(); ++row)
        titles += model->index(row, 0).data().toString();
    return titles;
}

void tst_ToneFileSheet::openFiles()
{
    auto *row = Support::itemIn<Touch::BasicListItem>(m_sheet.get(), "chooseFileItem");
    QVERIFY(row);
    QCOMPARE(row->title(), "Choose a file…");
    QTest::mouseClick(m_window->viewport(), Qt::LeftButton, {},
                      m_window->mapFromScene(row->sceneBoundingRect().center()));
    QVERIFY(files());
}

void tst_ToneFileSheet::follow(const QStringList &names)
{
    for (const QString &name : names) {
        const auto *model = list()->itemModel();
        int row = 0;
        while (row < model->rowCount() && model->index(row, 0).data().toString() != name)
            ++row;
        QTRY_VERIFY2(list()->cellAt(row), qPrintable(name));
        QTest::mouseClick(m_window->viewport(), Qt::LeftButton, {},
                          m_window->mapFromScene(list()->cellAt(row)->sceneBoundingRect().center()));
    }
}

void tst_ToneFileSheet::aFileThatIsFoundIsHeardAndChosen()
{
    openFiles();
    follow({"Downloads", "Ringtones", "Bell_2.aac"});
    QTRY_VERIFY_WITH_TIMEOUT(!files(), Patience);
    QVERIFY(m_sheet->isOnDisplay());
    QCOMPARE(m_sheet->selectedFile(), m_folder + "/Bell_2.aac");
    QCOMPARE(m_sheet->playedFile(), m_folder + "/Bell_2.aac");
    QVERIFY(tones().contains("Bell 2"));
    QCOMPARE(notice(), QString());
    QTRY_VERIFY_WITH_TIMEOUT(m_server.peak(300) > 0.1f, Patience);
    const auto *cells = Support::itemIn<Touch::List>(m_sheet.get());
    const int row = int(tones().indexOf("Bell 2"));
    QTRY_VERIFY(cells->cellAt(row) && m_window->sceneRect().contains(cells->cellAt(row)->sceneBoundingRect()));
}

void tst_ToneFileSheet::doneTakesTheFile()
{
    openFiles();
    follow({"Downloads", "Ringtones", "Bell_2.aac"});
    QTRY_VERIFY_WITH_TIMEOUT(!files(), Patience);
    qobject_cast<Touch::BasicSheetHeader *>(m_sheet->headerWidget())->positiveAction()->trigger();
    QCOMPARE(m_tone->fileName(), m_folder + "/Bell_2.aac");
    QCOMPARE(m_tone->niceName(), "Bell 2");
}

void tst_ToneFileSheet::aFileThatWouldNotBeHeardIsRefused_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text");
    QTest::newRow("no sound in it") << "broken.mp3"
                                    << "“broken” cannot be played. The tone stays as it was.";
    QTest::newRow("silence") << "silent.wav"
                             << "“silent” starts with silence and would not wake you. The tone stays as it was.";
}

void tst_ToneFileSheet::aFileThatWouldNotBeHeardIsRefused()
{
    QFETCH(QString, name);
    openFiles();
    follow({"Downloads", "Ringtones", name});
    QTRY_VERIFY_WITH_TIMEOUT(!notice().isEmpty(), Patience);
    QTEST(notice(), "text");
    QVERIFY2(files(), "another one can be chosen");
    QCOMPARE(m_sheet->selectedFile(), shipped("Clock alert 1"));
    QCOMPARE(m_sheet->playedFile(), QString());
    qobject_cast<Touch::BasicSheetHeader *>(m_sheet->headerWidget())->positiveAction()->trigger();
    QCOMPARE(m_tone->fileName(), shipped("Clock alert 1"));
}

void tst_ToneFileSheet::musicThatCannotBePlayedIsRefusedToo()
{
    const auto *cells = Support::itemIn<Touch::List>(m_sheet.get());
    QTRY_VERIFY(cells->cellAt(0));
    QVERIFY(
        QMetaObject::invokeMethod(cells->cellAt(0), "clicked", Q_ARG(QString, Tones::musicFolder() + "/Zebra.mp3")));
    QTRY_COMPARE_WITH_TIMEOUT(notice(), "“Zebra crossing” cannot be played. The tone stays as it was.", Patience);
    QCOMPARE(m_sheet->selectedFile(), shipped("Clock alert 1"));
    QCOMPARE(m_sheet->playedFile(), QString());
}

void tst_ToneFileSheet::whatIsJudgedTooLateIsNotChosen()
{
    openFiles();
    follow({"Downloads", "Ringtones", "Bell_2.aac"});
    m_sheet->dismiss();
    QVERIFY(!files());
    // What is judged later is told later.
    m_sheet->appear(m_window.get());
    openFiles();
    follow({"broken.mp3"});
    QTRY_VERIFY_WITH_TIMEOUT(!notice().isEmpty(), Patience);
    QCOMPARE(m_sheet->selectedFile(), shipped("Clock alert 1"));
}

void tst_ToneFileSheet::cancelLeadsBackToTheTones()
{
    openFiles();
    follow({"Downloads"});
    const auto *header = qobject_cast<Touch::BasicSheetHeader *>(files()->headerWidget());
    QCOMPARE(header->negativeAction()->text(), "Cancel");
    QVERIFY(!header->positiveAction());
    header->negativeAction()->trigger();
    QVERIFY(!files());
    QVERIFY(m_sheet->isOnDisplay());
    QCOMPARE(m_sheet->selectedFile(), shipped("Clock alert 1"));
}

void tst_ToneFileSheet::escapeLeadsUpAndThenOut()
{
    openFiles();
    follow({"Downloads", "Ringtones"});
    QCOMPARE(files()->folder(), m_folder);
    m_window->stepBack();
    QCOMPARE(files()->folder(), QFileInfo(m_folder).path());
    m_window->stepBack();
    QCOMPARE(files()->folder(), QString());
    m_window->stepBack();
    QVERIFY(!files());
    QVERIFY(m_sheet->isOnDisplay());
}

void tst_ToneFileSheet::theNextTimeItStartsWhereItWasLeft()
{
    openFiles();
    follow({"Downloads", "Ringtones"});
    files()->dismiss();
    openFiles();
    QCOMPARE(files()->folder(), m_folder);
    follow({"Up to Downloads", "Up to Places"});
    QCOMPARE(files()->folder(), QString());
}

void tst_ToneFileSheet::itGoesWithTheTones()
{
    openFiles();
    m_sheet->dismiss();
    QVERIFY(!files());
}

void tst_ToneFileSheet::aNoteTakesNoTap()
{
    openFiles();
    follow({"Downloads", "empty", "No sound files here"});
    QCOMPARE(files()->folder(), QDir::home().filePath("Downloads/empty"));
    QCOMPARE(list()->cellAt(1)->focusPolicy(), Qt::NoFocus);
    QCOMPARE(list()->cellAt(0)->focusPolicy(), Qt::TabFocus);
}

void tst_ToneFileSheet::everyRowIsTold()
{
    openFiles();
    QCOMPARE(files()->accessibleName(), "Choose a file…");
    follow({"Downloads"});
    QTRY_VERIFY(list()->cellAt(2));
    QCOMPARE(list()->cellAt(0)->accessibleName(), "Up to Places");
    QCOMPARE(list()->cellAt(2)->accessibleName(), "Ringtones, folder");
    follow({"Ringtones"});
    QTRY_VERIFY(list()->cellAt(1));
    QTRY_COMPARE(list()->cellAt(1)->accessibleName(), "Bell_2.aac");
    QCOMPARE(list()->cellAt(1)->accessibleRole(), QAccessible::Button);
}

void tst_ToneFileSheet::theSoundEndsWhileOneLooks()
{
    const auto *cells = Support::itemIn<Touch::List>(m_sheet.get());
    QTRY_VERIFY(cells->cellAt(2));
    QTest::mouseClick(m_window->viewport(), Qt::LeftButton, {},
                      m_window->mapFromScene(cells->cellAt(2)->sceneBoundingRect().center()));
    QCOMPARE(m_sheet->playedFile(), shipped("Courier"));
    openFiles();
    QCOMPARE(m_sheet->playedFile(), QString());
    QCOMPARE(m_sheet->selectedFile(), shipped("Courier"));
}

void tst_ToneFileSheet::keepPicture(const QString &name)
{
    const QDir folder(QCoreApplication::applicationDirPath() + "/../screenshots");
    QVERIFY(QDir().mkpath(folder.path()));
    // What the last event has changed is laid out by the next.
    QCoreApplication::processEvents();
    QVERIFY(m_window->grab().toImage().save(
        folder.filePath(QStringLiteral("tonefiles-%1-%2.png").arg(QTest::currentDataTag(), name))));
}

void tst_ToneFileSheet::looks_data()
{
    QTest::addColumn<Theme::Variant>("variant");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::newRow("light") << Theme::Variant::Light << Qt::LeftToRight;
    QTest::newRow("dark") << Theme::Variant::Dark << Qt::LeftToRight;
    QTest::newRow("rtl") << Theme::Variant::Dark << Qt::RightToLeft;
}

void tst_ToneFileSheet::looks()
{
    QFETCH(Theme::Variant, variant);
    QFETCH(Qt::LayoutDirection, direction);
    Theme::instance().setVariant(variant);
    cleanup();
    QApplication::setLayoutDirection(direction);
    init();
    openFiles();
    QTRY_VERIFY(list()->cellAt(0));
    keepPicture("places");
    follow({"Downloads"});
    QTRY_VERIFY(list()->cellAt(2));
    keepPicture("folders");
    follow({"empty"});
    QTRY_COMPARE(list()->itemModel()->rowCount(), 2);
    QTRY_VERIFY(list()->cellAt(1));
    keepPicture("empty");
    follow({"Up to Downloads", "Ringtones", "silent.wav"});
    QTRY_VERIFY_WITH_TIMEOUT(!notice().isEmpty(), Patience);
    keepPicture("refused");
    follow({"Bell_2.aac"});
    QTRY_COMPARE_WITH_TIMEOUT(m_sheet->selectedFile(), m_folder + "/Bell_2.aac", Patience);
    QCOMPARE(notice(), QString());
    keepPicture("chosen");
    QApplication::setLayoutDirection(Qt::LeftToRight);
}

QTEST_MAIN(tst_ToneFileSheet)
#include "tst_tonefilesheet.moc"
