// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/layout.h"

#include "platform/toolkit/abstractlayoutpolicy.h"
#include "platform/toolkit/widget.h"
#include "platform/toolkit/window.h"

#include <QGraphicsScene>

namespace Touch {

Layout::Layout(QGraphicsLayoutItem *parent)
    : QGraphicsLayout(parent)
{
    QGraphicsLayout::setContentsMargins(0, 0, 0, 0);
}

Layout::~Layout()
{
    qDeleteAll(m_policies);
    for (QGraphicsLayoutItem *item : std::as_const(m_items)) {
        item->setParentLayoutItem(nullptr);
        if (item->ownedByLayout())
            delete item;
    }
}

void Layout::registerPolicy(AbstractLayoutPolicy *policy)
{
    m_policies.append(policy);
    if (!m_policy)
        m_policy = policy;
}

void Layout::setPolicy(AbstractLayoutPolicy *policy)
{
    if (m_policy == policy && !m_landscapePolicy && !m_portraitPolicy)
        return;
    m_policy = policy;
    m_landscapePolicy = nullptr;
    m_portraitPolicy = nullptr;
    showActiveItems();
    invalidate();
}

void Layout::setLandscapePolicy(AbstractLayoutPolicy *policy)
{
    m_landscapePolicy = policy;
    showActiveItems();
    invalidate();
}

void Layout::setPortraitPolicy(AbstractLayoutPolicy *policy)
{
    m_portraitPolicy = policy;
    showActiveItems();
    invalidate();
}

AbstractLayoutPolicy *Layout::policy() const
{
    AbstractLayoutPolicy *oriented = windowOrientation() == Qt::Horizontal ? m_landscapePolicy : m_portraitPolicy;
    return oriented ? oriented : m_policy;
}

void Layout::adopt(QGraphicsLayoutItem *item)
{
    if (!m_items.contains(item)) {
        addChildLayoutItem(item);
        m_items.append(item);
        // Some items build what is in them when they are first laid out.
        item->updateGeometry();
    }
    showActiveItems();
}

void Layout::removeAt(int index)
{
    QGraphicsLayoutItem *item = m_items.takeAt(index);
    for (AbstractLayoutPolicy *policy : std::as_const(m_policies))
        policy->removeItem(item);
    m_hidden.removeAll(item);
    item->setParentLayoutItem(nullptr);
    invalidate();
}

void Layout::setGeometry(const QRectF &rect)
{
    QGraphicsLayout::setGeometry(rect);
    showActiveItems();
    AbstractLayoutPolicy *active = policy();
    if (!active)
        return;
    const bool mirrored = isMirrored();
    // Not geometry(), which is no larger than the items together want to be.
    active->arrange(rect.marginsRemoved(outerMargins(mirrored)), mirrored);
}

void Layout::invalidate()
{
    updateHeightForWidth();
    QGraphicsLayout::invalidate();
}

QSizeF Layout::sizeHint(Qt::SizeHint which, const QSizeF &constraint) const
{
    const AbstractLayoutPolicy *active = policy();
    const QMarginsF margins = outerMargins(false);
    if (!active || which == Qt::MinimumDescent)
        return QSizeF(0, 0).grownBy(margins);
    const qreal width = constraint.width() < 0 ? -1 : constraint.width() - margins.left() - margins.right();
    const QSizeF size = active->contentSize(which, width).grownBy(margins);
    return which == Qt::MaximumSize ? size.boundedTo({QWIDGETSIZE_MAX, QWIDGETSIZE_MAX}) : size;
}

void Layout::showActiveItems()
{
    const AbstractLayoutPolicy *active = policy();
    for (QGraphicsLayoutItem *item : std::as_const(m_items))
        setItemShown(item, m_isShown && active && active->contains(item));
}

void Layout::setItemShown(QGraphicsLayoutItem *item, bool isShown)
{
    if (item->isLayout()) {
        if (auto *nested = dynamic_cast<Layout *>(item))
            nested->setShown(isShown);
        return;
    }
    QGraphicsItem *graphics = item->graphicsItem();
    if (!graphics)
        return;
    if (isShown && m_hidden.removeOne(item)) {
        graphics->show();
    } else if (!isShown && !m_hidden.contains(item) && graphics->isVisibleTo(graphics->parentItem())) {
        m_hidden.append(item);
        graphics->hide();
    }
}

void Layout::setShown(bool isShown)
{
    if (m_isShown == isShown)
        return;
    m_isShown = isShown;
    showActiveItems();
}

QGraphicsItem *Layout::parentGraphicsItem() const
{
    QGraphicsLayoutItem *parent = parentLayoutItem();
    while (parent && parent->isLayout())
        parent = parent->parentLayoutItem();
    return parent ? parent->graphicsItem() : nullptr;
}

Qt::Orientation Layout::windowOrientation() const
{
    const QGraphicsItem *item = parentGraphicsItem();
    if (!item || !item->scene() || item->scene()->views().isEmpty())
        return Qt::Vertical;
    const auto *window = qobject_cast<Window *>(item->scene()->views().constFirst());
    return window ? window->orientation() : Qt::Vertical;
}

QMarginsF Layout::outerMargins(bool isMirrored) const
{
    const AbstractLayoutPolicy *active = policy();
    QMarginsF margins = active ? active->contentsMargins() : QMarginsF();
    const QGraphicsLayoutItem *parent = parentLayoutItem();
    QGraphicsItem *item = parent && !parent->isLayout() ? parent->graphicsItem() : nullptr;
    if (const auto *widget = item ? qobject_cast<Widget *>(item->toGraphicsObject()) : nullptr)
        margins += widget->style().padding;
    if (isMirrored)
        margins = {margins.right(), margins.top(), margins.left(), margins.bottom()};
    return margins;
}

bool Layout::isMirrored() const
{
    const QGraphicsItem *item = parentGraphicsItem();
    return item && item->isWidget() && static_cast<const QGraphicsWidget *>(item)->layoutDirection() == Qt::RightToLeft;
}

void Layout::updateHeightForWidth()
{
    const AbstractLayoutPolicy *active = policy();
    QSizePolicy wanted = sizePolicy();
    wanted.setHeightForWidth(active && active->hasHeightForWidth());
    if (wanted != sizePolicy())
        setSizePolicy(wanted);
}

} // namespace Touch
