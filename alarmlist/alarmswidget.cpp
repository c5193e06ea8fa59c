// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "alarmlist/alarmswidget.h"

#include "alarmlist/alarmlistcreator.h"
#include "alarmlist/alarmslistmodel.h"
#include "alarmlist/emptylisthint.h"
#include "alarmlist/notices/spacers.h"
#include "alarmlist/rowtexts.h"
#include "alarms/qmalarm.h"
#include "alarms/utility.h"
#include "platform/toolkit/button.h"
#include "platform/toolkit/gridlayoutpolicy.h"
#include "platform/toolkit/label.h"
#include "platform/toolkit/layout.h"
#include "platform/toolkit/linearlayoutpolicy.h"
#include "platform/toolkit/list.h"
#include "platform/toolkit/pannableviewport.h"
#include "platform/toolkit/separator.h"

#include <QDebug>

using Clock::QmAlarm;
using Clock::Utility;

AlarmsWidget::AlarmsWidget(QGraphicsItem *parent, Touch::PannableViewport *viewport)
    : Touch::Widget(parent)
    , m_model(new AlarmsListModel(this))
    , m_viewport(viewport)
    , m_emptyHint(new EmptyListHint(this))
{
    m_emptyHint->hide();
    buildHeader();
    buildNewAlarmButton();
    buildList();
    buildLayout();
    Utility *utility = Utility::instance();
    connect(utility, &Utility::valueChanged, this, &AlarmsWidget::onValueChanged);
    if (utility->isTriggerMapReceived())
        onValueChanged();
    else
        utility->subscribeToContextFramework();
}

AlarmsWidget::~AlarmsWidget()
{
    constexpr auto signature = "virtual AlarmsWidget::~AlarmsWidget()";
    qDebug() << signature << "entered";
    m_alarms.clear();
    qDebug() << signature << "exited";
}

void AlarmsWidget::buildHeader()
{
    m_headerPanel = new Touch::StylableWidget;
    m_headerPanel->setStyleName("CommonLargeGroupHeaderPanel");
    auto *layout = new Touch::Layout(m_headerPanel);
    auto *policy = new Touch::LinearLayoutPolicy(layout, Qt::Horizontal);
    policy->setContentsMargins(0, 0, 0, 0);

    m_header = new Touch::Label(qtTrId("qtn_cloc_alarms_header"));
    m_header->setStyleName("CommonLargeHeader");
    m_header->setObjectName("AlarmsHeader");
    m_header->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_header->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    policy->addItem(m_header, Qt::AlignVCenter);
    layout->setPolicy(policy);
}

void AlarmsWidget::buildNewAlarmButton()
{
    m_newAlarmButton = new Touch::Button(qtTrId("qtn_cloc_new_alarm"));
    m_newAlarmButton->setViewType("icon");
    m_newAlarmButton->setStyleName("CommonSmallIconButton");
    m_newAlarmButton->setObjectName("newAlarmButton");
    m_newAlarmButton->setIconID("icon-m-common-add");
    m_newAlarmButton->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    connect(m_newAlarmButton, &Touch::Button::clicked, this, &AlarmsWidget::createNewAlarm);
}

void AlarmsWidget::buildList()
{
    m_list = new Touch::List;
    m_list->setStyleName("AlarmListWithSeparators");
    m_list->setObjectName("alarmList");
    m_list->setViewType("fast");
    m_list->setSelectionMode(Touch::List::NoSelection);
    m_list->setShowGroups(false);
    m_list->setCellCreator(new AlarmListCreator(this));
    m_list->setItemModel(m_model);
}

void AlarmsWidget::buildLayout()
{
    m_layout = new Touch::Layout(this);
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_policy = new Touch::GridLayoutPolicy(m_layout);
    m_policy->addItem(createSpacer(), 0, 0, 1, 2);
    m_policy->addItem(m_headerPanel, 1, 0, 1, 1, Qt::AlignLeft | Qt::AlignVCenter);
    m_policy->addItem(m_newAlarmButton, 1, 1, 1, 1, Qt::AlignLeft | Qt::AlignVCenter);
    m_policy->addItem(createSpacer(), 2, 0, 1, 2);
    m_policy->addItem(m_list, 3, 0, 1, 2, Qt::AlignLeft);
    m_layout->setPolicy(m_policy);
}

bool AlarmsWidget::event(QEvent *event)
{
    const bool isHandled = Touch::Widget::event(event);
    if (event->type() == QEvent::LayoutRequest || event->type() == QEvent::GraphicsSceneResize)
        placeEmptyHint();
    return isHandled;
}

void AlarmsWidget::placeEmptyHint()
{
    m_emptyHint->fitInto(QRectF(QPointF(0, m_list->y()), rect().bottomRight()));
}

void AlarmsWidget::updateContent()
{
    constexpr auto signature = "void AlarmsWidget::updateContent()";
    qDebug() << signature << "entered";
    if (!QmAlarm().queryAndSortAlarmCookies(m_alarms)) {
        const int rows = m_model->rowCount();
        if (rows == m_alarms.size())
            reloadRows();
        else if (rows < m_alarms.size())
            addMissingRow();
        else
            removeSurplusRow();
        setPannable(!m_alarms.isEmpty());
        showHintIfEmpty();
    }
    qDebug() << signature << "exited";
}

void AlarmsWidget::reloadRows()
{
    m_model->removeRows(0, m_model->rowCount());
    m_model->insertRows(m_model->rowCount(), static_cast<int>(m_alarms.size()));
    for (int row = 0; row < m_alarms.size(); ++row)
        writeRow(row);
}

void AlarmsWidget::addMissingRow()
{
    const bool isFirstLoad = m_model->rowCount() == 0;
    for (int row = 0; row < m_alarms.size(); ++row) {
        if (isFirstLoad) {
            insertAlarm(row);
        } else if (!isRowOfAlarm(row)) {
            insertAlarm(row);
            break;
        }
    }
}

void AlarmsWidget::removeSurplusRow()
{
    int row = 0;
    while (row < m_alarms.size() && isRowOfAlarm(row))
        ++row;
    m_model->removeRow(row);
}

void AlarmsWidget::insertAlarm(int row)
{
    m_model->insertRow(row);
    writeRow(row);
}

void AlarmsWidget::writeRow(int row)
{
    const QStringList texts = rowTexts(m_alarms.at(row));
    for (int column = 0; column < m_model->columnCount(); ++column)
        m_model->setData(m_model->index(row, column), texts.at(column), Qt::EditRole);
}

bool AlarmsWidget::isRowOfAlarm(int row) const
{
    // Past the last row the text is empty, and so no alarm's.
    return m_model->data(m_model->index(row, 0), Qt::DisplayRole).toString() == cookieText(m_alarms.at(row).cookie());
}

void AlarmsWidget::setPannable(bool isPannable)
{
    m_viewport->setPanDirection(isPannable ? Qt::Orientations(Qt::Vertical) : Qt::Orientations());
}

void AlarmsWidget::showHintIfEmpty()
{
    m_emptyHint->setVisible(m_alarms.isEmpty());
}

void AlarmsWidget::resetContent()
{
    qDebug() << "void AlarmsWidget::resetContent()";
    if (isVisible())
        updateContent();
}
