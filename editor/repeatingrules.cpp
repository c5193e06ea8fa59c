// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "editor/repeatingrules.h"

#include "editor/repeatsummary.h"
#include "editor/weekdayorder.h"
#include "platform/toolkit/button.h"
#include "platform/toolkit/layout.h"
#include "platform/toolkit/linearlayoutpolicy.h"

#include <algorithm>

using Touch::Button;

RepeatingRules::RepeatingRules()
    : Dialog(qtTrId("qtn_cloc_set_repeat"), Done)
    , m_weekdayNames(weekdayNames())
{
    setObjectName("repeatingRules");
    auto *layout = new Touch::Layout(centralWidget());
    layout->setContentsMargins(0, 0, 0, 0);
    auto *column = new Touch::LinearLayoutPolicy(layout, Qt::Vertical);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    m_neverButton = addDayButton(column, qtTrId("qtn_cloc_repeatalarm_rulenever"), "neverButton");
    connect(m_neverButton, &Button::clicked, this, &RepeatingRules::neverButtonClicked);
    m_everyDayButton = addDayButton(column, qtTrId("qtn_cloc_repeatalarm_ruleeveryday"), "everyDayButton");
    connect(m_everyDayButton, &Button::clicked, this, &RepeatingRules::everyDayButtonClicked);
    for (const QString &name : std::as_const(m_weekdayNames)) {
        Button *button = addDayButton(column, name, QStringLiteral("weekday%1Button").arg(m_weekdayButtons.size()));
        button->setChecked(true);
        connect(button, &Button::clicked, this, &RepeatingRules::weekDayButtonsClicked);
        m_weekdayButtons.append(button);
    }
    layout->setPolicy(column);
}

Button *RepeatingRules::addDayButton(Touch::LinearLayoutPolicy *column, const QString &text, const QString &name)
{
    auto *button = new Button(text);
    button->setStyleName("ClockAlarmRepeatDay");
    button->setObjectName(name);
    button->setCheckable(true);
    column->addItem(button);
    return button;
}

void RepeatingRules::setRepeatDays(bool isRepeating, const QList<int> &days)
{
    checkWeekdays(false);
    m_everyDayButton->setChecked(false);
    m_neverButton->setChecked(!isRepeating);
    if (!isRepeating)
        return;
    QList<int> places = days;
    weekdaysToPlaces(places, firstDayOfWeek());
    for (const int place : std::as_const(places)) {
        if (Button *button = m_weekdayButtons.value(place))
            button->setChecked(true);
    }
    if (days.size() == m_weekdayButtons.size())
        m_everyDayButton->setChecked(true);
}

QList<int> RepeatingRules::repeatDays() const
{
    QList<int> days;
    for (int place = 0; place < m_weekdayButtons.size(); ++place) {
        if (m_weekdayButtons.at(place)->isChecked())
            days.append(place);
    }
    placesToWeekdays(days, firstDayOfWeek());
    return days;
}

bool RepeatingRules::isNeverChecked() const
{
    return m_neverButton->isChecked();
}

void RepeatingRules::checkWeekdays(bool isChecked)
{
    for (Button *button : std::as_const(m_weekdayButtons))
        button->setChecked(isChecked);
}

void RepeatingRules::neverButtonClicked(bool checked)
{
    if (!checked) {
        m_neverButton->setChecked(true);
        return;
    }
    checkWeekdays(false);
    m_everyDayButton->setChecked(false);
}

void RepeatingRules::everyDayButtonClicked(bool checked)
{
    if (!checked) {
        m_everyDayButton->setChecked(true);
        return;
    }
    m_neverButton->setChecked(false);
    checkWeekdays(true);
}

void RepeatingRules::weekDayButtonsClicked(bool)
{
    const auto count = std::count_if(m_weekdayButtons.cbegin(), m_weekdayButtons.cend(),
                                     [](const Button *button) { return button->isChecked(); });
    m_neverButton->setChecked(count == 0);
    m_everyDayButton->setChecked(count == m_weekdayButtons.size());
}
