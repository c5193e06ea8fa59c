// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/backup/commands.h"
#include "platform/backup/messages.h"

#include <QCoreApplication>

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const Program program{Backup::ProgramName, "Alarms and settings, into a file and back.", CLOCK_VERSION,
                          Backup::allCommands()};
    return run(program, QCoreApplication::arguments().mid(1));
}
