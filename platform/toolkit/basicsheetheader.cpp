// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/basicsheetheader.h"

#include "platform/toolkit/button.h"
#include "platform/toolkit/layout.h"
#include "platform/toolkit/linearlayoutpolicy.h"

#include <QAction>

namespace Touch {

BasicSheetHeader::BasicSheetHeader(QGraphicsItem *parent)
    : Widget(parent)
{
    auto *layout = new Layout(this);
    auto *row = new LinearLayoutPolicy(layout, Qt::Horizontal);
    m_negative.button = makeButton(QStringLiteral("negativeButton"), QStringLiteral("CommonSheetHeaderButton"));
    m_positive.button = makeButton(QStringLiteral("positiveButton"), QStringLiteral("CommonSheetHeaderButtonAccent"));
    row->addItem(m_negative.button);
    row->addStretch();
    row->addItem(m_positive.button);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

BasicSheetHeader::~BasicSheetHeader() = default;

Button *BasicSheetHeader::makeButton(const QString &name, const QString &styleName)
{
    auto *button = new Button(this);
    button->setObjectName(name);
    button->setStyleName(styleName);
    button->setVisible(false);
    return button;
}

void BasicSheetHeader::setNegativeAction(QAction *action)
{
    setAction(m_negative, action);
}

void BasicSheetHeader::setPositiveAction(QAction *action)
{
    setAction(m_positive, action);
}

void BasicSheetHeader::setAction(Side &side, QAction *action)
{
    if (side.action) {
        side.action->disconnect(this);
        side.button->disconnect(side.action);
    }
    side.action = action;
    if (action) {
        connect(action, &QAction::changed, this, [this, &side] { follow(side); });
        connect(action, &QObject::destroyed, this, [this, &side] { follow(side); });
        connect(side.button, &Button::clicked, action, &QAction::trigger);
    }
    follow(side);
}

void BasicSheetHeader::follow(Side &side)
{
    side.button->setVisible(side.action && side.action->isVisible());
    if (!side.action)
        return;
    side.button->setText(side.action->text());
    side.button->setEnabled(side.action->isEnabled());
}

} // namespace Touch
