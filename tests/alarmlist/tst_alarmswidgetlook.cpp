// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "alarmlist/alarmswidget.h"

#include "alarms/qmalarmevent.h"
#include "editor/settingalarmpage.h"
#include "platform/clockwidgets/alarmlistitem.h"
#include "platform/clockwidgets/timepicker.h"
#include "platform/toolkit/button.h"
#include "platform/toolkit/label.h"
#include "platform/toolkit/list.h"
#include "platform/toolkit/textedit.h"
#include "tests/alarmlist/alarmsection.h"
#include "tests/support/alarms.h"
#include "tests/support/look/items.h"

#include <QMetaMethod>
#include <QTest>

using Clock::QmAlarmEvent;
using Support::addAlarm;

class TestAlarmsWidgetLook : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(m_section.start()); }
    void init() { QVERIFY(m_section.open()); }
    void cleanup() { QVERIFY(m_section.close()); }
    void everythingStandsInItsPlace();
    void theSlotsKeepTheirOrder();
    void aTappedRowIsLoadedIntoTheEditor();
    void theNewAlarmButtonOpensTheEditor();

private:
    AlarmSection m_section;
};

void TestAlarmsWidgetLook::everythingStandsInItsPlace()
{
    const auto *header = Support::itemIn<Touch::Label>(m_section.widget(), "AlarmsHeader");
    auto *button = Support::itemIn<Touch::Button>(m_section.widget(), "newAlarmButton");
    const auto *list = Support::itemIn<Touch::List>(m_section.widget(), "alarmList");
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

void TestAlarmsWidgetLook::theSlotsKeepTheirOrder()
{
    const QMetaObject &meta = AlarmsWidget::staticMetaObject;
    QStringList names;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        names.append(meta.method(i).name());
    QCOMPARE(names,
             (QStringList{"alarmClicked", "alarmStateChanged", "deleteAlarm", "onValueChanged", "createNewAlarm",
                          "invertAlarmState", "fixTheBrokenAlarm"}));
}

void TestAlarmsWidgetLook::aTappedRowIsLoadedIntoTheEditor()
{
    const quint32 cookie = addAlarm(QTime(7, 5), "Tea");
    QTRY_VERIFY(m_section.cell(0));
    emit m_section.cell(0)->clicked();
    SettingAlarmPage *editor = SettingAlarmPage::instance();
    QVERIFY(editor->isOnDisplay());
    QCOMPARE(editor->getAlarmCookie(), cookie);
    QCOMPARE(Support::itemIn<TimePicker>(editor)->hours(), 7);
    QCOMPARE(Support::itemIn<TimePicker>(editor)->minutes(), 5);
    QCOMPARE(Support::itemIn<Touch::TextEdit>(editor)->text(), "Tea");
}

void TestAlarmsWidgetLook::theNewAlarmButtonOpensTheEditor()
{
    m_section.widget()->createNewAlarm();
    SettingAlarmPage *editor = SettingAlarmPage::instance();
    QVERIFY(editor->isOnDisplay());
    QCOMPARE(editor->getAlarmCookie(), QmAlarmEvent::NotStored);
}

QTEST_MAIN(TestAlarmsWidgetLook)
#include "tst_alarmswidgetlook.moc"
