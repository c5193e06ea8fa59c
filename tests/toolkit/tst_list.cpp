// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/applicationpage.h"
#include "platform/toolkit/applicationwindow.h"
#include "platform/toolkit/list.h"
#include "platform/toolkit/pannableviewport.h"
#include "tools/gallery/rows.h"
#include "touch.h"

#include <QTest>

using namespace Touch;

namespace {

constexpr int rowHeight = 64;

} // namespace

class TestList : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void createsOnlyWhatCanBeSeen();
    void isAsTallAsItsRows();
    void usesItsCellsAgain();
    void showsEachRowInItsPlace();
    void updatesOnlyTheRowThatChanged();
    void makesRoomForAnInsertedRow();
    void closesTheGapOfARemovedRow();
    void animatesOnlyWhatTheModelSays();
    void finishesOneChangeBeforeTheNext();
    void keepsTheCellsOfAReloadedTable();
    void passesATapToItsCell();
    void doesNotClickACellThatIsPanned();
    void movesTheFocusByArrowKeys();
    void findsCellsByRowAndRowsByCell();
    void survivesItsModel();

private:
    int visibleCells() const;
    QString textAt(int row) const;
    void settle();

    ApplicationWindow *m_window = nullptr;
    ApplicationPage *m_page = nullptr;
    PannableViewport *m_viewport = nullptr;
    List *m_list = nullptr;
    Gallery::Rows *m_rows = nullptr;
    Gallery::RowCreator *m_creator = nullptr;
    int m_clicks = 0;
};

void TestList::init()
{
    m_window = new ApplicationWindow;
    m_page = new ApplicationPage;
    m_viewport = new PannableViewport(m_page->centralWidget());
    m_viewport->setGeometry(QRectF(0, 100, 480, 640));
    m_list = new List;
    m_creator = new Gallery::RowCreator;
    m_clicks = 0;
    m_creator->clicks = &m_clicks;
    m_list->setCellCreator(m_creator);
    m_rows = new Gallery::Rows(this);
    m_rows->fill(1000);
    m_list->setItemModel(m_rows);
    m_viewport->setWidget(m_list);
    m_page->appear(m_window);
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window));
    QTRY_COMPARE(visibleCells(), 12);
}

void TestList::cleanup()
{
    delete m_page;
    delete m_window;
    delete m_rows;
}

int TestList::visibleCells() const
{
    int count = 0;
    const QList<QGraphicsItem *> children = m_list->childItems();
    for (const QGraphicsItem *item : children)
        count += item->isVisible() ? 1 : 0;
    return count;
}

QString TestList::textAt(int row) const
{
    const auto *cell = qobject_cast<Button *>(m_list->cellAt(row));
    return cell ? cell->text() : QString();
}

/** Waits until no change is on its way any more. */
void TestList::settle()
{
    QTRY_COMPARE(m_list->size().height(), qMax(640.0, qreal(m_rows->rowCount()) * rowHeight));
    QTRY_COMPARE(m_list->cellAt(0) ? m_list->cellAt(0)->opacity() : 0, 1.0);
}

void TestList::createsOnlyWhatCanBeSeen()
{
    // Ten fit, one is cut, one is spare.
    QVERIFY(m_creator->made <= 30);
    QCOMPARE(m_list->childItems().size(), 12);
    QVERIFY(m_list->cellAt(0));
    QVERIFY(!m_list->cellAt(20));
}

void TestList::isAsTallAsItsRows()
{
    QCOMPARE(m_list->size(), QSizeF(480, 1000 * rowHeight));
    QCOMPARE(m_viewport->range(), QPointF(0, 1000 * rowHeight - 640));
}

void TestList::usesItsCellsAgain()
{
    for (int position = 0; position < 1000 * rowHeight; position += 200)
        m_viewport->setPosition(QPointF(0, position));
    QVERIFY2(m_creator->made <= 30, qPrintable(QString::number(m_creator->made)));
    QVERIFY(m_list->childItems().size() <= 30);
    m_viewport->setPosition(QPointF(0, 500 * rowHeight));
    QCOMPARE(textAt(500), QStringLiteral("Row 500"));
    QCOMPARE(visibleCells(), 13);
}

void TestList::showsEachRowInItsPlace()
{
    m_viewport->setPosition(QPointF(0, 10 * rowHeight + 30));
    for (int row = 10; row < 20; ++row) {
        QCOMPARE(m_list->cellAt(row)->geometry(), QRectF(0, row * rowHeight, 480, rowHeight));
        QCOMPARE(textAt(row), QStringLiteral("Row %1").arg(row));
    }
}

void TestList::updatesOnlyTheRowThatChanged()
{
    const int before = m_creator->updated;
    m_rows->change(3, QStringLiteral("New"));
    m_rows->change(3, QStringLiteral("Newer"));
    m_rows->change(700, QStringLiteral("Unseen"));
    QTRY_COMPARE(textAt(3), QStringLiteral("Newer"));
    QCOMPARE(m_creator->updated, before + 1);
}

void TestList::makesRoomForAnInsertedRow()
{
    const Widget *below = m_list->cellAt(2);
    m_rows->insert(2, QStringLiteral("Inserted"));
    QTRY_COMPARE(textAt(2), QStringLiteral("Inserted"));
    QVERIFY(m_list->cellAt(2)->opacity() < 1);
    QVERIFY(below->y() < 3 * rowHeight);
    settle();
    QTRY_COMPARE(m_list->cellAt(2)->opacity(), 1.0);
    QCOMPARE(m_list->cellAt(3), below);
    QCOMPARE(below->y(), 3.0 * rowHeight);
}

void TestList::closesTheGapOfARemovedRow()
{
    const Widget *below = m_list->cellAt(3);
    m_rows->remove(2);
    QTRY_VERIFY(below->y() < 3 * rowHeight);
    settle();
    QTRY_COMPARE(below->y(), 2.0 * rowHeight);
    QCOMPARE(textAt(2), QStringLiteral("Row 3"));
    QCOMPARE(visibleCells(), 12);
}

void TestList::animatesOnlyWhatTheModelSays()
{
    m_rows->fill(20);
    QTRY_COMPARE(m_list->size().height(), 20.0 * rowHeight);
    QVERIFY(!m_rows->isAnimated());
    for (int row = 0; row < 10; ++row)
        QCOMPARE(m_list->cellAt(row)->opacity(), 1.0);
}

void TestList::finishesOneChangeBeforeTheNext()
{
    m_rows->insert(0, QStringLiteral("A"));
    m_rows->insert(0, QStringLiteral("B"));
    m_rows->remove(1);
    m_rows->remove(0);
    m_rows->insert(1, QStringLiteral("C"));
    settle();
    QTRY_COMPARE(textAt(1), QStringLiteral("C"));
    QTRY_COMPARE(m_list->cellAt(1)->opacity(), 1.0);
    QCOMPARE(textAt(0), QStringLiteral("Row 0"));
    QCOMPARE(textAt(2), QStringLiteral("Row 1"));
    QCOMPARE(visibleCells(), 12);
}

void TestList::keepsTheCellsOfAReloadedTable()
{
    const Widget *third = m_list->cellAt(3);
    m_rows->fill(1000);
    QTRY_COMPARE(textAt(3), QStringLiteral("Row 3"));
    QCOMPARE(m_list->cellAt(3), third);
    QVERIFY(m_creator->made <= 30);
}

void TestList::passesATapToItsCell()
{
    Finger::tap(*m_window, m_list->cellAt(2));
    QCOMPARE(m_clicks, 1);
}

void TestList::doesNotClickACellThatIsPanned()
{
    Finger::press(*m_window, m_viewport, {200, 300});
    Finger::moveTo(*m_window, m_viewport, {200, 294});
    QVERIFY(!m_viewport->isPanning());
    Finger::moveTo(*m_window, m_viewport, {200, 280});
    QVERIFY(m_viewport->isPanning());
    Finger::moveTo(*m_window, m_viewport, {200, 240});
    QCOMPARE(m_viewport->position().y(), 40.0);
    Finger::release(*m_window, m_viewport, {200, 240});
    QCOMPARE(m_clicks, 0);
    QTRY_VERIFY(!m_viewport->isMoving());
}

void TestList::movesTheFocusByArrowKeys()
{
    m_list->cellAt(0)->setFocus(Qt::TabFocusReason);
    for (int i = 0; i < 15; ++i)
        QTest::keyClick(m_window, Qt::Key_Down);
    QVERIFY(m_list->cellAt(15));
    QVERIFY(m_list->cellAt(15)->hasFocus());
    QVERIFY(m_viewport->position().y() >= 16 * rowHeight - 640);
    QTest::keyClick(m_window, Qt::Key_Up);
    QVERIFY(m_list->cellAt(14)->hasFocus());
}

void TestList::findsCellsByRowAndRowsByCell()
{
    QCOMPARE(m_list->rowOf(m_list->cellAt(4)), 4);
    QCOMPARE(m_list->rowOf(m_page), -1);
}

void TestList::survivesItsModel()
{
    delete m_rows;
    m_rows = nullptr;
    QTRY_COMPARE(visibleCells(), 0);
}

QTEST_MAIN(TestList)
#include "tst_list.moc"
