// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "alarmlist/alarmswidget.h"

#include "alarmlist/alarmslistmodel.h"
#include "alarms/qmalarm.h"
#include "alarms/utility.h"
#include "editor/settingalarmpage.h"
#include "platform/clockwidgets/alarmlistitem.h"
#include "platform/clockwidgets/timepicker.h"
#include "platform/toolkit/applicationpage.h"
#include "platform/toolkit/applicationwindow.h"
#include "platform/toolkit/banner.h"
#include "platform/toolkit/button.h"
#include "platform/toolkit/label.h"
#include "platform/toolkit/layout.h"
#include "platform/toolkit/linearlayoutpolicy.h"
#include "platform/toolkit/list.h"
#include "platform/toolkit/pannableviewport.h"
#include "platform/toolkit/textedit.h"
#include "tests/alarmlist/announcements.h"
#include "tests/support/alarms.h"
#include "tests/support/logcapture.h"
#include "tests/support/look/items.h"
#include "tests/support/look/look.h"
#include "tests/support/privatebus.h"

#include <QMetaMethod>
#include <QTest>

using Clock::QmAlarm;
using Clock::QmAlarmEvent;
using Clock::Utility;
using Support::addAlarm;
using Support::addSwitchedOffAlarm;

class TestAlarmsWidget : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void theFirstNotificationFillsTheList();
    void aRowHoldsTheTextsOfItsAlarm();
    void alarmsFoundAtStartAreInsertedOneByOne();
    void anAddedAlarmMovesOneRow();
    void aChangedAlarmReloadsAllRowsPlainly();
    void aDeletedAlarmMovesOneRow();
    void deletingTheLastRowRemovesIt();
    void panningNeedsAnAlarm();
    void theHintShowsWhileThereIsNoAlarm();
    void switchingOnShowsTheTimeLeftOnce();
    void switchingOffShowsNothing();
    void switchingKeepsTheRowAndGivesItTheNewCookie();
    void aPassedOneTimeAlarmIsSwitchedOnForItsNextTime();
    void aFailedSwitchIsTakenBack();
    void anAbsentDaemonLeavesTheList();
    void aTappedRowIsLoadedIntoTheEditor();
    void theNewAlarmButtonOpensTheEditor();
    void resettingReadsTheAlarmsOnlyWhileVisible();
    void everyNotificationIsLogged();
    void everythingStandsInItsPlace();
    void theSlotsKeepTheirOrder();

private:
    AlarmsListModel *model() const { return m_widget->findChild<AlarmsListModel *>(); }
    QStringList column(int number) const;
    AlarmListItem *cell(int row) const;
    QString shownBanner() const;
    /** As a user does it: the cell has changed its switch already when it says so. */
    void flip(AlarmListItem *cell);

    Support::PrivateBus m_bus;
    Support::TimedProcess m_daemon;
    std::unique_ptr<Touch::ApplicationWindow> m_window;
    std::unique_ptr<Touch::ApplicationPage> m_page;
    Touch::PannableViewport *m_viewport = nullptr;
    AlarmsWidget *m_widget = nullptr;
};

void TestAlarmsWidget::initTestCase()
{
    qputenv("CLOCK_REDUCED_MOTION", "1");
    qputenv("LC_ALL", "en_GB.UTF-8");
    QVERIFY(Support::loadLook());
    QVERIFY(m_bus.isRunning());
    QVERIFY(m_daemon.start());
    m_window = std::make_unique<Touch::ApplicationWindow>();
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
}

void TestAlarmsWidget::init()
{
    m_page = std::make_unique<Touch::ApplicationPage>();
    auto *layout = new Touch::Layout(m_page->centralWidget());
    auto *policy = new Touch::LinearLayoutPolicy(layout, Qt::Vertical);
    m_viewport = new Touch::PannableViewport;
    m_widget = new AlarmsWidget(m_page->centralWidget(), m_viewport);
    m_viewport->setWidget(m_widget);
    policy->addItem(m_viewport);
    m_page->appear(m_window.get());
    QTRY_VERIFY(Utility::instance()->isTriggerMapReceived());
    QCOMPARE(model()->rowCount(), 0);
}

void TestAlarmsWidget::cleanup()
{
    SettingAlarmPage::instance()->dismiss();
    QVERIFY(Support::removeAllAlarms());
    m_page.reset();
}

QStringList TestAlarmsWidget::column(int number) const
{
    QStringList texts;
    for (int row = 0; row < model()->rowCount(); ++row)
        texts.append(model()->index(row, number).data().toString());
    return texts;
}

AlarmListItem *TestAlarmsWidget::cell(int row) const
{
    const long cookie = model()->index(row, 0).data().toInt();
    const auto items = m_window->scene()->items();
    for (QGraphicsItem *item : items) {
        auto *found = qobject_cast<AlarmListItem *>(item->toGraphicsObject());
        if (found && found->isVisible() && found->alarmCookie() == cookie)
            return found;
    }
    return nullptr;
}

QString TestAlarmsWidget::shownBanner() const
{
    const auto sceneWindows = m_window->sceneWindows();
    for (const Touch::SceneWindow *sceneWindow : sceneWindows) {
        if (const auto *banner = qobject_cast<const Touch::Banner *>(sceneWindow))
            return banner->isOnDisplay() ? banner->title() : QString();
    }
    return QString();
}

void TestAlarmsWidget::flip(AlarmListItem *cell)
{
    cell->setEnabled(!cell->enabled());
    emit cell->alarmStateChanged();
}

void TestAlarmsWidget::theFirstNotificationFillsTheList()
{
    // Nothing triggers, yet the first value of the empty map fills the list.
    addSwitchedOffAlarm(QTime(6, 0));
    m_page.reset();
    m_page = std::make_unique<Touch::ApplicationPage>();
    m_viewport = new Touch::PannableViewport(m_page->centralWidget());
    m_widget = new AlarmsWidget(m_page->centralWidget(), m_viewport);
    m_viewport->setWidget(m_widget);
    QTRY_COMPARE(model()->rowCount(), 1);
    QCOMPARE(column(3), QStringList{"0"});
}

void TestAlarmsWidget::aRowHoldsTheTextsOfItsAlarm()
{
    const quint32 cookie = addAlarm(QTime(7, 5), "Tea", {1, 2});
    QTRY_COMPARE(model()->rowCount(), 1);
    QStringList texts;
    for (int number = 0; number < 7; ++number)
        texts += column(number);
    QCOMPARE(texts, (QStringList{QString::number(cookie), "07:05", "Tea", "1", "/nowhere/tone.aac", "Mon, Tue", "10"}));
}

void TestAlarmsWidget::alarmsFoundAtStartAreInsertedOneByOne()
{
    addSwitchedOffAlarm(QTime(7, 0));
    addSwitchedOffAlarm(QTime(6, 0));
    addSwitchedOffAlarm(QTime(8, 0));
    Announcements announcements(model());
    m_widget->updateContent();
    QCOMPARE(announcements.words, (QStringList{"+ 0 0 animated", "+ 1 1 animated", "+ 2 2 animated"}));
    QCOMPARE(column(1), (QStringList{"06:00", "07:00", "08:00"}));
}

void TestAlarmsWidget::anAddedAlarmMovesOneRow()
{
    for (const int hour : {5, 7, 9})
        addSwitchedOffAlarm(QTime(hour, 0));
    m_widget->updateContent();
    Announcements announcements(model());
    addSwitchedOffAlarm(QTime(6, 0));
    m_widget->updateContent();
    QCOMPARE(announcements.words, QStringList{"+ 1 1 animated"});
    QCOMPARE(column(1), (QStringList{"05:00", "06:00", "07:00", "09:00"}));

    announcements.words.clear();
    addSwitchedOffAlarm(QTime(10, 0));
    m_widget->updateContent();
    QCOMPARE(announcements.words, QStringList{"+ 4 4 animated"});
}

void TestAlarmsWidget::aChangedAlarmReloadsAllRowsPlainly()
{
    const quint32 cookie = addSwitchedOffAlarm(QTime(5, 0));
    addSwitchedOffAlarm(QTime(7, 0));
    m_widget->updateContent();
    Announcements announcements(model());
    QmAlarmEvent changed = Support::alarmAt(QTime(9, 0));
    changed.setEnabled(false);
    QVERIFY(QmAlarm().replace(changed, cookie) != QmAlarmEvent::NotStored);
    m_widget->updateContent();
    QCOMPARE(announcements.words, (QStringList{"- 0 1 plain", "+ 0 1 plain"}));
    QCOMPARE(column(1), (QStringList{"07:00", "09:00"}));
}

void TestAlarmsWidget::aDeletedAlarmMovesOneRow()
{
    addSwitchedOffAlarm(QTime(5, 0));
    const quint32 cookie = addSwitchedOffAlarm(QTime(6, 0));
    addSwitchedOffAlarm(QTime(7, 0));
    m_widget->updateContent();
    Announcements announcements(model());
    QVERIFY(QmAlarm().deleteEvent(cookie));
    m_widget->updateContent();
    QCOMPARE(announcements.words, QStringList{"- 1 1 animated"});
    QCOMPARE(column(1), (QStringList{"05:00", "07:00"}));
}

void TestAlarmsWidget::deletingTheLastRowRemovesIt()
{
    addSwitchedOffAlarm(QTime(5, 0));
    const quint32 cookie = addSwitchedOffAlarm(QTime(6, 0));
    m_widget->updateContent();
    Announcements announcements(model());
    QVERIFY(QmAlarm().deleteEvent(cookie));
    m_widget->updateContent();
    QCOMPARE(announcements.words, QStringList{"- 1 1 animated"});
    QCOMPARE(column(1), QStringList{"05:00"});
}

void TestAlarmsWidget::panningNeedsAnAlarm()
{
    m_widget->updateContent();
    QCOMPARE(m_viewport->panDirection(), Qt::Orientations());
    addAlarm(QTime(5, 0));
    QTRY_COMPARE(m_viewport->panDirection(), Qt::Orientations(Qt::Vertical));
    QVERIFY(Support::removeAllAlarms());
    QTRY_COMPARE(m_viewport->panDirection(), Qt::Orientations());
}

void TestAlarmsWidget::theHintShowsWhileThereIsNoAlarm()
{
    const auto isHintShown = [this] {
        const auto items = m_widget->childItems();
        return std::any_of(items.begin(), items.end(), [](QGraphicsItem *item) {
            const auto *widget = qobject_cast<Touch::Widget *>(item->toGraphicsObject());
            return widget && widget->styleName() == "AlarmsEmptyHint" && widget->isVisible();
        });
    };
    m_widget->updateContent();
    QVERIFY(isHintShown());
    addAlarm(QTime(5, 0));
    QTRY_VERIFY(!isHintShown());
}

void TestAlarmsWidget::switchingOnShowsTheTimeLeftOnce()
{
    addSwitchedOffAlarm(QTime(5, 0));
    m_widget->updateContent();
    QTRY_VERIFY(cell(0));
    const Support::LogCapture log;
    flip(cell(0));
    QTRY_VERIFY(shownBanner().startsWith("qtn_cloc_time_left_alarm"));
    QCOMPARE(log.lines().filter("timeLeftForAlarmToTrigger").size(), 1);
    QVERIFY2(log.lines().filter("AlarmsWidget::updateContent").isEmpty(), "the echo does not reload the list");
}

void TestAlarmsWidget::switchingOffShowsNothing()
{
    const quint32 cookie = addAlarm(QTime(5, 0));
    QTRY_VERIFY(cell(0));
    const Support::LogCapture log;
    flip(cell(0));
    QTRY_VERIFY(!log.lines().filter("AlarmsWidget::onValueChanged").isEmpty());
    QVERIFY(Support::waitForTrigger(cookie, false));
    QVERIFY(log.lines().filter("timeLeftForAlarmToTrigger").isEmpty());
    QVERIFY(log.lines().filter("AlarmsWidget::updateContent").isEmpty());
    QVERIFY(!QmAlarmEvent(model()->index(0, 0).data().toUInt()).isEnabled());
}

void TestAlarmsWidget::switchingKeepsTheRowAndGivesItTheNewCookie()
{
    const quint32 cookie = addSwitchedOffAlarm(QTime(5, 0), "Tea", {1, 2, 3});
    m_widget->updateContent();
    QTRY_VERIFY(cell(0));
    Announcements announcements(model());
    AlarmListItem *switched = cell(0);
    flip(switched);
    QCOMPARE(announcements.words, QStringList());
    const auto newCookie = static_cast<quint32>(switched->alarmCookie());
    QVERIFY(newCookie != cookie);
    QCOMPARE(column(0), QStringList{QString::number(newCookie)});
    QCOMPARE(column(3), QStringList{"1"});
    const QmAlarmEvent stored(newCookie);
    QVERIFY(stored.isEnabled());
    QCOMPARE(stored.title(), "Tea");
    QCOMPARE(stored.repeatDays(), (QList<int>{1, 2, 3}));
    QTRY_VERIFY(!shownBanner().isEmpty());
}

void TestAlarmsWidget::aPassedOneTimeAlarmIsSwitchedOnForItsNextTime()
{
    const QDateTime now = QDateTime::currentDateTime();
    const QTime passed = now.time().hour() > 0 ? QTime(now.time().hour() - 1, 0) : QTime(0, 0);
    addSwitchedOffAlarm(passed);
    m_widget->updateContent();
    QTRY_VERIFY(cell(0));
    flip(cell(0));
    const QmAlarmEvent stored(model()->index(0, 0).data().toUInt());
    // Midnight may pass meanwhile, and the time lies ahead again.
    const QDateTime next = stored.triggerTime();
    QCOMPARE(next.time(), passed);
    QVERIFY(next > now && now.secsTo(next) <= 24 * 60 * 60);
    QTRY_VERIFY(!shownBanner().isEmpty());
}

void TestAlarmsWidget::aFailedSwitchIsTakenBack()
{
    addSwitchedOffAlarm(QTime(5, 0));
    m_widget->updateContent();
    QTRY_VERIFY(cell(0));
    m_daemon.kill();
    flip(cell(0));
    QTRY_COMPARE(shownBanner(), "qtn_cloc_alarm_save_error");
    QCOMPARE(column(3), QStringList{"0"});
    QTRY_VERIFY(!cell(0)->enabled());
    QVERIFY(m_daemon.start());
}

void TestAlarmsWidget::anAbsentDaemonLeavesTheList()
{
    addAlarm(QTime(5, 0));
    addSwitchedOffAlarm(QTime(6, 0));
    QTRY_COMPARE(model()->rowCount(), 2);
    const QStringList before = column(0);
    m_daemon.kill();
    m_widget->updateContent();
    QCOMPARE(column(0), before);
    QVERIFY(m_daemon.start());
    addAlarm(QTime(7, 0));
    QTRY_COMPARE(model()->rowCount(), 3);
}

void TestAlarmsWidget::aTappedRowIsLoadedIntoTheEditor()
{
    const quint32 cookie = addAlarm(QTime(7, 5), "Tea");
    QTRY_VERIFY(cell(0));
    emit cell(0)->clicked();
    SettingAlarmPage *editor = SettingAlarmPage::instance();
    QVERIFY(editor->isOnDisplay());
    QCOMPARE(editor->getAlarmCookie(), cookie);
    QCOMPARE(Support::itemIn<TimePicker>(editor)->hours(), 7);
    QCOMPARE(Support::itemIn<TimePicker>(editor)->minutes(), 5);
    QCOMPARE(Support::itemIn<Touch::TextEdit>(editor)->text(), "Tea");
}

void TestAlarmsWidget::theNewAlarmButtonOpensTheEditor()
{
    m_widget->createNewAlarm();
    SettingAlarmPage *editor = SettingAlarmPage::instance();
    QVERIFY(editor->isOnDisplay());
    QCOMPARE(editor->getAlarmCookie(), QmAlarmEvent::NotStored);
}

void TestAlarmsWidget::resettingReadsTheAlarmsOnlyWhileVisible()
{
    constexpr auto reset = "void AlarmsWidget::resetContent()";
    m_widget->hide();
    {
        const Support::LogCapture log;
        m_widget->resetContent();
        QCOMPARE(log.lines(QtDebugMsg), QStringList{reset});
    }
    m_widget->show();
    const Support::LogCapture log;
    m_widget->resetContent();
    const QStringList lines = log.lines(QtDebugMsg);
    QCOMPARE(lines.value(0), reset);
    QCOMPARE(lines.value(1), "void AlarmsWidget::updateContent() entered");
    QCOMPARE(lines.last(), "void AlarmsWidget::updateContent() exited");
}

void TestAlarmsWidget::everyNotificationIsLogged()
{
    const Support::LogCapture log;
    m_widget->onValueChanged();
    const QStringList lines = log.lines(QtDebugMsg);
    QCOMPARE(lines.value(0), "void AlarmsWidget::onValueChanged() called");
    QCOMPARE(lines.value(1), "void AlarmsWidget::updateContent() entered");
}

void TestAlarmsWidget::everythingStandsInItsPlace()
{
    const auto *header = Support::itemIn<Touch::Label>(m_widget, "AlarmsHeader");
    auto *button = Support::itemIn<Touch::Button>(m_widget, "newAlarmButton");
    const auto *list = Support::itemIn<Touch::List>(m_widget, "alarmList");
    QVERIFY(header && button && list);
    QCOMPARE(header->text(), "qtn_cloc_alarms_header");
    QCOMPARE(header->styleName(), "CommonLargeHeader");
    QCOMPARE(button->styleName(), "CommonSmallIconButton");
    QCOMPARE(button->iconID(), "icon-m-common-add");
    QCOMPARE(button->viewType(), "icon");
    QCOMPARE(button->accessibleName(), "qtn_cloc_new_alarm");
    QCOMPARE(list->styleName(), "AlarmListWithSeparators");
    QCOMPARE(list->viewType(), "fast");
    QVERIFY(!list->showGroups());
    QTRY_VERIFY(button->geometry().left() > header->sceneBoundingRect().left());
    QVERIFY(list->geometry().top() > button->geometry().bottom());
    QCOMPARE(list->geometry().left(), 0.0);

    emit button->clicked();
    QVERIFY(SettingAlarmPage::instance()->isOnDisplay());
}

void TestAlarmsWidget::theSlotsKeepTheirOrder()
{
    const QMetaObject &meta = AlarmsWidget::staticMetaObject;
    QStringList names;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        names.append(meta.method(i).name());
    QCOMPARE(
        names,
        (QStringList{"alarmClicked", "alarmStateChanged", "onValueChanged", "createNewAlarm", "invertAlarmState"}));
}

QTEST_MAIN(TestAlarmsWidget)
#include "tst_alarmswidget.moc"
