// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "editor/alarmeditorlistitem.h"
#include "editor/alarmoptionspage.h"
#include "editor/repeatingrules.h"
#include "editor/snoozechoices.h"
#include "platform/toolkit/combobox.h"
#include "tests/editor/editortest.h"
#include "tests/support/logcapture.h"

#include <QMetaMethod>

class TestAlarmOptionsPage : public EditorTest
{
    Q_OBJECT

private slots:
    void initTestCase() { startStage(); }
    void init();
    void cleanup();
    void hasAnInvertedWindowChainedToTheCaller();
    void listsRepeatSnoozeAndTone();
    void offersFiveSnoozeTimes();
    void searchesByHalves_data();
    void searchesByHalves();
    void aNewAlarmStartsWithTheDefaults();
    void aNewAlarmTakesThePreferences();
    void aNewAlarmsSnoozeIsCutToEightBits();
    void anExistingAlarmBringsItsOwnValues();
    void aSnoozeThatCannotBeChosenKeepsTheChoice();
    void aMissingToneIsReplacedByTheDefault();
    void theRepeatRuleIsTakenFromTheDialog();
    void checkingEveryDayRepeatsEveryDay();
    void uncheckingAllDaysIsNever();
    void aRejectedDialogChangesNothing();
    void everyClickAsksAnew();
    void savingMakesDefaults();
    void savingWithoutASnoozeKeepsItsDefault();
    void savingAnExistingAlarmsOptionsMakesDefaultsToo();
    void cancellingRestoresRuleAndSnooze();
    void cancellingGoesBackToWhatWasSaved();
    void escapeCancels();
    void resettingClosesWhatIsOpen();
    void resettingWithNothingOpenOnlySaysSo();
    void theSlotsKeepTheirOrder();

private:
    AlarmEditorListItem *item(const QString &name) const
    {
        return Support::itemIn<AlarmEditorListItem>(m_options.get(), name);
    }
    Touch::ComboBox *snooze() const { return Support::itemIn<Touch::ComboBox>(m_options.get()); }
    QString rule() const { return item("repeatBasicListItem")->subtitle(); }
    RepeatingRules *dialog() const;
    /** Opens the dialog, clicks some of its buttons, and is done. */
    void chooseDays(const QStringList &buttons);
    void openNewAlarm();
    static QSettings settings() { return QSettings("Korvo", "Clock"); }

    std::unique_ptr<AlarmOptionsPage> m_options;
};

void TestAlarmOptionsPage::init()
{
    QSettings("Korvo", "Clock").clear();
    m_options = std::make_unique<AlarmOptionsPage>();
}

void TestAlarmOptionsPage::cleanup()
{
    m_options.reset();
    closePage();
}

RepeatingRules *TestAlarmOptionsPage::dialog() const
{
    const auto sceneWindows = m_options->hostWindow()->sceneWindows();
    for (Touch::SceneWindow *sceneWindow : sceneWindows) {
        if (auto *rules = qobject_cast<RepeatingRules *>(sceneWindow); rules && rules->isOnDisplay())
            return rules;
    }
    return nullptr;
}

void TestAlarmOptionsPage::openNewAlarm()
{
    m_options->load(QmAlarmEvent::NotStored, QString(), 10);
    m_options->appear();
}

void TestAlarmOptionsPage::chooseDays(const QStringList &buttons)
{
    emit item("repeatBasicListItem")->clicked();
    QVERIFY(dialog());
    for (const QString &name : buttons)
        Support::itemIn<Touch::Button>(dialog(), name)->click();
    dialog()->standardButton(Touch::Dialog::Done)->click();
}

void TestAlarmOptionsPage::hasAnInvertedWindowChainedToTheCaller()
{
    openNewAlarm();
    const auto *window = qobject_cast<Touch::ApplicationWindow *>(m_options->hostWindow());
    QVERIFY(window);
    QVERIFY(window != m_window.get());
    QCOMPARE(window->chainedTo(), m_window.get());
    QCOMPARE(window->styleName(), "CommonApplicationWindowInverted");
    QCOMPARE(window->orientation(), Qt::Vertical);
    QVERIFY(window->isOrientationLocked());
    QVERIFY(window->isVisible());
    m_options->cancel();
    QTRY_VERIFY(!window->isVisible());
}

void TestAlarmOptionsPage::listsRepeatSnoozeAndTone()
{
    openNewAlarm();
    QCOMPARE(m_options->styleName(), "MoreOptionsSheet");
    const auto *header = Support::itemIn<Touch::Label>(m_options.get(), "AlarmOptionsHeader");
    QVERIFY(header);
    QCOMPARE(header->styleName(), "CommonApplicationHeader");
    QCOMPARE(header->text(), "qtn_cloc_alarm_options");
    QCOMPARE(item("repeatBasicListItem")->title(), "qtn_cloc_alarmeditor_repeattitle");
    QCOMPARE(snooze()->title(), "qtn_cloc_alarmeditor_snoozesetting");
    QCOMPARE(snooze()->objectName(), "snoozeComboBox");
    QCOMPARE(item("toneBasicListItem")->title(), "qtn_cloc_alarmeditor_tone");
    const QList<Touch::Widget *> rows{item("repeatBasicListItem"), snooze(), item("toneBasicListItem")};
    const auto top = [](const Touch::Widget *widget) { return widget->scenePos().y(); };
    QTRY_VERIFY(top(rows[0]) > top(header) && top(rows[1]) > top(rows[0]) && top(rows[2]) > top(rows[1]));
    for (const Touch::Widget *row : rows)
        QCOMPARE(row->styleName(), "CommonPanel");
    QCOMPARE(item("repeatBasicListItem")->itemStyle(), AlarmEditorListItem::ItemStyle(3));
    QCOMPARE(item("toneBasicListItem")->itemStyle(), AlarmEditorListItem::ItemStyle(3));
}

void TestAlarmOptionsPage::offersFiveSnoozeTimes()
{
    QCOMPARE(snooze()->count(), 5);
    QCOMPARE(QList<int>(SnoozeChoices.begin(), SnoozeChoices.end()), (QList<int>{5, 10, 15, 20, 30}));
}

void TestAlarmOptionsPage::searchesByHalves_data()
{
    QTest::addColumn<int>("minutes");
    QTest::addColumn<int>("low");
    QTest::addColumn<int>("high");
    QTest::addColumn<int>("index");
    QTest::newRow("first") << 5 << 0 << 4 << 0;
    QTest::newRow("second") << 10 << 0 << 4 << 1;
    QTest::newRow("middle") << 15 << 0 << 4 << 2;
    QTest::newRow("fourth") << 20 << 0 << 4 << 3;
    QTest::newRow("last") << 30 << 0 << 4 << 4;
    QTest::newRow("between two") << 25 << 0 << 4 << -1;
    QTest::newRow("below all") << 0 << 0 << 4 << -1;
    QTest::newRow("above all") << 60 << 0 << 4 << -1;
    QTest::newRow("outside the part") << 5 << 1 << 4 << -1;
    QTest::newRow("a part of one") << 15 << 2 << 2 << 2;
    QTest::newRow("no part") << 15 << 3 << 2 << -1;
}

void TestAlarmOptionsPage::searchesByHalves()
{
    QFETCH(int, minutes);
    QFETCH(int, low);
    QFETCH(int, high);
    QTEST(m_options->binarySearch(SnoozeChoices.data(), minutes, low, high), "index");
}

void TestAlarmOptionsPage::aNewAlarmStartsWithTheDefaults()
{
    openNewAlarm();
    QCOMPARE(rule(), "qtn_cloc_repeatalarm_rulenever");
    QCOMPARE(m_options->repeatDays(), QList<int>());
    QCOMPARE(snooze()->currentIndex(), 1);
    QCOMPARE(m_options->snoozeIndex(), 1);
    QCOMPARE(m_options->tone(), Utility::defaultAlertTone());
}

void TestAlarmOptionsPage::aNewAlarmTakesThePreferences()
{
    settings().setValue("Clock/SnoozeTime", 20);
    settings().setValue("Clock/DefaultTone", m_tone);
    m_options->load(QmAlarmEvent::NotStored, "/not/asked.aac", 5);
    QCOMPARE(m_options->snoozeIndex(), 3);
    QCOMPARE(m_options->tone(), m_tone);
}

void TestAlarmOptionsPage::aNewAlarmsSnoozeIsCutToEightBits()
{
    settings().setValue("Clock/SnoozeTime", 261);
    m_options->load(QmAlarmEvent::NotStored, QString(), 10);
    QCOMPARE(snooze()->currentIndex(), 0);
}

void TestAlarmOptionsPage::anExistingAlarmBringsItsOwnValues()
{
    settings().setValue("Clock/SnoozeTime", 20);
    const quint32 cookie = Support::addAlarm(QTime(7, 5), "Tea", {1, 3});
    m_options->load(cookie, m_tone, 30);
    QCOMPARE(m_options->repeatDays(), (QList<int>{1, 3}));
    QCOMPARE(rule(), "Mon, Wed");
    QCOMPARE(m_options->snoozeIndex(), 4);
    QCOMPARE(m_options->tone(), m_tone);
    m_options->load(Support::addAlarm(QTime(8, 0)), m_tone, 5);
    QCOMPARE(m_options->repeatDays(), QList<int>());
    QCOMPARE(rule(), "qtn_cloc_repeatalarm_rulenever");
}

void TestAlarmOptionsPage::aSnoozeThatCannotBeChosenKeepsTheChoice()
{
    const quint32 cookie = Support::addAlarm(QTime(7, 5));
    m_options->load(cookie, m_tone, 20);
    m_options->load(cookie, m_tone, 7);
    QCOMPARE(snooze()->currentIndex(), 3);
    snooze()->setCurrentIndex(0);
    m_options->cancel();
    QCOMPARE(snooze()->currentIndex(), 3);
}

void TestAlarmOptionsPage::aMissingToneIsReplacedByTheDefault()
{
    m_options->load(Support::addAlarm(QTime(7, 5)), "/nowhere/gone.aac", 10);
    QCOMPARE(m_options->tone(), Utility::defaultAlertTone());
    settings().setValue("Clock/DefaultTone", "/nowhere/gone.aac");
    m_options->load(QmAlarmEvent::NotStored, m_tone, 10);
    QCOMPARE(m_options->tone(), Utility::defaultAlertTone());
}

void TestAlarmOptionsPage::theRepeatRuleIsTakenFromTheDialog()
{
    openNewAlarm();
    const Support::LogCapture log;
    chooseDays({"weekday0Button", "weekday2Button"});
    QCOMPARE(m_options->repeatDays(), (QList<int>{1, 3}));
    QCOMPARE(rule(), "Mon, Wed");
    QVERIFY(!dialog());
    QCOMPARE(log.lines(QtDebugMsg), QStringList{"AlarmOptionsPage::repeatingRulesButtonClicked()"});
}

void TestAlarmOptionsPage::checkingEveryDayRepeatsEveryDay()
{
    openNewAlarm();
    chooseDays({"everyDayButton"});
    QCOMPARE(m_options->repeatDays(), (QList<int>{1, 2, 3, 4, 5, 6, 0}));
    QCOMPARE(rule(), "qtn_cloc_repeatalarm_ruleeveryday");
}

void TestAlarmOptionsPage::uncheckingAllDaysIsNever()
{
    m_options->load(Support::addAlarm(QTime(7, 5), "Tea", {1, 3}), m_tone, 10);
    m_options->appear();
    chooseDays({"weekday0Button", "weekday2Button"});
    QCOMPARE(m_options->repeatDays(), QList<int>());
    QCOMPARE(rule(), "qtn_cloc_repeatalarm_rulenever");
}

void TestAlarmOptionsPage::aRejectedDialogChangesNothing()
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

void TestAlarmOptionsPage::everyClickAsksAnew()
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

void TestAlarmOptionsPage::savingMakesDefaults()
{
    openNewAlarm();
    snooze()->setCurrentIndex(4);
    m_options->save();
    QVERIFY(!m_options->isOnDisplay());
    QCOMPARE(settings().value("Clock/SnoozeTime").toInt(), 30);
    QCOMPARE(settings().value("Clock/DefaultTone").toString(), m_options->tone());
}

void TestAlarmOptionsPage::savingWithoutASnoozeKeepsItsDefault()
{
    settings().setValue("Clock/SnoozeTime", 20);
    openNewAlarm();
    snooze()->setCurrentIndex(-1);
    QCOMPARE(m_options->snoozeIndex(), 3);
    m_options->save();
    QCOMPARE(settings().value("Clock/SnoozeTime").toInt(), 20);
}

void TestAlarmOptionsPage::savingAnExistingAlarmsOptionsMakesDefaultsToo()
{
    m_options->load(Support::addAlarm(QTime(7, 5)), m_tone, 15);
    m_options->appear();
    m_options->save();
    m_options->load(QmAlarmEvent::NotStored, QString(), 10);
    QCOMPARE(m_options->snoozeIndex(), 2);
    QCOMPARE(m_options->tone(), m_tone);
}

void TestAlarmOptionsPage::cancellingRestoresRuleAndSnooze()
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

void TestAlarmOptionsPage::cancellingGoesBackToWhatWasSaved()
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

void TestAlarmOptionsPage::escapeCancels()
{
    openNewAlarm();
    snooze()->setCurrentIndex(4);
    QVERIFY(m_options->hostWindow()->stepBack());
    QVERIFY(!m_options->isOnDisplay());
    QCOMPARE(m_options->snoozeIndex(), 1);
}

void TestAlarmOptionsPage::resettingClosesWhatIsOpen()
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

void TestAlarmOptionsPage::resettingWithNothingOpenOnlySaysSo()
{
    m_options->load(QmAlarmEvent::NotStored, QString(), 10);
    const Support::LogCapture log;
    m_options->resetContent();
    QCOMPARE(log.lines(), QStringList{"void AlarmOptionsPage::resetContent()"});
}

void TestAlarmOptionsPage::theSlotsKeepTheirOrder()
{
    const QMetaObject &meta = AlarmOptionsPage::staticMetaObject;
    QStringList names;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        names.append(meta.method(i).methodSignature());
    QCOMPARE(names,
             (QStringList{"repeatingRulesButtonClicked()", "handleRepeatingRulesDialogAccepted()",
                          "handleRepeatingRulesDialogRejected()", "save()", "cancel()", "toneClicked()",
                          "toneSelected()", "queryResultAvailable()", "binarySearch(const int[],int,int,int)"}));
}

QTEST_MAIN(TestAlarmOptionsPage)
#include "tst_alarmoptionspage.moc"
