// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "alarms/qmalarm.h"
#include "alarms/qmalarmevent.h"
#include "platform/timedclient/interface.h"
#include "tests/alarmlist/alarmsection.h"
#include "tests/support/alarms.h"

#include <QTest>

using Clock::QmAlarm;
using Clock::QmAlarmEvent;
namespace Wire = Astel::Timed::Wire;

namespace {

constexpr int Alarms = 30;

/** Alarms, every third of them switched off, as a backup takes them. */
Wire::Records takenAlarms()
{
    for (int i = 0; i < Alarms; ++i) {
        if (i % 3 == 0)
            Support::addSwitchedOffAlarm(QTime(i % 24, 30), QString::number(i));
        else
            Support::addAlarm(QTime(i % 24, 30), QString::number(i), {i % 7});
    }
    auto records = Astel::Timed::Interface().backup_events();
    records.waitForFinished();
    return records.value();
}

QStringList storedCookies()
{
    QList<QmAlarmEvent> alarms;
    QmAlarm().queryAndSortAlarmCookies(alarms);
    QStringList cookies;
    for (const QmAlarmEvent &alarm : std::as_const(alarms))
        cookies.append(QString::number(alarm.cookie()));
    return cookies;
}

} // namespace

/** The list on the screen while a backup is restored into the daemon. */
class TestRestoredAlarms : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(m_section.start()); }
    void init() { QVERIFY(m_section.open()); }
    void cleanup() { QVERIFY(m_section.close()); }
    void everyOneIsListed_data();
    void everyOneIsListed();

private:
    AlarmSection m_section;
};

void TestRestoredAlarms::everyOneIsListed_data()
{
    QTest::addColumn<int>("present");

    QTest::newRow("into an empty list") << 0;
    QTest::newRow("beside an alarm") << 1;
    QTest::newRow("beside some") << 5;
}

void TestRestoredAlarms::everyOneIsListed()
{
    QFETCH(const int, present);
    const Wire::Records records = takenAlarms();
    QCOMPARE(records.records.size(), Alarms);
    QVERIFY(Support::removeAllAlarms());
    QTRY_COMPARE(m_section.model()->rowCount(), 0);
    for (int i = 0; i < present; ++i)
        Support::addAlarm(QTime(12, i), "Present");
    QTRY_COMPARE(m_section.model()->rowCount(), present);

    auto cookies = Astel::Timed::Interface().restore_events(records);
    cookies.waitForFinished();
    QCOMPARE(cookies.value().size(), Alarms);
    QCOMPARE(cookies.value().count(0), 0);
    QTRY_COMPARE_WITH_TIMEOUT(m_section.model()->rowCount(), present + Alarms, 20000);
    QCOMPARE(m_section.column(0), storedCookies());
}

QTEST_MAIN(TestRestoredAlarms)
#include "tst_restoredalarms.moc"
