// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "alarms/qmalarm.h"
#include "platform/clockwidgets/alarmlistitem.h"
#include "tests/alarmlist/alarmsection.h"
#include "tests/alarmlist/announcements.h"
#include "tests/support/alarms.h"
#include "tests/support/logcapture.h"

#include <QTest>

using Clock::QmAlarm;
using Support::addAlarm;
using Support::addSwitchedOffAlarm;

class TestAlarmDeletion : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(m_section.start()); }
    void init() { QVERIFY(m_section.open()); }
    void cleanup() { QVERIFY(m_section.close()); }
    void aSwitchedOffAlarmLosesItsRowAtOnce();
    void anAlarmThatIsOnLosesItsRowWithTheNextNotification();
    void theNotificationOfADeletionIsNotSkipped();
    void withoutAnyAlarmNothingIsPannable();
    void oneOfTwoLeavesTheListPannable();
    void aFailedDeletionKeepsTheRow();
    void anAlarmThatIsGoneAlreadyIsNoFailure();

private:
    QList<quint32> stored() const;

    AlarmSection m_section;
};

QList<quint32> TestAlarmDeletion::stored() const
{
    bool failed = false;
    return QmAlarm().query(failed);
}

void TestAlarmDeletion::aSwitchedOffAlarmLosesItsRowAtOnce()
{
    addSwitchedOffAlarm(QTime(5, 0));
    addSwitchedOffAlarm(QTime(6, 0));
    const quint32 kept = addSwitchedOffAlarm(QTime(7, 0));
    m_section.widget()->updateContent();
    QTRY_VERIFY(m_section.cell(2));
    Announcements announcements(m_section.model());
    AlarmSection::chooseDelete(m_section.cell(1));
    QCOMPARE(announcements.words, QStringList{"- 1 1 animated"});
    AlarmSection::chooseDelete(m_section.cell(0));
    QCOMPARE(announcements.words.last(), "- 0 0 animated");
    QCOMPARE(m_section.column(0), QStringList{QString::number(kept)});
    QCOMPARE(stored(), QList<quint32>{kept});
    // The records went with their rows: the list is in step.
    announcements.words.clear();
    m_section.widget()->updateContent();
    QCOMPARE(announcements.words, (QStringList{"- 0 0 plain", "+ 0 0 plain"}));
}

void TestAlarmDeletion::anAlarmThatIsOnLosesItsRowWithTheNextNotification()
{
    const quint32 first = addAlarm(QTime(5, 0));
    const quint32 second = addAlarm(QTime(6, 0));
    QTRY_COMPARE(m_section.model()->rowCount(), 2);
    QTRY_VERIFY(m_section.cell(0) && m_section.cell(1));
    const int row = m_section.column(0).indexOf(QString::number(first));
    Announcements announcements(m_section.model());
    AlarmSection::chooseDelete(m_section.cell(row));
    QCOMPARE(announcements.words, QStringList());
    QCOMPARE(stored(), QList<quint32>{second});
    QTRY_COMPARE(m_section.column(0), QStringList{QString::number(second)});
    QCOMPARE(announcements.words, QStringList{QString("- %1 %1 animated").arg(row)});
}

void TestAlarmDeletion::theNotificationOfADeletionIsNotSkipped()
{
    addAlarm(QTime(5, 0));
    QTRY_VERIFY(m_section.model()->rowCount() == 1 && m_section.cell(0));
    const Support::LogCapture log;
    AlarmSection::chooseDelete(m_section.cell(0));
    QTRY_COMPARE(log.lines().filter("void AlarmsWidget::updateContent() exited").size(), 1);
}

void TestAlarmDeletion::withoutAnyAlarmNothingIsPannable()
{
    addSwitchedOffAlarm(QTime(5, 0));
    m_section.widget()->updateContent();
    QTRY_VERIFY(m_section.cell(0));
    QCOMPARE(m_section.viewport()->panDirection(), Qt::Orientations(Qt::Vertical));
    AlarmSection::chooseDelete(m_section.cell(0));
    QCOMPARE(m_section.viewport()->panDirection(), Qt::Orientations());
    QVERIFY(m_section.isHintShown());
}

void TestAlarmDeletion::oneOfTwoLeavesTheListPannable()
{
    addSwitchedOffAlarm(QTime(5, 0));
    addSwitchedOffAlarm(QTime(6, 0));
    m_section.widget()->updateContent();
    QTRY_VERIFY(m_section.cell(0));
    AlarmSection::chooseDelete(m_section.cell(0));
    QCOMPARE(m_section.viewport()->panDirection(), Qt::Orientations(Qt::Vertical));
    QVERIFY(!m_section.isHintShown());
}

void TestAlarmDeletion::aFailedDeletionKeepsTheRow()
{
    addSwitchedOffAlarm(QTime(5, 0));
    m_section.widget()->updateContent();
    QTRY_VERIFY(m_section.cell(0));
    Announcements announcements(m_section.model());
    m_section.daemon().kill();
    AlarmSection::chooseDelete(m_section.cell(0));
    QTRY_COMPARE(m_section.shownBanner(), "qtn_cloc_alarm_delete_error");
    QCOMPARE(announcements.words, QStringList());
    QCOMPARE(m_section.viewport()->panDirection(), Qt::Orientations(Qt::Vertical));
    QVERIFY(m_section.daemon().start());
    QCOMPARE(stored().size(), 1);
}

void TestAlarmDeletion::anAlarmThatIsGoneAlreadyIsNoFailure()
{
    const quint32 cookie = addSwitchedOffAlarm(QTime(5, 0));
    m_section.widget()->updateContent();
    QTRY_VERIFY(m_section.cell(0));
    QVERIFY(QmAlarm().deleteEvent(cookie));
    AlarmSection::chooseDelete(m_section.cell(0));
    QCOMPARE(m_section.model()->rowCount(), 0);
}

QTEST_MAIN(TestAlarmDeletion)
#include "tst_alarmdeletion.moc"
