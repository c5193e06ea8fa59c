// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "editor/alarmeditorlistitem.h"
#include "editor/alarmoptionspage.h"
#include "platform/clockwidgets/alerttonebrowsersheet.h"
#include "platform/sparql/qsparqlconnection.h"
#include "platform/sparql/qsparqlresult.h"
#include "platform/tones/tonefiller.h"
#include "platform/toolkit/basicsheetheader.h"
#include "platform/toolkit/list.h"
#include "tests/editor/editortest.h"
#include "tests/support/places.h"

#include <QAction>
#include <QDir>
#include <QFile>
#include <QUrl>

namespace {

QString shipped(const QString &name)
{
    return Places::sharedData("sounds/ring-tones/" + name + ".aac");
}

} // namespace

class TestAlarmToneSelection : public EditorTest
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void aToneIsShownByItsTitle_data();
    void aToneIsShownByItsTitle();
    void aToneWithoutATitleIsNamedAfterItsFile_data();
    void aToneWithoutATitleIsNamedAfterItsFile();
    void theTitleIsAskedForEachTimeTheSheetAppears();
    void anAnsweredQuestionIsForgotten();
    void aNewQuestionLeavesTheOneBeforeIt();
    void aStoreOutOfOrderLeavesTheNameOfTheFile();
    void shippedTonesAreFoundOnceTheirFolderIsRead();
    void theToneChosenIsTaken();
    void theBrowserIsMadeOnce();
    void cancellingTakesTheToneBackButNotItsName();
    void aToneTakenBackCanBeChosenAgain();
    void resettingClosesTheBrowser();

private:
    QString file(const QString &name);
    void remember(const QString &path, const QString &title);
    /** Shows the sheet with a tone and waits for its name. */
    void open(const QString &path);
    AlarmEditorListItem *toneItem() const
    {
        return Support::itemIn<AlarmEditorListItem>(m_options.get(), "toneBasicListItem");
    }
    QString shownTone() const { return toneItem()->subtitle(); }
    AlertToneBrowserSheet *browser() const;
    /** Opens the browser, taps the tone of this title, and is done. */
    void choose(const QString &title);

    QSparqlConnection m_store{"QTRACKER"};
    std::unique_ptr<AlarmOptionsPage> m_options;
};

void TestAlarmToneSelection::initTestCase()
{
    startStage();
    QVERIFY(QDir(m_folder.path()).mkdir("tones"));
}

void TestAlarmToneSelection::init()
{
    QSettings("Korvo", "Clock").clear();
    m_options = std::make_unique<AlarmOptionsPage>();
}

void TestAlarmToneSelection::cleanup()
{
    m_options.reset();
    closePage();
}

QString TestAlarmToneSelection::file(const QString &name)
{
    const QString path = m_folder.filePath("tones/" + name);
    QFile tone(path);
    return tone.open(QIODevice::WriteOnly) ? path : QString();
}

void TestAlarmToneSelection::remember(const QString &path, const QString &title)
{
    const QString address = QString::fromLatin1(QUrl::fromLocalFile(path).toEncoded());
    const QString text = QStringLiteral("insert data { [] a nfo:FileDataObject ; a nmm:MusicPiece ; "
                                        "nie:url \"%1\" ; nie:title \"%2\" }");
    auto *result = m_store.exec(QSparqlQuery(text.arg(address, title), QSparqlQuery::InsertStatement));
    QTRY_VERIFY_WITH_TIMEOUT(result->isFinished(), 30000);
    QVERIFY2(!result->hasError(), qPrintable(result->lastError().message()));
}

void TestAlarmToneSelection::open(const QString &path)
{
    m_options->load(Support::addAlarm(QTime(7, 5)), path, 10);
    QCOMPARE(m_options->tone(), path);
    m_options->appear();
    QVERIFY(m_options->isOnDisplay());
    QTRY_VERIFY_WITH_TIMEOUT(!shownTone().isEmpty(), 30000);
}

AlertToneBrowserSheet *TestAlarmToneSelection::browser() const
{
    return Support::shownIn<AlertToneBrowserSheet>(m_options->hostWindow());
}

void TestAlarmToneSelection::choose(const QString &title)
{
    emit toneItem()->clicked();
    QVERIFY(browser());
    auto *list = Support::itemIn<Touch::List>(browser());
    const QAbstractItemModel *tones = list->itemModel();
    int row = 0;
    while (row < tones->rowCount() && tones->index(row, 0).data().toString() != title)
        ++row;
    QTRY_VERIFY(list->cellAt(row));
    list->cellAt(row)->setFocus(Qt::TabFocusReason);
    QTest::keyClick(m_options->hostWindow(), Qt::Key_Space);
    QCOMPARE(browser()->selectedFile(), shipped(title));
    qobject_cast<Touch::BasicSheetHeader *>(browser()->headerWidget())->positiveAction()->trigger();
    QVERIFY(!browser());
}

void TestAlarmToneSelection::aToneIsShownByItsTitle_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("title");
    QTest::newRow("plain") << "plain.aac"
                           << "Plain title";
    QTest::newRow("blanks in the path") << "with some blanks.aac"
                                        << "Blank title";
    QTest::newRow("other letters in the path") << "Früh_am_朝.aac"
                                               << "Früh am 朝";
    QTest::newRow("quotation marks in the path") << "a\"b'c.aac"
                                                 << "Quoted title";
    QTest::newRow("what an address escapes") << "50% #1 [a]?.aac"
                                             << "Escaped title";
}

void TestAlarmToneSelection::aToneIsShownByItsTitle()
{
    QFETCH(QString, name);
    QFETCH(QString, title);
    const QString path = file(name);
    remember(path, title);
    open(path);
    QCOMPARE(shownTone(), title);
}

void TestAlarmToneSelection::aToneWithoutATitleIsNamedAfterItsFile_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("shown");
    QTest::newRow("underscores") << "Morning_bell_2.aac"
                                 << "Morning bell 2";
    QTest::newRow("several dots") << "a.b.c.aac"
                                  << "a.b.c";
    QTest::newRow("no dot") << "whole"
                            << "whole";
    QTest::newRow("no sound") << "No sound.aac"
                              << "qtn_sond_ringtone_nosound";
    QTest::newRow("no sound, written otherwise") << "No_sound.wav"
                                                 << "qtn_sond_ringtone_nosound";
    QTest::newRow("nearly no sound") << "No sounds.aac"
                                     << "No sounds";
}

void TestAlarmToneSelection::aToneWithoutATitleIsNamedAfterItsFile()
{
    QFETCH(QString, name);
    open(file(name));
    QTEST(shownTone(), "shown");
}

void TestAlarmToneSelection::theTitleIsAskedForEachTimeTheSheetAppears()
{
    const QString path = file("learned_later.aac");
    open(path);
    QCOMPARE(shownTone(), "learned later");
    remember(path, "The title");
    m_options->cancel();
    QCOMPARE(shownTone(), "learned later");
    m_options->appear();
    QTRY_COMPARE(shownTone(), "The title");
}

void TestAlarmToneSelection::anAnsweredQuestionIsForgotten()
{
    m_options->load(Support::addAlarm(QTime(7, 5)), file("Morning_bell.aac"), 10);
    m_options->appear();
    QCOMPARE(m_options->findChildren<QSparqlResult *>().size(), 1);
    QTRY_COMPARE(shownTone(), "Morning bell");
    QTRY_COMPARE(m_options->findChildren<QSparqlResult *>().size(), 0);
}

void TestAlarmToneSelection::aNewQuestionLeavesTheOneBeforeIt()
{
    m_options->load(Support::addAlarm(QTime(7, 5)), file("Morning_bell.aac"), 10);
    m_options->appear();
    m_options->cancel();
    m_options->appear();
    QCOMPARE(m_options->findChildren<QSparqlResult *>().size(), 2);
    QTRY_COMPARE(m_options->findChildren<QSparqlResult *>().size(), 0);
    QCOMPARE(shownTone(), "Morning bell");
}

void TestAlarmToneSelection::aStoreOutOfOrderLeavesTheNameOfTheFile()
{
    // A file where the store's folder has to be.
    const QByteArray before = qgetenv("XDG_CACHE_HOME");
    qputenv("XDG_CACHE_HOME", file("no_folder").toUtf8());
    m_options = std::make_unique<AlarmOptionsPage>();
    qputenv("XDG_CACHE_HOME", before);
    open(file("Morning_bell.aac"));
    QCOMPARE(shownTone(), "Morning bell");
}

void TestAlarmToneSelection::shippedTonesAreFoundOnceTheirFolderIsRead()
{
    Tones::ToneFiller filler;
    QSignalSpy filled(&filler, &Tones::ToneFiller::filled);
    filler.start();
    QVERIFY(filled.wait(60000));
    open(shipped("Glass Garden"));
    QCOMPARE(shownTone(), "Glass Garden");
}

void TestAlarmToneSelection::theToneChosenIsTaken()
{
    open(file("Morning_bell.aac"));
    const QString chosen = shipped("Harbour");
    choose("Harbour");
    QCOMPARE(m_options->tone(), chosen);
    QCOMPARE(shownTone(), "Harbour");
    m_options->save();
    QCOMPARE(QSettings("Korvo", "Clock").value("Clock/DefaultTone").toString(), chosen);
}

void TestAlarmToneSelection::theBrowserIsMadeOnce()
{
    open(file("Morning_bell.aac"));
    m_options->toneClicked();
    const auto *first = browser();
    QVERIFY(first);
    QCOMPARE(browser()->selectedFile(), m_options->tone());
    QVERIFY(m_options->hostWindow()->stepBack());
    QVERIFY(!browser());
    m_options->toneClicked();
    QCOMPARE(browser(), first);
}

void TestAlarmToneSelection::cancellingTakesTheToneBackButNotItsName()
{
    const QString before = file("Morning_bell.aac");
    open(before);
    choose("Harbour");
    m_options->cancel();
    QCOMPARE(m_options->tone(), before);
    QCOMPARE(shownTone(), "Harbour");
    m_options->appear();
    QTRY_COMPARE(shownTone(), "Morning bell");
}

void TestAlarmToneSelection::aToneTakenBackCanBeChosenAgain()
{
    open(file("Morning_bell.aac"));
    const QString chosen = shipped("Harbour");
    choose("Harbour");
    m_options->cancel();
    m_options->appear();
    QTRY_COMPARE(shownTone(), "Morning bell");
    choose("Harbour");
    QCOMPARE(m_options->tone(), chosen);
    QCOMPARE(shownTone(), "Harbour");
}

void TestAlarmToneSelection::resettingClosesTheBrowser()
{
    open(file("Morning_bell.aac"));
    m_options->toneClicked();
    QVERIFY(browser());
    m_options->resetContent();
    QVERIFY(!browser());
    QVERIFY(m_options->isOnDisplay());
}

QTEST_MAIN(TestAlarmToneSelection)
#include "tst_alarmtoneselection.moc"
