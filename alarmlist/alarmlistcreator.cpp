// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "alarmlist/alarmlistcreator.h"

#include "alarmlist/alarmswidget.h"
#include "platform/clockwidgets/alarmlistitem.h"
#include "platform/toolkit/action.h"
#include "platform/toolkit/widgetrecycler.h"

#include <QAbstractItemModel>
#include <QTime>

namespace {

/** What a column of the index's row shows. */
QVariant column(const QModelIndex &index, int number)
{
    return index.siblingAtColumn(number).data(Qt::DisplayRole);
}

AlarmListItem::ItemStyle styleFor(const QString &repeatText)
{
    return repeatText.isEmpty() ? AlarmListItem::OneLine : AlarmListItem::WithRepeatLine;
}

} // namespace

AlarmListCreator::AlarmListCreator(AlarmsWidget *alarmsWidget)
    : m_alarmsWidget(alarmsWidget)
    , m_pattern(std::make_unique<AlarmListItem>(AlarmListItem::OneLine))
{ }

AlarmListCreator::~AlarmListCreator() = default;

QSizeF AlarmListCreator::cellSize() const
{
    return m_pattern->effectiveSizeHint(Qt::PreferredSize);
}

Touch::Widget *AlarmListCreator::createCell(const QModelIndex &index, Touch::WidgetRecycler &recycler)
{
    auto *cell = dynamic_cast<AlarmListItem *>(recycler.take("AlarmListItem"));
    if (!cell) {
        cell = new AlarmListItem(AlarmListItem::OneLine);
        QObject::connect(cell, &AlarmListItem::clicked, m_alarmsWidget, &AlarmsWidget::alarmClicked);
        QObject::connect(cell, &AlarmListItem::alarmStateChanged, m_alarmsWidget, &AlarmsWidget::alarmStateChanged);
        addDeleteAction(cell);
    }
    updateCell(index, cell);
    return cell;
}

void AlarmListCreator::addDeleteAction(AlarmListItem *cell)
{
    auto *action = new Touch::Action(qtTrId("qtn_comm_delete"), cell);
    action->setLocation(Touch::Action::ObjectMenuLocation);
    cell->addAction(action);
    QObject::connect(action, &QAction::triggered, m_alarmsWidget, &AlarmsWidget::deleteAlarm);
}

void AlarmListCreator::updateCell(const QModelIndex &index, Touch::Widget *widget)
{
    auto *cell = dynamic_cast<AlarmListItem *>(widget);
    if (!cell)
        return;
    cell->setAlarmCookie(column(index, 0).toInt());
    cell->setTitle(QTime::fromString(column(index, 1).toString(), "hh:mm"));
    cell->setSubTitle(column(index, 2).toString());
    cell->setEnabled(column(index, 3).toInt() != 0);
    if (const QString tone = column(index, 4).toString(); !tone.isEmpty())
        cell->setAlarmTone(tone);
    cell->setSubText(column(index, 5).toString());
    cell->setItemStyle(styleFor(cell->subText()));
    cell->setSnoozeValue(static_cast<unsigned char>(column(index, 6).toUInt() & 0xff));
}
