// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/navigationbar_p.h"

#include "platform/toolkit/button.h"
#include "platform/toolkit/commontext_p.h"
#include "platform/toolkit/label.h"
#include "platform/toolkit/layout.h"
#include "platform/toolkit/linearlayoutpolicy.h"

#include <QGraphicsSceneMouseEvent>
#include <QPainter>

namespace Touch {

NavigationBar::NavigationBar(QGraphicsItem *parent)
    : Widget(parent)
    , m_escapeButton(
          makeButton(QStringLiteral("escapeButton"), CommonText::back(), QStringLiteral("icon-m-common-back")))
    , m_title(new Label(this))
    , m_homeButton(makeButton(QStringLiteral("homeButton"), CommonText::home(), QStringLiteral("icon-m-common-home")))
{
    setObjectName(QStringLiteral("navigationBar"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_title->setStyleName(QStringLiteral("NavigationBarTitle"));
    m_title->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    auto *row = new LinearLayoutPolicy(new Layout(this), Qt::Horizontal);
    row->addItem(m_escapeButton, Qt::AlignVCenter);
    row->addItem(m_title, Qt::AlignVCenter);
    row->addItem(m_homeButton, Qt::AlignVCenter);
}

NavigationBar::~NavigationBar() = default;

Button *NavigationBar::makeButton(const QString &name, const QString &text, const QString &iconId)
{
    auto *button = new Button(text, this);
    button->setObjectName(name);
    button->setStyleName(QStringLiteral("NavigationBarButton"));
    button->setViewType(QStringLiteral("icon"));
    button->setIconID(iconId);
    button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    return button;
}

void NavigationBar::setTitle(const QString &title)
{
    m_title->setText(title);
}

QString NavigationBar::shownText() const
{
    return m_title->text();
}

void NavigationBar::paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget)
{
    Widget::paint(painter, option, widget);
    if (style().separatorColor.isValid())
        painter->fillRect(QRectF(0, rect().bottom() - 1, rect().width(), 1), style().separatorColor);
}

void NavigationBar::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    event->accept();
}

} // namespace Touch
