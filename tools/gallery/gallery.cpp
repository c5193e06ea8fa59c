// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tools/gallery/gallery.h"

#include "platform/toolkit/action.h"
#include "platform/toolkit/basiclistitem.h"
#include "platform/toolkit/basicsheetheader.h"
#include "platform/toolkit/button.h"
#include "platform/toolkit/combobox.h"
#include "platform/toolkit/gridlayoutpolicy.h"
#include "platform/toolkit/imagewidget.h"
#include "platform/toolkit/label.h"
#include "platform/toolkit/layout.h"
#include "platform/toolkit/linearlayoutpolicy.h"
#include "platform/toolkit/list.h"
#include "platform/toolkit/pannableviewport.h"
#include "platform/toolkit/separator.h"
#include "platform/toolkit/stylablewidget.h"
#include "platform/toolkit/switch.h"
#include "platform/toolkit/textedit.h"
#include "tools/gallery/rows.h"

#include <QAction>
#include <QItemSelectionModel>

using namespace Touch;

namespace Gallery {

namespace {

template <typename Control, typename... Arguments>
Control *make(const char *styleName, Arguments... arguments)
{
    auto *control = new Control(arguments...);
    control->setStyleName(QString::fromLatin1(styleName));
    return control;
}

List *makeList(QObject *owner)
{
    auto *list = make<List>("CommonListWithSeparators");
    list->setCellCreator(new RowCreator);
    auto *rows = new Rows(owner);
    rows->fill(1000);
    list->setItemModel(rows);
    return list;
}

} // namespace

Page::Page()
{
    setTitle(QStringLiteral("Gallery"));
}

void Page::createContent()
{
    ApplicationPage::createContent();
    auto *column = new LinearLayoutPolicy(new Layout(centralWidget()), Qt::Vertical);
    column->addItem(make<Separator>("CommonSpacer"));
    column->addItem(makeHeader());
    column->addItem(makeButtons());
    column->addItem(make<Separator>("CommonItemDivider"));
    column->addItem(makeSwitches());
    column->addItem(make<Separator>("CommonItemDivider"));
    viewport = new PannableViewport;
    list = makeList(this);
    viewport->setWidget(list);
    column->addItem(viewport);
}

QGraphicsWidget *Page::makeHeader()
{
    auto *panel = make<StylableWidget>("CommonLargeGroupHeaderPanel");
    auto *row = new LinearLayoutPolicy(new Layout(panel), Qt::Horizontal);
    row->addItem(make<Label>("CommonLargeHeader", QStringLiteral("Alarms")));
    auto *add = make<Button>("CommonSmallIconButton", QStringLiteral("New alarm"));
    add->setViewType(QStringLiteral("icon"));
    add->setIconID(QStringLiteral("icon-m-common-add"));
    add->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    row->addItem(add);
    return panel;
}

QGraphicsWidget *Page::makeButtons()
{
    auto *panel = make<StylableWidget>("CommonPanelNoFeedback");
    auto *grid = new GridLayoutPolicy(new Layout(panel));
    grid->setSpacing(12);
    auto *wrapped = new Label(QStringLiteral("A label that wraps: it takes the lines that it needs and no more, in the "
                                             "width that it is given."));
    wrapped->setWordWrap(true);
    grid->addItem(wrapped, 0, 0, 1, 2);
    grid->addItem(make<Button>("CommonPrimaryButton", QStringLiteral("Primary")), 1, 0, 1, 2);
    auto *checked = new Button(QStringLiteral("Checked"));
    checked->setCheckable(true);
    checked->setChecked(true);
    checked->setIconID(QStringLiteral("icon-m-common-done"));
    grid->addItem(checked, 2, 0);
    grid->addItem(new Button(QStringLiteral("Plain")), 2, 1);
    auto *disabled = new Button(QStringLiteral("Disabled"));
    disabled->setEnabled(false);
    grid->addItem(disabled, 3, 0);
    grid->addItem(make<Button>("CommonSheetHeaderButtonAccent", QStringLiteral("Flat")), 3, 1);
    return panel;
}

QGraphicsWidget *Page::makeSwitches()
{
    auto *panel = make<StylableWidget>("CommonPanel");
    auto *grid = new GridLayoutPolicy(new Layout(panel));
    grid->addItem(make<Label>("CommonSubTitleTop", QStringLiteral("Repeat")), 0, 0);
    auto *elided = make<Label>("CommonTitleBottom", QStringLiteral("Monday, Tuesday, Wednesday, Thursday, Friday"));
    elided->setObjectName(QStringLiteral("galleryElided"));
    grid->addItem(elided, 1, 0);
    grid->addItem(new Switch, 0, 1, 2, 1);
    toggle = new Switch;
    toggle->setChecked(true);
    grid->addItem(toggle, 0, 2, 2, 1);
    grid->addItem(make<ImageWidget>("CommonDrillDownIcon", QStringLiteral("icon-m-common-drilldown-arrow")), 0, 3, 2,
                  1);
    return panel;
}

ListPage::ListPage()
{
    setTitle(QStringLiteral("List"));
}

void ListPage::createContent()
{
    ApplicationPage::createContent();
    auto *column = new LinearLayoutPolicy(new Layout(centralWidget()), Qt::Vertical);
    viewport = new PannableViewport;
    list = makeList(this);
    viewport->setWidget(list);
    column->addItem(viewport);
}

ChoicesPage::ChoicesPage()
{
    setTitle(QStringLiteral("Choices"));
    setComponentsDisplayMode(NavigationBar, AutoHide);
}

void ChoicesPage::createContent()
{
    ApplicationPage::createContent();
    auto *column = new LinearLayoutPolicy(new Layout(centralWidget()), Qt::Vertical);
    auto *viewport = new PannableViewport;
    list = makeList(this);
    list->setSelectionMode(List::MultipleSelection);
    list->setShowGroups(true);
    auto *rows = static_cast<Rows *>(list->itemModel());
    rows->fill(9);
    rows->group({{QStringLiteral("Weekdays"), 5}, {QStringLiteral("Weekend"), 2}, {QStringLiteral("Holidays"), 2}});
    for (const int row : {1, 2, 5})
        list->selectionModel()->select(rows->index(row, 0), QItemSelectionModel::Select);
    viewport->setWidget(list);
    column->addItem(viewport);
}

RowsPage::RowsPage()
{
    setTitle(QStringLiteral("Rows"));
    setComponentsDisplayMode(NavigationBar, Show);
}

void RowsPage::createContent()
{
    ApplicationPage::createContent();
    auto *column = new LinearLayoutPolicy(new Layout(centralWidget()), Qt::Vertical);
    for (const auto style : {BasicListItem::SingleTitle, BasicListItem::TitleWithSubtitle, BasicListItem::IconWithTitle,
                             BasicListItem::IconWithTitleAndSubtitle}) {
        auto *row = make<BasicListItem>("CommonPanel", style);
        row->setTitle(QStringLiteral("Alarm tone"));
        row->setSubtitle(QStringLiteral("Early birds"));
        row->setImage(QStringLiteral("icon-m-common-alarm"));
        column->addItem(row);
        column->addItem(make<Separator>("CommonItemDivider"));
        item = item ? item : row;
    }
    for (const char *text : {"Edit", "Delete"}) {
        auto *action = new Action(QString::fromLatin1(text), item);
        action->setLocation(Action::ObjectMenuLocation);
        item->addAction(action);
    }
    choice = make<ComboBox>("CommonPanel");
    choice->setTitle(QStringLiteral("Snooze"));
    for (const int minutes : {5, 10, 15, 20, 30})
        choice->addItem(QStringLiteral("%1 minutes").arg(minutes));
    choice->setCurrentIndex(1);
    column->addItem(choice);
    column->addStretch();
}

Question::Question()
    : MessageBox(QStringLiteral("Delete the alarm?"),
                 QStringLiteral("It would have rung tomorrow at 7:05. What is deleted cannot be brought back."), Cancel)
{
    addButton(QStringLiteral("Switch off"));
    addButton(QStringLiteral("Delete"))->setStyleName(QStringLiteral("DialogButtonDestructive"));
}

Editor::Editor()
{
    setStyleName(QStringLiteral("CommonApplicationPage"));
    auto *header = new BasicSheetHeader;
    header->setNegativeAction(new QAction(QStringLiteral("Cancel"), this));
    header->setPositiveAction(new QAction(QStringLiteral("Save"), this));
    setHeaderWidget(header);
    auto *column = new LinearLayoutPolicy(new Layout(centralWidget()), Qt::Vertical);
    column->addItem(make<Separator>("CommonSpacer"));
    field = make<TextEdit>("CommonSingleInputField", QStringLiteral("Morning run"));
    column->addItem(field);
    auto *empty = make<TextEdit>("CommonSingleInputField");
    empty->setPrompt(QStringLiteral("Title"));
    column->addItem(make<Separator>("CommonSpacer"));
    column->addItem(empty);
    column->addItem(make<Separator>("CommonSpacer"));
    column->addItem(makeTime(), Qt::AlignCenter);
    column->addStretch();
    auto *panel = make<StylableWidget>("CommonPanelNoFeedback");
    auto *row = new LinearLayoutPolicy(new Layout(panel), Qt::Horizontal);
    row->addItem(make<Button>("CommonDestructiveButton", QStringLiteral("Delete")), Qt::AlignCenter);
    column->addItem(panel);
}

QGraphicsWidget *Editor::makeTime()
{
    auto *time = new Label(QStringLiteral("11:40"));
    time->setObjectName(QStringLiteral("galleryTime"));
    time->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    return time;
}

} // namespace Gallery
