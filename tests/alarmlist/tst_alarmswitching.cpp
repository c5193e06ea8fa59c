// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "alarms/qmalarm.h"
#include "alarms/qmalarmevent.h"
#include "alarms/utility.h"
#include "platform/clockwidgets/alarmlistitem.h"
#include "tests/alarmlist/alarmsection.h"
#include "tests/alarmlist/announcements.h"
#include "tests/support/alarms.h"
#include "tests/support/logcapture.h"

#include <QSignalSpy>
#include <QTest>

using Clock::QmAlarmEvent;
using Clock::Utility;
using Support::addAlarm;
using Support::addSwitchedOffAlarm;

class TestAlarmSwitching : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(m_section.start()); }
    void init() { QVERIFY(m_section.open()); }
    void cleanup() { QVERIFY(m_section.close()); }
    void switchingOnShowsTheTimeLeftOnce();
    void switchingOffShowsNothing();
    void switchingKeepsTheRowAndGivesItTheNewCookie();
    void theStatusIsWrittenBeforeTheCookie();
    void aPassedOneTimeAlarmIsSwitchedOnForItsNextTime();
    void newsOfAnotherAlarmAreTakenForTheAnswer();
    void anAlarmIsSwitchedOnAndOffAndOnAgain();
    void aFailedSwitchIsTakenBack();
    void aFailedSwitchChangesNothingElse();
    void anAlarmThatIsNotListedLeavesTheModelAlone();
    void theRowIsFoundByTheStartOfItsCookie();

private:
    AlarmSection m_section;
};

void TestAlarmSwitching::switchingOnShowsTheTimeLeftOnce()
{
    addSwitchedOffAlarm(QTime(5, 0));
    m_section.widget()->updateContent();
    QTRY_VERIFY(m_section.cell(0));
    const Support::LogCapture log;
    AlarmSection::flip(m_section.cell(0));
    QTRY_VERIFY(m_section.shownBanner().startsWith("qtn_cloc_time_left_alarm"));
    QCOMPARE(log.lines().filter("timeLeftForAlarmToTrigger").size(), 1);
    QVERIFY2(log.lines().filter("AlarmsWidget::updateContent").isEmpty(), "the echo does not reload the list");
}

void TestAlarmSwitching::switchingOffShowsNothing()
{
    const quint32 cookie = addAlarm(QTime(5, 0));
    QTRY_VERIFY(m_section.cell(0));
    const Support::LogCapture log;
    AlarmSection::flip(m_section.cell(0));
    QTRY_VERIFY(!log.lines().filter("AlarmsWidget::onValueChanged").isEmpty());
    QVERIFY(Support::waitForTrigger(cookie, false));
    QVERIFY(log.lines().filter("timeLeftForAlarmToTrigger").isEmpty());
    QVERIFY(log.lines().filter("AlarmsWidget::updateContent").isEmpty());
    QVERIFY(!QmAlarmEvent(m_section.model()->index(0, 0).data().toUInt()).isEnabled());
}

void TestAlarmSwitching::switchingKeepsTheRowAndGivesItTheNewCookie()
{
    const quint32 cookie = addSwitchedOffAlarm(QTime(5, 0), "Tea", {1, 2, 3});
    m_section.widget()->updateContent();
    QTRY_VERIFY(m_section.cell(0));
    Announcements announcements(m_section.model());
    AlarmListItem *switched = m_section.cell(0);
    AlarmSection::flip(switched);
    QCOMPARE(announcements.words, QStringList());
    const auto newCookie = static_cast<quint32>(switched->alarmCookie());
    QVERIFY(newCookie != cookie);
    QCOMPARE(m_section.column(0), QStringList{QString::number(newCookie)});
    QCOMPARE(m_section.column(3), QStringList{"1"});
    const QmAlarmEvent stored(newCookie);
    QVERIFY(stored.isEnabled());
    QCOMPARE(stored.title(), "Tea");
    QCOMPARE(stored.repeatDays(), (QList<int>{1, 2, 3}));
    QTRY_VERIFY(!m_section.shownBanner().isEmpty());
}

void TestAlarmSwitching::theStatusIsWrittenBeforeTheCookie()
{
    addSwitchedOffAlarm(QTime(5, 0));
    m_section.widget()->updateContent();
    QTRY_VERIFY(m_section.cell(0));
    const QSignalSpy changes(m_section.model(), &QAbstractItemModel::dataChanged);
    AlarmSection::flip(m_section.cell(0));
    QStringList written;
    for (const QVariantList &change : changes) {
        const int column = change.first().toModelIndex().column();
        written.append(m_section.model()->headerData(column, Qt::Horizontal).toString());
    }
    QCOMPARE(written, (QStringList{"AlarmStatus", "AlarmCookie"}));
    QTRY_VERIFY(!m_section.shownBanner().isEmpty());
}

void TestAlarmSwitching::aPassedOneTimeAlarmIsSwitchedOnForItsNextTime()
{
    const QDateTime now = QDateTime::currentDateTime();
    const QTime passed = now.time().hour() > 0 ? QTime(now.time().hour() - 1, 0) : QTime(0, 0);
    addSwitchedOffAlarm(passed);
    m_section.widget()->updateContent();
    QTRY_VERIFY(m_section.cell(0));
    AlarmSection::flip(m_section.cell(0));
    const QmAlarmEvent stored(m_section.model()->index(0, 0).data().toUInt());
    // Midnight may pass meanwhile, and the time lies ahead again.
    const QDateTime next = stored.triggerTime();
    QCOMPARE(next.time(), passed);
    QVERIFY(next > now && now.secsTo(next) <= 24 * 60 * 60);
    QTRY_VERIFY(!m_section.shownBanner().isEmpty());
}

void TestAlarmSwitching::newsOfAnotherAlarmAreTakenForTheAnswer()
{
    addSwitchedOffAlarm(QTime(5, 0));
    m_section.widget()->updateContent();
    QTRY_VERIFY(m_section.cell(0));
    const Support::LogCapture log;
    AlarmSection::flip(m_section.cell(0));
    // Before the daemon has told of the alarm: there is no trigger yet whose time could be shown.
    emit Utility::instance()->valueChanged();
    QVERIFY(log.lines().filter("AlarmsWidget::updateContent").isEmpty());
    // What the daemon tells then is a change like any other.
    QTRY_COMPARE(log.lines().filter("void AlarmsWidget::updateContent() exited").size(), 1);
    QVERIFY(log.lines().filter("timeLeftForAlarmToTrigger").isEmpty());
    QCOMPARE(m_section.column(3), QStringList{"1"});
}

void TestAlarmSwitching::anAlarmIsSwitchedOnAndOffAndOnAgain()
{
    addSwitchedOffAlarm(QTime(5, 0), "Tea", {1, 2, 3});
    m_section.widget()->updateContent();
    QTRY_VERIFY(m_section.cell(0));
    AlarmListItem *cell = m_section.cell(0);
    for (const bool isOn : {true, false, true}) {
        AlarmSection::flip(cell);
        const QmAlarmEvent stored(m_section.column(0).first().toUInt());
        QCOMPARE(stored.isEnabled(), isOn);
        QCOMPARE(stored.title(), "Tea");
        QCOMPARE(stored.repeatDays(), (QList<int>{1, 2, 3}));
    }
    QVERIFY(Support::waitForTrigger(quint32(cell->alarmCookie())));
}

void TestAlarmSwitching::aFailedSwitchIsTakenBack()
{
    addSwitchedOffAlarm(QTime(5, 0));
    m_section.widget()->updateContent();
    QTRY_VERIFY(m_section.cell(0));
    m_section.daemon().kill();
    AlarmSection::flip(m_section.cell(0));
    QTRY_COMPARE(m_section.shownBanner(), "qtn_cloc_alarm_save_error");
    QCOMPARE(m_section.column(3), QStringList{"0"});
    QTRY_VERIFY(!m_section.cell(0)->enabled());
    QVERIFY(m_section.daemon().start());
}

void TestAlarmSwitching::aFailedSwitchChangesNothingElse()
{
    const quint32 cookie = addSwitchedOffAlarm(QTime(5, 0));
    m_section.widget()->updateContent();
    QTRY_VERIFY(m_section.cell(0));
    AlarmListItem *cell = m_section.cell(0);
    m_section.daemon().kill();
    AlarmSection::flip(cell);
    QCOMPARE(cell->alarmCookie(), long(cookie));
    QCOMPARE(m_section.column(0), QStringList{QString::number(cookie)});
    QTRY_COMPARE(m_section.shownBanner(), "qtn_cloc_alarm_save_error");
    QSignalSpy notifications(Utility::instance(), &Utility::valueChanged);
    QVERIFY(m_section.daemon().start());
    QVERIFY(notifications.wait());
    // The record is as it was, too: the next try switches it on.
    AlarmSection::flip(cell);
    QCOMPARE(m_section.column(3), QStringList{"1"});
    QTRY_VERIFY(m_section.shownBanner().startsWith("qtn_cloc_time_left_alarm"));
}

void TestAlarmSwitching::anAlarmThatIsNotListedLeavesTheModelAlone()
{
    addSwitchedOffAlarm(QTime(5, 0));
    m_section.widget()->updateContent();
    const QSignalSpy changes(m_section.model(), &QAbstractItemModel::dataChanged);
    AlarmListItem stranger(AlarmListItem::OneLine);
    const quint32 cookie = addSwitchedOffAlarm(QTime(6, 0));
    stranger.setAlarmCookie(long(cookie));
    m_section.widget()->invertAlarmState(&stranger);
    QCOMPARE(changes.size(), 0);
    // In its place there is now a record of defaults, the other way round: switched off.
    QVERIFY(stranger.alarmCookie() > long(cookie));
    QVERIFY(!QmAlarmEvent(quint32(stranger.alarmCookie())).isEnabled());
}

void TestAlarmSwitching::theRowIsFoundByTheStartOfItsCookie()
{
    addSwitchedOffAlarm(QTime(5, 0));
    const quint32 cookie = addSwitchedOffAlarm(QTime(6, 0));
    m_section.widget()->updateContent();
    QTRY_VERIFY(m_section.cell(1));
    AlarmListItem *cell = m_section.cell(1);
    m_section.model()->setData(m_section.model()->index(0, 0), QString::number(cookie) + "0");
    AlarmSection::flip(cell);
    QCOMPARE(m_section.column(3), (QStringList{"1", "0"}));
    QCOMPARE(m_section.column(0), (QStringList{QString::number(cell->alarmCookie()), QString::number(cookie)}));
    QTRY_VERIFY(!m_section.shownBanner().isEmpty());
}

QTEST_MAIN(TestAlarmSwitching)
#include "tst_alarmswitching.moc"
