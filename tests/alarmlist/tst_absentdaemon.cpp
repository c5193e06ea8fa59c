// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/clockwidgets/alarmlistitem.h"
#include "tests/alarmlist/alarmsection.h"
#include "tests/support/alarms.h"
#include "tests/support/logcapture.h"

#include <QTest>

using Support::addAlarm;
using Support::addSwitchedOffAlarm;

/** What the list does while the daemon is away, and once it is back. */
class TestAbsentDaemon : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(m_section.start()); }
    void aListOpenedWithoutTheDaemonFillsWhenItComes();
    void theListStaysAsItWas();
    void theListIsReadAgainWhenTheDaemonIsBack();
    void emptyAndAwayIsNotTheSame();

private:
    AlarmSection m_section;
};

// The first of all: nobody has heard of a trigger yet.
void TestAbsentDaemon::aListOpenedWithoutTheDaemonFillsWhenItComes()
{
    addSwitchedOffAlarm(QTime(6, 0));
    m_section.daemon().kill();
    m_section.openAtOnce();
    m_section.widget()->updateContent();
    QCOMPARE(m_section.model()->rowCount(), 0);
    QVERIFY2(!m_section.isHintShown(), "nobody knows yet whether there are alarms");
    QVERIFY(m_section.daemon().start());
    QTRY_COMPARE(m_section.model()->rowCount(), 1);
    QVERIFY(m_section.close());
}

void TestAbsentDaemon::theListStaysAsItWas()
{
    QVERIFY(m_section.open());
    addAlarm(QTime(5, 0));
    addSwitchedOffAlarm(QTime(6, 0));
    QTRY_COMPARE(m_section.model()->rowCount(), 2);
    const QStringList before = m_section.column(0);
    m_section.daemon().kill();
    m_section.widget()->updateContent();
    QCOMPARE(m_section.column(0), before);
    QCOMPARE(m_section.viewport()->panDirection(), Qt::Orientations(Qt::Vertical));
    QCOMPARE(m_section.shownBanner(), "");
    QVERIFY(m_section.daemon().start());
    QVERIFY(m_section.close());
}

void TestAbsentDaemon::theListIsReadAgainWhenTheDaemonIsBack()
{
    QVERIFY(m_section.open());
    addAlarm(QTime(5, 0));
    addSwitchedOffAlarm(QTime(6, 0));
    QTRY_COMPARE(m_section.model()->rowCount(), 2);
    const QStringList before = m_section.column(0);
    m_section.daemon().kill();
    {
        const Support::LogCapture log;
        QVERIFY(m_section.daemon().start());
        QTRY_VERIFY(!log.lines().filter("void AlarmsWidget::updateContent() exited").isEmpty());
    }
    QCOMPARE(m_section.column(0), before);
    QTRY_VERIFY(m_section.cell(1));
    addAlarm(QTime(7, 0));
    QTRY_COMPARE(m_section.model()->rowCount(), 3);
    QVERIFY(m_section.close());
}

void TestAbsentDaemon::emptyAndAwayIsNotTheSame()
{
    QVERIFY(m_section.open());
    addAlarm(QTime(5, 0));
    QTRY_COMPARE(m_section.model()->rowCount(), 1);
    m_section.daemon().kill();
    m_section.widget()->updateContent();
    QVERIFY(!m_section.isHintShown());
    QVERIFY(m_section.daemon().start());
    QVERIFY(Support::removeAllAlarms());
    QTRY_VERIFY(m_section.isHintShown());
    QVERIFY(m_section.close());
}

QTEST_MAIN(TestAbsentDaemon)
#include "tst_absentdaemon.moc"
