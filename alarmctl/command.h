// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/commandline/program.h"

/** What alarmctl can do, in the order of its help. */
QList<Command> allCommands();

Result<> runList(const CommandLine &line);
Result<> runAdd(const CommandLine &line);
Result<> runEdit(const CommandLine &line);
Result<> runOn(const CommandLine &line);
Result<> runOff(const CommandLine &line);
Result<> runRemove(const CommandLine &line);
Result<> runNext(const CommandLine &line);
Result<> runWhen(const CommandLine &line);
Result<> runWatch(const CommandLine &line);
Result<> runHealth(const CommandLine &line);
Result<> runJournal(const CommandLine &line);
