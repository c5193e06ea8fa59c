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
{
    setStyleName("AlarmsEmptyHint");
    setAcceptedMouseButtons(Qt::NoButton);
    auto *image = new Touch::ImageWidget;
    image->setStyleName("AlarmsEmptyHintImage");
    image->setImage("icon-m-clock-no-alarms");

    auto *layout = new Touch::Layout(this);
    auto *policy = new Touch::LinearLayoutPolicy(layout, Qt::Vertical);
    policy->setStyleName("AlarmsEmptyHintLayout");
    policy->addStretch();
    policy->addItem(image, Qt::AlignHCenter);
    policy->addItem(line(qtTrId("qtn_cloc_no_alarms"), "AlarmsEmptyHintTitle"));
    policy->addItem(line(qtTrId("qtn_cloc_no_alarms_hint"), "AlarmsEmptyHintText"));
    policy->addStretch();
    layout->setPolicy(policy);
}
