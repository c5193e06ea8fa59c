// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "alarmlist/emptylisthint.h"

#include "platform/toolkit/imagewidget.h"
#include "platform/toolkit/label.h"
#include "platform/toolkit/layout.h"
#include "platform/toolkit/linearlayoutpolicy.h"
#include "platform/toolkit/theme.h"

namespace {

/** Larger text needs the room of the picture. */
constexpr qreal LargestScaleWithImage = 1.5;
constexpr qreal LeastHeightWithImage = 200;

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
    setStyleName("AlarmsEmptyHint");
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
    EmptyListHint::styleChanged();
}

void EmptyListHint::styleChanged()
{
    StylableWidget::styleChanged();
    fitImage();
}

// Its own height says less: with the picture it is never lower than both need.
void EmptyListHint::fitInto(const QRectF &place)
{
    m_room = place.height();
    fitImage();
    setGeometry(place);
}

// Words before pictures.
void EmptyListHint::fitImage()
{
    m_image->setVisible(Touch::Theme::instance().textScale() <= LargestScaleWithImage
                        && m_room >= LeastHeightWithImage);
}
