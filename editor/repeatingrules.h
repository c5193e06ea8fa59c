// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/toolkit/dialog.h"

#include <QStringList>

namespace Touch {
class Button;
class LinearLayoutPolicy;
} // namespace Touch

/**
 * Asks on which weekdays an alarm repeats: never, every day, or days chosen one by one, listed from the first day of
 * the week on. All days are chosen until a rule is shown. Weekdays are 0 = Sunday … 6 = Saturday. Made anew each time it
 * is asked; GUI thread.
 */
class RepeatingRules : public Touch::Dialog
{
    Q_OBJECT

public:
    RepeatingRules();

    /** Shows a rule; without repetition the days do not count. */
    void setRepeatDays(bool isRepeating, const QList<int> &days);
    /** The days chosen, in the order of the list; none for an alarm that does not repeat. */
    QList<int> repeatDays() const;
    bool isNeverChecked() const;

public slots:
    void neverButtonClicked(bool checked);
    void everyDayButtonClicked(bool checked);
    void weekDayButtonsClicked(bool checked);

private:
    Touch::Button *addDayButton(Touch::LinearLayoutPolicy *column, const QString &text, const QString &name);
    void checkWeekdays(bool isChecked);

    QStringList m_weekdayNames;
    Touch::Button *m_neverButton = nullptr;
    Touch::Button *m_everyDayButton = nullptr;
    QList<Touch::Button *> m_weekdayButtons; ///< as they are listed
};
