// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "editor/alarmeditorlistitem.h"
#include "editor/alarmoptionspage.h"
#include "platform/toolkit/combobox.h"
#include "platform/toolkit/dialog.h"
#include "platform/toolkit/inputmethodstate.h"
#include "tests/editor/editortest.h"
#include "tests/support/logcapture.h"

#include <QApplication>
#include <QPointer>

class TestEditorOptions : public EditorTest
{
    Q_OBJECT

private slots:
    void initTestCase() { startStage(); }
    void init() { openPage(); }
    void cleanup() { closePage(); }
    void theRowLeadsToTheOptions();
    void theOptionsStartWithTheAlarm();
    void openingThemAgainKeepsTheChoices();
    void theNextAlarmBringsItsOwn();
    void aNewAlarmIsSavedWithThem();
    void anExistingAlarmIsSavedWithThem();
    void cancelledOptionsAreNotSaved();
    void optionsNeverOpenedLeaveTheAlarmAsItWas();
    void aSnoozeThatCannotBeChosenIsSavedAsTheChoice();
    void theOptionsGoWithTheEditor();
    void theOptionsEndWithTheEditor();
    void resettingResetsThem();
    void theTitlesKeyboardSaysDone();

private:
    AlarmEditorListItem *row() const
    {
        return Support::itemIn<AlarmEditorListItem>(m_page.get(), "moreOptionsBasicListItem");
    }
    /** The options sheet on display, or null. */
    static AlarmOptionsPage *options();
    static Touch::ComboBox *snooze() { return Support::itemIn<Touch::ComboBox>(options()); }
    static void chooseDay(int place);
};

AlarmOptionsPage *TestEditorOptions::options()
{
    const auto widgets = QApplication::topLevelWidgets();
    for (QWidget *widget : widgets) {
        const auto *window = qobject_cast<Touch::Window *>(widget);
        auto *sheet = window ? qobject_cast<AlarmOptionsPage *>(window->topSceneWindow()) : nullptr;
        if (sheet && sheet->isOnDisplay())
            return sheet;
    }
    return nullptr;
}

void TestEditorOptions::chooseDay(int place)
{
    AlarmOptionsPage *sheet = options();
    sheet->repeatingRulesButtonClicked();
    auto *rules = qobject_cast<Touch::Dialog *>(sheet->hostWindow()->topSceneWindow());
    QVERIFY(rules);
    Support::itemIn<Touch::Button>(rules, QStringLiteral("weekday%1Button").arg(place))->click();
    rules->accept();
}

void TestEditorOptions::theRowLeadsToTheOptions()
{
    load(QmAlarmEvent::NotStored);
    QVERIFY(row());
    QCOMPARE(row()->itemStyle(), AlarmEditorListItem::ItemStyle(2));
    QCOMPARE(row()->styleName(), "CommonPanel");
    QCOMPARE(row()->title(), "qtn_cloc_more_options");
    const Support::LogCapture log;
    emit row()->clicked();
    QVERIFY(options());
    QVERIFY(options()->hostWindow() != m_window.get());
    QVERIFY(m_page->isOnDisplay());
    QCOMPARE(log.lines(QtDebugMsg).count("void SettingAlarmPage::displayOptionsPage()"), 1);
}

void TestEditorOptions::theOptionsStartWithTheAlarm()
{
    const quint32 cookie = Support::addAlarm(QTime(7, 5), "Tea", {1, 3});
    load(cookie, QTime(7, 5), "Tea", 30);
    m_page->displayOptionsPage();
    QCOMPARE(options()->repeatDays(), (QList<int>{1, 3}));
    QCOMPARE(options()->snoozeIndex(), 4);
    QCOMPARE(options()->tone(), m_tone);
}

void TestEditorOptions::openingThemAgainKeepsTheChoices()
{
    load(QmAlarmEvent::NotStored);
    m_page->displayOptionsPage();
    const AlarmOptionsPage *first = options();
    chooseDay(0);
    snooze()->setCurrentIndex(2);
    options()->save();
    QVERIFY(!options());
    m_page->displayOptionsPage();
    QCOMPARE(options(), first);
    QCOMPARE(options()->repeatDays(), QList<int>{1});
    QCOMPARE(options()->snoozeIndex(), 2);
}

void TestEditorOptions::theNextAlarmBringsItsOwn()
{
    load(QmAlarmEvent::NotStored);
    m_page->displayOptionsPage();
    chooseDay(0);
    options()->save();
    load(Support::addAlarm(QTime(7, 5), "Tea", {6}), QTime(7, 5), "Tea", 15);
    m_page->displayOptionsPage();
    QCOMPARE(options()->repeatDays(), QList<int>{6});
    QCOMPARE(options()->snoozeIndex(), 2);
}

void TestEditorOptions::aNewAlarmIsSavedWithThem()
{
    QSettings("Korvo", "Clock").setValue("Clock/DefaultTone", m_tone);
    load(QmAlarmEvent::NotStored);
    m_page->displayOptionsPage();
    chooseDay(0);
    chooseDay(4);
    snooze()->setCurrentIndex(4);
    options()->save();
    m_page->saveAlarm();
    QTRY_VERIFY(!m_page->isOnDisplay());
    const QmAlarmEvent stored(m_page->getAlarmCookie());
    QCOMPARE(stored.repeatDays(), (QList<int>{1, 5}));
    QCOMPARE(stored.snooze(), 30);
    QCOMPARE(stored.tone(), m_tone);
}

void TestEditorOptions::anExistingAlarmIsSavedWithThem()
{
    const quint32 cookie = Support::addAlarm(QTime(7, 5), "Tea", {1, 3});
    QVERIFY(Support::waitForTrigger(cookie));
    load(cookie);
    m_page->displayOptionsPage();
    chooseDay(0);
    options()->save();
    m_page->saveAlarm();
    QTRY_VERIFY(!m_page->isOnDisplay());
    const QmAlarmEvent stored(m_page->getAlarmCookie());
    QCOMPARE(stored.repeatDays(), QList<int>{3});
    QCOMPARE(stored.snooze(), 20);
    QCOMPARE(stored.tone(), m_tone);
}

void TestEditorOptions::cancelledOptionsAreNotSaved()
{
    const quint32 cookie = Support::addAlarm(QTime(7, 5), "Tea", {1, 3});
    load(cookie);
    m_page->displayOptionsPage();
    chooseDay(0);
    snooze()->setCurrentIndex(0);
    options()->cancel();
    m_page->saveAlarm();
    const QmAlarmEvent stored(m_page->getAlarmCookie());
    QCOMPARE(stored.repeatDays(), (QList<int>{1, 3}));
    QCOMPARE(stored.snooze(), 20);
}

void TestEditorOptions::optionsNeverOpenedLeaveTheAlarmAsItWas()
{
    load(Support::addAlarm(QTime(7, 5), "Tea", {1, 3}), QTime(7, 5), "Tea", 7);
    m_page->saveAlarm();
    const QmAlarmEvent stored(m_page->getAlarmCookie());
    QCOMPARE(stored.repeatDays(), (QList<int>{1, 3}));
    QCOMPARE(stored.snooze(), 7);
}

void TestEditorOptions::aSnoozeThatCannotBeChosenIsSavedAsTheChoice()
{
    load(Support::addAlarm(QTime(7, 5)), QTime(7, 5), "Tea", 7);
    m_page->displayOptionsPage();
    QCOMPARE(snooze()->currentIndex(), -1);
    options()->save();
    m_page->saveAlarm();
    // Ten minutes are the choice before any was made.
    QCOMPARE(QmAlarmEvent(m_page->getAlarmCookie()).snooze(), 10);
}

void TestEditorOptions::theOptionsGoWithTheEditor()
{
    load(QmAlarmEvent::NotStored);
    m_page->displayOptionsPage();
    QVERIFY(options());
    m_page->dismiss();
    QVERIFY(!options());
}

void TestEditorOptions::theOptionsEndWithTheEditor()
{
    load(QmAlarmEvent::NotStored);
    m_page->displayOptionsPage();
    const QPointer<AlarmOptionsPage> sheet = options();
    QVERIFY(sheet);
    m_page.reset();
    QVERIFY(!sheet);
}

void TestEditorOptions::resettingResetsThem()
{
    load(QmAlarmEvent::NotStored);
    m_page->displayOptionsPage();
    snooze()->showPopup();
    const Support::LogCapture log;
    m_page->resetContent();
    QVERIFY(!options());
    QVERIFY(!m_page->isOnDisplay());
    QCOMPARE(log.lines(QtDebugMsg),
             (QStringList{"void SettingAlarmPage::resetContent()", "void AlarmOptionsPage::resetContent()"}));
}

void TestEditorOptions::theTitlesKeyboardSaysDone()
{
    const auto &state = Touch::InputMethodState::instance();
    const int toolbar = m_title->attachedToolbar();
    QVERIFY(toolbar > 0);
    QCOMPARE(state.extendedAttribute(toolbar, "/keys", "actionKey", "label").toString(), "qtn_comm_command_done");
    QCOMPARE(state.extendedAttribute(toolbar, "/keys", "actionKey", "highlighted"), QVariant(true));
}

QTEST_MAIN(TestEditorOptions)
#include "tst_editoroptions.moc"
