// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/clockwidgets/alerttonebrowsersheet.h"

#include "platform/clockwidgets/alerttone.h"
#include "platform/clockwidgets/parts_p.h"
#include "platform/clockwidgets/tonefilesheet_p.h"
#include "platform/clockwidgets/toneitem_p.h"
#include "platform/clockwidgets/tonejudge_p.h"
#include "platform/clockwidgets/tonemodel_p.h"
#include "platform/clockwidgets/tonepreview_p.h"
#include "platform/tones/tonefiles.h"
#include "platform/toolkit/banner.h"
#include "platform/toolkit/basiclistitem.h"
#include "platform/toolkit/basicsheetheader.h"
#include "platform/toolkit/cellcreator.h"
#include "platform/toolkit/layout.h"
#include "platform/toolkit/linearlayoutpolicy.h"
#include "platform/toolkit/list.h"
#include "platform/toolkit/pannableviewport.h"
#include "platform/toolkit/separator.h"
#include "platform/toolkit/widgetrecycler.h"

#include <functional>
#include <QAction>

namespace {

class ToneCreator : public Touch::CellCreator
{
public:
    using Chosen = std::function<void(const QString &path)>;

    explicit ToneCreator(const Chosen &chosen)
        : m_chosen(chosen)
    { }

    Touch::Widget *createCell(const QModelIndex &index, Touch::WidgetRecycler &recycler) override
    {
        auto *item = dynamic_cast<ToneItem *>(recycler.take("ToneItem"));
        if (!item) {
            item = new ToneItem;
            QObject::connect(item, &ToneItem::clicked, item, m_chosen);
        }
        updateCell(index, item);
        return item;
    }

    void updateCell(const QModelIndex &index, Touch::Widget *cell) override
    {
        auto *item = dynamic_cast<ToneItem *>(cell);
        if (!item)
            return;
        const bool isOwn = index.data(ToneModel::IsOwnRole).toBool();
        item->setTone(index.data(ToneModel::PathRole).toString(), index.data().toString(),
                      isOwn ? qtTrId("qtn_sond_own_music") : QString());
        item->setState(index.data(ToneModel::IsSelectedRole).toBool(), index.data(ToneModel::IsPlayingRole).toBool());
    }

    QSizeF cellSize() const override { return m_pattern.effectiveSizeHint(Qt::PreferredSize); }

private:
    const Chosen m_chosen;
    const ToneItem m_pattern;
};

} // namespace

AlertToneBrowserSheet::AlertToneBrowserSheet(AlertTone *tone, QGraphicsItem *parent)
    : Sheet(parent)
    , m_tone(tone)
    , m_model(new ToneModel(this))
    , m_preview(new TonePreview(this))
    , m_judge(new ToneJudge(this))
{
    loadClockTheme();
    connect(m_judge, &ToneJudge::judged, this, &AlertToneBrowserSheet::hear);
    connect(m_preview, &TonePreview::stopped, this, [this] { m_model->setPlaying({}); });
    connect(this, &SceneWindow::appeared, this, &AlertToneBrowserSheet::showSelected);
    makeHeader();
    makeList();
}

AlertToneBrowserSheet::~AlertToneBrowserSheet() = default;

void AlertToneBrowserSheet::makeHeader()
{
    auto *header = new Touch::BasicSheetHeader;
    auto *cancel = new QAction(qtTrId("qtn_sond_cancel"), header);
    auto *done = new QAction(qtTrId("qtn_sond_done"), header);
    header->setNegativeAction(cancel);
    header->setPositiveAction(done);
    setHeaderWidget(header);
    connect(cancel, &QAction::triggered, this, &AlertToneBrowserSheet::dismiss);
    connect(done, &QAction::triggered, this, &AlertToneBrowserSheet::take);
}

void AlertToneBrowserSheet::makeList()
{
    m_list = new Touch::List;
    m_list->setStyleName("CommonListWithSeparators");
    m_list->setCellCreator(new ToneCreator([this](const QString &path) { choose(path); }));
    m_list->setItemModel(m_model);
    m_viewport = new Touch::PannableViewport;
    m_viewport->setWidget(m_list);
    auto *fileRow = new Touch::BasicListItem(Touch::BasicListItem::IconWithTitle);
    fileRow->setObjectName("chooseFileItem");
    fileRow->setTitle(qtTrId("qtn_sond_choose_file"));
    fileRow->setImage("icon-m-clock-folder");
    connect(fileRow, &Touch::BasicListItem::clicked, this, &AlertToneBrowserSheet::lookForFile);
    auto *divider = new Touch::Separator;
    divider->setStyleName("CommonItemDivider");
    auto *column = new Touch::LinearLayoutPolicy(new Touch::Layout(centralWidget()), Qt::Vertical);
    column->setSpacing(0);
    column->addItem(fileRow);
    column->addItem(divider);
    column->addItem(m_viewport);
}

QString AlertToneBrowserSheet::selectedFile() const
{
    return m_model->selected();
}

QString AlertToneBrowserSheet::playedFile() const
{
    return m_model->playing();
}

QString AlertToneBrowserSheet::shownText() const
{
    return qtTrId("qtn_sond_browser_title");
}

void AlertToneBrowserSheet::aboutToAppear()
{
    Sheet::aboutToAppear();
    m_model->setSelected(m_tone->fileName());
    m_model->refresh();
}

void AlertToneBrowserSheet::aboutToLeave()
{
    m_judge->forget();
    m_preview->stop();
    if (m_files)
        m_files->dismiss();
    Sheet::aboutToLeave();
}

void AlertToneBrowserSheet::exitDisplay()
{
    m_preview->stop();
    Sheet::exitDisplay();
}

void AlertToneBrowserSheet::showSelected()
{
    const qreal height = m_list->cellCreator()->cellSize().height();
    m_viewport->ensureVisible({0, height * m_model->rowOf(m_model->selected()), 1, height});
}

void AlertToneBrowserSheet::lookForFile()
{
    m_judge->forget();
    m_preview->stop();
    if (!m_files) {
        m_files = std::make_unique<ToneFileSheet>();
        connect(m_files.get(), &ToneFileSheet::tapped, m_judge, &ToneJudge::ask);
        connect(m_files.get(), &ToneFileSheet::disappeared, m_judge, &ToneJudge::forget);
    }
    m_files->appear(hostWindow());
}

void AlertToneBrowserSheet::choose(const QString &path)
{
    const bool wasPlaying = m_model->playing() == path;
    m_judge->forget();
    m_preview->stop();
    if (wasPlaying)
        return;
    if (m_model->isShipped(path))
        select(path);
    else
        m_judge->ask(path);
}

void AlertToneBrowserSheet::hear(const QString &path, Sound::Probe::Verdict verdict)
{
    if (verdict != Sound::Probe::Heard) {
        refuse(path, verdict);
        return;
    }
    if (m_files)
        m_files->dismiss();
    // What was said of another file no longer holds, and may hide this one.
    if (m_notice)
        m_notice->disappear();
    select(path);
    // The list is as long as that only once it is laid out.
    QMetaObject::invokeMethod(this, &AlertToneBrowserSheet::showSelected, Qt::QueuedConnection);
}

void AlertToneBrowserSheet::select(const QString &path)
{
    m_model->setSelected(path);
    if (Tones::isNoSound(path))
        return;
    m_model->setPlaying(path);
    m_preview->play(path);
}

void AlertToneBrowserSheet::refuse(const QString &path, Sound::Probe::Verdict verdict)
{
    if (!m_notice) {
        m_notice = std::make_unique<Touch::Banner>();
        m_notice->setStyleName("InformationBanner");
    }
    const QString text
        = verdict == Sound::Probe::Silent ? qtTrId("qtn_sond_file_silent") : qtTrId("qtn_sond_file_unplayable");
    m_notice->setTitle(text.arg(m_model->titleOf(path)));
    m_notice->appear(hostWindow());
}

void AlertToneBrowserSheet::take()
{
    const QString path = m_model->selected();
    const QString title = m_model->titleOf(path);
    dismiss();
    m_tone->setTone(path, title);
}
