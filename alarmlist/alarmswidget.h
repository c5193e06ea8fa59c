// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "alarms/qmalarmevent.h"
#include "platform/toolkit/widget.h"

#include <QList>
#include <QPointer>

class AlarmListItem;
class AlarmsListModel;
class EmptyListHint;
class SettingAlarmPage;

namespace Touch {
class Button;
class GridLayoutPolicy;
class Label;
class Layout;
class List;
class PannableViewport;
} // namespace Touch

/**
 * The alarm section of the main page: a header with the new-alarm button, and the list of alarms, kept in step with
 * the alarm daemon. Child of the page; the viewport around it must outlive it. GUI thread; calls to the daemon are
 * waited for. A daemon that cannot be asked leaves the list as it was; what fails otherwise is told in the banner.
 */
class AlarmsWidget : public Touch::Widget
{
    Q_OBJECT

public:
    AlarmsWidget(QGraphicsItem *parent, Touch::PannableViewport *viewport);
    ~AlarmsWidget() override;

    /** Reads the alarms again; an alarm more or less moves one row, otherwise all rows are written anew. */
    void updateContent();
    /** Reads the alarms again if the widget is visible. */
    void resetContent();

public slots:
    void alarmClicked();
    void alarmStateChanged();
    void deleteAlarm();
    void onValueChanged();
    void createNewAlarm();
    void invertAlarmState(AlarmListItem *listItem);
    void fixTheBrokenAlarm();

protected:
    bool event(QEvent *event) override;

private:
    void buildHeader();
    void buildNewAlarmButton();
    void buildList();
    void buildLayout();

    void reloadRows();
    void addMissingRow();
    void removeSurplusRow();
    void insertAlarm(int row);
    void writeRow(int row);
    /** Whether a row of the model already shows the alarm that belongs there. */
    bool isRowOfAlarm(int row) const;
    /** Tells when the alarm just switched on rings, or switches it off again where that is not at its time. */
    void verifySwitchedAlarm();
    void showTimeLeft();
    /** The cell of the alarm just switched on; null once it stands for another alarm, or is gone. */
    AlarmListItem *switchedItem() const;
    /** Gives the cell its alarm's new cookie, and keeps it in mind when that was switched on. */
    void rememberSwitch(AlarmListItem *listItem, bool isOn);
    int indexOfAlarm(quint32 cookie) const;
    void setColumn(int row, const QString &name, const QString &text);
    void removeAlarm(int position);
    void setPannable(bool isPannable);
    void showHintIfEmpty();
    void placeEmptyHint();

    AlarmsListModel *m_model;
    Touch::List *m_list = nullptr;
    Touch::Label *m_header = nullptr;
    Touch::Button *m_newAlarmButton = nullptr;
    SettingAlarmPage *m_editor = nullptr; ///< the shared editor, once a new alarm was asked for
    Touch::Layout *m_layout = nullptr;
    Touch::GridLayoutPolicy *m_policy = nullptr;
    long m_lastCookie = -1;              ///< what the last switch made of the alarm's cookie
    bool m_switchInProgress = false;     ///< the next change is the echo of a switch made here
    QList<Clock::QmAlarmEvent> m_alarms; ///< row i of the model shows record i
    Touch::PannableViewport *m_viewport;
    bool m_justEnabled = false;             ///< the next change is that of an alarm switched on here
    bool m_brokenAlarmPending = false;      ///< it was switched off again and waits for the editor
    QPointer<AlarmListItem> m_switchedItem; ///< the cell of the alarm just switched on
    long m_switchedCookie = -1;             ///< that alarm's cookie by now

    // Built once.
    Touch::Widget *m_headerPanel = nullptr;
    EmptyListHint *m_emptyHint; ///< shown while the daemon says that there is no alarm
};
