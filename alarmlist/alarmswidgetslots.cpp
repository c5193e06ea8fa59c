// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "alarmlist/alarmswidget.h"

#include "alarmlist/alarmslistmodel.h"
#include "alarmlist/notices/informationbanner.h"
#include "alarmlist/rowtexts.h"
#include "alarms/qmalarm.h"
#include "alarms/utility.h"
#include "app/settings.h"
#include "editor/settingalarmpage.h"
#include "platform/clockwidgets/alarmlistitem.h"

#include <QAction>
#include <QDebug>
#include <QTime>

using Clock::QmAlarm;
using Clock::QmAlarmEvent;
using Clock::Utility;

namespace {

SettingAlarmPage *shownEditor()
{
    SettingAlarmPage *editor = SettingAlarmPage::instance();
    editor->appear(nullptr, Touch::SceneWindow::KeepWhenDone);
    return editor;
}

void loadIntoEditor(SettingAlarmPage *editor, const AlarmListItem *cell)
{
    editor->loadAlarm(static_cast<quint32>(cell->alarmCookie()), cell->title(), cell->subTitle(), cell->alarmTone(),
                      cell->enabled(), cell->snoozeValue());
}

/** The alarm switched the other way, from its next moment on. */
QmAlarmEvent inverted(QmAlarmEvent record)
{
    record.setAlarmTime(record.alarmTime());
    record.rollOverIfPassed();
    record.setEnabled(!record.isEnabled());
    return record;
}

} // namespace

void AlarmsWidget::onValueChanged()
{
    qDebug() << "void AlarmsWidget::onValueChanged()"
             << "called";
    if (m_brokenAlarmPending) {
        m_brokenAlarmPending = false;
        fixTheBrokenAlarm();
        return;
    }
    if (m_justEnabled) {
        verifySwitchedAlarm();
        m_justEnabled = false;
    }
    if (m_switchInProgress)
        m_switchInProgress = false;
    else
        updateContent();
}

void AlarmsWidget::verifySwitchedAlarm()
{
    const auto cookie = static_cast<quint32>(m_lastCookie);
    AlarmListItem *cell = switchedItem();
    if (cell && Utility::instance()->isTriggerTimeChanged(cookie, cell->title())) {
        m_brokenAlarmPending = true;
        invertAlarmState(cell);
    } else {
        showTimeLeft();
    }
}

void AlarmsWidget::showTimeLeft()
{
    time_t trigger = 0;
    if (!Utility::instance()->triggerSecondsFromContext(static_cast<quint32>(m_lastCookie), trigger))
        return;
    QString timeLeft;
    Utility::timeLeftForAlarmToTrigger(trigger, timeLeft);
    showInformationBanner(timeLeft);
}

void AlarmsWidget::fixTheBrokenAlarm()
{
    const AlarmListItem *cell = switchedItem();
    if (!cell)
        return;
    SettingAlarmPage *editor = SettingAlarmPage::instance();
    loadIntoEditor(editor, cell);
    editor->showResetAlarmDialog(QmAlarmEvent(static_cast<quint32>(cell->alarmCookie())));
}

AlarmListItem *AlarmsWidget::switchedItem() const
{
    return m_switchedItem && m_switchedItem->alarmCookie() == m_switchedCookie ? m_switchedItem.data() : nullptr;
}

void AlarmsWidget::alarmStateChanged()
{
    m_switchInProgress = true;
    if (auto *listItem = qobject_cast<AlarmListItem *>(sender()))
        invertAlarmState(listItem);
}

void AlarmsWidget::invertAlarmState(AlarmListItem *listItem)
{
    m_switchInProgress = true;
    const auto cookie = static_cast<quint32>(listItem->alarmCookie());
    const QModelIndexList rows = m_model->match(m_model->index(0, 0), Qt::DisplayRole, cookieText(cookie), 1,
                                                Qt::MatchStartsWith | Qt::MatchWrap);
    const int position = indexOfAlarm(cookie);
    QmAlarmEvent record = inverted(position < 0 ? QmAlarmEvent() : m_alarms.at(position));
    const quint32 newCookie = QmAlarm().replace(record, cookie);
    m_lastCookie = newCookie == QmAlarmEvent::NotStored ? -1 : static_cast<long>(newCookie);
    if (newCookie == QmAlarmEvent::NotStored) {
        showInformationBanner(qtTrId("qtn_cloc_alarm_save_error"));
        if (!rows.isEmpty())
            setColumn(rows.first().row(), "AlarmStatus", statusText(!record.isEnabled()));
        return;
    }

    record.setCookie(newCookie);
    rememberSwitch(listItem, record.isEnabled());
    if (position >= 0)
        m_alarms[position] = record;
    if (rows.size() == 1) {
        setColumn(rows.first().row(), "AlarmStatus", statusText(record.isEnabled()));
        setColumn(rows.first().row(), "AlarmCookie", cookieText(newCookie));
    }
}

void AlarmsWidget::rememberSwitch(AlarmListItem *listItem, bool isOn)
{
    const bool isRemembered = listItem->alarmCookie() == m_switchedCookie;
    listItem->setAlarmCookie(m_lastCookie);
    if (isOn) {
        m_switchedItem = listItem;
        m_justEnabled = true;
    }
    if (isOn || isRemembered)
        m_switchedCookie = m_lastCookie;
}

int AlarmsWidget::indexOfAlarm(quint32 cookie) const
{
    for (int i = 0; i < m_alarms.size(); ++i) {
        if (m_alarms.at(i).cookie() == cookie)
            return i;
    }
    return -1;
}

void AlarmsWidget::setColumn(int row, const QString &name, const QString &text)
{
    const int column = static_cast<int>(m_model->columnNames().indexOf(name));
    m_model->setData(m_model->index(row, column), text, Qt::EditRole);
}

void AlarmsWidget::alarmClicked()
{
    if (const auto *cell = qobject_cast<AlarmListItem *>(sender()))
        loadIntoEditor(shownEditor(), cell);
}

void AlarmsWidget::createNewAlarm()
{
    m_editor = shownEditor();
    m_editor->loadAlarm(QmAlarmEvent::NotStored, QTime::currentTime(), QString(), Settings::BuiltInTone, true,
                        Settings::DefaultSnooze);
}

void AlarmsWidget::deleteAlarm()
{
    const auto *action = qobject_cast<QAction *>(sender());
    const auto *cell = action ? qobject_cast<AlarmListItem *>(action->parent()) : nullptr;
    if (!cell)
        return;
    const auto cookie = static_cast<quint32>(cell->alarmCookie());
    if (!QmAlarm().deleteEvent(cookie)) {
        showInformationBanner(qtTrId("qtn_cloc_alarm_delete_error"));
        return;
    }
    // No change of the triggers will tell of an alarm that was switched off.
    if (!QmAlarmEvent(cookie).isEnabled())
        removeAlarm(indexOfAlarm(cookie));
    bool failed = false;
    if (QmAlarm().query(failed).isEmpty() && !failed) {
        setPannable(false);
        showHintIfEmpty();
    }
}

void AlarmsWidget::removeAlarm(int position)
{
    if (position < 0)
        return;
    m_model->removeRow(position);
    m_alarms.removeAt(position);
}
