// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "editor/alarmeditorlistitem.h"

#include "platform/toolkit/gridlayoutpolicy.h"
#include "platform/toolkit/imagewidget.h"
#include "platform/toolkit/label.h"
#include "platform/toolkit/layout.h"

AlarmEditorListItem::AlarmEditorListItem(ItemStyle itemStyle, QGraphicsItem *parent)
    : BasicListItem(itemStyle, parent)
    , m_imageWidget(new Touch::ImageWidget(this))
{
    setStyleName("CommonPanel");
}

AlarmEditorListItem::~AlarmEditorListItem() = default;

void AlarmEditorListItem::setImageWidget(Touch::ImageWidget *imageWidget)
{
    if (!imageWidget || m_imageWidget == imageWidget)
        return;
    delete m_imageWidget;
    m_imageWidget = imageWidget;
    m_imageWidget->setParentItem(this);
    if (m_grid)
        placeImage();
}

QGraphicsLayout *AlarmEditorListItem::createLayout()
{
    auto *layout = new Touch::Layout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    m_grid = new Touch::GridLayoutPolicy(layout);
    m_grid->setContentsMargins(0, 0, 0, 0);
    m_grid->setSpacing(0);
    m_grid->setColumnStretchFactor(0, 1);
    if (itemStyle() == IconWithTitle)
        placeTitle();
    else if (itemStyle() == IconWithTitleAndSubtitle)
        placeTitleAndSubtitle();
    placeImage();
    layout->setPolicy(m_grid);
    return layout;
}

void AlarmEditorListItem::placeTitle()
{
    titleLabel()->setStyleName("CommonSingleTitle");
    titleLabel()->setObjectName("MoreOptionsTitle");
    m_grid->addItem(titleLabel(), 0, 0, 1, 1, Qt::AlignLeft | Qt::AlignVCenter);
    // The row is higher than its text.
    titleLabel()->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    m_imageWidget->setStyleName("CommonDrillDownIcon");
    m_imageWidget->setObjectName("MoreOptionsIcon");
    m_imageWidget->setImage("icon-m-common-drilldown-arrow");
}

void AlarmEditorListItem::placeTitleAndSubtitle()
{
    titleLabel()->setStyleName("CommonSubTitleTop");
    titleLabel()->setObjectName("AlarmOptionTitleLabel");
    m_grid->addItem(titleLabel(), 0, 0, 1, 1, Qt::AlignLeft | Qt::AlignVCenter);
    subtitleLabel()->setStyleName("CommonTitleBottom");
    subtitleLabel()->setObjectName("AlarmOptionSubTitle");
    // The days of a week do not fit on one line in every language.
    subtitleLabel()->setWordWrap(true);
    m_grid->addItem(subtitleLabel(), 1, 0, 1, 1, Qt::AlignLeft | Qt::AlignVCenter);
    // Takes what is left of the height beside the image, also below an empty subtitle.
    m_grid->addItem(new Touch::Widget(this), 2, 0);
    m_grid->setRowStretchFactor(2, 1);
    m_imageWidget->setStyleName("CommonComboBoxIcon");
    m_imageWidget->setObjectName("AlarmOptionsIcon");
    m_imageWidget->setImage("icon-m-common-combobox-arrow");
}

void AlarmEditorListItem::placeImage()
{
    if (itemStyle() == IconWithTitle)
        m_grid->addItem(m_imageWidget, 0, 1, 1, 1, Qt::AlignCenter);
    else if (itemStyle() == IconWithTitleAndSubtitle)
        m_grid->addItem(m_imageWidget, 0, 1, 3, 1, Qt::AlignCenter);
    else
        m_imageWidget->setVisible(false);
}
