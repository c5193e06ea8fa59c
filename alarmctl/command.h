// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "alarmctl/commandline.h"
#include "alarmctl/result.h"

/** One thing that the program can do, with what its help says. */
struct Command
{
    QString name;
    QString arguments; ///< as in "COOKIE..."
    QString summary;
    QList<Option> options;
    QStringList examples; ///< without the name of the program
    Result<> (*run)(const CommandLine &line);
    QString details = {}; ///< what else is worth knowing, lines that end with a line break
};

const QList<Command> &allCommands();
QString helpFor(const Command &command);
QString generalHelp();

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
