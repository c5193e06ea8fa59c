// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "alarmlist/alarmswidget.h"

#include "alarmlist/alarmlistcreator.h"
#include "alarms/qmalarm.h"
#include "alarms/qmalarmevent.h"
#include "editor/settingalarmpage.h"
#include "platform/clockwidgets/alarmlistitem.h"
#include "platform/clockwidgets/timepicker.h"
#include "platform/toolkit/button.h"
#include "platform/toolkit/gridlayoutpolicy.h"
#include "platform/toolkit/label.h"
#include "platform/toolkit/layout.h"
#include "platform/toolkit/linearlayoutpolicy.h"
#include "platform/toolkit/list.h"
#include "platform/toolkit/textedit.h"
#include "tests/alarmlist/alarmsection.h"
#include "tests/support/alarms.h"
#include "tests/support/look/items.h"

#include <QMetaMethod>
#include <QPointer>
#include <QTemporaryFile>
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
    void everythingHasItsCellOfTheGrid();
    void theHeaderFillsItsPanel();
    void theListOnlyShowsAlarms();
    void theSlotsKeepTheirOrder();
    void aTappedRowIsLoadedIntoTheEditor();
    void itsToneAndSnoozeAreLoadedToo();
    void theNewAlarmButtonOpensTheEditor();
    void theEditorOutlivesTheSection();
    void fiveHundredAlarmsNeedFewCells();

private:
    Touch::Layout *layout() const { return static_cast<Touch::Layout *>(m_section.widget()->layout()); }
    Touch::GridLayoutPolicy *grid() const { return dynamic_cast<Touch::GridLayoutPolicy *>(layout()->policy()); }

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

void TestAlarmsWidgetLook::everythingHasItsCellOfTheGrid()
{
    using Cell = Touch::GridLayoutPolicy::Cell;
    constexpr auto leftAndCentred = Qt::AlignLeft | Qt::AlignVCenter;
    QVERIFY(grid());
    QCOMPARE(grid()->contentsMargins(), QMarginsF());
    const QList<QGraphicsLayoutItem *> items = grid()->items();
    QCOMPARE(items.size(), 5);
    QCOMPARE(grid()->cellOf(items.at(0)), (Cell{0, 0, 1, 2, {}}));
    QCOMPARE(grid()->cellOf(items.at(1)), (Cell{1, 0, 1, 1, leftAndCentred}));
    QCOMPARE(grid()->cellOf(items.at(2)), (Cell{1, 1, 1, 1, leftAndCentred}));
    QCOMPARE(grid()->cellOf(items.at(3)), (Cell{2, 0, 1, 2, {}}));
    QCOMPARE(grid()->cellOf(items.at(4)), (Cell{3, 0, 1, 2, Qt::AlignLeft}));
    QStringList styles;
    for (const QGraphicsLayoutItem *item : items)
        styles.append(qobject_cast<Touch::Widget *>(item->graphicsItem()->toGraphicsObject())->styleName());
    QCOMPARE(styles,
             (QStringList{"CommonSpacer", "CommonLargeGroupHeaderPanel", "CommonSmallIconButton", "CommonSpacer",
                          "AlarmListWithSeparators"}));
    qreal left = -1, top = -1, right = -1, bottom = -1;
    layout()->getContentsMargins(&left, &top, &right, &bottom);
    QCOMPARE(QMarginsF(left, top, right, bottom), QMarginsF());
}

void TestAlarmsWidgetLook::theHeaderFillsItsPanel()
{
    auto *header = Support::itemIn<Touch::Label>(m_section.widget(), "AlarmsHeader");
    QCOMPARE(header->alignment(), Qt::AlignLeft | Qt::AlignVCenter);
    QCOMPARE(header->sizePolicy(), QSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed));
    const auto *panel = static_cast<QGraphicsWidget *>(header->parentItem());
    const auto *row
        = dynamic_cast<Touch::LinearLayoutPolicy *>(static_cast<Touch::Layout *>(panel->layout())->policy());
    QVERIFY(row);
    QCOMPARE(row->contentsMargins(), QMarginsF());
    QCOMPARE(row->items(), QList<QGraphicsLayoutItem *>{header});
    const auto *button = Support::itemIn<Touch::Button>(m_section.widget(), "newAlarmButton");
    QCOMPARE(button->sizePolicy(), QSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed));
}

void TestAlarmsWidgetLook::theListOnlyShowsAlarms()
{
    const auto *list = Support::itemIn<Touch::List>(m_section.widget(), "alarmList");
    QCOMPARE(list->selectionMode(), Touch::List::NoSelection);
    QVERIFY(!list->selectionModel());
    QCOMPARE(list->itemModel(), m_section.model());
    QCOMPARE(m_section.model()->parent(), m_section.widget());
    QVERIFY(dynamic_cast<AlarmListCreator *>(list->cellCreator()));
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

void TestAlarmsWidgetLook::itsToneAndSnoozeAreLoadedToo()
{
    QTemporaryFile tone;
    QVERIFY(tone.open());
    QmAlarmEvent alarm = Support::alarmAt(QTime(7, 5));
    alarm.setTone(tone.fileName());
    alarm.setSnooze(25);
    const quint32 cookie = Clock::QmAlarm().add(alarm);
    QTRY_VERIFY(m_section.cell(0));
    emit m_section.cell(0)->clicked();
    SettingAlarmPage *editor = SettingAlarmPage::instance();
    editor->saveAlarm();
    QVERIFY(editor->getAlarmCookie() != cookie);
    const QmAlarmEvent saved(editor->getAlarmCookie());
    QCOMPARE(saved.tone(), tone.fileName());
    QCOMPARE(saved.snooze(), 25);
}

void TestAlarmsWidgetLook::theNewAlarmButtonOpensTheEditor()
{
    m_section.widget()->createNewAlarm();
    SettingAlarmPage *editor = SettingAlarmPage::instance();
    QVERIFY(editor->isOnDisplay());
    QCOMPARE(editor->getAlarmCookie(), QmAlarmEvent::NotStored);
    QCOMPARE(Support::itemIn<Touch::TextEdit>(editor)->text(), "");
}

void TestAlarmsWidgetLook::theEditorOutlivesTheSection()
{
    m_section.widget()->createNewAlarm();
    const QPointer<SettingAlarmPage> editor = SettingAlarmPage::instance();
    QVERIFY(m_section.close());
    QVERIFY(editor);
    QCOMPARE(SettingAlarmPage::instance(), editor.data());
    QVERIFY(m_section.open());
}

void TestAlarmsWidgetLook::fiveHundredAlarmsNeedFewCells()
{
    constexpr int many = 500;
    for (int i = 0; i < many; ++i)
        Support::addSwitchedOffAlarm(QTime(i / 60, i % 60));
    m_section.widget()->updateContent();
    QCOMPARE(m_section.model()->rowCount(), many);
    QTRY_VERIFY(m_section.cell(0));
    QTRY_VERIFY(m_section.viewport()->range().y() > 0);
    m_section.viewport()->setPosition({0, m_section.viewport()->range().y()});
    QTRY_VERIFY(m_section.cell(many - 1));
    QCOMPARE(m_section.cell(many - 1)->title(), QTime(8, 19));
    const int cells = Support::countIn<AlarmListItem>(m_section.widget());
    QVERIFY2(cells <= 30, qPrintable(QString::number(cells)));
}

QTEST_MAIN(TestAlarmsWidgetLook)
#include "tst_alarmswidgetlook.moc"
