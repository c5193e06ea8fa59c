// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "alarmlist/alarmlistcreator.h"

#include "alarmlist/alarmslistmodel.h"
#include "alarmlist/alarmswidget.h"
#include "platform/clockwidgets/alarmlistitem.h"
#include "platform/toolkit/action.h"
#include "platform/toolkit/objectmenu.h"
#include "platform/toolkit/pannableviewport.h"
#include "platform/toolkit/theme.h"
#include "platform/toolkit/widgetrecycler.h"
#include "tests/support/look/look.h"
#include "tests/support/privatebus.h"

#include <QTemporaryFile>
#include <QTest>

class TestAlarmListCreator : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void aNewCellShowsItsRow();
    void anyColumnsIndexFillsTheWholeCell();
    void aTimeThatDoesNotParseIsInvalid();
    void aStatusThatIsNoNumberIsOff();
    void aLongSnoozeKeepsItsLowBits();
    void anEmptyToneLeavesTheCellsTone();
    void theRepeatTextChoosesTheStyle();
    void aRecycledCellIsUsedAsItStands();
    void aTapReachesTheAlarmsWidgetOnce();
    void itsObjectMenuOffersToDelete();
    void aRecycledCellKeepsItsOneAction();
    void allCellsAreAsTallAsANewOne();
    void anotherThemeMayMakeCellsTaller();

private:
    void setRow(const QStringList &texts);
    std::unique_ptr<AlarmListItem> newCell();

    Support::PrivateBus m_bus;
    std::unique_ptr<Touch::PannableViewport> m_viewport;
    std::unique_ptr<AlarmsWidget> m_alarmsWidget;
    std::unique_ptr<AlarmListCreator> m_creator;
    AlarmsListModel m_model;
    Touch::WidgetRecycler m_recycler;
};

void TestAlarmListCreator::initTestCase()
{
    QVERIFY(Support::loadLook());
    QVERIFY(m_bus.isRunning());
    m_viewport = std::make_unique<Touch::PannableViewport>();
    m_alarmsWidget = std::make_unique<AlarmsWidget>(nullptr, m_viewport.get());
    m_creator = std::make_unique<AlarmListCreator>(m_alarmsWidget.get());
    m_model.insertRow(0);
}

void TestAlarmListCreator::init()
{
    setRow({"77", "07:05", "Tea", "1", "/tones/a.aac", "Mon, Tue", "15"});
}

void TestAlarmListCreator::setRow(const QStringList &texts)
{
    for (int column = 0; column < texts.size(); ++column)
        m_model.setData(m_model.index(0, column), texts.at(column));
}

std::unique_ptr<AlarmListItem> TestAlarmListCreator::newCell()
{
    Touch::Widget *cell = m_creator->createCell(m_model.index(0, 0), m_recycler);
    return std::unique_ptr<AlarmListItem>(qobject_cast<AlarmListItem *>(cell));
}

void TestAlarmListCreator::aNewCellShowsItsRow()
{
    const auto cell = newCell();
    QVERIFY(cell);
    QVERIFY(!cell->parentItem());
    QCOMPARE(cell->alarmCookie(), 77L);
    QCOMPARE(cell->title(), QTime(7, 5));
    QCOMPARE(cell->subTitle(), "Tea");
    QVERIFY(cell->enabled());
    QCOMPARE(cell->alarmTone(), "/tones/a.aac");
    QCOMPARE(cell->subText(), "Mon, Tue");
    QCOMPARE(int(cell->snoozeValue()), 15);
}

void TestAlarmListCreator::anyColumnsIndexFillsTheWholeCell()
{
    const auto cell = newCell();
    setRow({"78", "08:10", "Coffee", "0", "/tones/b.aac", "", "5"});
    m_creator->updateCell(m_model.index(0, 3), cell.get());
    QCOMPARE(cell->alarmCookie(), 78L);
    QCOMPARE(cell->title(), QTime(8, 10));
    QVERIFY(!cell->enabled());
    QCOMPARE(int(cell->snoozeValue()), 5);
}

void TestAlarmListCreator::aTimeThatDoesNotParseIsInvalid()
{
    setRow({"77", "7 o'clock"});
    QVERIFY(!newCell()->title().isValid());
}

void TestAlarmListCreator::aStatusThatIsNoNumberIsOff()
{
    setRow({"77", "07:05", "Tea", "on"});
    QVERIFY(!newCell()->enabled());
}

void TestAlarmListCreator::aLongSnoozeKeepsItsLowBits()
{
    setRow({"77", "07:05", "Tea", "1", "", "", "300"});
    QCOMPARE(int(newCell()->snoozeValue()), 44);
}

void TestAlarmListCreator::anEmptyToneLeavesTheCellsTone()
{
    const auto cell = newCell();
    setRow({"78", "08:10", "", "0", "", "", "5"});
    m_creator->updateCell(m_model.index(0, 0), cell.get());
    QCOMPARE(cell->alarmTone(), "/tones/a.aac");
    QCOMPARE(cell->subTitle(), "");
}

void TestAlarmListCreator::theRepeatTextChoosesTheStyle()
{
    const auto cell = newCell();
    QCOMPARE(int(cell->itemStyle()), 1);
    setRow({"77", "07:05", "Tea", "1", "", ""});
    m_creator->updateCell(m_model.index(0, 0), cell.get());
    QCOMPARE(int(cell->itemStyle()), 0);
    setRow({"77", "07:05", "Tea", "1", "", "Every day"});
    m_creator->updateCell(m_model.index(0, 0), cell.get());
    QCOMPARE(int(cell->itemStyle()), 1);
}

void TestAlarmListCreator::aRecycledCellIsUsedAsItStands()
{
    AlarmListItem *first = newCell().release();
    m_recycler.recycle(first);
    setRow({"78"});
    const auto second = newCell();
    QCOMPARE(second.get(), first);
    QCOMPARE(second->alarmCookie(), 78L);
}

void TestAlarmListCreator::aTapReachesTheAlarmsWidgetOnce()
{
    AlarmListItem *cell = newCell().release();
    m_recycler.recycle(cell);
    const auto again = newCell();
    QCOMPARE(again.get(), cell);
    // A new connection of the same kind is refused for as long as there is one.
    QVERIFY(!connect(cell, &AlarmListItem::clicked, m_alarmsWidget.get(), &AlarmsWidget::alarmClicked,
                     Qt::UniqueConnection));
    QVERIFY(disconnect(cell, &AlarmListItem::clicked, m_alarmsWidget.get(), &AlarmsWidget::alarmClicked));
    QVERIFY(
        disconnect(cell, &AlarmListItem::alarmStateChanged, m_alarmsWidget.get(), &AlarmsWidget::alarmStateChanged));
}

void TestAlarmListCreator::itsObjectMenuOffersToDelete()
{
    const auto cell = newCell();
    const QList<QAction *> actions = cell->actions();
    QCOMPARE(actions.size(), 1);
    const auto *action = qobject_cast<Touch::Action *>(actions.first());
    QVERIFY(action);
    QCOMPARE(action->text(), "qtn_comm_delete");
    QCOMPARE(action->location(), 8);
    QCOMPARE(action->parent(), cell.get());
    QCOMPARE(Touch::ObjectMenu::actionsOf(cell.get()), actions);
}

void TestAlarmListCreator::aRecycledCellKeepsItsOneAction()
{
    AlarmListItem *cell = newCell().release();
    QAction *action = cell->actions().constFirst();
    m_recycler.recycle(cell);
    const auto again = newCell();
    QCOMPARE(again.get(), cell);
    QCOMPARE(again->actions(), QList<QAction *>{action});
    QCOMPARE(again->findChildren<QAction *>(), QList<QAction *>{action});
    QVERIFY(
        !connect(action, &QAction::triggered, m_alarmsWidget.get(), &AlarmsWidget::deleteAlarm, Qt::UniqueConnection));
    QVERIFY(disconnect(action, &QAction::triggered, m_alarmsWidget.get(), &AlarmsWidget::deleteAlarm));
}

void TestAlarmListCreator::allCellsAreAsTallAsANewOne()
{
    QCOMPARE(m_creator->cellSize(), newCell()->effectiveSizeHint(Qt::PreferredSize));
    QVERIFY(m_creator->cellSize().height() >= 48);
}

void TestAlarmListCreator::anotherThemeMayMakeCellsTaller()
{
    QTemporaryFile theme;
    QVERIFY(theme.open());
    theme.write(R"({ "classes": { "AlarmListItem": { "preferredSize": [-1, 123] } } })");
    theme.close();
    QString error;
    QVERIFY2(Touch::Theme::instance().load(theme.fileName(), &error), qPrintable(error));
    QCOMPARE(m_creator->cellSize().height(), 123.0);
}

QTEST_MAIN(TestAlarmListCreator)
#include "tst_alarmlistcreator.moc"
