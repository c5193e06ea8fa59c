// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/commandline/program.h"

namespace Backup {

/** "clock-backup create" and "clock-backup restore". */
QList<Command> allCommands();

} // namespace Backup
