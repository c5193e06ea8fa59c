// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/context/contextpublisher.h"
#include "tests/alarms/fakedaemon.h"
#include "tests/editor/editortest.h"

/** What the editor does where the daemon does not answer both of its deletions alike. */
class TestDeletingTwice : public EditorTest
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init() { openPage(); }
    void cleanup() { m_page.reset(); }
    void onlyTheSecondAnswerCounts_data();
    void onlyTheSecondAnswerCounts();
    void aTriggerOfNoAlarmKeepsTheListQuiet();

private:
    FakeDaemon m_fakeDaemon;
};

void TestDeletingTwice::initTestCase()
{
    QVERIFY(m_bus.isRunning());
    QVERIFY(m_fakeDaemon.isOnTheBus());
    // It has no trigger and no state, so it is read as switched off.
    m_fakeDaemon.setAttributes(7, {{"APPLICATION", "clock"}, {"alarmtime", "07:05"}, {"enabled", "1"}});
    openWindow();
}

void TestDeletingTwice::onlyTheSecondAnswerCounts_data()
{
    QTest::addColumn<int>("refusedCall");
    QTest::addColumn<bool>("isDeleted");
    QTest::newRow("the first fails") << 1 << true;
    QTest::newRow("the second fails") << 2 << false;
}

void TestDeletingTwice::onlyTheSecondAnswerCounts()
{
    QFETCH(int, refusedCall);
    QFETCH(bool, isDeleted);
    load(7);
    const auto before = m_fakeDaemon.calls().count("cancel");
    QSignalSpy refreshed(Utility::instance(), &Utility::valueChanged);
    m_fakeDaemon.refuseOne("cancel", refusedCall);
    m_page->removeAlarm();
    QCOMPARE(m_fakeDaemon.calls().count("cancel") - before, 2);
    QVERIFY(!m_page->isOnDisplay());
    QCOMPARE(m_page->getAlarmCookie(), isDeleted ? QmAlarmEvent::NotStored : 7u);
    QCOMPARE(shownBanner(), isDeleted ? QString() : "qtn_cloc_alarm_delete_error");
    QCOMPARE(refreshed.size(), isDeleted ? 1 : 0);
}

void TestDeletingTwice::aTriggerOfNoAlarmKeepsTheListQuiet()
{
    const ContextPublisher publisher("Alarm.Trigger", QVariantMap{{"-1", quint64(1298448000) * 1000000000}});
    QVERIFY(publisher.isPublished());
    Utility::instance()->subscribeToContextFramework();
    QTRY_VERIFY(Utility::instance()->isTriggerMapReceived());
    load(7);
    QSignalSpy refreshed(Utility::instance(), &Utility::valueChanged);
    m_page->removeAlarm();
    QCOMPARE(m_page->getAlarmCookie(), QmAlarmEvent::NotStored);
    QCOMPARE(refreshed.size(), 0);
}

QTEST_MAIN(TestDeletingTwice)
#include "tst_deletingtwice.moc"
