// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "editor/alarmoptionspage.h"

#include "app/settings.h"
#include "editor/alarmeditorlistitem.h"
#include "platform/clockwidgets/alerttone.h"
#include "platform/clockwidgets/alerttonebrowsersheet.h"
#include "platform/toolkit/applicationwindow.h"
#include "platform/toolkit/basicsheetheader.h"
#include "platform/toolkit/combobox.h"
#include "platform/toolkit/label.h"
#include "platform/toolkit/layout.h"
#include "platform/toolkit/linearlayoutpolicy.h"

#include <QAction>

#include <algorithm>

using Settings::SnoozeChoices;
using Touch::ApplicationWindow;

namespace {

constexpr QLatin1StringView StoreDriver("QTRACKER");

AlarmEditorListItem *valueItem(const QString &name, const QString &title)
{
    auto *item = new AlarmEditorListItem(AlarmEditorListItem::IconWithTitleAndSubtitle);
    item->setStyleName("CommonPanel");
    item->setObjectName(name);
    item->setTitle(title);
    return item;
}

int defaultSnoozeIndex()
{
    const auto *place = std::find(SnoozeChoices.begin(), SnoozeChoices.end(), Settings::DefaultSnooze);
    return int(place - SnoozeChoices.begin());
}

} // namespace

AlarmOptionsPage::AlarmOptionsPage()
    : m_settings(Settings::Organisation, Settings::Application)
    , m_defaultTone(Settings::BuiltInTone)
    , m_store(StoreDriver, {}, this)
    , m_savedSnoozeIndex(defaultSnoozeIndex())
{
    setStyleName("MoreOptionsSheet");
    setObjectName("alarmOptionsPage");
    setAccessibleName(qtTrId("qtn_cloc_alarm_options"));
    buildWindow();
    buildContent();
    buildHeader();
}

AlarmOptionsPage::~AlarmOptionsPage() = default;

void AlarmOptionsPage::buildWindow()
{
    if (Touch::Window *caller = Touch::Window::active())
        ApplicationWindow::pushChainingData(caller->winId(), caller->windowTitle());
    m_window = std::make_unique<ApplicationWindow>();
    m_window->setOrientation(Qt::Vertical);
    m_window->setOrientationLocked(true);
    m_window->setStyleName("CommonApplicationWindowInverted");
}

void AlarmOptionsPage::buildContent()
{
    auto *header = new Touch::Label(qtTrId("qtn_cloc_alarm_options"));
    header->setStyleName("CommonApplicationHeader");
    header->setObjectName("AlarmOptionsHeader");

    m_repeatItem = valueItem("repeatBasicListItem", qtTrId("qtn_cloc_alarmeditor_repeattitle"));
    connect(m_repeatItem, &AlarmEditorListItem::clicked, this, &AlarmOptionsPage::repeatingRulesButtonClicked);

    m_snoozeComboBox = new Touch::ComboBox;
    m_snoozeComboBox->setStyleName("CommonPanel");
    m_snoozeComboBox->setObjectName("snoozeComboBox");
    m_snoozeComboBox->setTitle(qtTrId("qtn_cloc_alarmeditor_snoozesetting"));
    for (const int minutes : SnoozeChoices)
        m_snoozeComboBox->addItem(qtTrId("qtn_cloc_alarmeditor_snooze", minutes).arg(minutes));

    m_toneItem = valueItem("toneBasicListItem", qtTrId("qtn_cloc_alarmeditor_tone"));
    connect(m_toneItem, &AlarmEditorListItem::clicked, this, &AlarmOptionsPage::toneClicked);

    auto *layout = new Touch::Layout(centralWidget());
    layout->setContentsMargins(0, 0, 0, 0);
    auto *column = new Touch::LinearLayoutPolicy(layout, Qt::Vertical);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    for (Touch::Widget *row : QList<Touch::Widget *>{header, m_repeatItem, m_snoozeComboBox, m_toneItem})
        column->addItem(row);
    column->addStretch();
    layout->setPolicy(column);
}

void AlarmOptionsPage::buildHeader()
{
    auto *header = new Touch::BasicSheetHeader;
    auto *cancelAction = new QAction(qtTrId("qtn_comm_cancel"), header);
    auto *saveAction = new QAction(qtTrId("qtn_comm_save"), header);
    connect(cancelAction, &QAction::triggered, this, &AlarmOptionsPage::cancel);
    connect(saveAction, &QAction::triggered, this, &AlarmOptionsPage::save);
    header->setNegativeAction(cancelAction);
    header->setPositiveAction(saveAction);
    setHeaderWidget(header);
}
