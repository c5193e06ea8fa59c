// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/editor/optionstest.h"

void OptionsTest::openOptions()
{
    QSettings("Korvo", "Clock").clear();
    m_options = std::make_unique<AlarmOptionsPage>();
}

void OptionsTest::closeOptions()
{
    m_options.reset();
    closePage();
}

RepeatingRules *OptionsTest::dialog() const
{
    return Support::shownIn<RepeatingRules>(m_options->hostWindow());
}

void OptionsTest::openNewAlarm()
{
    m_options->load(QmAlarmEvent::NotStored, QString(), 10);
    m_options->appear();
}

void OptionsTest::chooseDays(const QStringList &buttons)
{
    emit item("repeatBasicListItem")->clicked();
    QVERIFY(dialog());
    for (const QString &name : buttons)
        Support::itemIn<Touch::Button>(dialog(), name)->click();
    dialog()->standardButton(Touch::Dialog::Done)->click();
}
