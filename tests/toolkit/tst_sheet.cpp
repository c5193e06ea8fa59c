// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/applicationpage.h"
#include "platform/toolkit/applicationwindow.h"
#include "platform/toolkit/basicsheetheader.h"
#include "platform/toolkit/button.h"
#include "platform/toolkit/layout.h"
#include "platform/toolkit/linearlayoutpolicy.h"
#include "platform/toolkit/moveclock_p.h"
#include "platform/toolkit/sheet.h"
#include "platform/toolkit/stylablewidget.h"
#include "touch.h"

#include <memory>
#include <QAction>
#include <QSignalSpy>
#include <QTest>

using namespace Touch;

namespace {

qint64 now = 0; ///< of the finger, in milliseconds

} // namespace

class TestSheet : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void givesItsContentTheRoomBelowItsHeader();
    void squeezesWhatCanBeSqueezed();
    void pansWhatCannot();
    void growsWithItsContent();
    void isLeftByASwipeOfItsHeader_data();
    void isLeftByASwipeOfItsHeader();
    void slidesBackWhereItIsNotLeft();
    void showsWhatItCoveredWhileItIsDrawn();
    void isNotDrawnByItsContent();
    void aTapOnItsHeaderIsNoSwipe();

private:
    /** Moves a finger that is down, in some milliseconds of its own time. */
    void moveTo(const QPointF &place, int milliseconds);
    void swipe(const QPointF &from, const QPointF &to, int milliseconds);
    qreal top() const { return m_sheet->headerWidget()->geometry().bottom(); }

    std::unique_ptr<ApplicationWindow> m_window;
    std::unique_ptr<ApplicationPage> m_page;
    std::unique_ptr<Sheet> m_sheet;
    StylableWidget *m_block = nullptr; ///< fills most of the sheet
    Button *m_button = nullptr;        ///< the last thing on it
    QAction m_cancel;
};

void TestSheet::initTestCase()
{
    qputenv("CLOCK_REDUCED_MOTION", "1");
    m_cancel.setText(QStringLiteral("Cancel"));
    setMoveClock([] { return now; });
}

void TestSheet::init()
{
    m_window = std::make_unique<ApplicationWindow>();
    m_page = std::make_unique<ApplicationPage>();
    m_page->appear(m_window.get());
    m_sheet = std::make_unique<Sheet>();
    auto *header = new BasicSheetHeader;
    header->setNegativeAction(&m_cancel);
    m_sheet->setHeaderWidget(header);
    m_block = new StylableWidget;
    m_button = new Button(QStringLiteral("Delete"));
    auto *column = new LinearLayoutPolicy(new Layout(m_sheet->centralWidget()), Qt::Vertical);
    column->addItem(m_block);
    column->addItem(m_button);
    m_sheet->appear(m_window.get());
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void TestSheet::cleanup()
{
    m_sheet.reset();
    m_page.reset();
    m_window.reset();
}

void TestSheet::givesItsContentTheRoomBelowItsHeader()
{
    QTRY_COMPARE(m_sheet->centralWidget()->sceneBoundingRect(), QRectF(0, top(), 480, 854 - top()));
}

void TestSheet::squeezesWhatCanBeSqueezed()
{
    m_block->setPreferredHeight(2000);
    m_block->setMinimumHeight(10);
    QTRY_COMPARE(m_button->sceneBoundingRect().bottom(), 854.0);
    Finger::drag(*m_window, m_sheet.get(), {240, 600}, {240, 200});
    QCOMPARE(m_sheet->centralWidget()->sceneBoundingRect().top(), top());
}

void TestSheet::pansWhatCannot()
{
    m_block->setMinimumHeight(900);
    QTRY_VERIFY(m_button->sceneBoundingRect().top() > 854);
    Finger::drag(*m_window, m_sheet.get(), {240, 700}, {240, 300});
    QTRY_COMPARE(m_button->sceneBoundingRect().bottom(), 854.0);
    QVERIFY(m_sheet->headerWidget()->isVisible());
    QCOMPARE(m_sheet->headerWidget()->sceneBoundingRect().top(), 0.0);
}

void TestSheet::growsWithItsContent()
{
    QTRY_COMPARE(m_button->sceneBoundingRect().bottom(), 854.0);
    m_block->setMinimumHeight(900);
    QTRY_VERIFY(m_button->sceneBoundingRect().bottom() > 854);
    m_button->setFocus(Qt::TabFocusReason);
    QTRY_COMPARE(m_button->sceneBoundingRect().bottom(), 854.0);
    QVERIFY(m_sheet->centralWidget()->sceneBoundingRect().top() < top());
}

void TestSheet::moveTo(const QPointF &place, int milliseconds)
{
    now += milliseconds;
    // In the window: the sheet moves along.
    Finger::moveTo(*m_window, m_page.get(), place);
}

void TestSheet::swipe(const QPointF &from, const QPointF &to, int milliseconds)
{
    constexpr int steps = 10;
    Finger::press(*m_window, m_page.get(), from);
    for (int i = 1; i <= steps; ++i)
        moveTo(from + (to - from) * i / steps, milliseconds / steps);
    Finger::release(*m_window, m_page.get(), to);
}

void TestSheet::isLeftByASwipeOfItsHeader_data()
{
    QTest::addColumn<QPointF>("from");
    QTest::addColumn<qreal>("distance");
    QTest::addColumn<int>("milliseconds");
    QTest::newRow("far") << QPointF(240, 30) << 400.0 << 2000;
    QTest::newRow("fast") << QPointF(240, 30) << 150.0 << 100;
    QTest::newRow("from its button") << QPointF(40, 30) << 400.0 << 2000;
}

void TestSheet::isLeftByASwipeOfItsHeader()
{
    QFETCH(QPointF, from);
    QFETCH(qreal, distance);
    QFETCH(int, milliseconds);
    const QSignalSpy cancelled(&m_cancel, &QAction::triggered);
    const auto leave = connect(&m_cancel, &QAction::triggered, m_sheet.get(), &Sheet::dismiss);
    swipe(from, from + QPointF(0, distance), milliseconds);
    disconnect(leave);
    QCOMPARE(cancelled.count(), 1);
    QVERIFY(!m_sheet->isOnDisplay());
    m_sheet->appear(m_window.get());
    QCOMPARE(m_sheet->y(), 0.0);
}

void TestSheet::slidesBackWhereItIsNotLeft()
{
    const QSignalSpy cancelled(&m_cancel, &QAction::triggered);
    swipe({240, 30}, {240, 130}, 1000);
    QCOMPARE(cancelled.count(), 0);
    QTRY_COMPARE(m_sheet->y(), 0.0);
    Finger::press(*m_window, m_page.get(), {240, 30});
    moveTo({240, 60}, 50);
    moveTo({240, 500}, 500);
    QCOMPARE(m_sheet->y(), 440.0);
    moveTo({240, 460}, 50);
    Finger::release(*m_window, m_page.get(), {240, 460});
    QVERIFY2(cancelled.count() == 0, "a finger on its way back has changed its mind");
    QTRY_COMPARE(m_sheet->y(), 0.0);
    swipe({240, 30}, {240, 430}, 2000);
    QCOMPARE(cancelled.count(), 1);
    QVERIFY2(m_sheet->isOnDisplay(), "whether it closes is for the action");
    QTRY_COMPARE(m_sheet->y(), 0.0);
}

void TestSheet::showsWhatItCoveredWhileItIsDrawn()
{
    QVERIFY(!m_page->isVisible());
    Finger::press(*m_window, m_page.get(), {240, 30});
    moveTo({240, 50}, 20);
    moveTo({240, 150}, 100);
    QCOMPARE(m_sheet->y(), 100.0);
    QVERIFY(m_page->isVisible());
    moveTo({240, 20}, 100);
    QCOMPARE(m_sheet->y(), 0.0);
    QVERIFY(!m_page->isVisible());
    Finger::release(*m_window, m_page.get(), {240, 20});
}

void TestSheet::isNotDrawnByItsContent()
{
    const QSignalSpy cancelled(&m_cancel, &QAction::triggered);
    swipe({240, 300}, {240, 700}, 500);
    swipe({60, 30}, {420, 60}, 500);
    QCOMPARE(cancelled.count(), 0);
    QCOMPARE(m_sheet->y(), 0.0);
}

void TestSheet::aTapOnItsHeaderIsNoSwipe()
{
    const QSignalSpy cancelled(&m_cancel, &QAction::triggered);
    Finger::press(*m_window, m_page.get(), {40, 30});
    moveTo({40, 36}, 20);
    Finger::release(*m_window, m_page.get(), {40, 36});
    QCOMPARE(cancelled.count(), 1);
    QCOMPARE(m_sheet->y(), 0.0);
}

QTEST_MAIN(TestSheet)
#include "tst_sheet.moc"
