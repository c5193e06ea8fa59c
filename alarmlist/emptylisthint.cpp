// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "alarmlist/emptylisthint.h"

#include "platform/toolkit/imagewidget.h"
#include "platform/toolkit/label.h"
#include "platform/toolkit/layout.h"
#include "platform/toolkit/linearlayoutpolicy.h"

namespace {

Touch::Label *line(const QString &text, const QString &styleName)
{
    auto *label = new Touch::Label(text);
    label->setStyleName(styleName);
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    return label;
}

} // namespace

EmptyListHint::EmptyListHint(QGraphicsItem *parent)
    : Touch::StylableWidget(parent)
    , m_image(new Touch::ImageWidget)
{
    setAcceptedMouseButtons(Qt::NoButton);
    m_image->setStyleName("AlarmsEmptyHintImage");
    m_image->setImage("icon-m-clock-no-alarms");

    auto *layout = new Touch::Layout(this);
    auto *policy = new Touch::LinearLayoutPolicy(layout, Qt::Vertical);
    policy->setStyleName("AlarmsEmptyHintLayout");
    policy->addStretch();
    policy->addItem(m_image, Qt::AlignHCenter);
    policy->addItem(line(qtTrId("qtn_cloc_no_alarms"), "AlarmsEmptyHintTitle"));
    policy->addItem(line(qtTrId("qtn_cloc_no_alarms_hint"), "AlarmsEmptyHintText"));
    policy->addStretch();
    layout->setPolicy(policy);
    setStyleName("AlarmsEmptyHint");
}

void EmptyListHint::styleChanged()
{
    StylableWidget::styleChanged();
    fitImage();
}

void EmptyListHint::fitInto(const QRectF &place)
{
    // Each fit asks for another layout, and so for this again.
    if (m_room != place.size()) {
        m_room = place.size();
        fitImage();
    }
    setGeometry(place);
}

// Words before pictures. The layout is asked, as the hint itself is never lower than what it shows now.
void EmptyListHint::fitImage()
{
    m_image->show();
    const qreal needed = layout()->effectiveSizeHint(Qt::MinimumSize, {m_room.width(), -1}).height();
    m_image->setVisible(needed <= m_room.height());
}
