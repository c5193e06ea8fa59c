// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/applicationpage.h"
#include "platform/toolkit/applicationwindow.h"
#include "platform/toolkit/list.h"
#include "platform/toolkit/pannableviewport.h"
#include "tools/gallery/rows.h"
#include "touch.h"

#include <memory>
#include <QTest>

using namespace Touch;

/** A list of fifty rows that is worked by keyboard. */
class TestListKeys : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void movesFromRowToRow();
    void staysAtTheEnds();
    void movesByPages();
    void movesToTheFirstAndTheLast();
    void tabVisitsTheRowsInTheirOrder();
    void keepsThePlaceOfARowThatIsPannedAway();
    void goesOnInTheNextRowWhenOneIsRemoved();
    void followsItsRowWhenOthersComeAndGo();
    void staysInItsRowWhenAllAreReadAgain();

private:
    int focusedRow() const;
    bool isInSight(int row) const;
    void press(Qt::Key key) { QTest::keyClick(m_window.get(), key); }
    int rowsInSight() const;

    std::unique_ptr<ApplicationWindow> m_window;
    std::unique_ptr<ApplicationPage> m_page;
    std::unique_ptr<Gallery::Rows> m_rows;
    PannableViewport *m_viewport = nullptr;
    List *m_list = nullptr;
};

void TestListKeys::initTestCase()
{
    qputenv("CLOCK_REDUCED_MOTION", "1");
}

void TestListKeys::init()
{
    m_window = std::make_unique<ApplicationWindow>();
    m_page = std::make_unique<ApplicationPage>();
    m_rows = std::make_unique<Gallery::Rows>();
    m_rows->fill(50);
    m_viewport = new PannableViewport(m_page->centralWidget());
    m_viewport->setGeometry(QRectF(0, 0, 480, 800));
    m_list = new List;
    m_list->setCellCreator(new Gallery::RowCreator);
    m_list->setItemModel(m_rows.get());
    m_viewport->setWidget(m_list);
    m_page->appear(m_window.get());
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    QTRY_VERIFY(m_list->cellAt(2));
    press(Qt::Key_Tab);
    QCOMPARE(focusedRow(), 0);
}

void TestListKeys::cleanup()
{
    m_page.reset();
    m_window.reset();
}

int TestListKeys::focusedRow() const
{
    return m_list->rowOf(m_window->scene()->focusItem());
}

bool TestListKeys::isInSight(int row) const
{
    const Widget *cell = m_list->cellAt(row);
    return cell && m_viewport->sceneBoundingRect().contains(cell->sceneBoundingRect());
}

int TestListKeys::rowsInSight() const
{
    return int(m_viewport->size().height() / m_list->cellAt(focusedRow())->size().height());
}

void TestListKeys::movesFromRowToRow()
{
    for (int row = 1; row < 30; ++row) {
        press(Qt::Key_Down);
        QCOMPARE(focusedRow(), row);
        QVERIFY(isInSight(row));
    }
    press(Qt::Key_Up);
    QCOMPARE(focusedRow(), 28);
}

void TestListKeys::staysAtTheEnds()
{
    press(Qt::Key_Up);
    QCOMPARE(focusedRow(), 0);
    press(Qt::Key_End);
    press(Qt::Key_Down);
    QCOMPARE(focusedRow(), 49);
}

void TestListKeys::movesByPages()
{
    const int page = rowsInSight() - 1;
    QVERIFY(page > 2 && page < 20);
    press(Qt::Key_PageDown);
    QVERIFY(qAbs(focusedRow() - page) <= 1);
    QVERIFY(isInSight(focusedRow()));
    const int first = focusedRow();
    press(Qt::Key_PageDown);
    QCOMPARE(focusedRow(), 2 * first);
    press(Qt::Key_PageUp);
    QVERIFY(qAbs(focusedRow() - first) <= 1);
    press(Qt::Key_PageUp);
    press(Qt::Key_PageUp);
    QCOMPARE(focusedRow(), 0);
}

void TestListKeys::movesToTheFirstAndTheLast()
{
    press(Qt::Key_End);
    QCOMPARE(focusedRow(), 49);
    QVERIFY(isInSight(49));
    press(Qt::Key_Home);
    QCOMPARE(focusedRow(), 0);
    QVERIFY(isInSight(0));
}

void TestListKeys::tabVisitsTheRowsInTheirOrder()
{
    // Panned to and fro, the cells are other ones than those that were made first.
    m_viewport->setPosition({0, 1500});
    m_viewport->setPosition({0, 0});
    QTRY_COMPARE(focusedRow(), 0);
    for (int row = 1; row < 50; ++row) {
        press(Qt::Key_Tab);
        QCOMPARE(focusedRow(), row);
        QVERIFY(isInSight(row));
    }
}

void TestListKeys::keepsThePlaceOfARowThatIsPannedAway()
{
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    m_viewport->setPosition({0, 1500});
    QVERIFY(!m_list->cellAt(2));
    QVERIFY(m_list->hasFocus());
    m_viewport->setPosition({0, 0});
    QCOMPARE(focusedRow(), 2);
    m_viewport->setPosition({0, 1500});
    press(Qt::Key_Down);
    QCOMPARE(focusedRow(), 3);
    QVERIFY(isInSight(3));
    m_viewport->setPosition({0, 1500});
    press(Qt::Key_Tab);
    QCOMPARE(focusedRow(), 3);
}

void TestListKeys::goesOnInTheNextRowWhenOneIsRemoved()
{
    press(Qt::Key_Down);
    m_rows->remove(1);
    QTRY_COMPARE(focusedRow(), 1);
    QCOMPARE(static_cast<Button *>(m_list->cellAt(1))->text(), QStringLiteral("Row 2"));
    press(Qt::Key_End);
    m_rows->remove(48);
    QTRY_COMPARE(focusedRow(), 47);
}

void TestListKeys::followsItsRowWhenOthersComeAndGo()
{
    press(Qt::Key_Down);
    m_rows->insert(0, QStringLiteral("First"));
    QTRY_COMPARE(focusedRow(), 2);
    m_rows->remove(0);
    QTRY_COMPARE(focusedRow(), 1);
    QCOMPARE(static_cast<Button *>(m_list->cellAt(1))->text(), QStringLiteral("Row 1"));
}

void TestListKeys::staysInItsRowWhenAllAreReadAgain()
{
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    m_rows->fill(0);
    QTRY_VERIFY(!m_list->cellAt(0));
    m_rows->fill(50);
    QTRY_COMPARE(focusedRow(), 2);
}

QTEST_MAIN(TestListKeys)
#include "tst_listkeys.moc"
