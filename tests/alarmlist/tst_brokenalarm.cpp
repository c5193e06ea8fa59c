// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "alarms/qmalarmevent.h"
#include "alarms/utility.h"
#include "editor/settingalarmpage.h"
#include "platform/clockwidgets/alarmlistitem.h"
#include "platform/clockwidgets/timepicker.h"
#include "platform/toolkit/messagebox.h"
#include "tests/alarmlist/alarmsection.h"
#include "tests/support/alarms.h"
#include "tests/support/logcapture.h"
#include "tests/support/look/items.h"
#include "tests/support/look/shown.h"
#include "tests/support/summertime.h"

#include <QTest>

#include <utility>

using Clock::QmAlarmEvent;
using Clock::Utility;
using Support::addSwitchedOffAlarm;

/** Alarms at a time that the coming change to summer time skips, switched on from the list. */
class TestBrokenAlarm : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init() { QVERIFY(m_section.open()); }
    void cleanup();
    void itIsSwitchedOffAgainAndTheDialogOpens();
    void everyNotificationDoesOneStep();
    void anAlarmBesideTheGapIsNotTouched();
    void whereItCannotBeSwitchedOffAgainTheDialogOpensAllTheSame();
    void aCellOfAnotherAlarmByThenIsLeftAlone();
    void withNothingSwitchedOnThereIsNothingToFix();

private:
    Touch::MessageBox *dialog() const { return Support::shownIn<Touch::MessageBox>(m_section.window()); }

    QTime m_skipped;
    AlarmSection m_section;
};

void TestBrokenAlarm::initTestCase()
{
    m_skipped = Support::skipAnHourSoon();
    QVERIFY(m_section.start());
}

void TestBrokenAlarm::cleanup()
{
    if (Touch::MessageBox *open = dialog())
        open->dismiss();
    QVERIFY(m_section.close());
}

void TestBrokenAlarm::itIsSwitchedOffAgainAndTheDialogOpens()
{
    addSwitchedOffAlarm(m_skipped, "Early");
    m_section.widget()->updateContent();
    QTRY_VERIFY(m_section.cell(0));
    AlarmSection::flip(m_section.cell(0));
    QTRY_VERIFY(dialog());
    QCOMPARE(m_section.column(3), QStringList{"0"});
    QTRY_VERIFY(!m_section.cell(0)->enabled());
    const quint32 cookie = m_section.column(0).first().toUInt();
    QVERIFY(!QmAlarmEvent(cookie).isEnabled());
    QCOMPARE(m_section.shownBanner(), "");

    SettingAlarmPage *editor = SettingAlarmPage::instance();
    QVERIFY2(!editor->isOnDisplay(), "only its dialog is shown");
    QCOMPARE(editor->getAlarmCookie(), cookie);
    const auto *picker = Support::itemIn<TimePicker>(editor);
    QCOMPARE(QTime(picker->hours(), picker->minutes()), m_skipped);
}

void TestBrokenAlarm::everyNotificationDoesOneStep()
{
    addSwitchedOffAlarm(m_skipped);
    m_section.widget()->updateContent();
    QTRY_VERIFY(m_section.cell(0));
    const Support::LogCapture log;
    AlarmSection::flip(m_section.cell(0));
    QVERIFY2(!dialog(), "the daemon has not spoken yet");
    QTRY_VERIFY(dialog());
    QCOMPARE(log.lines().filter("AlarmsWidget::onValueChanged").size(), 2);
    QVERIFY2(log.lines().filter("AlarmsWidget::updateContent").isEmpty(), "both were echoes");
    QVERIFY(log.lines().filter("timeLeftForAlarmToTrigger").isEmpty());
    // Whatever comes next is a change like any other.
    m_section.widget()->onValueChanged();
    QCOMPARE(log.lines().filter("AlarmsWidget::updateContent() exited").size(), 1);
}

void TestBrokenAlarm::anAlarmBesideTheGapIsNotTouched()
{
    addSwitchedOffAlarm(m_skipped.addSecs(-60 * 60));
    m_section.widget()->updateContent();
    QTRY_VERIFY(m_section.cell(0));
    AlarmSection::flip(m_section.cell(0));
    QTRY_VERIFY(m_section.shownBanner().startsWith("qtn_cloc_time_left_alarm"));
    QCOMPARE(m_section.column(3), QStringList{"1"});
    QVERIFY(!dialog());
}

void TestBrokenAlarm::whereItCannotBeSwitchedOffAgainTheDialogOpensAllTheSame()
{
    // Heard before the section, the daemon's answer to the switch is the last that is heard of it.
    bool isLast = false;
    const auto end = connect(Utility::instance(), &Utility::valueChanged, this, [this, &isLast] {
        if (std::exchange(isLast, false))
            m_section.daemon().kill();
    });
    addSwitchedOffAlarm(m_skipped);
    m_section.openAtOnce();
    QTRY_VERIFY(m_section.cell(0));
    isLast = true;
    AlarmSection::flip(m_section.cell(0));
    QTRY_COMPARE(m_section.shownBanner(), "qtn_cloc_alarm_save_error");
    QVERIFY(disconnect(end));
    QCOMPARE(m_section.column(3), QStringList{"1"});
    QVERIFY(!dialog());
    QVERIFY(m_section.daemon().start());
    QTRY_VERIFY(dialog());
    const quint32 cookie = m_section.column(0).first().toUInt();
    QCOMPARE(SettingAlarmPage::instance()->getAlarmCookie(), cookie);
    QVERIFY(QmAlarmEvent(cookie).isEnabled());
}

void TestBrokenAlarm::aCellOfAnotherAlarmByThenIsLeftAlone()
{
    AlarmListItem *cell = nullptr;
    const quint32 other = addSwitchedOffAlarm(QTime(12, 0));
    // Heard before the section, as if the row had been panned away when the daemon answers.
    const QObject finger;
    connect(Utility::instance(), &Utility::valueChanged, &finger, [&cell, other] {
        if (cell)
            cell->setAlarmCookie(other);
    });
    addSwitchedOffAlarm(m_skipped);
    m_section.openAtOnce();
    QTRY_VERIFY(m_section.cell(0) && m_section.cell(1));
    cell = m_section.cell(m_section.column(0).first().toUInt() == other ? 1 : 0);
    const Support::LogCapture log;
    AlarmSection::flip(cell);
    QTRY_COMPARE(log.lines().filter("AlarmsWidget::onValueChanged").size(), 1);
    cell = nullptr;
    QCOMPARE(log.lines().filter("timeLeftForAlarmToTrigger").size(), 1);
    QVERIFY(!QmAlarmEvent(other).isEnabled());
    QVERIFY(Support::waitForChanges());
    QVERIFY(!dialog());
}

void TestBrokenAlarm::withNothingSwitchedOnThereIsNothingToFix()
{
    const quint32 before = SettingAlarmPage::instance()->getAlarmCookie();
    m_section.widget()->fixTheBrokenAlarm();
    QVERIFY(!dialog());
    QCOMPARE(SettingAlarmPage::instance()->getAlarmCookie(), before);
}

QTEST_MAIN(TestBrokenAlarm)
#include "tst_brokenalarm.moc"
