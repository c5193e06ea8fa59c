// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "editor/alarmoptionspage.h"

#include "alarms/qmalarmevent.h"
#include "alarms/utility.h"
#include "app/settings.h"
#include "editor/alarmeditorlistitem.h"
#include "editor/repeatingrules.h"
#include "editor/repeatsummary.h"
#include "platform/clockwidgets/alerttonebrowsersheet.h"
#include "platform/toolkit/applicationwindow.h"
#include "platform/toolkit/combobox.h"

#include <QDebug>

using Clock::QmAlarmEvent;
using Clock::Utility;
using Settings::SnoozeChoices;

void AlarmOptionsPage::load(quint32 cookie, const QString &tone, unsigned int snooze)
{
    const bool isNewAlarm = cookie == QmAlarmEvent::NotStored;
    // A restored backup may have brought others.
    m_settings.sync();
    loadTone(isNewAlarm ? m_settings.value(Settings::DefaultToneKey, m_defaultTone).toString() : tone);
    QmAlarmEvent record;
    if (!isNewAlarm)
        record.fromAstelTimedEvent(cookie);
    m_isRepeating = record.isRecurring();
    m_repeatDays = record.repeatDays();
    showRepeatRule();
    if (isNewAlarm)
        snooze = quint8(m_settings.value(Settings::SnoozeTimeKey, Settings::DefaultSnooze).toUInt());
    loadSnooze(snooze);
    m_isSavedRepeating = m_isRepeating;
    m_savedRepeatDays = m_repeatDays;
    m_savedTone = m_tone;
}

void AlarmOptionsPage::loadTone(const QString &tone)
{
    setTone(tone);
    if (!m_toneFile.exists())
        setTone(Utility::defaultAlertTone());
}

void AlarmOptionsPage::loadSnooze(unsigned int minutes)
{
    const int index = binarySearch(SnoozeChoices.data(), int(minutes), 0, int(SnoozeChoices.size()) - 1);
    if (index < 0)
        return;
    m_savedSnoozeIndex = index;
    m_snoozeComboBox->setCurrentIndex(index);
}

int AlarmOptionsPage::binarySearch(const int table[], int x, int low, int high)
{
    while (low <= high) {
        const int middle = (low + high) / 2;
        if (x == table[middle])
            return middle;
        if (x < table[middle])
            high = middle - 1;
        else
            low = middle + 1;
    }
    return -1;
}

int AlarmOptionsPage::snoozeIndex() const
{
    const int index = m_snoozeComboBox->currentIndex();
    return index < 0 ? m_savedSnoozeIndex : index;
}

void AlarmOptionsPage::setTone(const QString &path)
{
    m_tone = path;
    m_toneFile.setFile(path);
}

void AlarmOptionsPage::showRepeatRule()
{
    m_repeatItem->setSubtitle(m_isRepeating ? repeatSummary(true, m_repeatDays)
                                            : qtTrId("qtn_cloc_repeatalarm_rulenever"));
}

void AlarmOptionsPage::appear()
{
    Sheet::appear(m_window.get());
    askForTitle();
}

void AlarmOptionsPage::resetContent()
{
    qDebug() << "void AlarmOptionsPage::resetContent()";
    m_snoozeComboBox->dismissPopup();
    if (m_repeatingRules) {
        m_repeatingRules->dismiss();
        m_repeatingRules.clear();
    }
    if (m_toneBrowser)
        m_toneBrowser->dismiss();
}

void AlarmOptionsPage::repeatingRulesButtonClicked()
{
    qDebug() << "AlarmOptionsPage::repeatingRulesButtonClicked()";
    m_repeatingRules = new RepeatingRules;
    connect(m_repeatingRules, &RepeatingRules::accepted, this, &AlarmOptionsPage::handleRepeatingRulesDialogAccepted);
    connect(m_repeatingRules, &RepeatingRules::rejected, this, &AlarmOptionsPage::handleRepeatingRulesDialogRejected);
    m_repeatingRules->setRepeatDays(m_isRepeating, m_repeatDays);
    m_repeatingRules->appear(hostWindow(), DestroyWhenDone);
}

void AlarmOptionsPage::handleRepeatingRulesDialogAccepted()
{
    m_repeatDays = m_repeatingRules->repeatDays();
    m_isRepeating = !m_repeatingRules->isNeverChecked();
    showRepeatRule();
    m_repeatingRules->dismiss();
}

void AlarmOptionsPage::handleRepeatingRulesDialogRejected()
{
    m_repeatingRules.clear();
}

void AlarmOptionsPage::save()
{
    m_savedRepeatDays = m_repeatDays;
    m_isSavedRepeating = m_isRepeating;
    m_savedTone = m_tone;
    m_settings.setValue(Settings::DefaultToneKey, m_tone);
    if (const int index = m_snoozeComboBox->currentIndex(); index >= 0) {
        m_savedSnoozeIndex = index;
        m_settings.setValue(Settings::SnoozeTimeKey, SnoozeChoices.at(size_t(index)));
    }
    m_settings.sync();
    dismiss();
}

void AlarmOptionsPage::cancel()
{
    m_snoozeComboBox->setCurrentIndex(m_savedSnoozeIndex);
    m_repeatDays = m_savedRepeatDays;
    m_isRepeating = m_isSavedRepeating;
    showRepeatRule();
    // The name of a tone looked at stays until the sheet is shown again.
    setTone(m_savedTone);
    dismiss();
}
