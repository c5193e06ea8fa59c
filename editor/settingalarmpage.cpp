// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "editor/settingalarmpage.h"

#include "alarmlist/notices/informationbanner.h"
#include "alarms/qmalarm.h"
#include "alarms/utility.h"
#include "app/settings.h"
#include "editor/alarmoptionspage.h"
#include "editor/timelabels.h"
#include "platform/clockwidgets/timepicker.h"
#include "platform/toolkit/label.h"
#include "platform/toolkit/layout.h"
#include "platform/toolkit/linearlayoutpolicy.h"
#include "platform/toolkit/textedit.h"

#include <QCoreApplication>
#include <QDebug>
#include <QFileInfo>
#include <QGuiApplication>
#include <QInputMethod>
#include <QPointer>

using Clock::QmAlarm;
using Clock::QmAlarmEvent;
using Clock::Utility;

namespace {

QPointer<SettingAlarmPage> sharedPage;

} // namespace

SettingAlarmPage *SettingAlarmPage::instance()
{
    if (!sharedPage) {
        sharedPage = new SettingAlarmPage;
        // No item outlives the application object.
        qAddPostRoutine([] { delete sharedPage; });
    }
    return sharedPage;
}

bool SettingAlarmPage::isNewAlarm() const
{
    return m_cookie == QmAlarmEvent::NotStored;
}

void SettingAlarmPage::loadAlarm(quint32 cookie, const QTime &time, const QString &title, const QString &tone, bool,
                                 unsigned int snooze)
{
    stopWaiting();
    leaveResetDialog();
    m_mayRestore = false;
    hideInformationBanner();
    m_snooze = snooze;
    m_cookie = cookie;
    if (isNewAlarm()) {
        loadPreferences();
    } else {
        m_timePicker->setHours(time.hour());
        m_timePicker->setMinutes(time.minute());
        m_tone = tone;
    }
    if (!QFileInfo::exists(m_tone))
        m_tone = Utility::instance()->defaultAlertTone();
    timeChangedInTimePicker(m_timePicker->hours(), m_timePicker->minutes());
    m_titleField->setText(title.trimmed().isEmpty() ? QString() : title);
    m_titleField->setCursorPosition(0);
    setAccessibleName(isNewAlarm() ? qtTrId("qtn_cloc_new_alarm") : qtTrId("qtn_cloc_alarm_title"));
    if (m_optionsPage)
        m_optionsPage->load(m_cookie, m_tone, m_snooze);
    m_contentLayout->setPolicy(isNewAlarm() ? m_newAlarmPolicy : m_existingAlarmPolicy);
}

void SettingAlarmPage::loadPreferences()
{
    // A restored backup may have brought others.
    m_settings.sync();
    const QString text = m_settings.value(Settings::DefaultAlarmTimeKey, Settings::DefaultAlarmTime).toString();
    const QTime time = QTime::fromString(text, Qt::TextDate);
    m_timePicker->setHours(time.hour());
    m_timePicker->setMinutes(time.minute());
    m_tone = m_settings.value(Settings::DefaultToneKey, m_defaultTone).toString();
    m_snooze = m_settings.value(Settings::SnoozeTimeKey, Settings::DefaultSnooze).toUInt();
}

void SettingAlarmPage::resetContent()
{
    qDebug() << "void SettingAlarmPage::resetContent()";
    if (m_optionsPage)
        m_optionsPage->resetContent();
    // The list asks without the sheet, which then does not leave.
    leaveResetDialog();
    dismiss();
}

void SettingAlarmPage::aboutToLeave()
{
    stopWaiting();
    leaveResetDialog();
    if (m_optionsPage)
        m_optionsPage->dismiss();
}

void SettingAlarmPage::cancelAlarm()
{
    dismiss();
    Utility::instance()->onValueChanged();
}

void SettingAlarmPage::removeAlarm()
{
    if (isNewAlarm()) {
        dismiss();
        return;
    }
    const bool wasEnabled = QmAlarmEvent(m_cookie).isEnabled();
    QmAlarm alarm;
    // Twice on purpose: only the second answer counts.
    alarm.deleteEvent(m_cookie);
    if (alarm.deleteEvent(m_cookie)) {
        m_cookie = QmAlarmEvent::NotStored;
        refreshAfterDeletion(wasEnabled);
    } else {
        showInformationBanner(qtTrId("qtn_cloc_alarm_delete_error"));
    }
    dismiss();
}

void SettingAlarmPage::refreshAfterDeletion(bool wasEnabled)
{
    // The daemon publishes nothing when a switched-off alarm goes, so the list is told here, unless there is a trigger
    // even for the cookie of no alarm, which the sheet has by now.
    time_t trigger = 0;
    Utility *utility = Utility::instance();
    const bool isPublished = utility->triggerSecondsFromContext(m_cookie, trigger);
    if (!wasEnabled && !isPublished)
        utility->onValueChanged();
}

quint32 SettingAlarmPage::getAlarmCookie()
{
    return m_cookie;
}

void SettingAlarmPage::timeChangedInTimePicker(int hours, int minutes)
{
    m_workingDateTime.setTime(QTime(hours, minutes));
    timeFormatChanged();
}

void SettingAlarmPage::verifyAlarmTitle()
{
    if (m_titleField->text().trimmed().isEmpty())
        m_titleField->setText(QString());
}

void SettingAlarmPage::timeFormatChanged()
{
    const TimeLabels labels = timeLabels(m_locale, m_workingDateTime);
    m_hourLabel->setText(labels.hour);
    m_minuteLabel->setText(labels.minute);
    if (labels.marker)
        m_markerLabel->setText(*labels.marker);
    switch (labels.arrangement) {
    case TimeLabels::Arrangement::MarkerAfter:
        m_timeRowLayout->setPolicy(m_markerAfterPolicy);
        break;
    case TimeLabels::Arrangement::MarkerBefore:
        m_timeRowLayout->setPolicy(m_markerBeforePolicy);
        break;
    case TimeLabels::Arrangement::TwentyFourHours:
        m_timeRowLayout->setPolicy(m_twentyFourHoursPolicy);
        break;
    }
}

void SettingAlarmPage::resetStyle()
{
    m_hourLabel->setStyleName("TimeLabel");
    m_minuteLabel->setStyleName("TimeLabel");
}

void SettingAlarmPage::setStyle(bool hourTouched, bool minuteTouched)
{
    if (hourTouched)
        m_hourLabel->setStyleName("TimeLabelManipulated");
    if (minuteTouched)
        m_minuteLabel->setStyleName("TimeLabelManipulated");
}

void SettingAlarmPage::displayOptionsPage()
{
    qDebug() << "void SettingAlarmPage::displayOptionsPage()";
    if (!m_optionsPage) {
        m_optionsPage = std::make_unique<AlarmOptionsPage>();
        m_optionsPage->load(m_cookie, m_tone, m_snooze);
    }
    m_optionsPage->appear();
}

void SettingAlarmPage::clearFocus()
{
    QGuiApplication::inputMethod()->hide();
    m_titleField->clearFocus();
}
