// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/editor/editortest.h"

#include "alarmlist/notices/informationbanner.h"
#include "platform/toolkit/separator.h"
#include "tests/support/logcapture.h"

#include <QDir>
#include <QFile>
#include <QInputMethod>
#include <QMap>
#include <QMetaMethod>
#include <QStandardPaths>

namespace {

int hiddenKeyboards = 0;

} // namespace

// In the place of Qt's own, which has no keyboard to hide here.
void QInputMethod::hide()
{
    ++hiddenKeyboards;
}

class TestSettingAlarmPage : public EditorTest
{
    Q_OBJECT

private slots:
    void initTestCase() { startStage(); }
    void init() { openPage(); }
    void cleanup();
    void aNewAlarmStartsWithTheDefaults();
    void aNewAlarmTakesThePreferences();
    void aNewAlarmTakesPreferencesWrittenByHand();
    void aNewAlarmTakesPreferencesThatChangedMeanwhile();
    void aPreferenceThatIsNoTimeIsTakenAsItComes();
    void aNewAlarmsMissingToneIsReplacedToo();
    void anExistingAlarmBringsItsOwnValues();
    void onlyAnExistingAlarmCanBeDeleted();
    void aMissingToneIsReplacedByTheDefault();
    void aBlankTitleIsNotLoaded();
    void theTitleHoldsAHundredAndTwentyCharacters();
    void aTitleOfBlanksShowsThePromptAgain();
    void loadingTakesTheBannerAway();
    void itGoesQuietlyWhileItsTitleHasTheFocus();
    void theLabelsFollowThePicker();
    void theHourComesFirstFromRightToLeftToo();
    void theMarkerStandsWhereTheLanguagePutsIt_data();
    void theMarkerStandsWhereTheLanguagePutsIt();
    void theTouchedLabelStandsOut();
    void resettingDismisses();
    void everythingStandsInItsOrder();
    void itsPartsBearTheirNamesAndStyles();
    void returnLeavesTheTitleAndItsKeyboard();
    void aNewTimeFormatShowsAtOnce();
    void itIsNamedForThoseWhoDoNotSeeIt();
    void theSlotsKeepTheirOrder();

private:
    /** The file of the user's own locale settings; without content there is none. */
    static void writeLocaleSettings(const QByteArray &content);
};

void TestSettingAlarmPage::cleanup()
{
    writeLocaleSettings(QByteArray());
    closePage();
}

void TestSettingAlarmPage::writeLocaleSettings(const QByteArray &content)
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + "/Korvo";
    QVERIFY(QDir().mkpath(folder));
    QFile file(folder + "/Locale.conf");
    if (content.isEmpty()) {
        file.remove();
        return;
    }
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
}

void TestSettingAlarmPage::aNewAlarmStartsWithTheDefaults()
{
    load(QmAlarmEvent::NotStored);
    QCOMPARE(pickedTime(), QTime(8, 0));
    QCOMPARE(label("ClockhhLabel")->text(), "08");
    m_page->saveAlarm();
    const QmAlarmEvent stored(m_page->getAlarmCookie());
    QCOMPARE(stored.snooze(), 10);
    QCOMPARE(stored.tone(), Utility::defaultAlertTone());
}

void TestSettingAlarmPage::aNewAlarmTakesThePreferences()
{
    QSettings settings("Korvo", "Clock");
    settings.setValue("Clock/DefaultAlarmTime", QTime(6, 45));
    settings.setValue("Clock/SnoozeTime", 5);
    settings.setValue("Clock/DefaultTone", m_tone);
    settings.sync();
    load(QmAlarmEvent::NotStored, QTime(7, 5), "", 20);
    QCOMPARE(pickedTime(), QTime(6, 45));
    m_page->saveAlarm();
    const QmAlarmEvent stored(m_page->getAlarmCookie());
    QCOMPARE(stored.snooze(), 5);
    QCOMPARE(stored.tone(), m_tone);
}

void TestSettingAlarmPage::aNewAlarmTakesPreferencesWrittenByHand()
{
    QSettings settings("Korvo", "Clock");
    settings.setValue("Clock/DefaultAlarmTime", "06:45:00");
    settings.setValue("Clock/SnoozeTime", "266");
    settings.sync();
    load(QmAlarmEvent::NotStored);
    QCOMPARE(pickedTime(), QTime(6, 45));
    m_page->saveAlarm();
    // Of the minutes the record keeps eight bits.
    QCOMPARE(QmAlarmEvent(m_page->getAlarmCookie()).snooze(), 10);
}

void TestSettingAlarmPage::aNewAlarmTakesPreferencesThatChangedMeanwhile()
{
    load(QmAlarmEvent::NotStored);
    QCOMPARE(pickedTime(), QTime(8, 0));
    writePreferences("[Clock]\nDefaultAlarmTime=06:45:00\nSnoozeTime=5\nDefaultTone=" + m_tone.toUtf8() + '\n');
    load(QmAlarmEvent::NotStored);
    QCOMPARE(pickedTime(), QTime(6, 45));
    m_page->saveAlarm();
    const QmAlarmEvent stored(m_page->getAlarmCookie());
    QCOMPARE(stored.snooze(), 5);
    QCOMPARE(stored.tone(), m_tone);
}

void TestSettingAlarmPage::aPreferenceThatIsNoTimeIsTakenAsItComes()
{
    QSettings("Korvo", "Clock").setValue("Clock/DefaultAlarmTime", "soon");
    load(QmAlarmEvent::NotStored);
    // Hour and minute of no time are -1 each, and the picker folds them into the day.
    QCOMPARE(pickedTime(), QTime(23, 59));
    QCOMPARE(label("ClockhhLabel")->text(), "23");
    QCOMPARE(label("ClockmmLabel")->text(), "59");
}

void TestSettingAlarmPage::aNewAlarmsMissingToneIsReplacedToo()
{
    QSettings("Korvo", "Clock").setValue("Clock/DefaultTone", "/nowhere/gone.aac");
    load(QmAlarmEvent::NotStored);
    m_page->saveAlarm();
    QCOMPARE(QmAlarmEvent(m_page->getAlarmCookie()).tone(), Utility::defaultAlertTone());
}

void TestSettingAlarmPage::anExistingAlarmBringsItsOwnValues()
{
    QSettings("Korvo", "Clock").setValue("Clock/DefaultAlarmTime", QTime(6, 45));
    const quint32 cookie = Support::addAlarm(QTime(7, 5));
    load(cookie);
    QCOMPARE(m_page->getAlarmCookie(), cookie);
    QCOMPARE(pickedTime(), QTime(7, 5));
    QCOMPARE(m_title->text(), "Tea");
    QCOMPARE(m_title->cursorPosition(), 0);
    QCOMPARE(label("ClockhhLabel")->text(), "07");
    QCOMPARE(label("ClockmmLabel")->text(), "05");
}

void TestSettingAlarmPage::onlyAnExistingAlarmCanBeDeleted()
{
    const auto *button = Support::itemIn<Touch::Widget>(m_page.get(), "deleteButton");
    QVERIFY(button);
    load(Support::addAlarm(QTime(7, 5)));
    QVERIFY(button->isVisible());
    load(QmAlarmEvent::NotStored);
    QVERIFY(!button->isVisible());
}

void TestSettingAlarmPage::aMissingToneIsReplacedByTheDefault()
{
    const quint32 cookie = Support::addAlarm(QTime(7, 5));
    m_page->loadAlarm(cookie, QTime(7, 5), "Tea", "/nowhere/gone.aac", true, 10);
    m_page->saveAlarm();
    QCOMPARE(QmAlarmEvent(m_page->getAlarmCookie()).tone(), Utility::defaultAlertTone());
}

void TestSettingAlarmPage::aBlankTitleIsNotLoaded()
{
    load(QmAlarmEvent::NotStored, QTime(7, 5), "   ");
    QCOMPARE(m_title->text(), QString());
    load(QmAlarmEvent::NotStored, QTime(7, 5), "  Tea");
    QCOMPARE(m_title->text(), "  Tea");
}

void TestSettingAlarmPage::theTitleHoldsAHundredAndTwentyCharacters()
{
    m_title->setText(QString(200, 'x'));
    QCOMPARE(m_title->text().size(), 120);
}

void TestSettingAlarmPage::aTitleOfBlanksShowsThePromptAgain()
{
    m_title->setFocus();
    m_title->setText("   ");
    m_title->clearFocus();
    QCOMPARE(m_title->text(), QString());
    m_title->setFocus();
    m_title->setText("  Tea ");
    m_title->clearFocus();
    QCOMPARE(m_title->text(), "  Tea ");
}

void TestSettingAlarmPage::loadingTakesTheBannerAway()
{
    showInformationBanner("Alarm in 07:05");
    QCOMPARE(shownBanner(), "Alarm in 07:05");
    load(QmAlarmEvent::NotStored);
    QCOMPARE(shownBanner(), QString());
}

void TestSettingAlarmPage::itGoesQuietlyWhileItsTitleHasTheFocus()
{
    load(QmAlarmEvent::NotStored);
    m_title->setFocus();
    QVERIFY(m_title->hasFocus());
    QSignalSpy lost(m_title, &Touch::TextEdit::lostFocus);
    m_page.reset();
    QVERIFY(m_mainPage->isOnDisplay());
    QCOMPARE(lost.size(), 1);
}

void TestSettingAlarmPage::theLabelsFollowThePicker()
{
    load(QmAlarmEvent::NotStored);
    pick(QTime(21, 35));
    QCOMPARE(label("ClockhhLabel")->text(), "21");
    QCOMPARE(label("ClockmmLabel")->text(), "35");
    QVERIFY2(!label("ClockampmLabel")->isVisible(), "the day has 24 hours here");
}

void TestSettingAlarmPage::theHourComesFirstFromRightToLeftToo()
{
    load(QmAlarmEvent::NotStored);
    m_page->setLayoutDirection(Qt::RightToLeft);
    QTRY_VERIFY(label("ClockhhLabel")->scenePos().x() > 0);
    QTRY_VERIFY(label("ClockhhLabel")->scenePos().x() < label("ClockmmLabel")->scenePos().x());
}

void TestSettingAlarmPage::theMarkerStandsWhereTheLanguagePutsIt_data()
{
    QTest::addColumn<QByteArray>("settings");
    QTest::addColumn<QStringList>("order");
    const QStringList digits{"ClockhhLabel", "ClockColonLabel", "ClockmmLabel"};
    const QString marker = "ClockampmLabel";
    QTest::newRow("after the digits") << QByteArray("language=en\nregion=US\n") << digits + QStringList{marker};
    QTest::newRow("before the digits") << QByteArray("language=ko\nregion=KR\n") << QStringList{marker} + digits;
    QTest::newRow("written from right to left")
        << QByteArray("language=ar\nregion=EG\n") << QStringList{marker} + digits;
    QTest::newRow("nowhere") << QByteArray("language=en\nregion=GB\n") << digits;
}

void TestSettingAlarmPage::theMarkerStandsWhereTheLanguagePutsIt()
{
    QFETCH(QByteArray, settings);
    QFETCH(QStringList, order);
    load(QmAlarmEvent::NotStored);
    writeLocaleSettings(settings);
    const auto shownOrder = [this] {
        QMap<qreal, QString> places;
        for (const char *name : {"ClockhhLabel", "ClockColonLabel", "ClockmmLabel", "ClockampmLabel"}) {
            if (label(name)->isVisible())
                places.insert(label(name)->scenePos().x(), name);
        }
        return QStringList(places.values());
    };
    QTRY_COMPARE(shownOrder(), order);
}

void TestSettingAlarmPage::theTouchedLabelStandsOut()
{
    const auto *hour = label("ClockhhLabel");
    const auto *minute = label("ClockmmLabel");
    emit m_picker->discPressed(true, false);
    QCOMPARE(hour->styleName(), "TimeLabelManipulated");
    QCOMPARE(minute->styleName(), "TimeLabel");
    emit m_picker->discPressed(false, true);
    QCOMPARE(hour->styleName(), "TimeLabelManipulated");
    QCOMPARE(minute->styleName(), "TimeLabelManipulated");
    emit m_picker->discReleased();
    QCOMPARE(hour->styleName(), "TimeLabel");
    QCOMPARE(minute->styleName(), "TimeLabel");
}

void TestSettingAlarmPage::resettingDismisses()
{
    const Support::LogCapture log;
    m_page->resetContent();
    QVERIFY(!m_page->isOnDisplay());
    QCOMPARE(log.lines(QtDebugMsg), QStringList{"void SettingAlarmPage::resetContent()"});
}

void TestSettingAlarmPage::everythingStandsInItsOrder()
{
    load(Support::addAlarm(QTime(7, 5)));
    auto *hour = label("ClockhhLabel");
    auto *remove = Support::itemIn<Touch::Widget>(m_page.get(), "deleteButton");
    const auto top = [](const Touch::Widget *widget) { return widget->scenePos().y(); };
    QTRY_VERIFY(top(remove) > top(m_picker) + m_picker->size().height());
    QVERIFY(top(m_title) < top(hour));
    QVERIFY(top(hour) + hour->size().height() <= top(m_picker));
    const auto *options = Support::itemIn<Touch::Widget>(m_page.get(), "moreOptionsBasicListItem");
    QVERIFY(top(options) >= top(m_picker) + m_picker->size().height());
    QVERIFY(top(options) + options->size().height() <= top(remove));
    load(QmAlarmEvent::NotStored);
    QTRY_VERIFY(top(m_title) < top(hour) && top(hour) < top(m_picker));
}

void TestSettingAlarmPage::itsPartsBearTheirNamesAndStyles()
{
    QCOMPARE(m_page->styleName(), "CommonApplicationPage");
    QCOMPARE(m_picker->styleName(), "TimePickerStyle");
    QCOMPARE(m_title->objectName(), "AlarmNameInputField");
    QCOMPARE(m_title->styleName(), "CommonSingleInputField");
    QCOMPARE(m_title->prompt(), "qtn_cloc_alarm_title_tooltip");
    for (const char *name : {"ClockhhLabel", "ClockColonLabel", "ClockmmLabel"})
        QCOMPARE(label(name)->styleName(), "TimeLabel");
    QCOMPARE(label("ClockColonLabel")->text(), ":");
    QCOMPARE(label("ClockampmLabel")->styleName(), "AMPMLabel");
    QCOMPARE(label("ClockampmLabel")->text(), "qtn_comm_time_am");
    QStringList lines;
    const auto items = m_page->centralWidget()->childItems();
    for (QGraphicsItem *item : items) {
        if (const auto *line = qobject_cast<Touch::Separator *>(item->toGraphicsObject()))
            lines.append(line->styleName());
    }
    lines.sort();
    QCOMPARE(lines, (QStringList{"AlarmEditorItemDivider", "CommonItemDivider", "CommonSpacer"}));
}

void TestSettingAlarmPage::returnLeavesTheTitleAndItsKeyboard()
{
    load(QmAlarmEvent::NotStored);
    m_title->setFocus();
    QVERIFY(m_title->hasFocus());
    emit m_title->returnPressed();
    QVERIFY(!m_title->hasFocus());
    // Qt hides the keyboard of what loses the focus as well; this time nothing does.
    const int before = hiddenKeyboards;
    emit m_title->returnPressed();
    QCOMPARE(hiddenKeyboards - before, 1);
}

void TestSettingAlarmPage::aNewTimeFormatShowsAtOnce()
{
    load(Support::addAlarm(QTime(21, 35)), QTime(21, 35));
    QCOMPARE(label("ClockhhLabel")->text(), "21");
    writeLocaleSettings("timeFormat=12\n");
    QTRY_COMPARE(label("ClockhhLabel")->text(), "09");
    QTRY_VERIFY(label("ClockampmLabel")->isVisible());
    const QString marker = label("ClockampmLabel")->text();
    QCOMPARE(label("ClockColonLabel")->text(), ":");
    writeLocaleSettings(QByteArray());
    QTRY_COMPARE(label("ClockhhLabel")->text(), "21");
    QVERIFY(!label("ClockampmLabel")->isVisible());
    QCOMPARE(label("ClockampmLabel")->text(), marker);
    QCOMPARE(label("ClockColonLabel")->text(), ":");
}

void TestSettingAlarmPage::itIsNamedForThoseWhoDoNotSeeIt()
{
    load(QmAlarmEvent::NotStored);
    QCOMPARE(m_page->accessibleName(), "qtn_cloc_new_alarm");
    load(Support::addAlarm(QTime(7, 5)));
    QCOMPARE(m_page->accessibleName(), "qtn_cloc_alarm_title");
}

void TestSettingAlarmPage::theSlotsKeepTheirOrder()
{
    const QMetaObject &meta = SettingAlarmPage::staticMetaObject;
    QByteArrayList signatures;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        signatures.append(meta.method(i).methodSignature());
    QCOMPARE(
        signatures,
        (QByteArrayList{"saveAlarm()", "cancelAlarm()", "removeAlarm()", "getAlarmCookie()",
                        "timeChangedInTimePicker(int,int)", "verifyAlarmTitle()", "timeFormatChanged()", "resetStyle()",
                        "setStyle(bool,bool)", "displayOptionsPage()", "resetAlarm()", "setAgainAlarm()",
                        "onValueChanged()", "clearFocus()", "showResetAlarmDialog(Clock::QmAlarmEvent)"}));
}

QTEST_MAIN(TestSettingAlarmPage)
#include "tst_settingalarmpage.moc"
