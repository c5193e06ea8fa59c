// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/alarms/fakedaemon.h"
#include "tests/editor/editortest.h"
#include "tests/support/logcapture.h"

/** What the editor does where the daemon does not schedule what it was given. */
class TestSavingSwitchedOff : public EditorTest
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init() { openPage(); }
    void cleanup() { m_page.reset(); }
    void closesAtOnceWithoutABanner();
    void remembersTheTimeAllTheSame();
    void aRefusedSaveIsToldAndClosesAtOnce();

private:
    FakeDaemon m_fakeDaemon;
};

void TestSavingSwitchedOff::initTestCase()
{
    QVERIFY(m_bus.isRunning());
    QVERIFY(m_fakeDaemon.isOnTheBus());
    // It has no trigger and no state, so it is read as switched off.
    m_fakeDaemon.setAttributes(1, {{"APPLICATION", "clock"}, {"alarmtime", "07:05"}, {"enabled", "1"}});
    openWindow();
}

void TestSavingSwitchedOff::closesAtOnceWithoutABanner()
{
    load(QmAlarmEvent::NotStored);
    const Support::LogCapture log;
    m_page->saveAlarm();
    QVERIFY(!m_page->isOnDisplay());
    QCOMPARE(m_page->getAlarmCookie(), 1u);
    emit Utility::instance()->valueChanged();
    QCOMPARE(shownBanner(), QString());
    QCOMPARE(log.lines().filter("onValueChanged").size(), 0);
}

void TestSavingSwitchedOff::remembersTheTimeAllTheSame()
{
    load(QmAlarmEvent::NotStored);
    pick(QTime(6, 45));
    m_page->saveAlarm();
    QCOMPARE(QSettings("Korvo", "Clock").value("Clock/DefaultAlarmTime").toTime(), QTime(6, 45));
}

void TestSavingSwitchedOff::aRefusedSaveIsToldAndClosesAtOnce()
{
    load(QmAlarmEvent::NotStored);
    m_fakeDaemon.refuse("add_event", "disk full");
    m_page->saveAlarm();
    m_fakeDaemon.refuse("add_event", QString());
    QVERIFY(!m_page->isOnDisplay());
    QCOMPARE(m_page->getAlarmCookie(), QmAlarmEvent::NotStored);
    QCOMPARE(shownBanner(), "qtn_cloc_alarm_save_error");
    QVERIFY2(m_fakeDaemon.calls().endsWith("query_attributes"), "what is stored is read back all the same");
}

QTEST_MAIN(TestSavingSwitchedOff)
#include "tst_savingswitchedoff.moc"
