// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/editor/optionstest.h"
#include "tests/support/logcapture.h"

#include <QFile>
#include <QMouseEvent>

class TestChangingOptions : public OptionsTest
{
    Q_OBJECT

private slots:
    void initTestCase() { startStage(); }
    void init() { openOptions(); }
    void cleanup() { closeOptions(); }
    void theRepeatRuleIsTakenFromTheDialog();
    void checkingEveryDayRepeatsEveryDay();
    void uncheckingAllDaysIsNever();
    void aRejectedDialogChangesNothing();
    void everyClickAsksAnew();
    void theDialogStartsWithTheRuleThatIs();
    void savingMakesDefaults();
    void theDefaultsAreInTheFileWhenSavingIsDone();
    void savingWithoutASnoozeKeepsItsDefault();
    void savingAnExistingAlarmsOptionsMakesDefaultsToo();
    void cancellingRestoresRuleAndSnooze();
    void cancellingGoesBackToWhatWasSaved();
    void escapeCancels();
    void aSwipeOfTheHeaderCancels();
    void resettingClosesWhatIsOpen();
    void resettingWithNothingOpenOnlySaysSo();
};

void TestChangingOptions::theRepeatRuleIsTakenFromTheDialog()
{
    openNewAlarm();
    const Support::LogCapture log;
    chooseDays({"weekday0Button", "weekday2Button"});
    QCOMPARE(m_options->repeatDays(), (QList<int>{1, 3}));
    QCOMPARE(rule(), "Mon, Wed");
    QVERIFY(!dialog());
    QCOMPARE(log.lines(QtDebugMsg), QStringList{"AlarmOptionsPage::repeatingRulesButtonClicked()"});
}

void TestChangingOptions::checkingEveryDayRepeatsEveryDay()
{
    openNewAlarm();
    chooseDays({"everyDayButton"});
    QCOMPARE(m_options->repeatDays(), (QList<int>{1, 2, 3, 4, 5, 6, 0}));
    QCOMPARE(rule(), "qtn_cloc_repeatalarm_ruleeveryday");
}

void TestChangingOptions::uncheckingAllDaysIsNever()
{
    m_options->load(Support::addAlarm(QTime(7, 5), "Tea", {1, 3}), m_tone, 10);
    m_options->appear();
    chooseDays({"weekday0Button", "weekday2Button"});
    QCOMPARE(m_options->repeatDays(), QList<int>());
    QCOMPARE(rule(), "qtn_cloc_repeatalarm_rulenever");
}

void TestChangingOptions::aRejectedDialogChangesNothing()
{
    m_options->load(Support::addAlarm(QTime(7, 5), "Tea", {1, 3}), m_tone, 10);
    m_options->appear();
    m_options->repeatingRulesButtonClicked();
    Support::itemIn<Touch::Button>(dialog(), "everyDayButton")->click();
    QVERIFY(m_options->hostWindow()->stepBack());
    QVERIFY(!dialog());
    QCOMPARE(m_options->repeatDays(), (QList<int>{1, 3}));
    QCOMPARE(rule(), "Mon, Wed");
}

void TestChangingOptions::everyClickAsksAnew()
{
    openNewAlarm();
    m_options->repeatingRulesButtonClicked();
    const QPointer<RepeatingRules> first = dialog();
    QVERIFY(m_options->hostWindow()->stepBack());
    QTRY_VERIFY(!first);
    m_options->repeatingRulesButtonClicked();
    QVERIFY(dialog());
    QVERIFY(dialog()->isNeverChecked());
}

void TestChangingOptions::theDialogStartsWithTheRuleThatIs()
{
    m_options->load(Support::addAlarm(QTime(7, 5), "Tea", {1, 3}), m_tone, 10);
    m_options->appear();
    m_options->repeatingRulesButtonClicked();
    QCOMPARE(dialog()->repeatDays(), (QList<int>{1, 3}));
    QVERIFY(!dialog()->isNeverChecked());
    dialog()->accept();
    chooseDays({"weekday4Button"});
    m_options->repeatingRulesButtonClicked();
    QCOMPARE(dialog()->repeatDays(), (QList<int>{1, 3, 5}));
}

void TestChangingOptions::savingMakesDefaults()
{
    openNewAlarm();
    snooze()->setCurrentIndex(4);
    m_options->save();
    QVERIFY(!m_options->isOnDisplay());
    QCOMPARE(settings().value("Clock/SnoozeTime").toInt(), 30);
    QCOMPARE(settings().value("Clock/DefaultTone").toString(), m_options->tone());
}

void TestChangingOptions::theDefaultsAreInTheFileWhenSavingIsDone()
{
    m_options->load(Support::addAlarm(QTime(7, 5)), m_tone, 15);
    m_options->appear();
    m_options->save();
    QFile file(settings().fileName());
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray content = file.readAll();
    QVERIFY(content.contains("SnoozeTime=15"));
    QVERIFY(content.contains("DefaultTone=" + m_tone.toUtf8()));
}

void TestChangingOptions::savingWithoutASnoozeKeepsItsDefault()
{
    settings().setValue("Clock/SnoozeTime", 20);
    openNewAlarm();
    snooze()->setCurrentIndex(-1);
    QCOMPARE(m_options->snoozeIndex(), 3);
    m_options->save();
    QCOMPARE(settings().value("Clock/SnoozeTime").toInt(), 20);
}

void TestChangingOptions::savingAnExistingAlarmsOptionsMakesDefaultsToo()
{
    m_options->load(Support::addAlarm(QTime(7, 5)), m_tone, 15);
    m_options->appear();
    m_options->save();
    m_options->load(QmAlarmEvent::NotStored, QString(), 10);
    QCOMPARE(m_options->snoozeIndex(), 2);
    QCOMPARE(m_options->tone(), m_tone);
}

void TestChangingOptions::cancellingRestoresRuleAndSnooze()
{
    m_options->load(Support::addAlarm(QTime(7, 5), "Tea", {1, 3}), m_tone, 15);
    m_options->appear();
    chooseDays({"everyDayButton"});
    snooze()->setCurrentIndex(4);
    m_options->cancel();
    QVERIFY(!m_options->isOnDisplay());
    QCOMPARE(m_options->repeatDays(), (QList<int>{1, 3}));
    QCOMPARE(rule(), "Mon, Wed");
    QCOMPARE(m_options->snoozeIndex(), 2);
    QCOMPARE(m_options->tone(), m_tone);
    QVERIFY(!settings().contains("Clock/SnoozeTime"));
    QVERIFY(!settings().contains("Clock/DefaultTone"));
}

void TestChangingOptions::cancellingGoesBackToWhatWasSaved()
{
    openNewAlarm();
    chooseDays({"weekday4Button"});
    snooze()->setCurrentIndex(0);
    m_options->save();
    m_options->appear();
    chooseDays({"neverButton"});
    snooze()->setCurrentIndex(4);
    m_options->cancel();
    QCOMPARE(m_options->repeatDays(), QList<int>{5});
    QCOMPARE(m_options->snoozeIndex(), 0);
}

void TestChangingOptions::escapeCancels()
{
    openNewAlarm();
    snooze()->setCurrentIndex(4);
    QVERIFY(m_options->hostWindow()->stepBack());
    QVERIFY(!m_options->isOnDisplay());
    QCOMPARE(m_options->snoozeIndex(), 1);
}

void TestChangingOptions::aSwipeOfTheHeaderCancels()
{
    openNewAlarm();
    snooze()->setCurrentIndex(4);
    QWidget *screen = m_options->hostWindow()->viewport();
    QPoint finger(screen->width() / 2, 30);
    QTest::mousePress(screen, Qt::LeftButton, {}, finger);
    while (finger.y() < screen->height() / 2) {
        finger.ry() += 20;
        QMouseEvent move(QEvent::MouseMove, finger, screen->mapToGlobal(finger), Qt::NoButton, Qt::LeftButton, {});
        QCoreApplication::sendEvent(screen, &move);
    }
    QTest::mouseRelease(screen, Qt::LeftButton, {}, finger);
    QVERIFY(!m_options->isOnDisplay());
    QCOMPARE(m_options->snoozeIndex(), 1);
}

void TestChangingOptions::resettingClosesWhatIsOpen()
{
    openNewAlarm();
    snooze()->showPopup();
    QVERIFY(snooze()->isPopupOpen());
    m_options->resetContent();
    QVERIFY(!snooze()->isPopupOpen());
    m_options->repeatingRulesButtonClicked();
    m_options->resetContent();
    QVERIFY(!dialog());
    QVERIFY(m_options->isOnDisplay());
}

void TestChangingOptions::resettingWithNothingOpenOnlySaysSo()
{
    m_options->load(QmAlarmEvent::NotStored, QString(), 10);
    const Support::LogCapture log;
    m_options->resetContent();
    QCOMPARE(log.lines(), QStringList{"void AlarmOptionsPage::resetContent()"});
}

QTEST_MAIN(TestChangingOptions)
#include "tst_changingoptions.moc"
