// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/clockwidgets/timepicker.h"

#include "platform/clockwidgets/pickerdial_p.h"
#include "platform/clockwidgets/pickerhandle_p.h"
#include "platform/clockwidgets/timetext_p.h"
#include "platform/locale/locale.h"

namespace {

constexpr int MinutesPerHour = 60;
constexpr int MinutesPerDay = 24 * MinutesPerHour;

} // namespace

QString TimePicker::shownText() const
{
    return timeText(Touch::Locale::getDefault(), QTime(m_hours, m_minutes)).whole();
}

void TimePicker::announce()
{
    QAccessibleValueChangeEvent value(this, currentValue());
    tell(&value);
    announceName();
    m_hourHandle->announceValue();
    m_minuteHandle->announceValue();
}

void TimePicker::placeHandles()
{
    m_hourHandle->moveTo(hourHandle());
    m_minuteHandle->moveTo(minuteHandle());
}

QVariant TimePicker::currentValue() const
{
    return m_hours * MinutesPerHour + m_minutes;
}

void TimePicker::setCurrentValue(const QVariant &value)
{
    const int minutes = qBound(0, value.toInt(), MinutesPerDay - 1);
    setTime(minutes / MinutesPerHour, minutes % MinutesPerHour);
}

QVariant TimePicker::maximumValue() const
{
    return MinutesPerDay - 1;
}

QVariant TimePicker::minimumValue() const
{
    return 0;
}

QVariant TimePicker::minimumStepSize() const
{
    return 1;
}

QStringList TimePicker::accessibleActions() const
{
    return {QAccessibleActionInterface::increaseAction(), QAccessibleActionInterface::decreaseAction()};
}

void TimePicker::doAccessibleAction(const QString &name)
{
    step(m_keyHand, name == QAccessibleActionInterface::increaseAction() ? 1 : -1);
}
