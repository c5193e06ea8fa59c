// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>

namespace Backup {

inline constexpr auto ProgramName = "clock-backup";

/** A line on standard output. */
void say(const QString &text);
/** A line on standard error, for what is wrong but does not end the program. */
void complain(const QString &text);

/** "1 alarm", "200 alarms". */
QString counted(qsizetype count, const QString &what);

} // namespace Backup
