// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/applicationpage.h"
#include "platform/toolkit/applicationwindow.h"
#include "platform/toolkit/banner.h"
#include "platform/toolkit/basicsheetheader.h"
#include "platform/toolkit/button.h"
#include "platform/toolkit/messagebox.h"
#include "platform/toolkit/sheet.h"
#include "tests/support/look/items.h"
#include "touch.h"

#include <memory>
#include <QAction>
#include <QGraphicsScene>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>
#include <QVariantAnimation>

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
    void stopsWhatTicksWhileItIsCovered();
    void remembersTheDisplayModesOfComponents();
    void showsTheActionsOfItsHeader();
    void canAppearAgainWhileItGoes();
    void movesForAFifthToAQuarterOfASecond_data();
    void movesForAFifthToAQuarterOfASecond();
    void pansItsPageOnlyIfItMay();

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
    QCOMPARE(int(ApplicationPage::HomeButton), 1);
    QCOMPARE(int(ApplicationPage::EscapeButton), 2);
    QCOMPARE(int(ApplicationPage::NavigationBar), 4);
    QCOMPARE(int(ApplicationPage::Show), 0);
    QCOMPARE(int(ApplicationPage::AutoHide), 1);
    QCOMPARE(int(ApplicationPage::Hide), 2);
    QCOMPARE(m_page->componentDisplayMode(ApplicationPage::HomeButton), ApplicationPage::Show);
    QCOMPARE(m_page->componentDisplayMode(ApplicationPage::NavigationBar), ApplicationPage::Hide);
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
    auto *left = Support::itemIn<Button>(header, QStringLiteral("negativeButton"));
    auto *right = Support::itemIn<Button>(header, QStringLiteral("positiveButton"));
    QCOMPARE(left->text(), QStringLiteral("Cancel"));
    QVERIFY(left->geometry().right() < right->geometry().left());
    QVERIFY(right->size().height() >= 48);
    QCOMPARE(header->geometry().bottom(), sheet.centralWidget()->sceneBoundingRect().top());
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

void TestSceneWindow::movesForAFifthToAQuarterOfASecond_data()
{
    QTest::addColumn<SceneWindow *>("sceneWindow");
    QTest::newRow("page") << static_cast<SceneWindow *>(new ApplicationPage);
    QTest::newRow("sheet") << static_cast<SceneWindow *>(new Sheet);
    QTest::newRow("dialog") << static_cast<SceneWindow *>(new MessageBox(QStringLiteral("Title")));
    QTest::newRow("banner") << static_cast<SceneWindow *>(new Banner);
}

void TestSceneWindow::movesForAFifthToAQuarterOfASecond()
{
    QFETCH(SceneWindow *, sceneWindow);
    const std::unique_ptr<SceneWindow> owner(sceneWindow);
    const auto duration = [sceneWindow] {
        const auto *animation = sceneWindow->findChild<QVariantAnimation *>({}, Qt::FindDirectChildrenOnly);
        return animation && animation->state() == QAbstractAnimation::Running ? animation->duration() : 0;
    };
    sceneWindow->appear(m_window);
    QVERIFY(duration() >= 200 && duration() <= 250);
    QTRY_VERIFY(!sceneWindow->isInTransition());
    sceneWindow->dismiss();
    QVERIFY(duration() >= 200 && duration() <= 250);
}

void TestSceneWindow::pansItsPageOnlyIfItMay()
{
    QVERIFY(!m_page->isPannable());
    m_page->centralWidget()->setPreferredHeight(2000);
    QCOMPARE(m_page->centralWidget()->size(), QSizeF(480, 854));
    m_page->setPannable(true);
    QTRY_COMPARE(m_page->centralWidget()->size(), QSizeF(480, 2000));
    const QPoint from(240, 820);
    Finger::drag(*m_window, m_page, from, QPointF(240, 400));
    QTRY_VERIFY(m_page->centralWidget()->y() < -300);
    m_page->setPannable(false);
    QCOMPARE(m_page->centralWidget()->y(), 0.0);
    QCOMPARE(m_page->centralWidget()->size(), QSizeF(480, 854));
}

QTEST_MAIN(TestSceneWindow)
#include "tst_scenewindow.moc"
