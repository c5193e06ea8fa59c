// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "alarms/qmalarmevent.h"
#include "platform/commandline/commandline.h"

/** The options that "add" and "edit" share: --title, --days, --snooze, --tone. */
QList<Option> alarmOptions();
/** Sets what these options say; the alarm is left alone if one of them makes no sense. */
Result<> applyAlarmOptions(const CommandLine &line, Clock::QmAlarmEvent &alarm);
