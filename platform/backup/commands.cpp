// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/backup/commands.h"

#include "platform/backup/backupfile.h"
#include "platform/backup/collection.h"
#include "platform/backup/messages.h"
#include "platform/backup/participants.h"
#include "platform/backup/restoration.h"

#include <QDBusConnection>

#include <optional>

namespace Backup {

namespace {

const QString WithoutTonesOption("without-tones");
const QString TimeoutOption("timeout");
constexpr int DefaultTimeout = 5;   // seconds
constexpr int LongestTimeout = 600; // seconds

const auto CreateDetails = QStringLiteral("Takes every alarm of the alarm daemon that is meant for a "
                                          "backup, the settings of the programs that take part, and\n"
                                          "those tones of your own that they name. FILE can be read "
                                          "by you alone. An earlier backup of that name is replaced\n"
                                          "once the new one is complete; any other file is left "
                                          "alone. Do not keep the only copy on this device.\n");
const auto RestoreDetails = QStringLiteral("The whole file is checked first; one that is damaged, cut off, of another "
                                           "kind or of a newer version changes nothing.\n"
                                           "Alarms that you have now stay. One that is the same in every part is not "
                                           "restored again, so a restore can be\n"
                                           "repeated; one that you changed since stays and rings, and comes back as it "
                                           "was beside it. A one-time alarm whose\n"
                                           "time has passed since comes back switched off. Settings are replaced. A "
                                           "tone replaces no other file.\n");

/** What the arguments of both commands say. */
struct Request
{
    QString file;
    std::chrono::milliseconds patience;
};

Result<Request> requestOf(const CommandLine &line)
{
    if (line.positionals().size() != 1 || line.positionals().first().isEmpty())
        return wrongUsage("one FILE is needed");
    int seconds = DefaultTimeout;
    if (line.has(TimeoutOption)) {
        bool isNumber = false;
        seconds = line.value(TimeoutOption).toInt(&isNumber);
        if (!isNumber || seconds < 1 || seconds > LongestTimeout)
            return wrongUsage(
                QStringLiteral("\"%1\" is not a number of seconds from 1 to 600").arg(line.value(TimeoutOption)));
    }
    if (!QDBusConnection::sessionBus().isConnected())
        return failure("there is no session bus");
    return Request{line.positionals().first(), std::chrono::seconds(seconds)};
}

Result<> runCreate(const CommandLine &line)
{
    const auto request = requestOf(line);
    if (!request)
        return request.error();
    if (auto free = mayBeWritten(request->file); !free)
        return free;
    const QList<Participant> participants = installedParticipants();
    const auto ownTones = line.has(WithoutTonesOption) ? OwnTones::LeftOut : OwnTones::Included;
    std::optional<Announcement> announcement(std::in_place, participants, Announcement::Occasion::Backup,
                                             request->patience);
    const auto archive = collect(participants, ownTones);
    if (!archive)
        return archive.error();
    if (auto written = writeBackup(request->file, *archive); !written)
        return written;
    announcement.reset();
    say(QStringLiteral("Backed up %1, %2, %3 to %4")
            .arg(counted(archive->records.size(), "alarm"), counted(archive->settings.size(), "settings file"),
                 counted(archive->tones.size(), "tone"), request->file));
    return Done();
}

void tellOf(const Restored &restored)
{
    say(QStringLiteral("Restored %1, %2, %3")
            .arg(counted(restored.alarms, "alarm"), counted(restored.settings, "settings file"),
                 counted(restored.tones, "tone")));
    if (restored.present > 0)
        say(counted(restored.present, "alarm") + " needed nothing: there already, or over");
    if (restored.others > 0)
        say(counted(restored.others, "alarm") + " kept: not in the backup, or changed since");
    if (restored.passed > 0)
        say(counted(restored.passed, "one-time alarm") + " switched off: the time has passed since the backup");
    for (const QString &tone : restored.missingTones)
        complain(QStringLiteral("the tone %1 is not here: its alarms ring with the default tone").arg(tone));
}

Result<> runRestore(const CommandLine &line)
{
    const auto request = requestOf(line);
    if (!request)
        return request.error();
    const auto archive = readBackup(request->file);
    if (!archive)
        return archive.error();
    const QList<Participant> participants = installedParticipants();
    Restoration restoration(*archive);
    if (auto prepared = restoration.prepare(participants); !prepared)
        return prepared;
    std::optional<Announcement> announcement(std::in_place, participants, Announcement::Occasion::Restore,
                                             request->patience);
    const auto restored = restoration.commit();
    announcement.reset();
    if (!restored)
        return restored.error();
    tellOf(*restored);
    return Done();
}

} // namespace

QList<Command> allCommands()
{
    const Option timeout{TimeoutOption, "SECONDS", "how long to wait for a program that takes part; 5 unless given"};
    return {{"create",
             "FILE",
             "Writes a backup of alarms and settings.",
             {{WithoutTonesOption, "", "leave out tones of your own"}, timeout},
             {"create --without-tones alarms.backup", "create alarms.backup"},
             runCreate,
             CreateDetails},
            {"restore",
             "FILE",
             "Brings back what is in a backup.",
             {timeout},
             {"restore alarms.backup"},
             runRestore,
             RestoreDetails}};
}

} // namespace Backup
