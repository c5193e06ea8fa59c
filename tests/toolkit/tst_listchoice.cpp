// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/applicationpage.h"
#include "platform/toolkit/applicationwindow.h"
#include "platform/toolkit/label.h"
#include "platform/toolkit/list.h"
#include "platform/toolkit/pannableviewport.h"
#include "platform/toolkit/theme.h"
#include "tools/gallery/rows.h"
#include "touch.h"

#include <memory>
#include <QAccessible>
#include <QItemSelectionModel>
#include <QScopeGuard>
#include <QSet>
#include <QTest>

using namespace Touch;

namespace {

constexpr int rowHeight = 64;

/** Cells that take no presses themselves. */
class PlainCreator : public CellCreator
{
public:
    Widget *createCell(const QModelIndex &, WidgetRecycler &) override { return new Widget; }
    void updateCell(const QModelIndex &, Widget *) override { }
    QSizeF cellSize() const override { return {0, rowHeight}; }
};

} // namespace

/** Rows that are chosen, and groups with titles. */
class TestListChoice : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void choosesNothingUnlessAsked();
    void choosesOneRowByTaps();
    void choosesSeveralRowsByTaps();
    void choosesByKeys();
    void choosesCellsThatTakeNoPresses();
    void choosesNothingWhenItIsPanned();
    void movesTheChoiceWithItsRow();
    void showsAndTellsWhatIsChosen();
    void putsTitlesAboveItsGroups();
    void skipsTheTitleOfAnEmptyGroup();
    void showsNoTitlesUnlessAsked();
    void createsOnlyTitlesThatCanBeSeen();
    void followsItsGroupsAsTheyGrow();
    void leavesTitlesInPlaceWhileRowsMove_data();
    void leavesTitlesInPlaceWhileRowsMove();
    void isChosenFromByAssistiveTechnology();

private:
    QList<int> chosen() const;
    QStringList titles() const;
    qreal titleTop(const QString &text) const;
    void settle();

    std::unique_ptr<ApplicationWindow> m_window;
    std::unique_ptr<ApplicationPage> m_page;
    PannableViewport *m_viewport = nullptr;
    List *m_list = nullptr;
    Gallery::Rows *m_rows = nullptr;
};

void TestListChoice::initTestCase()
{
    qputenv("CLOCK_REDUCED_MOTION", "1");
}

void TestListChoice::init()
{
    m_window = std::make_unique<ApplicationWindow>();
    m_page = std::make_unique<ApplicationPage>();
    m_page->setComponentsDisplayMode(ApplicationPage::AllComponents, ApplicationPage::Hide);
    m_viewport = new PannableViewport(m_page->centralWidget());
    m_viewport->setGeometry(QRectF(0, 0, 480, 640));
    m_list = new List;
    m_list->setCellCreator(new Gallery::RowCreator);
    m_rows = new Gallery::Rows(m_page.get());
    m_rows->fill(100);
    m_list->setItemModel(m_rows);
    m_viewport->setWidget(m_list);
    m_page->appear(m_window.get());
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    settle();
}

void TestListChoice::cleanup()
{
    m_page.reset();
    m_window.reset();
}

void TestListChoice::settle()
{
    QTRY_VERIFY(m_list->cellAt(0));
    QCoreApplication::processEvents();
}

QList<int> TestListChoice::chosen() const
{
    QList<int> rows;
    for (const QModelIndex &index : m_list->selectionModel()->selectedRows())
        rows.append(index.row());
    std::sort(rows.begin(), rows.end());
    return rows;
}

QStringList TestListChoice::titles() const
{
    QList<const Label *> labels;
    for (const QGraphicsItem *item : m_list->childItems()) {
        if (const auto *label = qobject_cast<const Label *>(item->toGraphicsObject()))
            labels.append(label);
    }
    std::sort(labels.begin(), labels.end(), [](const Label *a, const Label *b) { return a->y() < b->y(); });
    QStringList texts;
    for (const Label *label : labels)
        texts.append(label->text());
    return texts;
}

qreal TestListChoice::titleTop(const QString &text) const
{
    const QList<QGraphicsItem *> children = m_list->childItems();
    for (QGraphicsItem *child : children) {
        const auto *label = qobject_cast<const Label *>(child->toGraphicsObject());
        if (label && label->text() == text)
            return label->y();
    }
    return -1;
}

void TestListChoice::choosesNothingUnlessAsked()
{
    QCOMPARE(m_list->selectionMode(), List::NoSelection);
    QVERIFY(!m_list->selectionModel());
    Finger::tap(*m_window, m_list->cellAt(2));
    QVERIFY(!m_list->isSelected(2));
}

void TestListChoice::choosesOneRowByTaps()
{
    m_list->setSelectionMode(List::SingleSelection);
    settle();
    Finger::tap(*m_window, m_list->cellAt(2));
    QCOMPARE(chosen(), QList<int>{2});
    Finger::tap(*m_window, m_list->cellAt(4));
    QCOMPARE(chosen(), QList<int>{4});
    Finger::tap(*m_window, m_list->cellAt(4));
    QCOMPARE(chosen(), QList<int>{4});
    m_list->setSelectionMode(List::NoSelection);
    QVERIFY(!m_list->isSelected(4));
}

void TestListChoice::choosesSeveralRowsByTaps()
{
    m_list->setSelectionMode(List::MultipleSelection);
    settle();
    for (const int row : {2, 4, 5, 4})
        Finger::tap(*m_window, m_list->cellAt(row));
    QCOMPARE(chosen(), (QList<int>{2, 5}));
    m_list->setSelectionMode(List::SingleSelection);
    QVERIFY(chosen().size() <= 1);
}

void TestListChoice::choosesByKeys()
{
    m_list->setSelectionMode(List::MultipleSelection);
    settle();
    m_list->cellAt(0)->setFocus(Qt::TabFocusReason);
    QTest::keyClick(m_window.get(), Qt::Key_Space);
    QTest::keyClick(m_window.get(), Qt::Key_Down);
    QTest::keyClick(m_window.get(), Qt::Key_Down);
    QTest::keyClick(m_window.get(), Qt::Key_Space);
    QCOMPARE(chosen(), (QList<int>{0, 2}));
    QTest::keyClick(m_window.get(), Qt::Key_Space);
    QCOMPARE(chosen(), QList<int>{0});
}

void TestListChoice::choosesCellsThatTakeNoPresses()
{
    m_list->setCellCreator(new PlainCreator);
    m_list->setSelectionMode(List::SingleSelection);
    settle();
    Finger::tap(*m_window, m_list->cellAt(3));
    QCOMPARE(chosen(), QList<int>{3});
    m_list->cellAt(3)->setFocus(Qt::TabFocusReason);
    QTest::keyClick(m_window.get(), Qt::Key_Up);
    QTest::keyClick(m_window.get(), Qt::Key_Space);
    QCOMPARE(chosen(), QList<int>{2});
}

void TestListChoice::choosesNothingWhenItIsPanned()
{
    m_list->setSelectionMode(List::SingleSelection);
    settle();
    Finger::drag(*m_window, m_viewport, {240, 500}, {240, 300});
    QCOMPARE(chosen(), QList<int>());
    QTRY_VERIFY(!m_viewport->isMoving());
    m_list->setCellCreator(new PlainCreator);
    QCoreApplication::processEvents();
    Finger::drag(*m_window, m_viewport, {240, 300}, {240, 330});
    QCOMPARE(chosen(), QList<int>());
}

void TestListChoice::movesTheChoiceWithItsRow()
{
    m_list->setSelectionMode(List::SingleSelection);
    settle();
    Finger::tap(*m_window, m_list->cellAt(2));
    m_rows->insert(0, QStringLiteral("first"));
    QCOMPARE(chosen(), QList<int>{3});
    m_rows->remove(3);
    QCOMPARE(chosen(), QList<int>());
}

void TestListChoice::showsAndTellsWhatIsChosen()
{
    Theme::instance().setVariant(Theme::Variant::Dark);
    m_list->setSelectionMode(List::MultipleSelection);
    settle();
    const auto pixel = [this](int row) { return m_window->grab().toImage().pixelColor(2, row * rowHeight + 30); };
    const auto isToldOf
        = [this](int row) { return QAccessible::queryAccessibleInterface(m_list->cellAt(row))->state().selected; };
    const QColor plain = pixel(2);
    QVERIFY(!isToldOf(2));
    m_list->selectionModel()->select(m_rows->index(2, 0), QItemSelectionModel::Select);
    QCOMPARE(pixel(2), m_list->style().accentColor);
    QVERIFY(pixel(2) != plain);
    QCOMPARE(pixel(3), plain);
    QVERIFY(isToldOf(2));
    QVERIFY(!isToldOf(3));
}

void TestListChoice::putsTitlesAboveItsGroups()
{
    m_rows->group({{QStringLiteral("Mine"), 3}, {QStringLiteral("Others"), 97}});
    m_list->setShowGroups(true);
    settle();
    QCOMPARE(titles(), (QStringList{QStringLiteral("Mine"), QStringLiteral("Others")}));
    const qreal title = m_list->cellAt(0)->y();
    QVERIFY(title >= 32);
    QCOMPARE(m_list->cellAt(2)->y(), title + 2 * rowHeight);
    QCOMPARE(m_list->cellAt(3)->y(), 2 * title + 3 * rowHeight);
    QTRY_COMPARE(m_list->size().height(), 2 * title + 100 * rowHeight);
    Finger::press(*m_window, m_list, {20, title / 2});
    Finger::release(*m_window, m_list, {20, title / 2});
    m_list->cellAt(2)->setFocus(Qt::TabFocusReason);
    QTest::keyClick(m_window.get(), Qt::Key_Down);
    QVERIFY(m_list->cellAt(3)->hasFocus());
}

void TestListChoice::skipsTheTitleOfAnEmptyGroup()
{
    m_rows->group({{QStringLiteral("Mine"), 0}, {QStringLiteral("Others"), 100}});
    m_list->setShowGroups(true);
    settle();
    QCOMPARE(titles(), QStringList{QStringLiteral("Others")});
}

void TestListChoice::showsNoTitlesUnlessAsked()
{
    m_rows->group({{QStringLiteral("Mine"), 3}, {QStringLiteral("Others"), 97}});
    settle();
    QCOMPARE(titles(), QStringList());
    QCOMPARE(m_list->cellAt(0)->y(), 0.0);
    m_rows->group({});
    m_list->setShowGroups(true);
    settle();
    QCOMPARE(titles(), QStringList());
    QCOMPARE(m_list->cellAt(0)->y(), 0.0);
}

void TestListChoice::createsOnlyTitlesThatCanBeSeen()
{
    QList<QPair<QString, int>> groups;
    for (int i = 0; i < 50; ++i)
        groups.append({QString::number(i), 2});
    m_rows->group(groups);
    m_list->setShowGroups(true);
    settle();
    QVERIFY(titles().size() < 8);
    QTRY_VERIFY(m_viewport->range().y() > 5000);
    m_viewport->setPosition(m_viewport->range());
    QVERIFY(titles().size() < 8);
    QCOMPARE(titles().constLast(), QStringLiteral("49"));
}

void TestListChoice::followsItsGroupsAsTheyGrow()
{
    m_rows->group({{QStringLiteral("Mine"), 1}, {QStringLiteral("Others"), 99}});
    m_list->setShowGroups(true);
    settle();
    const qreal before = m_list->cellAt(1)->y();
    m_rows->group({{QStringLiteral("Mine"), 2}, {QStringLiteral("Others"), 98}});
    settle();
    QVERIFY(m_list->cellAt(1)->y() < before);
}

void TestListChoice::leavesTitlesInPlaceWhileRowsMove_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<bool>("isInserted");
    QTest::newRow("the first row of a group goes") << 2 << false;
    QTest::newRow("one in the middle of it goes") << 4 << false;
    QTest::newRow("one comes to its start") << 2 << true;
    QTest::newRow("one comes into its middle") << 4 << true;
}

void TestListChoice::leavesTitlesInPlaceWhileRowsMove()
{
    QFETCH(int, row);
    QFETCH(bool, isInserted);
    m_rows->group({{QStringLiteral("Mine"), 2}, {QStringLiteral("Others"), 98}});
    m_list->setShowGroups(true);
    settle();
    const qreal title = titleTop(QStringLiteral("Others"));
    const qreal last = m_list->cellAt(6)->y();
    qputenv("CLOCK_REDUCED_MOTION", "0");
    const auto moving = qScopeGuard([] { qputenv("CLOCK_REDUCED_MOTION", "1"); });
    if (isInserted)
        m_rows->insert(row, QStringLiteral("new"));
    else
        m_rows->remove(row);
    QSet<qreal> heights;
    QSet<qreal> placesOfRow;
    const int follower = isInserted ? 7 : 5;
    QTRY_VERIFY_WITH_TIMEOUT((heights.insert(titleTop(QStringLiteral("Others"))),
                              placesOfRow.insert(m_list->cellAt(follower)->y()),
                              m_list->cellAt(follower)->y() == last + (isInserted ? rowHeight : -rowHeight)),
                             5000);
    QCOMPARE(heights, QSet<qreal>{title});
    QVERIFY(placesOfRow.size() > 1);
}

void TestListChoice::isChosenFromByAssistiveTechnology()
{
    m_list->setSelectionMode(List::SingleSelection);
    settle();
    QAccessibleTableInterface *table = QAccessible::queryAccessibleInterface(m_list)->tableInterface();
    QVERIFY(table->selectRow(2));
    QCOMPARE(chosen(), QList<int>{2});
    QVERIFY(table->selectRow(80));
    QCOMPARE(chosen(), QList<int>{80});
    QCOMPARE(table->selectedRows(), QList<int>{80});
    QCOMPARE(table->selectedCells().size(), 0);
    QVERIFY(table->unselectRow(80));
    QCOMPARE(table->selectedRowCount(), 0);
    QVERIFY(!table->selectRow(100));
    m_list->setSelectionMode(List::MultipleSelection);
    settle();
    QVERIFY(table->selectRow(3) && table->selectRow(1));
    QCOMPARE(table->selectedRows(), (QList<int>{1, 3}));
    QCOMPARE(table->selectedCells().size(), 2);
    QVERIFY(table->cellAt(1, 0)->tableCellInterface()->isSelected());
    QVERIFY(!table->cellAt(2, 0)->tableCellInterface()->isSelected());
    m_list->setSelectionMode(List::NoSelection);
    QVERIFY(!table->selectRow(1));
}

QTEST_MAIN(TestListChoice)
#include "tst_listchoice.moc"
