// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QList>
#include <QPoint>
#include <QString>

class AlarmListItem;
class QTime;
class TimePicker;

/** What of the clock's own a user finds on the screen of the running program. */
namespace Flow {

/** Waits for the window to be there and gives it the keyboard: there is no window manager that would. */
[[nodiscard]] bool prepareWindow();
/** Leaves whatever lies above the page and takes every alarm away; false if that fails. */
[[nodiscard]] bool startAfresh();

/** The alarm rows on the screen, from top to bottom. */
QList<AlarmListItem *> rows();
/** The row of an alarm of this title, or null. */
AlarmListItem *rowTitled(const QString &title);
/** Where the switch of a row is. */
QPoint switchOf(const AlarmListItem *row);
/** What the banner says, empty without one. */
QString bannerTitle();

/** The dial of the editor, or null while that is not on the screen. */
TimePicker *picker();
QTime pickedTime();
/** Drags a handle of the dial round by an angle, in degrees. */
void dragHourHandle(double degrees);
void dragMinuteHandle(double degrees);
/** Opens the editor for a new alarm, types the title and saves what the dial shows; false if that fails. */
[[nodiscard]] bool makeAlarm(const QString &title, double hourDegrees);

} // namespace Flow
