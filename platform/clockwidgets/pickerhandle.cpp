// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/clockwidgets/pickerhandle_p.h"

#include "platform/clockwidgets/clockhand_p.h"
#include "platform/clockwidgets/timepicker.h"
#include "platform/locale/locale.h"

namespace {

constexpr qreal HandleSize = 48;

} // namespace

PickerHandle::PickerHandle(TimePicker *picker, ClockHand hand)
    : Widget(picker)
    , m_picker(picker)
    , m_hand(hand)
{
    setFlag(ItemHasNoContents);
    setAcceptedMouseButtons(Qt::NoButton);
    resize(HandleSize, HandleSize);
}

PickerHandle::~PickerHandle() = default;

void PickerHandle::moveTo(const QPointF &middle)
{
    setPos(middle - rect().center());
}

void PickerHandle::announceValue()
{
    QAccessibleValueChangeEvent event(this, currentValue());
    tell(&event);
}

QString PickerHandle::shownText() const
{
    using Touch::Locale;
    return Locale::getDefault().timeFieldName(m_hand == ClockHand::Hour ? Locale::HourField : Locale::MinuteField);
}

QVariant PickerHandle::currentValue() const
{
    return m_hand == ClockHand::Hour ? m_picker->hours() : m_picker->minutes();
}

void PickerHandle::setCurrentValue(const QVariant &value)
{
    set(qBound(0, qRound(value.toDouble()), maximumValue().toInt()));
}

QVariant PickerHandle::maximumValue() const
{
    return m_hand == ClockHand::Hour ? 23 : 59;
}

QVariant PickerHandle::minimumValue() const
{
    return 0;
}

QVariant PickerHandle::minimumStepSize() const
{
    return 1;
}

QStringList PickerHandle::accessibleActions() const
{
    return {QAccessibleActionInterface::increaseAction(), QAccessibleActionInterface::decreaseAction()};
}

void PickerHandle::doAccessibleAction(const QString &name)
{
    set(currentValue().toInt() + (name == QAccessibleActionInterface::increaseAction() ? 1 : -1));
}

// The picker folds what goes over the end.
void PickerHandle::set(int value)
{
    if (m_hand == ClockHand::Hour)
        m_picker->setHours(value);
    else
        m_picker->setMinutes(value);
}
