// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "editor/settingalarmpage.h"

#include "alarmlist/notices/informationbanner.h"
#include "alarms/qmalarm.h"
#include "alarms/utility.h"
#include "app/settings.h"
#include "editor/alarmoptionspage.h"
#include "platform/clockwidgets/timepicker.h"
#include "platform/toolkit/button.h"
#include "platform/toolkit/messagebox.h"
#include "platform/toolkit/textedit.h"

#include <QDebug>

using Clock::QmAlarm;
using Clock::QmAlarmEvent;
using Clock::Utility;
using Settings::SnoozeChoices;
using Touch::Locale;

namespace {

constexpr int SecondsPerHour = 3600;

} // namespace

void SettingAlarmPage::saveAlarm()
{
    connect(Utility::instance(), &Utility::valueChanged, this, &SettingAlarmPage::onValueChanged, Qt::UniqueConnection);
    // A tap on Save does not take the focus from a title that is still being composed.
    m_titleField->commit();
    QmAlarmEvent record = recordFromFields();
    storeRecord(record);
    if (isNewAlarm()) {
        stopWaiting();
        dismiss();
        showInformationBanner(qtTrId("qtn_cloc_alarm_save_error"));
    } else {
        rememberTime(record.alarmTime());
    }
    record = QmAlarmEvent(m_cookie);
    if (!record.isEnabled()) {
        stopWaiting();
        dismiss();
    }
}

QmAlarmEvent SettingAlarmPage::recordFromFields() const
{
    QmAlarmEvent record;
    record.setApplication("clock");
    const QString title = m_titleField->text();
    record.setTitle(title.trimmed().isEmpty() ? qtTrId("qtn_cloc_alarm_title") : title);
    record.setAlarmTime(QTime(m_timePicker->hours(), m_timePicker->minutes()));
    record.setTone(m_optionsPage ? m_optionsPage->tone() : m_tone);
    record.setSnooze(m_optionsPage ? SnoozeChoices.at(size_t(m_optionsPage->snoozeIndex())) : int(m_snooze));
    if (m_optionsPage)
        record.setRepeatDays(m_optionsPage->repeatDays());
    return record;
}

void SettingAlarmPage::storeRecord(QmAlarmEvent &record)
{
    QmAlarm alarm;
    m_mayRestore = false;
    if (isNewAlarm()) {
        m_cookie = alarm.add(record);
        return;
    }
    m_mayRestore = true;
    m_preEditAlarm = QmAlarmEvent();
    m_preEditAlarm.fromAstelTimedEvent(m_cookie);
    if (!m_optionsPage)
        record.setRepeatDays(m_preEditAlarm.repeatDays());
    m_cookie = alarm.replace(record, m_cookie);
}

void SettingAlarmPage::rememberTime(const QTime &time)
{
    m_settings.setValue(Settings::DefaultAlarmTimeKey, QTime(time.hour(), time.minute()));
    m_settings.sync();
}

void SettingAlarmPage::stopWaiting()
{
    disconnect(Utility::instance(), &Utility::valueChanged, this, &SettingAlarmPage::onValueChanged);
}

void SettingAlarmPage::onValueChanged()
{
    qDebug() << "void SettingAlarmPage::onValueChanged()";
    stopWaiting();
    time_t trigger = 0;
    if (!Utility::instance()->triggerSecondsFromContext(m_cookie, trigger)) {
        dismiss();
        return;
    }
    const QmAlarmEvent record(m_cookie);
    const QTime chosen(m_timePicker->hours(), m_timePicker->minutes());
    if (Utility::instance()->isTriggerTimeChanged(m_cookie, chosen)) {
        qDebug() << "Appear Reset Dialog";
        QmAlarm().deleteEvent(m_cookie);
        m_cookie = QmAlarmEvent::NotStored;
        showResetAlarmDialog(record);
        return;
    }
    dismiss();
    QString timeLeft;
    Utility::timeLeftForAlarmToTrigger(trigger, timeLeft);
    showInformationBanner(timeLeft);
    qDebug() << "Time Left for Alarm to trigger is" << timeLeft;
}

void SettingAlarmPage::showResetAlarmDialog(Clock::QmAlarmEvent evt) // NOLINT(performance-unnecessary-value-param)
{
    if (!m_resetDialog)
        buildResetDialog();
    const QDateTime earlier = evt.triggerTime().addSecs(-SecondsPerHour);
    const QString time = m_locale.formatDateTime(earlier, Locale::DateNone, Locale::TimeShort, Locale::DefaultCalendar);
    m_resetDialog->setText(qtTrId("qtn_cloc_dst_transition_warning").arg(time, 0, QLatin1Char(' ')));
    m_resetDialog->appear(hostWindow());
}

void SettingAlarmPage::buildResetDialog()
{
    m_resetDialog = std::make_unique<Touch::MessageBox>(qtTrId("qtn_cloc_reset_alarm"));
    Touch::Button *reset = m_resetDialog->addButton(qtTrId("qtn_comm_ok"));
    reset->setObjectName("resetButton");
    connect(reset, &Touch::Button::clicked, this, &SettingAlarmPage::resetAlarm);
    Touch::Button *setAgain = m_resetDialog->addButton(qtTrId("qtn_cloc_set_manually"));
    setAgain->setObjectName("setAgainButton");
    connect(setAgain, &Touch::Button::clicked, this, &SettingAlarmPage::setAgainAlarm);
    // No answer leaves the choice to the user as well.
    connect(m_resetDialog.get(), &Touch::Dialog::rejected, this, &SettingAlarmPage::setAgainAlarm);
}

void SettingAlarmPage::leaveResetDialog()
{
    if (!m_resetDialog || !m_resetDialog->isOnDisplay())
        return;
    m_resetDialog->dismiss();
    restorePreEditAlarm();
}

void SettingAlarmPage::resetAlarm()
{
    // The picker folds an hour before midnight into the day.
    m_timePicker->setHours(m_timePicker->hours() - 1);
    saveAlarm();
}

void SettingAlarmPage::setAgainAlarm()
{
    restorePreEditAlarm();
    appear(hostWindow());
}

void SettingAlarmPage::restorePreEditAlarm()
{
    if (!m_mayRestore)
        return;
    m_mayRestore = false;
    m_cookie = QmAlarm().add(m_preEditAlarm);
}
