// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/messagebox.h"
#include "tests/editor/editortest.h"
#include "tests/support/logcapture.h"

#include <functional>

/** The question about a skipped hour where the list asks it, about an alarm that was only switched on. */
class TestSummerTimeQuestion : public EditorTest
{
    Q_OBJECT

private slots:
    void initTestCase() { startStage(); }
    void init();
    void cleanup() { closePage(); }
    void noEarlierAlarmComesBack_data();
    void noEarlierAlarmComesBack();
    void theLoadedAlarmIsSavedOneHourEarlier();
    void aFailedSaveDoesNotWait();
    void aResetTakesTheQuestionAway();
    void loadingAnotherAlarmRestoresTheOneAskedAbout();

private:
    Touch::MessageBox *question() const { return shown<Touch::MessageBox>(); }
    void answer(const char *button);
    /** As the list does it: the sheet is filled, but only its question is shown. */
    quint32 askAboutAnotherAlarm();
    void saveAnExistingAlarm();
};

void TestSummerTimeQuestion::init()
{
    openPage();
}

void TestSummerTimeQuestion::answer(const char *button)
{
    auto *chosen = Support::itemIn<Touch::Button>(question(), button);
    QVERIFY(chosen);
    chosen->click();
}

quint32 TestSummerTimeQuestion::askAboutAnotherAlarm()
{
    const quint32 cookie = Support::addAlarm(QTime(12, 30), "Ferry");
    load(cookie, QTime(12, 30), "Ferry");
    m_page->showResetAlarmDialog(QmAlarmEvent(cookie));
    return cookie;
}

void TestSummerTimeQuestion::saveAnExistingAlarm()
{
    load(Support::addAlarm(QTime(7, 5), "Tea"));
    QVERIFY(Support::waitForChanges());
    pick(QTime(8, 15));
    m_page->saveAlarm();
    QTRY_VERIFY(!m_page->isOnDisplay());
}

void TestSummerTimeQuestion::noEarlierAlarmComesBack_data()
{
    QTest::addColumn<std::function<void(Touch::MessageBox *)>>("end");
    QTest::addColumn<bool>("isEditorShown");
    using End = std::function<void(Touch::MessageBox *)>;
    QTest::newRow("set manually") << End([this](Touch::MessageBox *) { answer("setAgainButton"); }) << true;
    QTest::newRow("Escape") << End([](Touch::MessageBox *box) { QVERIFY(box->hostWindow()->stepBack()); }) << true;
    QTest::newRow("reset") << End([this](Touch::MessageBox *) { m_page->resetContent(); }) << false;
}

void TestSummerTimeQuestion::noEarlierAlarmComesBack()
{
    QFETCH(std::function<void(Touch::MessageBox *)>, end);
    saveAnExistingAlarm();
    const quint32 cookie = askAboutAnotherAlarm();
    QVERIFY(question());
    QVERIFY(!m_page->isOnDisplay());
    const QList<quint32> stored = storedCookies();
    QCOMPARE(stored.size(), 2);
    end(question());
    QVERIFY(!question());
    QTEST(m_page->isOnDisplay(), "isEditorShown");
    QCOMPARE(storedCookies(), stored);
    QCOMPARE(m_page->getAlarmCookie(), cookie);
}

void TestSummerTimeQuestion::theLoadedAlarmIsSavedOneHourEarlier()
{
    m_page->dismiss();
    const quint32 cookie = askAboutAnotherAlarm();
    QVERIFY(Support::waitForChanges());
    answer("resetButton");
    QTRY_VERIFY(shownBanner().startsWith("qtn_cloc_time_left_alarm"));
    QVERIFY(m_page->getAlarmCookie() != cookie);
    QCOMPARE(storedCookies(), QList<quint32>{m_page->getAlarmCookie()});
    QCOMPARE(QmAlarmEvent(m_page->getAlarmCookie()).alarmTime(), QTime(11, 30));
    QVERIFY(!m_page->isOnDisplay());
}

void TestSummerTimeQuestion::aFailedSaveDoesNotWait()
{
    m_page->dismiss();
    askAboutAnotherAlarm();
    m_daemon.kill();
    answer("resetButton");
    QCOMPARE(shownBanner(), "qtn_cloc_alarm_save_error");
    QVERIFY(m_daemon.start());
    const Support::LogCapture log;
    emit Utility::instance()->valueChanged();
    QCOMPARE(log.lines().filter("SettingAlarmPage::onValueChanged").size(), 0);
}

void TestSummerTimeQuestion::aResetTakesTheQuestionAway()
{
    m_page->dismiss();
    const quint32 cookie = askAboutAnotherAlarm();
    m_page->resetContent();
    QVERIFY(!question());
    QVERIFY(!m_page->isOnDisplay());
    QCOMPARE(storedCookies(), QList<quint32>{cookie});
}

void TestSummerTimeQuestion::loadingAnotherAlarmRestoresTheOneAskedAbout()
{
    load(Support::addAlarm(QTime(7, 5), "Tea"));
    // A time that was changed between the saving and the check is taken for a skipped one.
    QVERIFY(Support::waitForChanges());
    m_page->saveAlarm();
    pick(QTime(9, 45));
    QTRY_VERIFY(question());
    QCOMPARE(storedCookies(), QList<quint32>());
    load(QmAlarmEvent::NotStored);
    QVERIFY(!question());
    QCOMPARE(m_page->getAlarmCookie(), QmAlarmEvent::NotStored);
    QCOMPARE(storedCookies().size(), 1);
    QCOMPARE(QmAlarmEvent(storedCookies().first()).title(), "Tea");
}

QTEST_MAIN(TestSummerTimeQuestion)
#include "tst_summertimequestion.moc"
