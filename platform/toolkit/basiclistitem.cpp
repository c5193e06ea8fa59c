// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/basiclistitem.h"

#include "platform/toolkit/gridlayoutpolicy.h"
#include "platform/toolkit/imagewidget.h"
#include "platform/toolkit/label.h"
#include "platform/toolkit/layout.h"

namespace Touch {

BasicListItem::BasicListItem(ItemStyle itemStyle, QGraphicsItem *parent)
    : Pressable(parent)
    , m_itemStyle(itemStyle)
    , m_titleLabel(new Label(this))
    , m_subtitleLabel(new Label(this))
    , m_imageWidget(new ImageWidget(this))
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

BasicListItem::~BasicListItem() = default;

QString BasicListItem::title() const
{
    return m_titleLabel->text();
}

void BasicListItem::setTitle(const QString &title)
{
    if (m_titleLabel->text() == title)
        return;
    m_titleLabel->setText(title);
    announceName();
}

QString BasicListItem::subtitle() const
{
    return m_subtitleLabel->text();
}

void BasicListItem::setSubtitle(const QString &subtitle)
{
    if (m_subtitleLabel->text() == subtitle)
        return;
    m_subtitleLabel->setText(subtitle);
    announceName();
}

void BasicListItem::setImage(const QString &iconId)
{
    m_imageWidget->setImage(iconId);
}

QGraphicsLayout *BasicListItem::createLayout()
{
    auto *layout = new Layout(this);
    auto *grid = new GridLayoutPolicy(layout);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setStyleName(QStringLiteral("BasicListItemLayout"));
    const int column = hasIcon() ? 1 : 0;
    m_titleLabel->setStyleName(hasSubtitle() ? QStringLiteral("CommonTitleTop") : QStringLiteral("CommonSingleTitle"));
    m_subtitleLabel->setStyleName(QStringLiteral("CommonSubTitle"));
    m_imageWidget->setStyleName(QStringLiteral("CommonListItemIcon"));
    if (hasIcon())
        grid->addItem(m_imageWidget, 0, 0, hasSubtitle() ? 2 : 1, 1, Qt::AlignCenter);
    grid->addItem(m_titleLabel, 0, column, 1, 1, Qt::AlignLeft | (hasSubtitle() ? Qt::AlignBottom : Qt::AlignVCenter));
    grid->setRowStretchFactor(0, 1);
    if (hasSubtitle()) {
        grid->addItem(m_subtitleLabel, 1, column, 1, 1, Qt::AlignLeft | Qt::AlignTop);
        grid->setRowStretchFactor(1, 1);
    }
    grid->setColumnStretchFactor(column, 1);
    return layout;
}

// Not in the constructor, where no override would be reached.
void BasicListItem::ensureLayout()
{
    if (m_isLayoutCreated)
        return;
    m_isLayoutCreated = true;
    QGraphicsLayout *created = createLayout();
    if (layout() != created)
        setLayout(created);
    for (Widget *part : {static_cast<Widget *>(m_titleLabel), static_cast<Widget *>(m_subtitleLabel),
                         static_cast<Widget *>(m_imageWidget)}) {
        if (!part->parentLayoutItem())
            part->setVisible(false);
    }
}

void BasicListItem::polishEvent()
{
    ensureLayout();
    Pressable::polishEvent();
}

// A layout that takes it in measures it before it is polished.
void BasicListItem::updateGeometry()
{
    if (parentLayoutItem() && parentLayoutItem()->isLayout())
        ensureLayout();
    Pressable::updateGeometry();
}

QString BasicListItem::shownText() const
{
    const bool hasBoth = !title().isEmpty() && !subtitle().isEmpty() && m_subtitleLabel->isVisibleTo(this);
    return hasBoth ? title() + QLatin1String(", ") + subtitle() : title();
}

void BasicListItem::paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *)
{
    const Style &look = style();
    paintBackground(painter, isDown() && look.pressedBackground.isValid() ? look.pressedBackground : look.background);
    paintFocusRing(painter);
}

} // namespace Touch
