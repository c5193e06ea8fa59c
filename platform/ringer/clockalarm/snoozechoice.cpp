// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/ringer/clockalarm/snoozechoice.h"

#include "platform/locale/locale.h"
#include "platform/ringer/texts/ringtexts.h"
#include "platform/toolkit/button.h"
#include "platform/toolkit/layout.h"
#include "platform/toolkit/linearlayoutpolicy.h"

#include <array>
#include <limits>
#include <utility>

using Touch::Button;

namespace {

constexpr std::array Minutes{5, 10, 15, 20, 30};
constexpr auto Gap = 8;

} // namespace

SnoozeChoice::SnoozeChoice(QGraphicsItem *parent)
    : StylableWidget(parent)
{
    setStyleName(QStringLiteral("RingChoice"));
    auto *row = new Touch::LinearLayoutPolicy(new Touch::Layout(this), Qt::Horizontal);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(Gap);
    for (const auto minutes : Minutes) {
        auto *button = new Button;
        button->setStyleName(QStringLiteral("RingMinutes"));
        button->setObjectName(QStringLiteral("snooze%1").arg(minutes));
        button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        connect(button, &Button::clicked, this, [this, minutes] { emit chosen(60 * minutes); });
        connect(button, &Button::widthChanged, this, &SnoozeChoice::evenTexts);
        connect(button, &Button::heightChanged, this, &SnoozeChoice::evenTexts);
        row->addItem(button);
        m_buttons.append(button);
    }
}

SnoozeChoice::~SnoozeChoice() = default;

void SnoozeChoice::setCompact(bool isCompact)
{
    for (auto *button : std::as_const(m_buttons))
        button->setStyleName(isCompact ? QStringLiteral("RingMinutesCompact") : QStringLiteral("RingMinutes"));
    evenTexts();
}

void SnoozeChoice::refresh(int ownSeconds)
{
    for (std::size_t index = 0; index < Minutes.size(); ++index) {
        auto *button = m_buttons.at(qsizetype(index));
        button->setText(Touch::Locale::getDefault().formatMinutes(Minutes[index]));
        button->setAccessibleName(RingTexts::snooze(60 * Minutes[index]));
        button->setVisible(60 * Minutes[index] != ownSeconds);
    }
    layout()->invalidate();
    evenTexts();
}

// All as large as fits the longest.
void SnoozeChoice::evenTexts()
{
    int size = std::numeric_limits<int>::max();
    for (const auto *button : std::as_const(m_buttons)) {
        if (button->isVisibleTo(this))
            size = qMin(size, button->fittedTextSize());
    }
    for (auto *button : std::as_const(m_buttons))
        button->setLargestTextSize(size);
}
