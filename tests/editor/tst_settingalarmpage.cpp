// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "editor/settingalarmpage.h"

#include "alarms/qmalarm.h"
#include "alarms/utility.h"
#include "platform/clockwidgets/timepicker.h"
#include "platform/toolkit/applicationpage.h"
#include "platform/toolkit/applicationwindow.h"
#include "platform/toolkit/banner.h"
#include "platform/toolkit/label.h"
#include "platform/toolkit/separator.h"
#include "platform/toolkit/textedit.h"
#include "tests/support/alarms.h"
#include "tests/support/logcapture.h"
#include "tests/support/look/items.h"
#include "tests/support/look/look.h"
#include "tests/support/privatebus.h"

#include <QDir>
#include <QFile>
#include <QMetaMethod>
#include <QSettings>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include <functional>

using Clock::QmAlarm;
using Clock::QmAlarmEvent;
using Clock::Utility;

class TestSettingAlarmPage : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void aNewAlarmStartsWithTheDefaults();
    void aNewAlarmTakesThePreferences();
    void aNewAlarmTakesPreferencesWrittenByHand();
    void anExistingAlarmBringsItsOwnValues();
    void onlyAnExistingAlarmCanBeDeleted();
    void aMissingToneIsReplacedByTheDefault();
    void aBlankTitleIsNotLoaded();
    void theTitleHoldsAHundredAndTwentyCharacters();
    void aTitleOfBlanksShowsThePromptAgain();
    void theLabelsFollowThePicker();
    void theHourComesFirstFromRightToLeftToo();
    void theTouchedLabelStandsOut();
    void savingStoresTheFieldsAndClosesWithTheTimeLeft();
    void savingRemembersTheTimeForTheNextAlarm();
    void savingWithoutATitleTakesTheStandardOne();
    void savingAnExistingAlarmKeepsWhatIsNotShown();
    void aFailedSaveClosesWithAnError();
    void aFailedSaveIsNotRemembered();
    void onlyAWaitingSheetFollowsTheTriggers_data();
    void onlyAWaitingSheetFollowsTheTriggers();
    void escapeCancels();
    void cancellingStoresNothingAndRefreshesTheTriggers();
    void deletingTakesTheAlarmOutOfTheDaemon();
    void deletingASwitchedOffAlarmRefreshesTheTriggers();
    void deletingANewAlarmOnlyCloses();
    void aFailedDeletionClosesWithAnError();
    void resettingDismisses();
    void everythingStandsInItsOrder();
    void itsPartsBearTheirNamesAndStyles();
    void returnLeavesTheTitle();
    void aNewTimeFormatShowsAtOnce();
    void itIsNamedForThoseWhoDoNotSeeIt();
    void theSlotsKeepTheirOrder();

private:
    void load(quint32 cookie, const QTime &time = QTime(7, 5), const QString &title = "Tea", unsigned int snooze = 20);
    Touch::Label *label(const QString &name) const { return Support::itemIn<Touch::Label>(m_page.get(), name); }
    QTime pickedTime() const { return QTime(m_picker->hours(), m_picker->minutes()); }
    QString shownBanner() const;
    static QList<quint32> storedCookies();

    Support::PrivateBus m_bus;
    Support::TimedProcess m_daemon;
    QTemporaryDir m_folder;
    QString m_tone;
    std::unique_ptr<Touch::ApplicationWindow> m_window;
    std::unique_ptr<Touch::ApplicationPage> m_mainPage;
    std::unique_ptr<SettingAlarmPage> m_page;
    TimePicker *m_picker = nullptr;
    Touch::TextEdit *m_title = nullptr;
};

void TestSettingAlarmPage::initTestCase()
{
    qputenv("CLOCK_REDUCED_MOTION", "1");
    qputenv("LC_ALL", "en_GB.UTF-8");
    QVERIFY(Support::loadLook());
    QVERIFY(m_bus.isRunning());
    QVERIFY(m_daemon.start());
    Utility::instance()->subscribeToContextFramework();
    QTRY_VERIFY(Utility::instance()->isTriggerMapReceived());
    m_tone = m_folder.filePath("tone.aac");
    QFile tone(m_tone);
    QVERIFY(tone.open(QIODevice::WriteOnly));
    m_window = std::make_unique<Touch::ApplicationWindow>();
    m_mainPage = std::make_unique<Touch::ApplicationPage>();
    m_mainPage->appear(m_window.get());
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
}

void TestSettingAlarmPage::init()
{
    QSettings("Korvo", "Clock").clear();
    m_page = std::make_unique<SettingAlarmPage>();
    m_picker = Support::itemIn<TimePicker>(m_page.get());
    m_title = Support::itemIn<Touch::TextEdit>(m_page.get());
    m_page->appear(m_window.get());
}

void TestSettingAlarmPage::cleanup()
{
    m_page.reset();
    QVERIFY(Support::removeAllAlarms());
}

void TestSettingAlarmPage::load(quint32 cookie, const QTime &time, const QString &title, unsigned int snooze)
{
    m_page->loadAlarm(cookie, time, title, m_tone, true, snooze);
}

QString TestSettingAlarmPage::shownBanner() const
{
    const auto sceneWindows = m_window->sceneWindows();
    for (const Touch::SceneWindow *sceneWindow : sceneWindows) {
        if (const auto *banner = qobject_cast<const Touch::Banner *>(sceneWindow))
            return banner->isOnDisplay() ? banner->title() : QString();
    }
    return QString();
}

QList<quint32> TestSettingAlarmPage::storedCookies()
{
    bool failed = false;
    return QmAlarm().query(failed);
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
    m_title->setText("   ");
    emit m_title->lostFocus(Qt::OtherFocusReason);
    QCOMPARE(m_title->text(), QString());
    m_title->setText("  Tea ");
    emit m_title->lostFocus(Qt::OtherFocusReason);
    QCOMPARE(m_title->text(), "  Tea ");
}

void TestSettingAlarmPage::theLabelsFollowThePicker()
{
    load(QmAlarmEvent::NotStored);
    emit m_picker->timeChanged(21, 35);
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

void TestSettingAlarmPage::savingStoresTheFieldsAndClosesWithTheTimeLeft()
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
    QCOMPARE(lines.filter("Time Left for Alarm to trigger is").size(), 1);
}

void TestSettingAlarmPage::savingRemembersTheTimeForTheNextAlarm()
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

void TestSettingAlarmPage::savingWithoutATitleTakesTheStandardOne()
{
    load(QmAlarmEvent::NotStored);
    m_title->setText("  ");
    m_page->saveAlarm();
    QCOMPARE(QmAlarmEvent(m_page->getAlarmCookie()).title(), "qtn_cloc_alarm_title");
}

void TestSettingAlarmPage::savingAnExistingAlarmKeepsWhatIsNotShown()
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

void TestSettingAlarmPage::aFailedSaveClosesWithAnError()
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

void TestSettingAlarmPage::aFailedSaveIsNotRemembered()
{
    load(QmAlarmEvent::NotStored);
    m_picker->setHours(6);
    m_daemon.kill();
    m_page->saveAlarm();
    QVERIFY(!QSettings("Korvo", "Clock").contains("Clock/DefaultAlarmTime"));
    QVERIFY(m_daemon.start());
}

void TestSettingAlarmPage::onlyAWaitingSheetFollowsTheTriggers_data()
{
    QTest::addColumn<std::function<void(SettingAlarmPage *)>>("end");
    using End = std::function<void(SettingAlarmPage *)>;
    QTest::newRow("dismissed") << End([](SettingAlarmPage *page) { page->dismiss(); });
    QTest::newRow("told to go") << End([](SettingAlarmPage *page) { page->disappear(); });
    QTest::newRow("reset") << End([](SettingAlarmPage *page) { page->resetContent(); });
    QTest::newRow("cancelled") << End([](SettingAlarmPage *page) { page->cancelAlarm(); });
    QTest::newRow("Escape") << End([](SettingAlarmPage *page) { page->hostWindow()->stepBack(); });
}

void TestSettingAlarmPage::onlyAWaitingSheetFollowsTheTriggers()
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

void TestSettingAlarmPage::escapeCancels()
{
    load(QmAlarmEvent::NotStored);
    m_title->setText("Tea");
    QSignalSpy refreshed(Utility::instance(), &Utility::valueChanged);
    QVERIFY(m_window->stepBack());
    QVERIFY(!m_page->isOnDisplay());
    QCOMPARE(refreshed.size(), 1);
    QCOMPARE(storedCookies(), QList<quint32>());
}

void TestSettingAlarmPage::cancellingStoresNothingAndRefreshesTheTriggers()
{
    load(QmAlarmEvent::NotStored);
    QSignalSpy refreshed(Utility::instance(), &Utility::valueChanged);
    m_page->cancelAlarm();
    QVERIFY(!m_page->isOnDisplay());
    QCOMPARE(refreshed.size(), 1);
    QCOMPARE(storedCookies(), QList<quint32>());
}

void TestSettingAlarmPage::deletingTakesTheAlarmOutOfTheDaemon()
{
    const quint32 cookie = Support::addAlarm(QTime(7, 5));
    QVERIFY(Support::waitForTrigger(cookie));
    load(cookie);
    const Support::LogCapture log;
    m_page->removeAlarm();
    QVERIFY(!m_page->isOnDisplay());
    QCOMPARE(m_page->getAlarmCookie(), QmAlarmEvent::NotStored);
    QCOMPARE(storedCookies(), QList<quint32>());
    QVERIFY2(log.lines().filter("Delete cookie").size() == 2, "it is deleted twice on purpose");
    QVERIFY(Support::waitForTrigger(cookie, false));
}

void TestSettingAlarmPage::deletingASwitchedOffAlarmRefreshesTheTriggers()
{
    load(Support::addSwitchedOffAlarm(QTime(7, 5)));
    QSignalSpy refreshed(Utility::instance(), &Utility::valueChanged);
    m_page->removeAlarm();
    QCOMPARE(refreshed.size(), 1);
}

void TestSettingAlarmPage::deletingANewAlarmOnlyCloses()
{
    load(QmAlarmEvent::NotStored);
    QSignalSpy refreshed(Utility::instance(), &Utility::valueChanged);
    m_page->removeAlarm();
    QVERIFY(!m_page->isOnDisplay());
    QCOMPARE(refreshed.size(), 0);
}

void TestSettingAlarmPage::aFailedDeletionClosesWithAnError()
{
    const quint32 cookie = Support::addAlarm(QTime(7, 5));
    load(cookie);
    m_daemon.kill();
    m_page->removeAlarm();
    QVERIFY(!m_page->isOnDisplay());
    QCOMPARE(m_page->getAlarmCookie(), cookie);
    QCOMPARE(shownBanner(), "qtn_cloc_alarm_delete_error");
    QVERIFY(m_daemon.start());
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

void TestSettingAlarmPage::returnLeavesTheTitle()
{
    load(QmAlarmEvent::NotStored);
    m_title->setFocus();
    QVERIFY(m_title->hasFocus());
    emit m_title->returnPressed();
    QVERIFY(!m_title->hasFocus());
}

void TestSettingAlarmPage::aNewTimeFormatShowsAtOnce()
{
    load(Support::addAlarm(QTime(21, 35)), QTime(21, 35));
    QCOMPARE(label("ClockhhLabel")->text(), "21");
    const QString settings = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + "/Korvo";
    QVERIFY(QDir().mkpath(settings));
    QFile file(settings + "/Locale.conf");
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("timeFormat=12\n");
    file.close();
    QTRY_COMPARE(label("ClockhhLabel")->text(), "09");
    QTRY_VERIFY(label("ClockampmLabel")->isVisible());
    QVERIFY(file.remove());
    QTRY_COMPARE(label("ClockhhLabel")->text(), "21");
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
    QStringList names;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        names.append(meta.method(i).name());
    QCOMPARE(names,
             (QStringList{"saveAlarm", "cancelAlarm", "removeAlarm", "getAlarmCookie", "timeChangedInTimePicker",
                          "verifyAlarmTitle", "timeFormatChanged", "resetStyle", "setStyle", "resetAlarm",
                          "setAgainAlarm", "onValueChanged", "clearFocus", "showResetAlarmDialog"}));
}

QTEST_MAIN(TestSettingAlarmPage)
#include "tst_settingalarmpage.moc"
