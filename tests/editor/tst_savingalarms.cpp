// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/editor/editortest.h"

#include "tests/support/logcapture.h"

#include <QFile>
#include <QInputMethodEvent>

#include <functional>

class TestSavingAlarms : public EditorTest
{
    Q_OBJECT

private slots:
    void initTestCase() { startStage(); }
    void init() { openPage(); }
    void cleanup() { closePage(); }
    void savingStoresTheFieldsAndClosesWithTheTimeLeft();
    void savingRemembersTheTimeForTheNextAlarm();
    void savingWithoutATitleTakesTheStandardOne();
    void aTitleStillBeingComposedIsSaved();
    void savingAnExistingAlarmKeepsWhatIsNotShown();
    void aFailedSaveClosesWithAnError();
    void aFailedReplacementClosesWithAnErrorToo();
    void aFailedSaveIsNotRemembered();
    void theTimeIsInTheFileWhenSavingIsDone();
    void anAlarmWithoutATriggerClosesWithoutABanner();
    void onlyAWaitingSheetFollowsTheTriggers_data();
    void onlyAWaitingSheetFollowsTheTriggers();
    void escapeCancels();
    void cancellingStoresNothingAndRefreshesTheTriggers();
};

void TestSavingAlarms::savingStoresTheFieldsAndClosesWithTheTimeLeft()
{
    load(QmAlarmEvent::NotStored);
    m_title->setText(" Tea ");
    m_picker->setHours(9);
    m_picker->setMinutes(41);
    const Support::LogCapture log;
    m_page->saveAlarm();
    QVERIFY2(m_page->isOnDisplay(), "it waits for the trigger");
    QCOMPARE(storedCookies(), QList<quint32>{m_page->getAlarmCookie()});
    const QmAlarmEvent stored(m_page->getAlarmCookie());
    QCOMPARE(stored.application(), "clock");
    QCOMPARE(stored.title(), " Tea ");
    QCOMPARE(stored.alarmTime(), QTime(9, 41));
    QVERIFY(stored.isEnabled());
    QVERIFY(!stored.isRecurring());

    QTRY_VERIFY(!m_page->isOnDisplay());
    QVERIFY(shownBanner().startsWith("qtn_cloc_time_left_alarm"));
    const QStringList lines = log.lines(QtDebugMsg);
    QCOMPARE(lines.filter("void SettingAlarmPage::onValueChanged()").size(), 1);
    QCOMPARE(lines.count("Time Left for Alarm to trigger is \"" + shownBanner() + '"'), 1);
}

void TestSavingAlarms::savingRemembersTheTimeForTheNextAlarm()
{
    load(Support::addAlarm(QTime(7, 5)));
    m_picker->setHours(6);
    m_picker->setMinutes(45);
    m_page->saveAlarm();
    QTRY_VERIFY(!m_page->isOnDisplay());
    QCOMPARE(QSettings("Korvo", "Clock").value("Clock/DefaultAlarmTime").toTime(), QTime(6, 45));
    load(QmAlarmEvent::NotStored);
    QCOMPARE(pickedTime(), QTime(6, 45));
}

void TestSavingAlarms::savingWithoutATitleTakesTheStandardOne()
{
    load(QmAlarmEvent::NotStored);
    m_title->setText("  ");
    m_page->saveAlarm();
    QCOMPARE(QmAlarmEvent(m_page->getAlarmCookie()).title(), "qtn_cloc_alarm_title");
}

void TestSavingAlarms::aTitleStillBeingComposedIsSaved()
{
    load(QmAlarmEvent::NotStored, QTime(7, 5), QString());
    m_title->setFocus();
    QVERIFY(m_title->hasFocus());
    QInputMethodEvent composing("早い", {});
    QCoreApplication::sendEvent(m_window.get(), &composing);
    QCOMPARE(m_title->text(), QString());
    m_page->saveAlarm();
    QCOMPARE(QmAlarmEvent(m_page->getAlarmCookie()).title(), "早い");
}

void TestSavingAlarms::savingAnExistingAlarmKeepsWhatIsNotShown()
{
    const quint32 cookie = Support::addAlarm(QTime(7, 5), "Tea", {1, 3});
    QVERIFY(Support::waitForTrigger(cookie));
    load(cookie);
    m_picker->setHours(10);
    m_page->saveAlarm();
    const quint32 newCookie = m_page->getAlarmCookie();
    QVERIFY(newCookie != cookie);
    QCOMPARE(storedCookies(), QList<quint32>{newCookie});
    const QmAlarmEvent stored(newCookie);
    QCOMPARE(stored.alarmTime(), QTime(10, 5));
    QCOMPARE(stored.repeatDays(), (QList<int>{1, 3}));
    QCOMPARE(stored.tone(), m_tone);
    QCOMPARE(stored.snooze(), 20);
    QTRY_VERIFY(!m_page->isOnDisplay());
}

void TestSavingAlarms::aFailedSaveClosesWithAnError()
{
    load(QmAlarmEvent::NotStored);
    m_daemon.kill();
    m_page->saveAlarm();
    QVERIFY(!m_page->isOnDisplay());
    QCOMPARE(shownBanner(), "qtn_cloc_alarm_save_error");
    QVERIFY(m_daemon.start());
    m_page->appear(m_window.get());
    emit Utility::instance()->valueChanged();
    QVERIFY2(m_page->isOnDisplay(), "it no longer waits for a trigger");
}

void TestSavingAlarms::aFailedReplacementClosesWithAnErrorToo()
{
    const quint32 cookie = Support::addAlarm(QTime(7, 5), "Tea");
    load(cookie);
    m_daemon.kill();
    m_page->saveAlarm();
    QVERIFY(!m_page->isOnDisplay());
    QCOMPARE(m_page->getAlarmCookie(), QmAlarmEvent::NotStored);
    QCOMPARE(shownBanner(), "qtn_cloc_alarm_save_error");
    QVERIFY(m_daemon.start());
    QCOMPARE(storedCookies(), QList<quint32>{cookie});
}

void TestSavingAlarms::theTimeIsInTheFileWhenSavingIsDone()
{
    load(QmAlarmEvent::NotStored);
    pick(QTime(6, 45));
    m_page->saveAlarm();
    QFile file(QSettings("Korvo", "Clock").fileName());
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(file.readAll().contains("DefaultAlarmTime="));
}

void TestSavingAlarms::anAlarmWithoutATriggerClosesWithoutABanner()
{
    load(QmAlarmEvent::NotStored);
    m_page->saveAlarm();
    QVERIFY(m_page->isOnDisplay());
    // News of something else, before the daemon has told of this alarm.
    emit Utility::instance()->valueChanged();
    QVERIFY(!m_page->isOnDisplay());
    QCOMPARE(shownBanner(), QString());
    QVERIFY(Support::waitForTrigger(m_page->getAlarmCookie()));
    QCOMPARE(shownBanner(), QString());
}

void TestSavingAlarms::aFailedSaveIsNotRemembered()
{
    load(QmAlarmEvent::NotStored);
    m_picker->setHours(6);
    m_daemon.kill();
    m_page->saveAlarm();
    QVERIFY(!QSettings("Korvo", "Clock").contains("Clock/DefaultAlarmTime"));
    QVERIFY(m_daemon.start());
}

void TestSavingAlarms::onlyAWaitingSheetFollowsTheTriggers_data()
{
    QTest::addColumn<std::function<void(SettingAlarmPage *)>>("end");
    using End = std::function<void(SettingAlarmPage *)>;
    QTest::newRow("dismissed") << End([](SettingAlarmPage *page) { page->dismiss(); });
    QTest::newRow("told to go") << End([](SettingAlarmPage *page) { page->disappear(); });
    QTest::newRow("reset") << End([](SettingAlarmPage *page) { page->resetContent(); });
    QTest::newRow("cancelled") << End([](SettingAlarmPage *page) { page->cancelAlarm(); });
    QTest::newRow("Escape") << End([](SettingAlarmPage *page) { page->hostWindow()->stepBack(); });
}

void TestSavingAlarms::onlyAWaitingSheetFollowsTheTriggers()
{
    QFETCH(std::function<void(SettingAlarmPage *)>, end);
    load(QmAlarmEvent::NotStored);
    m_page->saveAlarm();
    QVERIFY(m_page->isOnDisplay());
    const quint32 saved = m_page->getAlarmCookie();
    const Support::LogCapture log;
    end(m_page.get());
    QVERIFY(!m_page->isOnDisplay());
    QVERIFY(Support::waitForTrigger(saved));
    m_page->appear(m_window.get());
    load(saved);
    emit Utility::instance()->valueChanged();
    QVERIFY2(m_page->isOnDisplay(), "the next alarm stays open");
    QCOMPARE(log.lines().filter("SettingAlarmPage::onValueChanged").size(), 0);
    QCOMPARE(log.lines().filter("timeLeftForAlarmToTrigger").size(), 0);
}

void TestSavingAlarms::escapeCancels()
{
    load(QmAlarmEvent::NotStored);
    m_title->setText("Tea");
    QSignalSpy refreshed(Utility::instance(), &Utility::valueChanged);
    QVERIFY(m_window->stepBack());
    QVERIFY(!m_page->isOnDisplay());
    QCOMPARE(refreshed.size(), 1);
    QCOMPARE(storedCookies(), QList<quint32>());
}

void TestSavingAlarms::cancellingStoresNothingAndRefreshesTheTriggers()
{
    load(QmAlarmEvent::NotStored);
    QSignalSpy refreshed(Utility::instance(), &Utility::valueChanged);
    m_page->cancelAlarm();
    QVERIFY(!m_page->isOnDisplay());
    QCOMPARE(refreshed.size(), 1);
    QCOMPARE(storedCookies(), QList<quint32>());
}

QTEST_MAIN(TestSavingAlarms)
#include "tst_savingalarms.moc"
