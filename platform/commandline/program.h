// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/commandline/commandline.h"
#include "platform/commandline/result.h"

#include <optional>

/** One thing that a program can do, with what its help says. */
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

/** A program whose first argument names what it does, "PROGRAM COMMAND [ARGUMENT...]", or one without commands, which
 * takes no arguments. */
struct Program
{
    QString name;
    QString summary; ///< a sentence
    QString version;
    QList<Command> commands = {};
};

/**
 * Does what the arguments ask for, "--help" and "--version" included, and answers the exit status. A problem is one line
 * on standard error; output that cannot be written is one.
 */
int run(const Program &program, const QStringList &arguments);

/** As run(), for a program without commands; nothing where there are no arguments, and it is to start its work. */
std::optional<int> answerTo(const QStringList &arguments, const Program &program);
