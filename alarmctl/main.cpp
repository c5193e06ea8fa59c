// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "alarmctl/command.h"
#include "alarmctl/trace.h"

#include <QCoreApplication>

#include <algorithm>
#include <cstdio>

namespace {

int report(const Problem &problem, const QString &hint)
{
    if (problem.text.isEmpty())
        return int(problem.exit);
    QString text = "alarmctl: " + QString(problem.text).replace('\n', ' ') + '\n';
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

int run(const Command &command, const QStringList &arguments)
{
    if (arguments.contains("--help"))
        return show(helpFor(command));
    const QString hint = "alarmctl " + command.name + " --help";
    const Result<CommandLine> line = CommandLine::parse(arguments, command.options);
    if (!line)
        return report(line.problem(), hint);
    const Result<> done = command.run(*line);
    return done ? int(Exit::Done) : report(done.problem(), hint);
}

} // namespace

int main(int argc, char *argv[])
{
    Trace::install();
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments().mid(1);
    if (arguments.isEmpty())
        return report(wrongUsage("a command is missing"), "alarmctl --help");
    if (arguments.first() == "--help")
        return show(generalHelp());
    const QList<Command> &commands = allCommands();
    const auto command = std::find_if(commands.cbegin(), commands.cend(),
                                      [&](const Command &known) { return known.name == arguments.first(); });
    if (command == commands.cend())
        return report(wrongUsage(QStringLiteral("unknown command \"%1\"").arg(arguments.first())), "alarmctl --help");
    return run(*command, arguments.mid(1));
}
