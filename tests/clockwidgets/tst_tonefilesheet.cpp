// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/clockwidgets/tonefilesheet_p.h"

#include "platform/clockwidgets/alerttone.h"
#include "platform/clockwidgets/alerttonebrowsersheet.h"
#include "platform/tones/tonefiles.h"
#include "platform/toolkit/applicationwindow.h"
#include "platform/toolkit/banner.h"
#include "platform/toolkit/basiclistitem.h"
#include "platform/toolkit/basicsheetheader.h"
#include "platform/toolkit/list.h"
#include "tests/clockwidgets/tonescene.h"
#include "tests/support/look/items.h"
#include "tests/tones/tonefile.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QTest>

/// A file of one's own as a tone, as the user finds it from the tone browser.
class TestToneFileSheet : public QObject
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
    void openFiles();
    /// Taps the rows of these names, one after the other.
    void follow(const QStringList &names);

    const QString m_folder = QDir::home().filePath("Downloads/Ringtones");
    ToneScene m_scene;
};

void TestToneFileSheet::initTestCase()
{
    QVERIFY(m_scene.prepare());
    QVERIFY(QDir().mkpath(m_folder));
    QVERIFY(QDir::home().mkpath("Downloads/empty"));
    QVERIFY(QFile::copy(shipped("Courier"), m_folder + "/Bell_2.aac"));
    QVERIFY(Support::writeTone(m_folder + "/broken.mp3", "Broken"));
    QVERIFY(Support::writeSine(m_folder + "/silent.wav", 0, 5000));
    QVERIFY(Support::writeTone(Tones::musicFolder() + "/Zebra.mp3", "Zebra crossing"));
    QVERIFY(m_scene.fillStore());
}

void TestToneFileSheet::init()
{
    QVERIFY(m_scene.open());
}

void TestToneFileSheet::cleanup()
{
    m_scene.close();
    QApplication::setLayoutDirection(Qt::LeftToRight);
}

ToneFileSheet *TestToneFileSheet::files() const
{
    return qobject_cast<ToneFileSheet *>(m_scene.window->topSceneWindow());
}

QString TestToneFileSheet::notice() const
{
    const auto sceneWindows = m_scene.window->sceneWindows();
    for (Touch::SceneWindow *sceneWindow : sceneWindows) {
        if (auto *banner = qobject_cast<Touch::Banner *>(sceneWindow); banner && banner->isOnDisplay())
            return banner->title();
    }
    return {};
}

void TestToneFileSheet::openFiles()
{
    auto *row = Support::itemIn<Touch::BasicListItem>(m_scene.sheet.get(), "chooseFileItem");
    QVERIFY(row);
    QCOMPARE(row->title(), "Choose a file…");
    m_scene.tap(row);
    QVERIFY(files());
}

void TestToneFileSheet::follow(const QStringList &names)
{
    for (const QString &name : names) {
        const auto *model = list()->itemModel();
        int row = 0;
        while (row < model->rowCount() && model->index(row, 0).data().toString() != name)
            ++row;
        QTRY_VERIFY2(list()->cellAt(row), qPrintable(name));
        m_scene.tap(list()->cellAt(row));
    }
}

void TestToneFileSheet::aFileThatIsFoundIsHeardAndChosen()
{
    openFiles();
    follow({"Downloads", "Ringtones", "Bell_2.aac"});
    QTRY_VERIFY_WITH_TIMEOUT(!files(), Patience);
    QVERIFY(m_scene.sheet->isOnDisplay());
    QCOMPARE(m_scene.sheet->selectedFile(), m_folder + "/Bell_2.aac");
    QCOMPARE(m_scene.sheet->playedFile(), m_folder + "/Bell_2.aac");
    QVERIFY(m_scene.titles().contains("Bell 2"));
    QCOMPARE(notice(), QString());
    QTRY_VERIFY_WITH_TIMEOUT(m_scene.server.peak(300) > 0.1f, Patience);
    const auto *cells = m_scene.tones();
    const int row = int(m_scene.titles().indexOf("Bell 2"));
    QTRY_VERIFY(cells->cellAt(row) && m_scene.window->sceneRect().contains(cells->cellAt(row)->sceneBoundingRect()));
}

void TestToneFileSheet::doneTakesTheFile()
{
    openFiles();
    follow({"Downloads", "Ringtones", "Bell_2.aac"});
    QTRY_VERIFY_WITH_TIMEOUT(!files(), Patience);
    m_scene.done()->trigger();
    QCOMPARE(m_scene.tone->fileName(), m_folder + "/Bell_2.aac");
    QCOMPARE(m_scene.tone->niceName(), "Bell 2");
}

void TestToneFileSheet::aFileThatWouldNotBeHeardIsRefused_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text");
    QTest::newRow("no sound in it") << "broken.mp3"
                                    << "“broken” cannot be played. The tone stays as it was.";
    QTest::newRow("silence") << "silent.wav"
                             << "“silent” starts with silence and would not wake you. The tone stays as it was.";
}

void TestToneFileSheet::aFileThatWouldNotBeHeardIsRefused()
{
    QFETCH(QString, name);
    openFiles();
    follow({"Downloads", "Ringtones", name});
    QTRY_VERIFY_WITH_TIMEOUT(!notice().isEmpty(), Patience);
    QTEST(notice(), "text");
    QVERIFY2(files(), "another one can be chosen");
    QCOMPARE(m_scene.sheet->selectedFile(), shipped("Clock alert 1"));
    QCOMPARE(m_scene.sheet->playedFile(), QString());
    m_scene.done()->trigger();
    QCOMPARE(m_scene.tone->fileName(), shipped("Clock alert 1"));
}

void TestToneFileSheet::musicThatCannotBePlayedIsRefusedToo()
{
    const auto *cells = m_scene.tones();
    QTRY_VERIFY(cells->cellAt(0));
    QVERIFY(
        QMetaObject::invokeMethod(cells->cellAt(0), "clicked", Q_ARG(QString, Tones::musicFolder() + "/Zebra.mp3")));
    QTRY_COMPARE_WITH_TIMEOUT(notice(), "“Zebra crossing” cannot be played. The tone stays as it was.", Patience);
    QCOMPARE(m_scene.sheet->selectedFile(), shipped("Clock alert 1"));
    QCOMPARE(m_scene.sheet->playedFile(), QString());
}

void TestToneFileSheet::whatIsJudgedTooLateIsNotChosen()
{
    openFiles();
    follow({"Downloads", "Ringtones", "Bell_2.aac"});
    m_scene.sheet->dismiss();
    QVERIFY(!files());
    // What is judged later is told later.
    m_scene.sheet->appear(m_scene.window.get());
    openFiles();
    follow({"broken.mp3"});
    QTRY_VERIFY_WITH_TIMEOUT(!notice().isEmpty(), Patience);
    QCOMPARE(m_scene.sheet->selectedFile(), shipped("Clock alert 1"));
}

void TestToneFileSheet::cancelLeadsBackToTheTones()
{
    openFiles();
    follow({"Downloads"});
    const auto *header = qobject_cast<Touch::BasicSheetHeader *>(files()->headerWidget());
    QCOMPARE(header->negativeAction()->text(), "Cancel");
    QVERIFY(!header->positiveAction());
    header->negativeAction()->trigger();
    QVERIFY(!files());
    QVERIFY(m_scene.sheet->isOnDisplay());
    QCOMPARE(m_scene.sheet->selectedFile(), shipped("Clock alert 1"));
}

void TestToneFileSheet::escapeLeadsUpAndThenOut()
{
    openFiles();
    follow({"Downloads", "Ringtones"});
    QCOMPARE(files()->folder(), m_folder);
    m_scene.window->stepBack();
    QCOMPARE(files()->folder(), QFileInfo(m_folder).path());
    m_scene.window->stepBack();
    QCOMPARE(files()->folder(), QString());
    m_scene.window->stepBack();
    QVERIFY(!files());
    QVERIFY(m_scene.sheet->isOnDisplay());
}

void TestToneFileSheet::theNextTimeItStartsWhereItWasLeft()
{
    openFiles();
    follow({"Downloads", "Ringtones"});
    files()->dismiss();
    openFiles();
    QCOMPARE(files()->folder(), m_folder);
    follow({"Up to Downloads", "Up to Places"});
    QCOMPARE(files()->folder(), QString());
}

void TestToneFileSheet::itGoesWithTheTones()
{
    openFiles();
    m_scene.sheet->dismiss();
    QVERIFY(!files());
}

void TestToneFileSheet::aNoteTakesNoTap()
{
    openFiles();
    follow({"Downloads", "empty", "No sound files here"});
    QCOMPARE(files()->folder(), QDir::home().filePath("Downloads/empty"));
    QCOMPARE(list()->cellAt(1)->focusPolicy(), Qt::NoFocus);
    QCOMPARE(list()->cellAt(0)->focusPolicy(), Qt::TabFocus);
}

void TestToneFileSheet::everyRowIsTold()
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

void TestToneFileSheet::theSoundEndsWhileOneLooks()
{
    const auto *cells = m_scene.tones();
    QTRY_VERIFY(cells->cellAt(2));
    m_scene.tap(cells->cellAt(2));
    QCOMPARE(m_scene.sheet->playedFile(), shipped("Courier"));
    openFiles();
    QCOMPARE(m_scene.sheet->playedFile(), QString());
    QCOMPARE(m_scene.sheet->selectedFile(), shipped("Courier"));
}

void TestToneFileSheet::looks_data()
{
    addLooks();
}

void TestToneFileSheet::looks()
{
    QVERIFY(m_scene.openInLook());
    openFiles();
    QTRY_VERIFY(list()->cellAt(0));
    QVERIFY(m_scene.keepPicture("tonefiles", "places"));
    follow({"Downloads"});
    QTRY_VERIFY(list()->cellAt(2));
    QVERIFY(m_scene.keepPicture("tonefiles", "folders"));
    follow({"empty"});
    QTRY_COMPARE(list()->itemModel()->rowCount(), 2);
    QTRY_VERIFY(list()->cellAt(1));
    QVERIFY(m_scene.keepPicture("tonefiles", "empty"));
    follow({"Up to Downloads", "Ringtones", "silent.wav"});
    QTRY_VERIFY_WITH_TIMEOUT(!notice().isEmpty(), Patience);
    QVERIFY(m_scene.keepPicture("tonefiles", "refused"));
    follow({"Bell_2.aac"});
    QTRY_COMPARE_WITH_TIMEOUT(m_scene.sheet->selectedFile(), m_folder + "/Bell_2.aac", Patience);
    QCOMPARE(notice(), QString());
    QVERIFY(m_scene.keepPicture("tonefiles", "chosen"));
}

QTEST_MAIN(TestToneFileSheet)
#include "tst_tonefilesheet.moc"
