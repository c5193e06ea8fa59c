// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/messagebox.h"
#include "tests/editor/editortest.h"
#include "tests/support/logcapture.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QTranslator>

#include <ctime>

namespace {

enum class Answer { Reset, SetAgain, Escape };

/** Says the question so that the time in it can be told. */
class Question : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *, const char *text, const char *, int) const override
    {
        return QByteArray(text) == "qtn_cloc_dst_transition_warning" ? QStringLiteral("at <%1>") : QString();
    }
};

/**
 * A zone in which it is around noon now, and whose clocks go forward tomorrow at an hour, or go back if that is asked
 * for, so that the next time of that day is the one in question.
 */
QByteArray zoneChangingTomorrow(int hour, bool isBack = false)
{
    const QDateTime now = QDateTime::currentDateTimeUtc();
    const int east = 12 - now.time().hour();
    const int tomorrow = now.addSecs(east * 3600).date().addDays(1).dayOfYear() - 1;
    const int other = (tomorrow + 180) % 365;
    const QString forth = QStringLiteral("%1/%2").arg(isBack ? other : tomorrow).arg(hour);
    const QString back = QStringLiteral("%1/%2").arg(isBack ? tomorrow : other).arg(hour);
    // Offsets are written as hours west of Greenwich; those of summer are one hour further east.
    return QStringLiteral("STD%1SUM%2,%3,%4").arg(-east).arg(-east - 1).arg(forth, back).toLatin1();
}

void useZone(const QByteArray &zone)
{
    qputenv("TZ", zone);
    tzset();
}

} // namespace

Q_DECLARE_METATYPE(Answer)

class TestSummerTime : public EditorTest
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void aSwallowedTimeIsAskedAbout_data() { addGaps(); }
    void aSwallowedTimeIsAskedAbout();
    void oneHourEarlierIsSavedAsANewAlarm_data() { addGaps(); }
    void oneHourEarlierIsSavedAsANewAlarm();
    void anEditedAlarmIsSavedOneHourEarlierToo();
    void aNewAlarmIsChosenAgain_data();
    void aNewAlarmIsChosenAgain();
    void anEditedAlarmIsRestoredToChooseAgain_data();
    void anEditedAlarmIsRestoredToChooseAgain();
    void aRestoredAlarmCanBeEditedAgain();
    void aQuestionLeftOpenLosesNoAlarm();
    void theQuestionIsAskedAgain();
    void theQuestionIsMadeOnce();
    void theQuestionSpeaksInTheUsersHours();
    void aWeeklyAlarmIsAskedAboutToo();
    void otherTimesAreNotAskedAbout_data();
    void otherTimesAreNotAskedAbout();

private:
    static void addGaps();
    void changeZone(const QByteArray &zone);
    void save(const QTime &time);
    Touch::MessageBox *question() const { return shown<Touch::MessageBox>(); }
    void answer(Answer answer);

    Question m_question;
};

void TestSummerTime::initTestCase()
{
    useZone(zoneChangingTomorrow(2));
    startStage();
    QVERIFY(QCoreApplication::installTranslator(&m_question));
}

void TestSummerTime::init()
{
    openPage();
}

void TestSummerTime::cleanup()
{
    closePage();
}

void TestSummerTime::addGaps()
{
    QTest::addColumn<int>("gap");
    QTest::addColumn<QTime>("chosen");
    QTest::addColumn<QTime>("earlier");
    QTest::newRow("in the night") << 2 << QTime(2, 30) << QTime(1, 30);
    QTest::newRow("its first minute") << 2 << QTime(2, 0) << QTime(1, 0);
    QTest::newRow("its last minute") << 2 << QTime(2, 59) << QTime(1, 59);
    QTest::newRow("at midnight") << 0 << QTime(0, 30) << QTime(23, 30);
    QTest::newRow("midnight itself") << 0 << QTime(0, 0) << QTime(23, 0);
}

void TestSummerTime::changeZone(const QByteArray &zone)
{
    m_daemon.terminate();
    useZone(zone);
    QVERIFY(m_daemon.start());
    QVERIFY(Support::removeAllAlarms());
}

void TestSummerTime::save(const QTime &time)
{
    QVERIFY(Support::waitForChanges());
    pick(time);
    m_page->saveAlarm();
}

void TestSummerTime::answer(Answer answer)
{
    QVERIFY(Support::waitForChanges());
    if (answer == Answer::Escape) {
        QVERIFY(m_window->stepBack());
        return;
    }
    auto *button
        = Support::itemIn<Touch::Button>(question(), answer == Answer::Reset ? "resetButton" : "setAgainButton");
    QVERIFY(button);
    button->click();
}

void TestSummerTime::aSwallowedTimeIsAskedAbout()
{
    QFETCH(int, gap);
    QFETCH(QTime, chosen);
    QFETCH(QTime, earlier);
    changeZone(zoneChangingTomorrow(gap));
    load(QmAlarmEvent::NotStored);
    const Support::LogCapture log;
    save(chosen);
    QTRY_VERIFY(question());
    QCOMPARE(question()->title(), "qtn_cloc_reset_alarm");
    QCOMPARE(question()->text(), "at <" + earlier.toString("hh:mm") + ">");
    QCOMPARE(Support::itemIn<Touch::Button>(question(), "resetButton")->text(), "qtn_comm_ok");
    QCOMPARE(Support::itemIn<Touch::Button>(question(), "setAgainButton")->text(), "qtn_cloc_set_manually");
    QVERIFY(m_page->isOnDisplay());
    QCOMPARE(m_page->getAlarmCookie(), QmAlarmEvent::NotStored);
    QCOMPARE(storedCookies(), QList<quint32>());
    QCOMPARE(log.lines(QtDebugMsg).count("Appear Reset Dialog"), 1);
    QCOMPARE(shownBanner(), QString());
}

void TestSummerTime::oneHourEarlierIsSavedAsANewAlarm()
{
    QFETCH(int, gap);
    QFETCH(QTime, chosen);
    QFETCH(QTime, earlier);
    changeZone(zoneChangingTomorrow(gap));
    load(QmAlarmEvent::NotStored, QTime(), "Ferry");
    save(chosen);
    QTRY_VERIFY(question());
    answer(Answer::Reset);
    QCOMPARE(pickedTime(), earlier);
    QTRY_VERIFY(!m_page->isOnDisplay());
    QVERIFY(!question());
    QVERIFY(shownBanner().startsWith("qtn_cloc_time_left_alarm"));
    QCOMPARE(storedCookies(), QList<quint32>{m_page->getAlarmCookie()});
    const QmAlarmEvent stored(m_page->getAlarmCookie());
    QCOMPARE(stored.alarmTime(), earlier);
    QCOMPARE(stored.title(), "Ferry");
    QVERIFY(stored.isEnabled());
}

void TestSummerTime::anEditedAlarmIsSavedOneHourEarlierToo()
{
    changeZone(zoneChangingTomorrow(2));
    const quint32 cookie = Support::addAlarm(QTime(7, 5), "Tea");
    load(cookie);
    save(QTime(2, 30));
    QTRY_VERIFY(question());
    QCOMPARE(storedCookies(), QList<quint32>());
    answer(Answer::Reset);
    QTRY_VERIFY(!m_page->isOnDisplay());
    QCOMPARE(storedCookies(), QList<quint32>{m_page->getAlarmCookie()});
    QCOMPARE(QmAlarmEvent(m_page->getAlarmCookie()).alarmTime(), QTime(1, 30));
}

void TestSummerTime::aNewAlarmIsChosenAgain_data()
{
    QTest::addColumn<int>("gap");
    QTest::addColumn<QTime>("chosen");
    QTest::addColumn<Answer>("given");
    QTest::newRow("in the night") << 2 << QTime(2, 30) << Answer::SetAgain;
    QTest::newRow("at midnight") << 0 << QTime(0, 30) << Answer::SetAgain;
    QTest::newRow("no answer") << 2 << QTime(2, 30) << Answer::Escape;
}

void TestSummerTime::aNewAlarmIsChosenAgain()
{
    QFETCH(int, gap);
    QFETCH(QTime, chosen);
    QFETCH(Answer, given);
    changeZone(zoneChangingTomorrow(gap));
    load(QmAlarmEvent::NotStored, QTime(), "Ferry");
    save(chosen);
    QTRY_VERIFY(question());
    answer(given);
    QVERIFY(!question());
    QVERIFY(m_page->isOnDisplay());
    QCOMPARE(pickedTime(), chosen);
    QCOMPARE(m_title->text(), "Ferry");
    QCOMPARE(storedCookies(), QList<quint32>());
    save(QTime(5, 0));
    QTRY_VERIFY(!m_page->isOnDisplay());
    QCOMPARE(storedCookies().size(), 1);
}

void TestSummerTime::anEditedAlarmIsRestoredToChooseAgain_data()
{
    aNewAlarmIsChosenAgain_data();
}

void TestSummerTime::anEditedAlarmIsRestoredToChooseAgain()
{
    QFETCH(int, gap);
    QFETCH(QTime, chosen);
    QFETCH(Answer, given);
    changeZone(zoneChangingTomorrow(gap));
    const int twoDaysAhead = (QDate::currentDate().dayOfWeek() + 2) % 7;
    const quint32 cookie = Support::addAlarm(QTime(7, 5), "Tea");
    const quint32 weekly = Support::addAlarm(QTime(8, 0), "Weekly", {twoDaysAhead});
    load(cookie, QTime(7, 5), "Tea");
    m_title->setText("Ferry");
    save(chosen);
    QTRY_VERIFY(question());
    QCOMPARE(storedCookies(), QList<quint32>{weekly});
    answer(given);
    QVERIFY(!question());
    QVERIFY(m_page->isOnDisplay());
    QCOMPARE(pickedTime(), chosen);
    const quint32 restored = m_page->getAlarmCookie();
    QVERIFY(restored != cookie);
    QCOMPARE(storedCookies(), (QList<quint32>{weekly, restored}));
    const QmAlarmEvent alarm(restored);
    QCOMPARE(alarm.alarmTime(), QTime(7, 5));
    QCOMPARE(alarm.title(), "Tea");
}

void TestSummerTime::aRestoredAlarmCanBeEditedAgain()
{
    changeZone(zoneChangingTomorrow(2));
    load(Support::addAlarm(QTime(7, 5), "Tea"));
    save(QTime(2, 30));
    QTRY_VERIFY(question());
    answer(Answer::SetAgain);
    save(QTime(4, 30));
    QTRY_VERIFY(!m_page->isOnDisplay());
    QCOMPARE(storedCookies(), QList<quint32>{m_page->getAlarmCookie()});
    QCOMPARE(QmAlarmEvent(m_page->getAlarmCookie()).alarmTime(), QTime(4, 30));
}

void TestSummerTime::aQuestionLeftOpenLosesNoAlarm()
{
    changeZone(zoneChangingTomorrow(2));
    load(Support::addAlarm(QTime(7, 5), "Tea"));
    save(QTime(2, 30));
    QTRY_VERIFY(question());
    m_page->resetContent();
    QVERIFY(!question());
    QVERIFY(!m_page->isOnDisplay());
    QCOMPARE(storedCookies().size(), 1);
    QCOMPARE(QmAlarmEvent(storedCookies().first()).alarmTime(), QTime(7, 5));
}

void TestSummerTime::theQuestionIsAskedAgain()
{
    changeZone(zoneChangingTomorrow(2));
    load(QmAlarmEvent::NotStored);
    save(QTime(2, 30));
    QTRY_VERIFY(question());
    answer(Answer::SetAgain);
    QVERIFY(!question());
    save(QTime(2, 15));
    QTRY_VERIFY(question());
    QCOMPARE(question()->text(), "at <01:15>");
}

void TestSummerTime::theQuestionIsMadeOnce()
{
    changeZone(zoneChangingTomorrow(2));
    load(QmAlarmEvent::NotStored);
    const QmAlarmEvent alarm = Support::alarmAt(QTime(12, 0));
    m_page->showResetAlarmDialog(alarm);
    const auto *first = question();
    QVERIFY(first);
    QCOMPARE(first->text(), "at <11:00>");
    answer(Answer::SetAgain);
    m_page->showResetAlarmDialog(alarm);
    QCOMPARE(question(), first);
}

void TestSummerTime::theQuestionSpeaksInTheUsersHours()
{
    changeZone(zoneChangingTomorrow(2));
    load(QmAlarmEvent::NotStored);
    pick(QTime(15, 30));
    QDir config(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation));
    QVERIFY(config.mkpath("Korvo"));
    QFile settings(config.filePath("Korvo/Locale.conf"));
    QVERIFY(settings.open(QIODevice::WriteOnly) && settings.write("timeFormat=12\n") > 0);
    settings.close();
    QTRY_COMPARE(label("ClockhhLabel")->text(), "03");
    m_page->showResetAlarmDialog(Support::alarmAt(QTime(15, 30)));
    const QString text = question()->text();
    QVERIFY(settings.remove());
    QVERIFY2(text.contains("2:30") && !text.contains("14:30"), qPrintable(text));
}

void TestSummerTime::aWeeklyAlarmIsAskedAboutToo()
{
    changeZone(zoneChangingTomorrow(2));
    const int tomorrow = (QDate::currentDate().dayOfWeek() + 1) % 7;
    load(Support::addAlarm(QTime(7, 5), "Tea", {tomorrow}));
    save(QTime(2, 30));
    QTRY_VERIFY(question());
    QCOMPARE(question()->text(), "at <01:30>");
    answer(Answer::SetAgain);
    QCOMPARE(QmAlarmEvent(m_page->getAlarmCookie()).repeatDays(), QList<int>{tomorrow});
}

void TestSummerTime::otherTimesAreNotAskedAbout_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<QTime>("chosen");
    QTest::newRow("before the gap") << zoneChangingTomorrow(2) << QTime(1, 59);
    QTest::newRow("after the gap") << zoneChangingTomorrow(2) << QTime(3, 0);
    QTest::newRow("a time that comes twice") << zoneChangingTomorrow(3, true) << QTime(2, 30);
    QTest::newRow("after midnight's gap") << zoneChangingTomorrow(0) << QTime(1, 0);
}

void TestSummerTime::otherTimesAreNotAskedAbout()
{
    QFETCH(QByteArray, zone);
    QFETCH(QTime, chosen);
    changeZone(zone);
    load(QmAlarmEvent::NotStored);
    save(chosen);
    QTRY_VERIFY(!m_page->isOnDisplay());
    QVERIFY(!question());
    QVERIFY(shownBanner().startsWith("qtn_cloc_time_left_alarm"));
}

QTEST_MAIN(TestSummerTime)
#include "tst_summertime.moc"
