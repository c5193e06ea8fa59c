// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "alarmctl/command.h"

#include "alarmctl/alarmoptions.h"

namespace {

const Option Json{"json", "", "print JSON instead of text"};
const Option Help{"help", "", "show this help"};
const Option Count{"count", "N", "how many, 1 to 1000; 1 unless given"};

QList<Command> makeCommands()
{
    const Option off{"off", "", "switched off"};
    const QList<Option> edits{{"time", "HH:MM", "when it rings"}, {"on", "", "switched on"}, off, Json};
    const QList<Option> rule{{"days", "DAYS", "mon,tue and so on, daily, or weekdays; daily unless given"},
                             {"zone", "ZONE", "the time zone, as in Europe/Berlin"},
                             {"after", "EPOCH", "only moments later than this, in seconds since the epoch"},
                             Count,
                             {"no-fill", "", "leave out days whose summer time skips the time"},
                             Json};
    return {
        {"list",
         "",
         "Lists the alarms: cookie, time, on or off, days, snooze, title.",
         {Json},
         {"list", "list --json"},
         runList},
        {"add",
         "HH:MM",
         "Adds an alarm and prints its cookie.",
         alarmOptions() + QList<Option>{off, Json},
         {"add 07:30", "add 07:30 --title Work --days weekdays --snooze 5"},
         runAdd},
        {"edit",
         "COOKIE",
         "Changes an alarm and prints its new cookie.",
         alarmOptions() + edits,
         {"edit 12 --time 08:00", "edit 12 --days never --off"},
         runEdit},
        {"on",
         "COOKIE...",
         "Switches alarms on and prints their cookies, which are new where something changed.",
         {Json},
         {"on 12 13"},
         runOn},
        {"off",
         "COOKIE...",
         "Switches alarms off and prints their cookies, which are new where something changed.",
         {Json},
         {"off 12"},
         runOff},
        {"remove", "COOKIE...", "Removes alarms.", {}, {"remove 12 13"}, runRemove},
        {"next",
         "",
         "Shows what rings next: cookie and moment.",
         {Count, Json},
         {"next", "next --count 5 --json"},
         runNext},
        {"when",
         "HH:MM",
         "Computes, without the daemon, when an alarm rings: seconds since the epoch.",
         rule,
         {"when 02:30 --zone Europe/Berlin --after 1774699200",
          "when 07:00 --days mon,fri --zone Asia/Kathmandu --after 0 --count 3"},
         runWhen},
        {"watch",
         "",
         "Prints a line, cookies and moments, for each change of what is ahead, until interrupted.",
         {Json},
         {"watch", "watch --json"},
         runWatch},
        {"health", "", "Shows what the daemon tells about itself.", {Json}, {"health"}, runHealth},
        {"journal",
         "",
         "Shows what happened to the alarms: moment, cookie, what, details.",
         {{"since", "EPOCH", "only later entries, in seconds since the epoch"}, Json},
         {"journal --since 1774699200"},
         runJournal},
    };
}

QString usageOf(const Command &command)
{
    QStringList words{"alarmctl", command.name};
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

} // namespace

const QList<Command> &allCommands()
{
    static const QList<Command> commands = makeCommands();
    return commands;
}

QString helpFor(const Command &command)
{
    QString text = "Usage: " + usageOf(command) + "\n\n" + command.summary + "\n\nOptions:\n";
    for (const Option &option : command.options)
        text += optionLine(option);
    text += optionLine(Help) + "\nExamples:\n";
    for (const QString &example : command.examples)
        text += "  alarmctl " + example + '\n';
    return text;
}

QString generalHelp()
{
    QString text = "Usage: alarmctl COMMAND [ARGUMENT...]\n\nThe alarms of the clock, from the command line.\n\n"
                   "Commands:\n";
    for (const Command &command : allCommands())
        text += QStringLiteral("  %1  %2\n").arg(command.name, -8).arg(command.summary);
    text += "\nExamples:\n";
    for (const Command &command : allCommands())
        text += "  alarmctl " + command.examples.last() + '\n';
    return text + "\nExit status: 0 done, 1 failed, 2 wrong usage. \"alarmctl COMMAND --help\" tells more.\n";
}
