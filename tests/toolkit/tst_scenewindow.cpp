// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/applicationpage.h"
#include "platform/toolkit/applicationwindow.h"
#include "platform/toolkit/basicsheetheader.h"
#include "platform/toolkit/button.h"
#include "platform/toolkit/sheet.h"
#include "platform/toolkit/textedit.h"
#include "touch.h"

#include <QAction>
#include <QGraphicsScene>
#include <QPointer>
#include <QSignalSpy>
#include <QStyleHints>
#include <QTest>

using namespace Touch;

namespace {

class Page : public ApplicationPage
{
public:
    void createContent() override
    {
        ApplicationPage::createContent();
        ++created;
        button = new Button(QStringLiteral("Open"), centralWidget());
        button->setGeometry(QRectF(0, 0, 480, 800));
    }

    int created = 0;
    Button *button = nullptr;
};

/** A widget that counts when it comes on display and goes. */
class Ticker : public Widget
{
public:
    using Widget::Widget;
    int entered = 0;
    int exited = 0;

protected:
    void enterDisplay() override { ++entered; }
    void exitDisplay() override { ++exited; }
};

void record(SceneWindow *window, QStringList *names)
{
    QObject::connect(window, &SceneWindow::appeared, window, [names] { *names << QStringLiteral("appeared"); });
    QObject::connect(window, &SceneWindow::disappeared, window, [names] { *names << QStringLiteral("disappeared"); });
    QObject::connect(window, &SceneWindow::dismissed, window, [names] { *names << QStringLiteral("dismissed"); });
}

} // namespace

class TestSceneWindow : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void createsItsContentOnce();
    void fillsItsWindowAndNamesIt();
    void appearsInTheActiveWindowByDefault();
    void tellsWhatHappensInOrder();
    void isOnDisplayUntilItIsToldToGo();
    void appearsAtOnceInAWindowThatIsNotShown();
    void isDeletedByItsPolicy_data();
    void isDeletedByItsPolicy();
    void survivesItsWindowIfKept();
    void keepsInputFromWhatASheetCovers();
    void takesInputDuringItsTransition();
    void takesNoInputOnceItGoes();
    void goesOneStepBackOnEscapeAndClose();
    void leavesASheetAsItsNegativeAction();
    void closesAtOnceWhenTold();
    void givesTheSecondTapToNothingNew_data();
    void givesTheSecondTapToNothingNew();
    void givesTheSecondTapToWhatTookTheFirst();
    void givesTheFocusBack();
    void stopsWhatTicksWhileItIsCovered();
    void remembersTheDisplayModesOfComponents();
    void showsTheActionsOfItsHeader();
    void canAppearAgainWhileItGoes();

private:
    ApplicationWindow *m_window = nullptr;
    Page *m_page = nullptr;
};

void TestSceneWindow::init()
{
    m_window = new ApplicationWindow;
    m_page = new Page;
    m_page->setTitle(QStringLiteral("Main"));
    m_page->appear(m_window);
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window));
}

void TestSceneWindow::cleanup()
{
    delete m_page;
    delete m_window;
}

void TestSceneWindow::createsItsContentOnce()
{
    Page page;
    QVERIFY(!page.isContentCreated());
    page.appear(m_window);
    QCOMPARE(page.created, 1);
    QVERIFY(page.isContentCreated());
    page.disappear();
    page.appear(m_window);
    QCOMPARE(page.created, 1);
}

void TestSceneWindow::fillsItsWindowAndNamesIt()
{
    QCOMPARE(m_window->size(), QSize(480, 854));
    QCOMPARE(m_page->geometry(), QRectF(0, 0, 480, 854));
    QCOMPARE(m_page->centralWidget()->size(), QSizeF(480, 854));
    QCOMPARE(m_window->windowTitle(), QStringLiteral("Main"));
    m_page->setTitle(QStringLiteral("Other"));
    QCOMPARE(m_window->windowTitle(), QStringLiteral("Other"));
    QCOMPARE(m_window->currentPage(), m_page);
    m_window->resize(400, 700);
    QTRY_COMPARE(m_page->size(), QSizeF(400, 700));
}

void TestSceneWindow::appearsInTheActiveWindowByDefault()
{
    Sheet sheet;
    sheet.appear();
    QCOMPARE(sheet.scene(), m_window->scene());
}

void TestSceneWindow::tellsWhatHappensInOrder()
{
    Sheet sheet;
    QStringList names;
    record(&sheet, &names);
    sheet.appear(m_window);
    QVERIFY(names.isEmpty());
    QTRY_COMPARE(names, QStringList(QStringLiteral("appeared")));
    names.clear();
    sheet.dismiss();
    QVERIFY(names.isEmpty());
    QTRY_COMPARE(names, (QStringList{QStringLiteral("disappeared"), QStringLiteral("dismissed")}));
    names.clear();
    sheet.appear(m_window);
    QTRY_COMPARE(names, QStringList(QStringLiteral("appeared")));
    sheet.disappear();
    QTRY_COMPARE(names, (QStringList{QStringLiteral("appeared"), QStringLiteral("disappeared")}));
    sheet.dismiss();
    QCOMPARE(names.size(), 2);
}

void TestSceneWindow::isOnDisplayUntilItIsToldToGo()
{
    Sheet sheet;
    QVERIFY(!sheet.isOnDisplay());
    sheet.appear(m_window);
    QVERIFY(sheet.isOnDisplay());
    QVERIFY(sheet.isInTransition());
    QTRY_VERIFY(!sheet.isInTransition());
    QVERIFY(m_page->isOnDisplay());
    sheet.dismiss();
    QVERIFY(!sheet.isOnDisplay());
    QTRY_VERIFY(!sheet.isVisible());
}

void TestSceneWindow::appearsAtOnceInAWindowThatIsNotShown()
{
    ApplicationWindow hidden;
    Sheet sheet;
    const QSignalSpy appeared(&sheet, &SceneWindow::appeared);
    sheet.appear(&hidden);
    QCOMPARE(appeared.count(), 1);
    QVERIFY(!sheet.isInTransition());
}

void TestSceneWindow::isDeletedByItsPolicy_data()
{
    QTest::addColumn<SceneWindow::DeletionPolicy>("policy");
    QTest::addColumn<bool>("isDismissed");
    QTest::addColumn<bool>("isDeleted");
    QTest::newRow("kept, dismissed") << SceneWindow::KeepWhenDone << true << false;
    QTest::newRow("done, disappeared") << SceneWindow::DestroyWhenDone << false << true;
    QTest::newRow("done, dismissed") << SceneWindow::DestroyWhenDone << true << true;
    QTest::newRow("dismissed, disappeared") << SceneWindow::DestroyWhenDismissed << false << false;
    QTest::newRow("dismissed, dismissed") << SceneWindow::DestroyWhenDismissed << true << true;
}

void TestSceneWindow::isDeletedByItsPolicy()
{
    QFETCH(SceneWindow::DeletionPolicy, policy);
    QFETCH(bool, isDismissed);
    QFETCH(bool, isDeleted);
    const QPointer<Sheet> sheet = new Sheet;
    QSignalSpy disappeared(sheet, &SceneWindow::disappeared);
    sheet->appear(m_window, policy);
    if (isDismissed)
        sheet->dismiss();
    else
        sheet->disappear();
    QVERIFY(disappeared.wait());
    QTRY_COMPARE(sheet.isNull(), isDeleted);
    delete sheet;
}

void TestSceneWindow::survivesItsWindowIfKept()
{
    auto *window = new ApplicationWindow;
    const QPointer<Sheet> kept = new Sheet;
    const QPointer<Sheet> owned = new Sheet;
    kept->appear(window);
    owned->appear(window, SceneWindow::DestroyWhenDone);
    delete window;
    QVERIFY(kept);
    QVERIFY(!owned);
    QVERIFY(!kept->isOnDisplay());
    kept->appear(m_window);
    QCOMPARE(kept->scene(), m_window->scene());
    delete kept;
}

void TestSceneWindow::keepsInputFromWhatASheetCovers()
{
    const QSignalSpy clicked(m_page->button, &Button::clicked);
    Finger::tap(*m_window, m_page->button);
    QCOMPARE(clicked.count(), 1);
    Sheet sheet;
    sheet.appear(m_window);
    QTRY_VERIFY(!sheet.isInTransition());
    QVERIFY(!m_page->isVisible());
    Finger::tap(*m_window, m_page->button);
    QCOMPARE(clicked.count(), 1);
    sheet.dismiss();
    QVERIFY(m_page->isVisible());
}

void TestSceneWindow::takesInputDuringItsTransition()
{
    Sheet sheet;
    auto *button = new Button(QStringLiteral("Save"), sheet.centralWidget());
    button->setGeometry(QRectF(100, 100, 100, 60));
    const QSignalSpy clicked(button, &Button::clicked);
    const QSignalSpy below(m_page->button, &Button::clicked);
    sheet.appear(m_window);
    QVERIFY(sheet.isInTransition());
    QTest::mouseClick(m_window->viewport(), Qt::LeftButton, {}, QPoint(150, 130));
    QCOMPARE(clicked.count(), 1);
    QCOMPARE(below.count(), 0);
    QVERIFY(!sheet.isInTransition());
}

void TestSceneWindow::takesNoInputOnceItGoes()
{
    Sheet sheet;
    auto *button = new Button(QStringLiteral("Save"), sheet.centralWidget());
    button->setGeometry(QRectF(100, 100, 100, 60));
    const QSignalSpy clicked(button, &Button::clicked);
    const QSignalSpy below(m_page->button, &Button::clicked);
    sheet.appear(m_window);
    QTRY_VERIFY(!sheet.isInTransition());
    sheet.dismiss();
    QTest::mouseClick(m_window->viewport(), Qt::LeftButton, {}, QPoint(150, 130));
    QCOMPARE(clicked.count(), 0);
    QCOMPARE(below.count(), 1);
}

void TestSceneWindow::goesOneStepBackOnEscapeAndClose()
{
    Sheet first;
    Sheet second;
    const QSignalSpy firstDismissed(&first, &SceneWindow::dismissed);
    const QSignalSpy secondDismissed(&second, &SceneWindow::dismissed);
    first.appear(m_window);
    second.appear(m_window);
    QTest::keyClick(m_window, Qt::Key_Escape);
    QTRY_COMPARE(secondDismissed.count(), 1);
    QCOMPARE(firstDismissed.count(), 0);
    m_window->close();
    QTRY_COMPARE(firstDismissed.count(), 1);
    QVERIFY(m_window->isVisible());
    QTest::keyClick(m_window, Qt::Key_Escape);
    QVERIFY(!m_window->isVisible());
}

void TestSceneWindow::leavesASheetAsItsNegativeAction()
{
    Sheet sheet;
    auto *header = new BasicSheetHeader;
    QAction cancel(QStringLiteral("Cancel"), nullptr);
    header->setNegativeAction(&cancel);
    sheet.setHeaderWidget(header);
    const QSignalSpy cancelled(&cancel, &QAction::triggered);
    sheet.appear(m_window);
    QTest::keyClick(m_window, Qt::Key_Escape);
    QCOMPARE(cancelled.count(), 1);
    QVERIFY2(sheet.isOnDisplay(), "whether it closes is for the action");
    m_window->close();
    QCOMPARE(cancelled.count(), 2);
    QVERIFY(m_window->isVisible());
}

void TestSceneWindow::closesAtOnceWhenTold()
{
    Sheet sheet;
    sheet.appear(m_window);
    m_window->closeAtOnce();
    QVERIFY(!m_window->isVisible());
    m_window->show();
    m_window->close();
    QVERIFY2(m_window->isVisible(), "only that once");
}

void TestSceneWindow::givesTheSecondTapToNothingNew_data()
{
    QTest::addColumn<QEvent::Type>("second");
    QTest::addColumn<int>("delay");
    QTest::addColumn<QPoint>("shift");
    QTest::addColumn<bool>("isTaken");
    const int interval = QGuiApplication::styleHints()->mouseDoubleClickInterval();
    QTest::newRow("double click") << QEvent::MouseButtonDblClick << interval / 2 << QPoint() << false;
    QTest::newRow("two presses") << QEvent::MouseButtonPress << interval / 2 << QPoint(12, 12) << false;
    QTest::newRow("later") << QEvent::MouseButtonPress << interval * 2 << QPoint() << true;
    QTest::newRow("elsewhere") << QEvent::MouseButtonPress << interval / 2 << QPoint(0, 200) << true;
}

void TestSceneWindow::givesTheSecondTapToNothingNew()
{
    QFETCH(QEvent::Type, second);
    QFETCH(int, delay);
    QFETCH(QPoint, shift);
    QFETCH(bool, isTaken);
    Sheet sheet;
    auto *above = new Button(QStringLiteral("Save"), sheet.centralWidget());
    above->setGeometry(QRectF(0, 0, 480, 800));
    connect(m_page->button, &Button::clicked, &sheet, [this, &sheet] { sheet.appear(m_window); });
    connect(above, &Button::clicked, &sheet, &Sheet::dismiss);
    const QSignalSpy taken(above, &Button::clicked);
    const QPoint place(200, 300);
    quint64 time = 5000;
    Finger::send(*m_window, QEvent::MouseButtonPress, place, time);
    Finger::send(*m_window, QEvent::MouseButtonRelease, place, time + 20);
    QVERIFY(sheet.isOnDisplay());
    time += quint64(delay);
    Finger::send(*m_window, second, place + shift, time);
    Finger::send(*m_window, QEvent::MouseButtonRelease, place + shift, time + 20);
    QCOMPARE(taken.count(), isTaken ? 1 : 0);
    if (isTaken)
        return;
    // Once the double tap is over, the sheet's button works; the same goes for what closing it brings up.
    time += 10000;
    Finger::send(*m_window, QEvent::MouseButtonPress, place, time);
    Finger::send(*m_window, QEvent::MouseButtonRelease, place, time + 20);
    QCOMPARE(taken.count(), 1);
    Finger::send(*m_window, second, place + shift, time + quint64(delay));
    Finger::send(*m_window, QEvent::MouseButtonRelease, place + shift, time + quint64(delay) + 20);
    QVERIFY2(!sheet.isOnDisplay(), "the page's button did not open it again");
}

void TestSceneWindow::givesTheSecondTapToWhatTookTheFirst()
{
    const QSignalSpy clicked(m_page->button, &Button::clicked);
    const QPoint place(200, 300);
    Finger::send(*m_window, QEvent::MouseButtonPress, place, 5000);
    Finger::send(*m_window, QEvent::MouseButtonRelease, place, 5020);
    Finger::send(*m_window, QEvent::MouseButtonDblClick, place, 5100);
    Finger::send(*m_window, QEvent::MouseButtonRelease, place, 5120);
    QCOMPARE(clicked.count(), 2);
}

void TestSceneWindow::givesTheFocusBack()
{
    auto *field = new TextEdit(m_page->centralWidget());
    field->setGeometry(QRectF(0, 0, 200, 60));
    field->setFocus(Qt::OtherFocusReason);
    QVERIFY(field->hasFocus());
    const QSignalSpy lost(field, &TextEdit::lostFocus);
    Sheet sheet;
    sheet.appear(m_window);
    QCOMPARE(lost.count(), 1);
    QVERIFY(sheet.hasFocus());
    QTRY_VERIFY(!sheet.isInTransition());
    sheet.dismiss();
    QVERIFY(field->hasFocus());
}

void TestSceneWindow::stopsWhatTicksWhileItIsCovered()
{
    auto *ticker = new Ticker(m_page->centralWidget());
    QTRY_COMPARE(ticker->entered, 1);
    Sheet sheet;
    sheet.appear(m_window);
    QTRY_COMPARE(ticker->exited, 1);
    sheet.dismiss();
    QCOMPARE(ticker->entered, 2);
    m_window->hide();
    QCOMPARE(ticker->exited, 2);
    QVERIFY(!ticker->isOnDisplay());
    m_window->show();
    QCOMPARE(ticker->entered, 3);
}

void TestSceneWindow::remembersTheDisplayModesOfComponents()
{
    QCOMPARE(m_page->componentDisplayMode(ApplicationPage::HomeButton), ApplicationPage::Show);
    m_page->setComponentsDisplayMode(ApplicationPage::AllComponents, ApplicationPage::Hide);
    m_page->setComponentsDisplayMode(ApplicationPage::EscapeButton, ApplicationPage::AutoHide);
    QCOMPARE(m_page->componentDisplayMode(ApplicationPage::HomeButton), ApplicationPage::Hide);
    QCOMPARE(m_page->componentDisplayMode(ApplicationPage::EscapeButton), ApplicationPage::AutoHide);
    QCOMPARE(m_page->componentDisplayMode(ApplicationPage::NavigationBar), ApplicationPage::Hide);
}

void TestSceneWindow::showsTheActionsOfItsHeader()
{
    Sheet sheet;
    auto *header = new BasicSheetHeader;
    QAction cancel(QStringLiteral("Cancel"), nullptr);
    QAction save(QStringLiteral("Save"), nullptr);
    header->setNegativeAction(&cancel);
    header->setPositiveAction(&save);
    sheet.setHeaderWidget(header);
    sheet.appear(m_window);
    QTRY_VERIFY(!sheet.isInTransition());
    auto *left = findItem<Button>(header, QStringLiteral("negativeButton"));
    auto *right = findItem<Button>(header, QStringLiteral("positiveButton"));
    QCOMPARE(left->text(), QStringLiteral("Cancel"));
    QVERIFY(left->geometry().right() < right->geometry().left());
    QVERIFY(right->size().height() >= 48);
    QCOMPARE(header->geometry().bottom(), sheet.centralWidget()->geometry().top());
    const QSignalSpy triggered(&save, &QAction::triggered);
    Finger::tap(*m_window, right);
    QCOMPARE(triggered.count(), 1);
    save.setEnabled(false);
    save.setText(QStringLiteral("Keep"));
    QCOMPARE(right->text(), QStringLiteral("Keep"));
    Finger::tap(*m_window, right);
    QCOMPARE(triggered.count(), 1);
}

void TestSceneWindow::canAppearAgainWhileItGoes()
{
    Sheet sheet;
    QStringList names;
    record(&sheet, &names);
    sheet.appear(m_window);
    QTRY_VERIFY(!sheet.isInTransition());
    sheet.disappear();
    sheet.appear(m_window);
    QVERIFY(sheet.isOnDisplay());
    QTRY_COMPARE(names,
                 (QStringList{QStringLiteral("appeared"), QStringLiteral("disappeared"), QStringLiteral("appeared")}));
    QVERIFY(sheet.isVisible());
    QCOMPARE(sheet.y(), 0.0);
}

QTEST_MAIN(TestSceneWindow)
#include "tst_scenewindow.moc"
