// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "alarms/alarmproperties.h"

#include <algorithm>
#include <QTest>

using Clock::AlarmProperties;
using Clock::SortTrigger;

namespace {

constexpr quint64 Nanoseconds = 1000000000;

AlarmProperties on(quint64 nextTrigger, const QTime &time = QTime(12, 0))
{
    return {1, nextTrigger, true, Clock::QmAlarmEvent(), time};
}

AlarmProperties off(const QTime &time, quint64 nextTrigger = 0)
{
    return {2, nextTrigger, false, Clock::QmAlarmEvent(), time};
}

} // namespace

Q_DECLARE_METATYPE(Clock::AlarmProperties)

class TestAlarmProperties : public QObject
{
    Q_OBJECT

private slots:
    void ordersTwoAlarms_data();
    void ordersTwoAlarms();
    void breaksNoTie_data();
    void breaksNoTie();
    void ordersAList();
};

void TestAlarmProperties::ordersTwoAlarms_data()
{
    QTest::addColumn<AlarmProperties>("first");
    QTest::addColumn<AlarmProperties>("second");

    QTest::newRow("on before off") << on(9000) << off(QTime(5, 0));
    QTest::newRow("on before off, later time") << on(9000, QTime(23, 0)) << off(QTime(5, 0), 1);
    QTest::newRow("the sooner of two that are on") << on(7000, QTime(9, 0)) << on(9000, QTime(7, 0));
    QTest::newRow("moments are unsigned") << on(1) << on(Q_UINT64_C(0xffffffffffffffff));
    QTest::newRow("seconds before nanoseconds") << on(1795219140) << on(1298448000 * Nanoseconds);
    QTest::newRow("the earlier of two that are off") << off(QTime(5, 0), 9000) << off(QTime(6, 0), 7000);
    QTest::newRow("no time before midnight") << off(QTime()) << off(QTime(0, 0));
}

void TestAlarmProperties::ordersTwoAlarms()
{
    QFETCH(const AlarmProperties, first);
    QFETCH(const AlarmProperties, second);
    QVERIFY(SortTrigger()(first, second));
    QVERIFY(!SortTrigger()(second, first));
}

void TestAlarmProperties::breaksNoTie_data()
{
    QTest::addColumn<AlarmProperties>("first");
    QTest::addColumn<AlarmProperties>("second");

    QTest::newRow("on at the same moment") << on(7000, QTime(1, 0)) << on(7000, QTime(2, 0));
    QTest::newRow("off at the same time") << off(QTime(5, 0), 1) << off(QTime(5, 0), 2);
    QTest::newRow("off without a time") << off(QTime()) << off(QTime());
}

void TestAlarmProperties::breaksNoTie()
{
    QFETCH(const AlarmProperties, first);
    QFETCH(const AlarmProperties, second);
    QVERIFY(!SortTrigger()(first, second));
    QVERIFY(!SortTrigger()(second, first));
}

void TestAlarmProperties::ordersAList()
{
    const quint64 today = 1298444400;
    QList<AlarmProperties> entries{on((today + 93600) * Nanoseconds, QTime(9, 0)), off(QTime(6, 0)),
                                   on(today * Nanoseconds, QTime(7, 0)), off(QTime(5, 0))};
    std::sort(entries.begin(), entries.end(), SortTrigger());
    QList<QTime> times;
    for (const AlarmProperties &entry : std::as_const(entries))
        times.append(entry.alarmTime);
    QCOMPARE(times, QList<QTime>({QTime(7, 0), QTime(9, 0), QTime(5, 0), QTime(6, 0)}));
}

QTEST_APPLESS_MAIN(TestAlarmProperties)
#include "tst_alarmproperties.moc"
