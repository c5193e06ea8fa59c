// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/ringer/clockalarm/waitingstack.h"

#include "platform/ringer/texts/ringtexts.h"
#include "platform/toolkit/button.h"
#include "platform/toolkit/label.h"
#include "platform/toolkit/layout.h"
#include "platform/toolkit/linearlayoutpolicy.h"

using Ringer::Alarm;
using Touch::Button;
using Touch::Label;

namespace {

constexpr auto MaximalCards = 2;
constexpr auto Gap = 8;

} // namespace

WaitingStack::WaitingStack(QGraphicsItem *parent)
    : StylableWidget(parent)
    , m_count(new Label)
{
    auto *column = new Touch::LinearLayoutPolicy(new Touch::Layout(this), Qt::Vertical);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Gap);
    m_count->setStyleName(QStringLiteral("RingWaiting"));
    m_count->setAlignment(Qt::AlignCenter);
    column->addItem(m_count, Qt::AlignHCenter);
    for (int index = 0; index < MaximalCards; ++index) {
        auto *card = new Button;
        card->setStyleName(QStringLiteral("RingNext"));
        // The time and the first words of each, in one size.
        card->setTextShrinks(false);
        card->setObjectName(QStringLiteral("waiting%1").arg(index));
        connect(card, &Button::clicked, this, [this, index] { emit chosen(m_alarms.at(index).cookie); });
        column->addItem(card, Qt::AlignHCenter);
        m_cards.append(card);
    }
    refresh();
}

WaitingStack::~WaitingStack() = default;

void WaitingStack::setAlarms(const QList<Alarm> &alarms)
{
    m_alarms = alarms;
    refresh();
}

void WaitingStack::setRoom(int cards)
{
    if (m_room == cards)
        return;
    m_room = cards;
    refresh();
}

void WaitingStack::refresh()
{
    setVisible(!m_alarms.isEmpty());
    //% "%n more alarm(s)"
    m_count->setText(qtTrId("qtn_ring_more", int(m_alarms.size())));
    for (int index = 0; index < MaximalCards; ++index) {
        const auto isShown = index < m_room && index < m_alarms.size();
        m_cards.at(index)->setVisible(isShown);
        if (isShown) {
            const auto &alarm = m_alarms.at(index);
            m_cards.at(index)->setText(RingTexts::due(alarm.due) + QStringLiteral(" · ")
                                       + RingTexts::title(alarm.title));
        }
    }
    layout()->invalidate();
    updateGeometry();
}
