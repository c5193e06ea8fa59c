// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "alarmctl/command.h"

#include "alarmctl/alarmoptions.h"

namespace {

const Option Json{"json", "", "print JSON instead of text"};
const Option Count{"count", "N", "how many, 1 to 1000; 1 unless given"};

const auto HealthDetails
    = QStringLiteral("The first line is the answer. The others say what it rests on, each marked \"ok\",\n"
                     "\"warning\" (the alarm is heard, but not as it should be, or not always) or \"bad\" (it\n"
                     "is not heard): the next alarm, whether the timer is armed for it and wakes the device\n"
                     "from sleep and from off, the sound output and its volume, the tone of that alarm, the\n"
                     "ringer and its screen, the storage, missed alarms nobody was told of; then how the\n"
                     "last five rings ended. Makes no sound. JSON has the same as objects, and the facts of\n"
                     "daemon and ringer as they told them; its moments are in milliseconds since the epoch.\n"
                     "\n"
                     "Exit status: 0 all is well, or no alarm is set; 1 something would keep the next alarm\n"
                     "from being heard; 2 wrong usage.\n");
const auto JournalDetails
    = QStringLiteral("A line tells when an alarm was due, and with the seconds that had passed since:\n"
                     "whether it woke the device, when it was on the screen (\"rang\"), with what tone it was\n"
                     "heard (\"sounded\"), and by what it was answered, or why it was missed. JSON has an\n"
                     "object for each of these, oldest first, with its moment in milliseconds since the\n"
                     "epoch.\n");

QList<Command> alarmCommands()
{
    const Option off{"off", "", "switched off"};
    const QList<Option> edits{{"time", "HH:MM", "when it rings"}, {"on", "", "switched on"}, off, Json};
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
    };
}

QList<Command> switchCommands()
{
    return {
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
    };
}

QList<Command> momentCommands()
{
    const QList<Option> rule{{"days", "DAYS", "mon,tue and so on, daily, or weekdays; daily unless given"},
                             {"zone", "ZONE", "the time zone, as in Europe/Berlin"},
                             {"after", "EPOCH", "only moments later than this, in seconds since the epoch"},
                             Count,
                             {"no-fill", "", "leave out days whose summer time skips the time"},
                             Json};
    return {
        {"next",
         "",
         "Shows what rings next: cookie and moment.",
         {Count, Json},
         {"next", "next --count 5 --json"},
         runNext},
        {"when",
         "HH:MM --zone ZONE --after EPOCH",
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
    };
}

QList<Command> reportCommands()
{
    return {
        {"health",
         "",
         "Tells whether the next alarm will ring, and what could be in its way.",
         {Json},
         {"health --json", "health"},
         runHealth,
         HealthDetails},
        {"journal",
         "",
         "Shows what happened to the alarms, a line for each time one was due.",
         {{"since", "MOMENT", "only what happened since: a date, 2026-11-20T07:30, or seconds since the epoch"},
          {"count", "N", "only the last so many, 1 to 1000"},
          Json},
         {"journal --since 2026-11-20", "journal --count 10"},
         runJournal,
         JournalDetails},
    };
}

} // namespace

QList<Command> allCommands()
{
    return alarmCommands() + switchCommands() + momentCommands() + reportCommands();
}
