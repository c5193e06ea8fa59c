// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/navigationbar_p.h"

#include "platform/toolkit/applicationpage.h"
#include "platform/toolkit/applicationwindow.h"
#include "platform/toolkit/button.h"
#include "platform/toolkit/label.h"
#include "platform/toolkit/theme.h"
#include "platform/toolkit/topedge_p.h"
#include "tests/support/look/items.h"
#include "touch.h"

#include <memory>
#include <QScopeGuard>
#include <QTest>

using namespace Touch;

/** The chrome that a page shows of itself. */
class TestNavigationBar : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void isAboveTheContentWhereItIsShown();
    void isNotMadeWhereItIsHidden();
    void comesAndGoesWithItsMode();
    void leadsBackFromAPageAboveAnother();
    void leadsHomeFromTheFirstPage();
    void leavesOutAButtonThatIsHidden();
    void slidesInOverTheContentAtATouchOfTheEdge();
    void leavesAgainByItself();
    void comesToTheKeyboard();
    void isMirrored();
    void itsButtonsGrowWithTheText();

private:
    NavigationBar *barOf(ApplicationPage &page) const;

    std::unique_ptr<ApplicationWindow> m_window;
    std::unique_ptr<ApplicationPage> m_page;
};

void TestNavigationBar::initTestCase()
{
    qputenv("CLOCK_REDUCED_MOTION", "1");
}

void TestNavigationBar::init()
{
    m_window = std::make_unique<ApplicationWindow>();
    m_page = std::make_unique<ApplicationPage>();
    m_page->setTitle(QStringLiteral("Alarms"));
    m_page->setComponentsDisplayMode(ApplicationPage::NavigationBar, ApplicationPage::Show);
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void TestNavigationBar::cleanup()
{
    m_page.reset();
    m_window.reset();
}

NavigationBar *TestNavigationBar::barOf(ApplicationPage &page) const
{
    return Support::itemIn<NavigationBar>(&page, QStringLiteral("navigationBar"));
}

void TestNavigationBar::isAboveTheContentWhereItIsShown()
{
    m_page->appear(m_window.get());
    const NavigationBar *bar = barOf(*m_page);
    QVERIFY(bar && bar->isVisible());
    QCOMPARE(bar->geometry().topLeft(), QPointF(0, 0));
    QCOMPARE(bar->size().width(), 480.0);
    QVERIFY(bar->size().height() >= 48);
    QCOMPARE(m_page->centralWidget()->geometry(), QRectF(0, bar->size().height(), 480, 854 - bar->size().height()));
    QCOMPARE(bar->accessibleName(), QStringLiteral("Alarms"));
    m_page->setTitle(QStringLiteral("Clocks"));
    QCOMPARE(bar->accessibleName(), QStringLiteral("Clocks"));
}

void TestNavigationBar::isNotMadeWhereItIsHidden()
{
    m_page = std::make_unique<ApplicationPage>();
    m_page->appear(m_window.get());
    QVERIFY(!barOf(*m_page));
    QCOMPARE(m_page->childItems().size(), 1);
    QCOMPARE(m_page->centralWidget()->size(), QSizeF(480, 854));
    ApplicationPage other;
    other.setComponentsDisplayMode(ApplicationPage::AllComponents, ApplicationPage::Hide);
    other.appear(m_window.get());
    QVERIFY(!barOf(other));
}

void TestNavigationBar::comesAndGoesWithItsMode()
{
    m_page->setComponentsDisplayMode(ApplicationPage::NavigationBar, ApplicationPage::Hide);
    m_page->appear(m_window.get());
    m_page->setComponentsDisplayMode(ApplicationPage::NavigationBar, ApplicationPage::Show);
    QVERIFY(barOf(*m_page)->isVisible());
    QVERIFY(m_page->centralWidget()->size().height() < 854);
    m_page->setComponentsDisplayMode(ApplicationPage::NavigationBar, ApplicationPage::Hide);
    QVERIFY(!barOf(*m_page)->isVisible());
    QCOMPARE(m_page->centralWidget()->size(), QSizeF(480, 854));
}

void TestNavigationBar::leadsBackFromAPageAboveAnother()
{
    m_page->appear(m_window.get());
    ApplicationPage second;
    second.setComponentsDisplayMode(ApplicationPage::NavigationBar, ApplicationPage::Show);
    second.appear(m_window.get());
    const NavigationBar *bar = barOf(second);
    QVERIFY(bar->escapeButton()->isVisible());
    QVERIFY(!bar->homeButton()->isVisible());
    QVERIFY(bar->escapeButton()->size().width() >= 48 && bar->escapeButton()->size().height() >= 48);
    Finger::tap(*m_window, bar->escapeButton());
    QVERIFY(!second.isOnDisplay());
    QCOMPARE(m_window->currentPage(), m_page.get());
}

void TestNavigationBar::leadsHomeFromTheFirstPage()
{
    m_page->appear(m_window.get());
    const NavigationBar *bar = barOf(*m_page);
    QVERIFY(!bar->escapeButton()->isVisible());
    QVERIFY(bar->homeButton()->isVisible());
    Finger::tap(*m_window, bar->homeButton());
    QVERIFY(m_window->isMinimized());
    QVERIFY(m_page->isOnDisplay());
}

void TestNavigationBar::leavesOutAButtonThatIsHidden()
{
    m_page->setComponentsDisplayMode(ApplicationPage::HomeButton, ApplicationPage::Hide);
    m_page->appear(m_window.get());
    QVERIFY(!barOf(*m_page)->homeButton()->isVisible());
    ApplicationPage second;
    second.setComponentsDisplayMode(ApplicationPage::NavigationBar, ApplicationPage::Show);
    second.setComponentsDisplayMode(ApplicationPage::EscapeButton, ApplicationPage::Hide);
    second.appear(m_window.get());
    QVERIFY(!barOf(second)->escapeButton()->isVisible());
}

void TestNavigationBar::slidesInOverTheContentAtATouchOfTheEdge()
{
    qputenv("CLOCK_REDUCED_MOTION", "0");
    m_page->setComponentsDisplayMode(ApplicationPage::NavigationBar, ApplicationPage::AutoHide);
    m_page->appear(m_window.get());
    const NavigationBar *bar = barOf(*m_page);
    QVERIFY(!bar->isVisible());
    QCOMPARE(m_page->centralWidget()->size(), QSizeF(480, 854));
    Finger::press(*m_window, m_page.get(), {240, 300});
    Finger::release(*m_window, m_page.get(), {240, 300});
    QVERIFY(!bar->isVisible());
    Finger::drag(*m_window, m_page.get(), {240, 4}, {240, 90});
    QTRY_COMPARE(bar->geometry().top(), 0.0);
    QVERIFY(bar->isVisible());
    QCOMPARE(m_page->centralWidget()->size(), QSizeF(480, 854));
    qputenv("CLOCK_REDUCED_MOTION", "1");
}

void TestNavigationBar::leavesAgainByItself()
{
    m_page->setComponentsDisplayMode(ApplicationPage::NavigationBar, ApplicationPage::AutoHide);
    m_page->appear(m_window.get());
    const NavigationBar *bar = barOf(*m_page);
    Finger::press(*m_window, m_page.get(), {240, 4});
    Finger::release(*m_window, m_page.get(), {240, 4});
    QVERIFY(bar->isVisible());
    QTRY_VERIFY_WITH_TIMEOUT(!bar->isVisible(), 30000);
}

void TestNavigationBar::comesToTheKeyboard()
{
    m_page->setComponentsDisplayMode(ApplicationPage::NavigationBar, ApplicationPage::AutoHide);
    m_page->appear(m_window.get());
    const NavigationBar *bar = barOf(*m_page);
    QTest::keyClick(m_window.get(), Qt::Key_Tab);
    QVERIFY(bar->isVisible());
    QVERIFY(bar->homeButton()->hasFocus());
}

void TestNavigationBar::isMirrored()
{
    m_page->appear(m_window.get());
    const Button *home = barOf(*m_page)->homeButton();
    QTRY_VERIFY(home->sceneBoundingRect().center().x() > 400);
    m_page->setLayoutDirection(Qt::RightToLeft);
    QTRY_VERIFY(home->sceneBoundingRect().center().x() < 80);
}

void TestNavigationBar::itsButtonsGrowWithTheText()
{
    m_page->appear(m_window.get());
    const Button *home = barOf(*m_page)->homeButton();
    QTRY_COMPARE(home->size(), QSizeF(48, 48));
    QCOMPARE(home->style().iconSize, QSizeF(24, 24));
    Theme::instance().setTextScale(2);
    const auto restore = qScopeGuard([] { Theme::instance().setTextScale(1); });
    QTRY_COMPARE(home->size(), QSizeF(60, 60));
    QCOMPARE(home->style().iconSize, QSizeF(36, 36));
}

QTEST_MAIN(TestNavigationBar)
#include "tst_navigationbar.moc"
