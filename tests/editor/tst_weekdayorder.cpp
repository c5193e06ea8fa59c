// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "editor/weekdayorder.h"

#include <QTest>

class TestWeekdayOrder : public QObject
{
    Q_OBJECT

private slots:
    void placesFollowTheFirstDay_data();
    void placesFollowTheFirstDay();
    void bothWaysAreTheSameWay();
};

void TestWeekdayOrder::placesFollowTheFirstDay_data()
{
    QTest::addColumn<int>("firstDayOfWeek");
    QTest::addColumn<QList<int>>("days");
    QTest::newRow("Monday") << 1 << QList<int>{1, 2, 3, 4, 5, 6, 0};
    QTest::newRow("Tuesday") << 2 << QList<int>{2, 3, 4, 5, 6, 0, 1};
    QTest::newRow("Friday") << 5 << QList<int>{5, 6, 0, 1, 2, 3, 4};
    QTest::newRow("Saturday") << 6 << QList<int>{6, 0, 1, 2, 3, 4, 5};
    QTest::newRow("Sunday") << 7 << QList<int>{0, 1, 2, 3, 4, 5, 6};
}

void TestWeekdayOrder::placesFollowTheFirstDay()
{
    QFETCH(int, firstDayOfWeek);
    QFETCH(QList<int>, days);
    QList<int> list{0, 1, 2, 3, 4, 5, 6};
    placesToWeekdays(list, firstDayOfWeek);
    QCOMPARE(list, days);
    weekdaysToPlaces(list, firstDayOfWeek);
    QCOMPARE(list, (QList<int>{0, 1, 2, 3, 4, 5, 6}));
}

void TestWeekdayOrder::bothWaysAreTheSameWay()
{
    for (int firstDayOfWeek = 1; firstDayOfWeek <= DaysPerWeek; ++firstDayOfWeek) {
        QList<int> days{6, 0, 3, 3};
        weekdaysToPlaces(days, firstDayOfWeek);
        placesToWeekdays(days, firstDayOfWeek);
        QCOMPARE(days, (QList<int>{6, 0, 3, 3}));
    }
}

QTEST_APPLESS_MAIN(TestWeekdayOrder)
#include "tst_weekdayorder.moc"
