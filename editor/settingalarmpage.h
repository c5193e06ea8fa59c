// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "alarms/qmalarmevent.h"
#include "platform/locale/locale.h"
#include "platform/toolkit/sheet.h"

#include <QDateTime>
#include <QSettings>

#include <memory>

class AlarmEditorListItem;
class AlarmOptionsPage;
class TimePicker;

namespace Touch {
class BasicSheetHeader;
class Button;
class Label;
class Layout;
class LinearLayoutPolicy;
class MessageBox;
class TextEdit;
class Widget;
} // namespace Touch

/**
 * The sheet in which an alarm is made or changed. One instance serves the whole program: instance() makes it, and it
 * goes with the application object. GUI thread; every call to the alarm daemon is waited for.
 * What fails is told in the shared banner, and the sheet closes.
 */
class SettingAlarmPage : public Touch::Sheet
{
    Q_OBJECT

public:
    SettingAlarmPage();
    ~SettingAlarmPage() override;

    /** The shared sheet, made when it is first asked for. */
    static SettingAlarmPage *instance();

    /**
     * Fills the sheet. The cookie 4294967295 stands for a new alarm, which takes its time, tone and snooze from the
     * preferences; the flag is not used; the snooze is in minutes.
     */
    void loadAlarm(quint32 cookie, const QTime &time, const QString &title, const QString &tone, bool flag,
                   unsigned int snooze);
    void resetContent();

public slots:
    void saveAlarm();
    void cancelAlarm();
    void removeAlarm();
    quint32 getAlarmCookie();
    void timeChangedInTimePicker(int hours, int minutes);
    void verifyAlarmTitle();
    void timeFormatChanged();
    void resetStyle();
    void setStyle(bool hourTouched, bool minuteTouched);
    void displayOptionsPage();
    void resetAlarm();
    void setAgainAlarm();
    void onValueChanged();
    void clearFocus();
    void showResetAlarmDialog(Clock::QmAlarmEvent evt);

protected:
    void aboutToLeave() override;

private:
    void buildTimePicker();
    void buildTitleRow();
    void buildTimeRow();
    void attachToolbar();
    void buildDeletePanel();
    void buildMoreOptionsItem();
    void buildHeader();
    void buildContent();
    void followLocale();

    bool isNewAlarm() const;
    void loadPreferences();
    Clock::QmAlarmEvent recordFromFields() const;
    void rememberTime(const QTime &time);
    void storeRecord(Clock::QmAlarmEvent &record);
    /** Nothing but the wait that follows a save listens to the triggers. */
    void stopWaiting();
    void buildResetDialog();
    void leaveResetDialog();
    void restorePreEditAlarm();
    void refreshAfterDeletion(bool wasEnabled);

    TimePicker *m_timePicker = nullptr;
    Touch::TextEdit *m_titleField = nullptr;
    QDateTime m_workingDateTime; ///< its time is always the picker's
    Touch::Label *m_hourLabel = nullptr;
    Touch::Label *m_colonLabel = nullptr;
    Touch::Label *m_minuteLabel = nullptr;
    Touch::Label *m_markerLabel = nullptr;
    Touch::LinearLayoutPolicy *m_markerAfterPolicy = nullptr;
    Touch::LinearLayoutPolicy *m_markerBeforePolicy = nullptr;
    Touch::LinearLayoutPolicy *m_twentyFourHoursPolicy = nullptr;
    Touch::Layout *m_timeRowLayout = nullptr;
    Touch::Locale m_locale;
    quint32 m_cookie;
    QString m_tone;
    QString m_defaultTone; ///< empty: the default with which the preference is read
    quint32 m_snooze;
    Touch::Button *m_deleteButton = nullptr;
    std::unique_ptr<Touch::MessageBox> m_resetDialog; ///< made when it is first needed
    std::unique_ptr<AlarmOptionsPage> m_optionsPage;  ///< the same; keeps the choices made in it
    QSettings m_settings;
    AlarmEditorListItem *m_moreOptionsItem = nullptr;
    Touch::BasicSheetHeader *m_header = nullptr;
    bool m_mayRestore = false;
    Clock::QmAlarmEvent m_preEditAlarm; ///< as the daemon had it before the last save of an existing alarm
    Touch::LinearLayoutPolicy *m_existingAlarmPolicy = nullptr;
    Touch::LinearLayoutPolicy *m_newAlarmPolicy = nullptr;

    // Built once.
    Touch::Layout *m_contentLayout = nullptr;
    Touch::Widget *m_titleRow = nullptr;
    Touch::Widget *m_timeRow = nullptr;
    Touch::Widget *m_deletePanel = nullptr;
};
