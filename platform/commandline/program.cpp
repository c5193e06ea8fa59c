// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/commandline/program.h"

#include <QCoreApplication>

#include <algorithm>
#include <cstdio>

namespace {

const Option Help{"help", "", "show this help"};
const Option Version{"version", "", "show the version"};

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

QString commandsOf(const Program &program)
{
    QString text = "Commands:\n";
    for (const Command &command : program.commands)
        text += QStringLiteral("  %1  %2\n").arg(command.name, -8).arg(command.summary);
    text += "\nExamples:\n";
    for (const Command &command : program.commands)
        text += "  " + program.name + ' ' + command.examples.last() + '\n';
    return text + '\n';
}

QString generalHelp(const Program &program)
{
    const bool hasCommands = !program.commands.isEmpty();
    QString text = "Usage: " + program.name + (hasCommands ? " COMMAND [ARGUMENT...]" : " [OPTION]") + "\n\n"
        + program.summary + "\n\n";
    if (hasCommands)
        text += commandsOf(program);
    text += "Options:\n" + optionLine(Help) + optionLine(Version);
    if (hasCommands)
        text += "\nExit status: 0 done, 1 failed, 2 wrong usage. \"" + program.name + " COMMAND --help\" tells more.\n";
    return text;
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

int show(const QString &text)
{
    std::fputs(text.toUtf8().constData(), stdout);
    return int(Exit::Done);
}

/** What every program answers to its first argument. */
std::optional<int> answerTo(const QString &argument, const Program &program)
{
    if (argument == "--help")
        return show(generalHelp(program));
    if (argument == "--version")
        return show(program.name + ' ' + program.version + '\n');
    return std::nullopt;
}

int run(const Program &program, const Command &command, const QStringList &arguments)
{
    if (arguments.contains("--help"))
        return show(helpFor(program, command));
    const QString hint = program.name + ' ' + command.name + " --help";
    const Result<CommandLine> line = CommandLine::parse(arguments, command.options);
    if (!line)
        return report(program, line.error(), hint);
    const Result<> done = command.run(*line);
    return done ? int(Exit::Done) : report(program, done.error(), hint);
}

int runWhatIsAsked(const Program &program, const QStringList &arguments)
{
    const QString hint = program.name + " --help";
    if (arguments.isEmpty())
        return report(program, wrongUsage("a command is missing"), hint);
    if (const auto answered = answerTo(arguments.first(), program))
        return *answered;
    const auto command = std::find_if(program.commands.cbegin(), program.commands.cend(),
                                      [&](const Command &known) { return known.name == arguments.first(); });
    if (command == program.commands.cend())
        return report(program, wrongUsage(QStringLiteral("unknown command \"%1\"").arg(arguments.first())), hint);
    return run(program, *command, arguments.mid(1));
}

} // namespace

int run(const Program &program, const QStringList &arguments)
{
    const int status = runWhatIsAsked(program, arguments);
    // What was to be deleted later may have been left behind by the event loop of a command that waited.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    // Of what is written to a full disk or to nobody, the first to hear is whoever asked.
    if (std::fflush(stdout) == 0 && std::ferror(stdout) == 0)
        return status;
    return report(program, failure("the output cannot be written"), {});
}

std::optional<int> answerTo(const QStringList &arguments, const Program &program)
{
    if (arguments.isEmpty())
        return std::nullopt;
    if (const auto answered = answerTo(arguments.first(), program))
        return answered;
    return report(program, wrongUsage(QStringLiteral("unknown argument \"%1\"").arg(arguments.first())),
                  program.name + " --help");
}
