// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/commandline/program.h"

#include <algorithm>
#include <cstdio>

namespace {

const Option Help{"help", "", "show this help"};

QString usageOf(const Program &program, const Command &command)
{
    QStringList words{program.name, command.name};
    if (!command.arguments.isEmpty())
        words.append(command.arguments);
    if (!command.options.isEmpty())
        words.append("[OPTION...]");
    return words.join(' ');
}

QString optionLine(const Option &option)
{
    const QString spelled = "--" + option.name + (option.placeholder.isEmpty() ? "" : " " + option.placeholder);
    return QStringLiteral("  %1  %2\n").arg(spelled, -16).arg(option.description);
}

QString helpFor(const Program &program, const Command &command)
{
    QString text = "Usage: " + usageOf(program, command) + "\n\n" + command.summary + "\n\n";
    if (!command.details.isEmpty())
        text += command.details + '\n';
    text += "Options:\n";
    for (const Option &option : command.options)
        text += optionLine(option);
    text += optionLine(Help) + "\nExamples:\n";
    for (const QString &example : command.examples)
        text += "  " + program.name + ' ' + example + '\n';
    return text;
}

QString generalHelp(const Program &program)
{
    QString text = "Usage: " + program.name + " COMMAND [ARGUMENT...]\n\n" + program.summary + "\n\nCommands:\n";
    for (const Command &command : program.commands)
        text += QStringLiteral("  %1  %2\n").arg(command.name, -8).arg(command.summary);
    text += "\nExamples:\n";
    for (const Command &command : program.commands)
        text += "  " + program.name + ' ' + command.examples.last() + '\n';
    return text + "\nExit status: 0 done, 1 failed, 2 wrong usage. \"" + program.name
        + " COMMAND --help\" tells more.\n";
}

int report(const Program &program, const Problem &problem, const QString &hint)
{
    if (problem.text.isEmpty())
        return int(problem.exit);
    QString text = program.name + ": " + QString(problem.text).replace('\n', ' ') + '\n';
    if (problem.exit == Exit::WrongUsage)
        text += "Try \"" + hint + "\".\n";
    std::fputs(text.toUtf8().constData(), stderr);
    return int(problem.exit);
}

int show(const QString &help)
{
    std::fputs(help.toUtf8().constData(), stdout);
    return int(Exit::Done);
}

int run(const Program &program, const Command &command, const QStringList &arguments)
{
    if (arguments.contains("--help"))
        return show(helpFor(program, command));
    const QString hint = program.name + ' ' + command.name + " --help";
    const Result<CommandLine> line = CommandLine::parse(arguments, command.options);
    if (!line)
        return report(program, line.problem(), hint);
    const Result<> done = command.run(*line);
    return done ? int(Exit::Done) : report(program, done.problem(), hint);
}

} // namespace

int run(const Program &program, const QStringList &arguments)
{
    const QString hint = program.name + " --help";
    if (arguments.isEmpty())
        return report(program, wrongUsage("a command is missing"), hint);
    if (arguments.first() == "--help")
        return show(generalHelp(program));
    const auto command = std::find_if(program.commands.cbegin(), program.commands.cend(),
                                      [&](const Command &known) { return known.name == arguments.first(); });
    if (command == program.commands.cend())
        return report(program, wrongUsage(QStringLiteral("unknown command \"%1\"").arg(arguments.first())), hint);
    return run(program, *command, arguments.mid(1));
}
