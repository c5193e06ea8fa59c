// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "editor/settingalarmpage.h"

#include "alarmlist/notices/spacers.h"
#include "app/settings.h"
#include "editor/alarmeditorlistitem.h"
#include "editor/alarmoptionspage.h"
#include "platform/clockwidgets/timepicker.h"
#include "platform/toolkit/basicsheetheader.h"
#include "platform/toolkit/button.h"
#include "platform/toolkit/inputmethodstate.h"
#include "platform/toolkit/label.h"
#include "platform/toolkit/layout.h"
#include "platform/toolkit/linearlayoutpolicy.h"
#include "platform/toolkit/messagebox.h"
#include "platform/toolkit/separator.h"
#include "platform/toolkit/stylablewidget.h"
#include "platform/toolkit/textedit.h"

#include <QAction>

using Touch::LinearLayoutPolicy;

namespace {

constexpr int TitleLength = 120;

Touch::Label *timeLabel(const QString &name, const QString &text = QString())
{
    auto *label = new Touch::Label(text);
    label->setStyleName("TimeLabel");
    label->setObjectName(name);
    return label;
}

LinearLayoutPolicy *rowPolicy(Touch::Layout *layout, const QList<Touch::Widget *> &items)
{
    auto *policy = new LinearLayoutPolicy(layout, Qt::Horizontal);
    policy->setSpacing(0);
    for (Touch::Widget *item : items)
        policy->addItem(item, item->styleName() == "AMPMLabel" ? Qt::AlignCenter : Qt::AlignVCenter);
    return policy;
}

} // namespace

SettingAlarmPage::SettingAlarmPage()
    // A day on which no zone puts its clocks forward, so that every time of day can be shown.
    : m_workingDateTime(QDate(2011, 2, 23), QTime(0, 0))
    , m_cookie(Clock::QmAlarmEvent::NotStored)
    , m_snooze(Settings::DefaultSnooze)
    , m_settings(Settings::Organisation, Settings::Application)
{
    setStyleName("CommonApplicationPage");
    setContentsMargins(0, 0, 0, 0);
    buildTimePicker();
    buildTitleRow();
    buildTimeRow();
    buildDeletePanel();
    buildMoreOptionsItem();
    buildHeader();
    buildContent();
    followLocale();
}

SettingAlarmPage::~SettingAlarmPage()
{
    // The field loses the focus only when there is nothing left here to take note of it.
    m_titleField->disconnect(this);
}

void SettingAlarmPage::buildTimePicker()
{
    m_timePicker = new TimePicker(7, 0);
    m_timePicker->setStyleName("TimePickerStyle");
    m_timePicker->setObjectName("timePicker");
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    policy.setHeightForWidth(true);
    m_timePicker->setSizePolicy(policy);
    connect(m_timePicker, &TimePicker::timeChanged, this, &SettingAlarmPage::timeChangedInTimePicker);
    connect(m_timePicker, &TimePicker::discPressed, this, &SettingAlarmPage::setStyle);
    connect(m_timePicker, &TimePicker::discReleased, this, &SettingAlarmPage::resetStyle);
}

void SettingAlarmPage::buildTitleRow()
{
    m_titleField = new Touch::TextEdit;
    m_titleField->setStyleName("CommonSingleInputField");
    m_titleField->setObjectName("AlarmNameInputField");
    m_titleField->setMaxLength(TitleLength);
    m_titleField->setCursorPosition(0);
    m_titleField->setPrompt(qtTrId("qtn_cloc_alarm_title_tooltip"));
    attachToolbar();
    connect(m_titleField, &Touch::TextEdit::lostFocus, this, &SettingAlarmPage::verifyAlarmTitle);
    connect(m_titleField, &Touch::TextEdit::returnPressed, this, &SettingAlarmPage::clearFocus);

    m_titleRow = new Touch::StylableWidget;
    m_titleRow->setStyleName("AlarmEditorTitleRow");
    auto *row = new Touch::Layout(m_titleRow);
    auto *policy = new LinearLayoutPolicy(row, Qt::Horizontal);
    policy->addItem(m_titleField, Qt::AlignVCenter);
    row->setPolicy(policy);
}

void SettingAlarmPage::attachToolbar()
{
    auto &state = Touch::InputMethodState::instance();
    const int toolbar = state.registerAttributeExtension();
    state.setExtendedAttribute(toolbar, "/keys", "actionKey", "label", qtTrId("qtn_comm_command_done"));
    state.setExtendedAttribute(toolbar, "/keys", "actionKey", "highlighted", true);
    m_titleField->attachToolbar(toolbar);
}

void SettingAlarmPage::buildTimeRow()
{
    m_hourLabel = timeLabel("ClockhhLabel");
    m_colonLabel = timeLabel("ClockColonLabel", ":");
    m_minuteLabel = timeLabel("ClockmmLabel");
    m_markerLabel = new Touch::Label(qtTrId("qtn_comm_time_am"));
    m_markerLabel->setStyleName("AMPMLabel");
    m_markerLabel->setObjectName("ClockampmLabel");

    m_timeRow = new Touch::StylableWidget;
    m_timeRow->setStyleName("AlarmEditorTimeRow");
    // The hour comes first in right-to-left languages, too.
    m_timeRow->setLayoutDirection(Qt::LeftToRight);
    m_timeRow->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    m_timeRowLayout = new Touch::Layout(m_timeRow);
    m_markerAfterPolicy = rowPolicy(m_timeRowLayout, {m_hourLabel, m_colonLabel, m_minuteLabel, m_markerLabel});
    m_markerBeforePolicy = rowPolicy(m_timeRowLayout, {m_markerLabel, m_hourLabel, m_colonLabel, m_minuteLabel});
    m_twentyFourHoursPolicy = rowPolicy(m_timeRowLayout, {m_hourLabel, m_colonLabel, m_minuteLabel});
    m_timeRowLayout->setPolicy(m_twentyFourHoursPolicy);
}

void SettingAlarmPage::buildDeletePanel()
{
    m_deleteButton = new Touch::Button(qtTrId("qtn_comm_delete"));
    m_deleteButton->setStyleName("CommonSingleButton");
    m_deleteButton->setObjectName("deleteButton");
    m_deleteButton->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    connect(m_deleteButton, &Touch::Button::clicked, this, &SettingAlarmPage::removeAlarm);

    m_deletePanel = new Touch::StylableWidget;
    m_deletePanel->setStyleName("CommonPanelNoFeedback");
    auto *panel = new Touch::Layout(m_deletePanel);
    auto *policy = new LinearLayoutPolicy(panel, Qt::Horizontal);
    policy->addStretch();
    policy->addItem(m_deleteButton, Qt::AlignCenter);
    policy->addStretch();
    panel->setPolicy(policy);
}

void SettingAlarmPage::buildMoreOptionsItem()
{
    m_moreOptionsItem = new AlarmEditorListItem(AlarmEditorListItem::IconWithTitle);
    m_moreOptionsItem->setStyleName("CommonPanel");
    m_moreOptionsItem->setObjectName("moreOptionsBasicListItem");
    m_moreOptionsItem->setTitle(qtTrId("qtn_cloc_more_options"));
    connect(m_moreOptionsItem, &AlarmEditorListItem::clicked, this, &SettingAlarmPage::displayOptionsPage);
}

void SettingAlarmPage::buildHeader()
{
    m_header = new Touch::BasicSheetHeader;
    auto *cancel = new QAction(qtTrId("qtn_comm_cancel"), m_header);
    auto *save = new QAction(qtTrId("qtn_comm_save"), m_header);
    connect(cancel, &QAction::triggered, this, &SettingAlarmPage::cancelAlarm);
    connect(save, &QAction::triggered, this, &SettingAlarmPage::saveAlarm);
    m_header->setNegativeAction(cancel);
    m_header->setPositiveAction(save);
    setHeaderWidget(m_header);
}

void SettingAlarmPage::buildContent()
{
    m_contentLayout = new Touch::Layout(centralWidget());
    m_contentLayout->setContentsMargins(0, 0, 0, 0);
    m_existingAlarmPolicy = new LinearLayoutPolicy(m_contentLayout, Qt::Vertical);
    m_newAlarmPolicy = new LinearLayoutPolicy(m_contentLayout, Qt::Vertical);
    Touch::Separator *spacer = createSpacer();
    auto *filler = new Touch::Widget;
    filler->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    for (LinearLayoutPolicy *policy : {m_existingAlarmPolicy, m_newAlarmPolicy}) {
        policy->addItem(spacer);
        policy->addItem(m_titleRow);
        policy->addItem(m_timeRow, Qt::AlignCenter);
        policy->addItem(m_timePicker, Qt::AlignCenter);
        policy->addItem(m_moreOptionsItem, Qt::AlignCenter);
        policy->addItem(filler, Qt::AlignCenter);
    }
    // Takes part in no arrangement, so it is never seen.
    auto *itemDivider = new Touch::Separator(centralWidget());
    itemDivider->setStyleName("AlarmEditorItemDivider");
    itemDivider->hide();
    auto *divider = new Touch::Separator;
    divider->setStyleName("CommonItemDivider");
    m_existingAlarmPolicy->addItem(divider, Qt::AlignCenter);
    m_existingAlarmPolicy->addItem(m_deletePanel, Qt::AlignCenter);
    m_contentLayout->setPolicy(m_existingAlarmPolicy);
}

void SettingAlarmPage::followLocale()
{
    m_locale.connectSettings();
    connect(&m_locale, &Touch::Locale::settingsChanged, this, &SettingAlarmPage::timeFormatChanged);
}
