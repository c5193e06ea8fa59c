// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/editor/editortest.h"

#include "tests/support/logcapture.h"

class TestDeletingAlarms : public EditorTest
{
    Q_OBJECT

private slots:
    void initTestCase() { startStage(); }
    void init() { openPage(); }
    void cleanup() { closePage(); }
    void deletingTakesTheAlarmOutOfTheDaemon();
    void deletingASwitchedOffAlarmRefreshesTheTriggers();
    void deletingASwitchedOnAlarmLeavesTheNewsToTheDaemon();
    void deletingANewAlarmOnlyCloses();
    void aFailedDeletionClosesWithAnError();
};

void TestDeletingAlarms::deletingTakesTheAlarmOutOfTheDaemon()
{
    const quint32 cookie = Support::addAlarm(QTime(7, 5));
    QVERIFY(Support::waitForTrigger(cookie));
    load(cookie);
    const Support::LogCapture log;
    m_page->removeAlarm();
    QVERIFY(!m_page->isOnDisplay());
    QCOMPARE(m_page->getAlarmCookie(), QmAlarmEvent::NotStored);
    QCOMPARE(storedCookies(), QList<quint32>());
    QVERIFY2(log.lines().filter("Delete cookie").size() == 2, "it is deleted twice on purpose");
    QVERIFY(Support::waitForTrigger(cookie, false));
}

void TestDeletingAlarms::deletingASwitchedOffAlarmRefreshesTheTriggers()
{
    load(Support::addSwitchedOffAlarm(QTime(7, 5)));
    QSignalSpy refreshed(Utility::instance(), &Utility::valueChanged);
    m_page->removeAlarm();
    QCOMPARE(refreshed.size(), 1);
}

void TestDeletingAlarms::deletingASwitchedOnAlarmLeavesTheNewsToTheDaemon()
{
    const quint32 cookie = Support::addAlarm(QTime(7, 5));
    QVERIFY(Support::waitForChanges());
    load(cookie);
    QSignalSpy refreshed(Utility::instance(), &Utility::valueChanged);
    m_page->removeAlarm();
    QCOMPARE(refreshed.size(), 0);
    QTRY_COMPARE(refreshed.size(), 1);
}

void TestDeletingAlarms::deletingANewAlarmOnlyCloses()
{
    load(QmAlarmEvent::NotStored);
    QSignalSpy refreshed(Utility::instance(), &Utility::valueChanged);
    m_page->removeAlarm();
    QVERIFY(!m_page->isOnDisplay());
    QCOMPARE(refreshed.size(), 0);
}

void TestDeletingAlarms::aFailedDeletionClosesWithAnError()
{
    const quint32 cookie = Support::addAlarm(QTime(7, 5));
    load(cookie);
    m_daemon.kill();
    m_page->removeAlarm();
    QVERIFY(!m_page->isOnDisplay());
    QCOMPARE(m_page->getAlarmCookie(), cookie);
    QCOMPARE(shownBanner(), "qtn_cloc_alarm_delete_error");
    QVERIFY(m_daemon.start());
}

QTEST_MAIN(TestDeletingAlarms)
#include "tst_deletingalarms.moc"
