// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/toolkit/widget.h"

class TimePicker;
enum class ClockHand;

/// The hour or the minute of a picker as a number of its own, for assistive technology; it shows nothing and takes no
/// input. Owned by the picker, as its child.
class PickerHandle : public Touch::Widget, private QAccessibleValueInterface
{
    Q_OBJECT

public:
    PickerHandle(TimePicker *picker, ClockHand hand);
    ~PickerHandle() override;

    /// Where the picker paints it.
    void moveTo(const QPointF &middle);
    void announceValue();

    QAccessible::Role accessibleRole() const override { return QAccessible::SpinBox; }
    QAccessibleValueInterface *accessibleValue() override { return this; }
    QStringList accessibleActions() const override;
    void doAccessibleAction(const QString &name) override;

protected:
    QString shownText() const override;

private:
    QVariant currentValue() const override;
    void setCurrentValue(const QVariant &value) override;
    QVariant maximumValue() const override;
    QVariant minimumValue() const override;
    QVariant minimumStepSize() const override;
    void set(int value);

    TimePicker *m_picker;
    ClockHand m_hand;
};
