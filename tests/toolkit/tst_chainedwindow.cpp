// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/applicationpage.h"
#include "platform/toolkit/applicationwindow.h"
#include "platform/toolkit/basicsheetheader.h"
#include "platform/toolkit/sheet.h"

#include <memory>
#include <QAction>
#include <QSignalSpy>
#include <QTest>
#include <QWindow>

using namespace Touch;

class TestChainedWindow : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void chainsOnlyTheNextWindow();
    void showsItselfOverTheOther();
    void isTheActiveOneUntilItCloses();
    void closesBackWithItsLastSceneWindow();
    void staysForWhatReplacesItsLast();
    void leavesItsSheetOnEscapeAndClose();
    void hasAnOrientationOfItsOwn();
    void isInvertedByItsStyleName();
    void survivesTheOther();

private:
    std::unique_ptr<ApplicationWindow> makeChained() const;

    std::unique_ptr<ApplicationWindow> m_first;
    std::unique_ptr<ApplicationPage> m_page;
};

void TestChainedWindow::initTestCase()
{
    qputenv("CLOCK_REDUCED_MOTION", "1");
}

void TestChainedWindow::init()
{
    m_first = std::make_unique<ApplicationWindow>();
    m_page = std::make_unique<ApplicationPage>();
    m_page->setTitle(QStringLiteral("Clock"));
    m_page->appear(m_first.get());
    m_first->setGeometry(40, 60, 400, 700);
    m_first->show();
    m_first->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_first.get()));
}

void TestChainedWindow::cleanup()
{
    m_page.reset();
    m_first.reset();
}

std::unique_ptr<ApplicationWindow> TestChainedWindow::makeChained() const
{
    ApplicationWindow::pushChainingData(m_first->winId(), m_page->title());
    return std::make_unique<ApplicationWindow>();
}

void TestChainedWindow::chainsOnlyTheNextWindow()
{
    const auto chained = makeChained();
    QCOMPARE(chained->chainedTo(), m_first.get());
    QCOMPARE(chained->chainedTitle(), QStringLiteral("Clock"));
    QCOMPARE(chained->windowTitle(), QStringLiteral("Clock"));
    const ApplicationWindow other;
    QVERIFY(!other.chainedTo());
}

void TestChainedWindow::showsItselfOverTheOther()
{
    const auto chained = makeChained();
    QVERIFY(!chained->isVisible());
    Sheet sheet;
    sheet.appear(chained.get());
    QVERIFY(chained->isVisible());
    QCOMPARE(chained->geometry(), m_first->geometry());
    QCOMPARE(chained->windowHandle()->transientParent(), m_first->windowHandle());
    QCOMPARE(chained->windowModality(), Qt::WindowModal);
    QCOMPARE(sheet.size(), QSizeF(400, 700));
}

void TestChainedWindow::isTheActiveOneUntilItCloses()
{
    const auto chained = makeChained();
    QCOMPARE(Window::active(), m_first.get());
    Sheet sheet;
    sheet.appear(chained.get());
    QTRY_COMPARE(Window::active(), chained.get());
    Sheet second;
    second.appear();
    QCOMPARE(second.scene(), chained->scene());
    second.dismiss();
    sheet.dismiss();
    QTRY_COMPARE(Window::active(), m_first.get());
}

void TestChainedWindow::closesBackWithItsLastSceneWindow()
{
    const auto chained = makeChained();
    for (int visit = 0; visit < 2; ++visit) {
        Sheet sheet;
        sheet.appear(chained.get());
        QVERIFY(chained->isVisible());
        sheet.dismiss();
        QTRY_VERIFY(!chained->isVisible());
        QVERIFY(m_first->isVisible());
    }
}

void TestChainedWindow::staysForWhatReplacesItsLast()
{
    const auto chained = makeChained();
    Sheet sheet;
    Sheet next;
    sheet.appear(chained.get());
    sheet.dismiss();
    next.appear(chained.get());
    QCoreApplication::processEvents();
    QVERIFY(chained->isVisible());
}

void TestChainedWindow::leavesItsSheetOnEscapeAndClose()
{
    const auto chained = makeChained();
    Sheet sheet;
    auto *header = new BasicSheetHeader;
    QAction cancel(QStringLiteral("Cancel"), nullptr);
    header->setNegativeAction(&cancel);
    sheet.setHeaderWidget(header);
    sheet.appear(chained.get());
    const QSignalSpy cancelled(&cancel, &QAction::triggered);
    QTest::keyClick(chained.get(), Qt::Key_Escape);
    QCOMPARE(cancelled.count(), 1);
    chained->close();
    QCOMPARE(cancelled.count(), 2);
    QVERIFY(sheet.isOnDisplay());
    connect(&cancel, &QAction::triggered, &sheet, &Sheet::dismiss);
    chained->close();
    QVERIFY(!sheet.isOnDisplay());
    QTRY_VERIFY(!chained->isVisible());
    QVERIFY(m_first->isVisible());
}

void TestChainedWindow::hasAnOrientationOfItsOwn()
{
    const QSignalSpy turned(m_first.get(), &Window::orientationChanged);
    m_first->resize(800, 480);
    QTRY_COMPARE(m_first->orientation(), Qt::Horizontal);
    QCOMPARE(turned.count(), 1);
    const auto chained = makeChained();
    chained->setOrientation(Qt::Vertical);
    chained->setOrientationLocked(true);
    Sheet sheet;
    sheet.appear(chained.get());
    QTRY_COMPARE(chained->size(), m_first->size());
    QCOMPARE(chained->orientation(), Qt::Vertical);
}

void TestChainedWindow::isInvertedByItsStyleName()
{
    const auto chained = makeChained();
    QVERIFY(!chained->isInverted());
    chained->setStyleName(QStringLiteral("CommonApplicationWindowInverted"));
    QVERIFY(chained->isInverted());
    QVERIFY(!m_first->isInverted());
}

void TestChainedWindow::survivesTheOther()
{
    const auto chained = makeChained();
    Sheet sheet;
    sheet.appear(chained.get());
    m_page.reset();
    m_first.reset();
    QVERIFY(!chained->chainedTo());
    QVERIFY(sheet.isOnDisplay());
}

QTEST_MAIN(TestChainedWindow)
#include "tst_chainedwindow.moc"
