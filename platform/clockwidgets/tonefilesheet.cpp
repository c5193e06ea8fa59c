// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/clockwidgets/tonefilesheet_p.h"

#include "platform/clockwidgets/parts_p.h"
#include "platform/clockwidgets/tonefileitem_p.h"
#include "platform/clockwidgets/tonefoldermodel_p.h"
#include "platform/toolkit/basicsheetheader.h"
#include "platform/toolkit/cellcreator.h"
#include "platform/toolkit/label.h"
#include "platform/toolkit/layout.h"
#include "platform/toolkit/linearlayoutpolicy.h"
#include "platform/toolkit/list.h"
#include "platform/toolkit/pannableviewport.h"
#include "platform/toolkit/widgetrecycler.h"

#include <functional>
#include <QAction>

namespace {

class FileCreator : public Touch::CellCreator
{
public:
    using Tapped = std::function<void(const ToneFileItem &item)>;

    explicit FileCreator(const Tapped &tapped)
        : m_tapped(tapped)
    { }

    Touch::Widget *createCell(const QModelIndex &index, Touch::WidgetRecycler &recycler) override
    {
        auto *item = dynamic_cast<ToneFileItem *>(recycler.take("ToneFileItem"));
        if (!item) {
            item = new ToneFileItem;
            QObject::connect(item, &ToneFileItem::clicked, item, [tapped = m_tapped, item] { tapped(*item); });
        }
        updateCell(index, item);
        return item;
    }

    void updateCell(const QModelIndex &index, Touch::Widget *cell) override
    {
        if (auto *item = dynamic_cast<ToneFileItem *>(cell))
            item->setEntry(ToneFolderModel::Kind(index.data(ToneFolderModel::KindRole).toInt()),
                           index.data().toString(), index.data(ToneFolderModel::PathRole).toString());
    }

    QSizeF cellSize() const override { return m_pattern.effectiveSizeHint(Qt::PreferredSize); }

private:
    const Tapped m_tapped;
    const ToneFileItem m_pattern;
};

} // namespace

ToneFileSheet::ToneFileSheet(QGraphicsItem *parent)
    : Sheet(parent)
    , m_model(new ToneFolderModel(this))
{
    loadClockTheme();
    setObjectName("toneFileSheet");
    makeHeader();
    makeContent();
}

ToneFileSheet::~ToneFileSheet() = default;

void ToneFileSheet::makeHeader()
{
    auto *header = new Touch::BasicSheetHeader;
    auto *cancel = new QAction(qtTrId("qtn_sond_cancel"), header);
    header->setNegativeAction(cancel);
    setHeaderWidget(header);
    connect(cancel, &QAction::triggered, this, &ToneFileSheet::dismiss);
}

void ToneFileSheet::makeContent()
{
    m_title = new Touch::Label;
    m_title->setStyleName("CommonApplicationHeader");
    m_title->setObjectName("toneFolderTitle");
    auto *list = new Touch::List;
    list->setObjectName("toneFileList");
    list->setStyleName("CommonListWithSeparators");
    list->setCellCreator(new FileCreator([this](const ToneFileItem &item) { follow(item); }));
    list->setItemModel(m_model);
    m_viewport = new Touch::PannableViewport;
    m_viewport->setWidget(list);
    auto *column = new Touch::LinearLayoutPolicy(new Touch::Layout(centralWidget()), Qt::Vertical);
    column->setSpacing(0);
    column->addItem(m_title);
    column->addItem(m_viewport);
}

QString ToneFileSheet::folder() const
{
    return m_model->folder();
}

QString ToneFileSheet::shownText() const
{
    return qtTrId("qtn_sond_choose_file");
}

void ToneFileSheet::aboutToAppear()
{
    Sheet::aboutToAppear();
    m_model->refresh();
    showFolder();
}

void ToneFileSheet::stepBack()
{
    if (m_model->goUp())
        showFolder();
    else
        Sheet::stepBack();
}

void ToneFileSheet::follow(const ToneFileItem &item)
{
    switch (item.kind()) {
    case ToneFolderModel::Up:
        m_model->goUp();
        break;
    case ToneFolderModel::Folder:
        m_model->enter(item.path());
        break;
    case ToneFolderModel::File:
        Q_EMIT tapped(item.path());
        return;
    case ToneFolderModel::Note:
        return;
    }
    showFolder();
}

void ToneFileSheet::showFolder()
{
    m_title->setText(m_model->title());
    m_viewport->setPosition({0, 0});
}
