// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "editor/alarmeditorlistitem.h"
#include "editor/alarmoptionspage.h"
#include "editor/repeatingrules.h"
#include "platform/toolkit/combobox.h"
#include "tests/editor/editortest.h"

/** What the tests of the options sheet stand on: the sheet, made anew for each, and what is in it. */
class OptionsTest : public EditorTest
{
    Q_OBJECT

protected:
    /** A new sheet, without preferences. */
    void openOptions();
    /** Takes the sheet away, and every alarm. */
    void closeOptions();

    AlarmEditorListItem *item(const QString &name) const
    {
        return Support::itemIn<AlarmEditorListItem>(m_options.get(), name);
    }
    Touch::ComboBox *snooze() const { return Support::itemIn<Touch::ComboBox>(m_options.get()); }
    QString rule() const { return item("repeatBasicListItem")->subtitle(); }
    RepeatingRules *dialog() const;
    /** Opens the dialog, clicks some of its buttons, and is done. */
    void chooseDays(const QStringList &buttons);
    void openNewAlarm();
    static QSettings settings() { return QSettings("Korvo", "Clock"); }

    std::unique_ptr<AlarmOptionsPage> m_options;
};
