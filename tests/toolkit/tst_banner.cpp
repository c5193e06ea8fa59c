// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/applicationpage.h"
#include "platform/toolkit/applicationwindow.h"
#include "platform/toolkit/banner.h"
#include "platform/toolkit/button.h"
#include "touch.h"

#include <QSignalSpy>
#include <QTest>

using namespace Touch;

class TestBanner : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void goesByItself();
    void showsThreeSecondsUnlessTold();
    void makesWayForTheNext();
    void goesAtATap();
    void takesNeitherFocusNorBackStep();
    void fitsItsTitle();
    void fitsTheNextTitle();
    void showsTheNextTextAtOnce();
    void isAnAlertForThoseWhoDoNotSeeIt();

private:
    ApplicationWindow *m_window = nullptr;
    ApplicationPage *m_page = nullptr;
};

void TestBanner::init()
{
    m_window = new ApplicationWindow;
    m_page = new ApplicationPage;
    m_page->appear(m_window);
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window));
}

void TestBanner::cleanup()
{
    delete m_page;
    delete m_window;
}

void TestBanner::goesByItself()
{
    Banner banner;
    banner.setDisplayTime(50);
    const QSignalSpy disappeared(&banner, &SceneWindow::disappeared);
    const QSignalSpy dismissed(&banner, &SceneWindow::dismissed);
    banner.appear();
    QVERIFY(banner.isOnDisplay());
    QTRY_COMPARE(disappeared.count(), 1);
    QVERIFY(!banner.isOnDisplay());
    QCOMPARE(dismissed.count(), 0);
}

void TestBanner::showsThreeSecondsUnlessTold()
{
    const Banner banner;
    QCOMPARE(banner.displayTime(), 3000);
}

void TestBanner::makesWayForTheNext()
{
    Banner first;
    Banner second;
    first.appear(m_window);
    second.appear(m_window);
    QVERIFY(!first.isOnDisplay());
    QVERIFY(second.isOnDisplay());
    QTRY_VERIFY(!first.isVisible());
}

void TestBanner::goesAtATap()
{
    Banner banner;
    banner.setTitle(QStringLiteral("Saved"));
    banner.appear(m_window);
    Finger::tap(*m_window, &banner);
    QVERIFY(!banner.isOnDisplay());
}

void TestBanner::takesNeitherFocusNorBackStep()
{
    auto *button = new Button(QStringLiteral("Below"), m_page->centralWidget());
    button->setGeometry(QRectF(0, 0, 200, 60));
    button->setFocus(Qt::OtherFocusReason);
    Banner banner;
    banner.appear(m_window);
    QVERIFY(button->hasFocus());
    QVERIFY(m_page->isVisible());
    const QSignalSpy clicked(button, &Button::clicked);
    Finger::tap(*m_window, button);
    QCOMPARE(clicked.count(), 1);
    QVERIFY(!m_window->stepBack());
}

void TestBanner::fitsItsTitle()
{
    Banner banner;
    banner.setTitle(QStringLiteral("Short"));
    banner.appear(m_window);
    const QRectF small = banner.geometry();
    banner.setTitle(QStringLiteral("A much longer text that certainly does not fit on one line of a narrow window, so "
                                   "that the banner has to grow"));
    QVERIFY(banner.size().height() > small.height());
    QVERIFY(banner.size().width() <= m_page->size().width());
    QCOMPARE(banner.geometry().bottom(), small.bottom());
    QVERIFY(qAbs(banner.geometry().center().x() - m_page->size().width() / 2) <= 1);
}

void TestBanner::fitsTheNextTitle()
{
    Banner banner;
    banner.setTitle(QStringLiteral("Short"));
    banner.appear(m_window);
    const QRectF small = banner.geometry();
    banner.disappear();
    banner.setTitle(QStringLiteral("Longer, but one line"));
    banner.appear(m_window);
    QVERIFY(banner.size().width() > small.width());
    QCOMPARE(banner.size().height(), small.height());
}

void TestBanner::showsTheNextTextAtOnce()
{
    Banner banner;
    banner.setTitle(QStringLiteral("First"));
    banner.appear(m_window);
    banner.disappear();
    banner.setTitle(QStringLiteral("Second"));
    banner.appear(m_window);
    QVERIFY(banner.isOnDisplay());
    QTRY_VERIFY(!banner.isInTransition());
    QVERIFY(banner.isVisible());
    QCOMPARE(banner.opacity(), 1.0);
    QCOMPARE(banner.title(), QStringLiteral("Second"));
}

void TestBanner::isAnAlertForThoseWhoDoNotSeeIt()
{
    Banner banner;
    banner.setTitle(QStringLiteral("Saved"));
    banner.appear(m_window);
    QAccessibleInterface *alert = QAccessible::queryAccessibleInterface(&banner);
    QCOMPARE(alert->role(), QAccessible::AlertMessage);
    QCOMPARE(alert->text(QAccessible::Name), QStringLiteral("Saved"));
}

QTEST_MAIN(TestBanner)
#include "tst_banner.moc"
