// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/listrows_p.h"

#include <QTest>

using Touch::ListRows;

namespace {

constexpr qreal rowHeight = 60;
constexpr qreal titleHeight = 40;

/** Ten rows in two groups of five. */
ListRows twoGroups()
{
    ListRows rows;
    rows.setCount(10);
    rows.setRowHeight(rowHeight);
    rows.setTitles({0, 5}, titleHeight);
    return rows;
}

} // namespace

class TestListRows : public QObject
{
    Q_OBJECT

private slots:
    void placesRowsBelowEachOther();
    void findsTheRowAtAHeight_data();
    void findsTheRowAtAHeight();
    void shiftsRowsWithTheirTitle_data();
    void shiftsRowsWithTheirTitle();
};

void TestListRows::placesRowsBelowEachOther()
{
    const ListRows rows = twoGroups();
    QCOMPARE(rows.top(0), titleHeight);
    QCOMPARE(rows.titleTop(0), 0.0);
    QCOMPARE(rows.top(4), titleHeight + 4 * rowHeight);
    QCOMPARE(rows.top(5), 2 * titleHeight + 5 * rowHeight);
    QCOMPARE(rows.titleTop(5), titleHeight + 5 * rowHeight);
    QCOMPARE(rows.height(), 2 * titleHeight + 10 * rowHeight);
    QVERIFY(rows.hasTitleAbove(5));
    QVERIFY(!rows.hasTitleAbove(4));
}

void TestListRows::findsTheRowAtAHeight_data()
{
    QTest::addColumn<qreal>("height");
    QTest::addColumn<int>("row");
    QTest::newRow("above all") << -5.0 << 0;
    QTest::newRow("on the first title") << 10.0 << 0;
    QTest::newRow("on the first row") << titleHeight + 1 << 0;
    QTest::newRow("on the next row") << titleHeight + rowHeight << 1;
    QTest::newRow("on the second title") << titleHeight + 5 * rowHeight + 1 << 4;
    QTest::newRow("below it") << 2 * titleHeight + 5 * rowHeight << 5;
    QTest::newRow("below all") << 5000.0 << 9;
}

void TestListRows::findsTheRowAtAHeight()
{
    QFETCH(qreal, height);
    QFETCH(int, row);
    QCOMPARE(twoGroups().rowAt(height), row);
}

void TestListRows::shiftsRowsWithTheirTitle_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<bool>("withTitle");
    QTest::addColumn<qreal>("firstTitle");
    QTest::addColumn<qreal>("secondTitle");
    const qreal first = 0;
    const qreal second = titleHeight + 5 * rowHeight;
    QTest::newRow("from within a group") << 3 << true << first << second + 20;
    QTest::newRow("from the start of one") << 5 << true << first << second + 20;
    QTest::newRow("from the start of one, its title stays") << 5 << false << first << second;
    QTest::newRow("from within one, later titles go along") << 1 << false << first << second + 20;
}

void TestListRows::shiftsRowsWithTheirTitle()
{
    QFETCH(int, from);
    QFETCH(bool, withTitle);
    ListRows rows = twoGroups();
    const qreal before = rows.top(from);
    const qreal above = rows.top(from - 1);
    rows.setShift(from, 20, withTitle);
    QCOMPARE(rows.top(from), before + 20);
    QCOMPARE(rows.top(from - 1), above);
    QTEST(rows.titleTop(0), "firstTitle");
    QTEST(rows.titleTop(5), "secondTitle");
    QCOMPARE(rows.height(), 2 * titleHeight + 10 * rowHeight + 20);
}

QTEST_APPLESS_MAIN(TestListRows)
#include "tst_listrows.moc"
