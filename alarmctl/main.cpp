// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "alarmctl/command.h"
#include "alarmctl/trace.h"

#include <QCoreApplication>

int main(int argc, char *argv[])
{
    Trace::install();
    const QCoreApplication application(argc, argv);
    const Program program{"alarmctl", "The alarms of the clock, from the command line.", CLOCK_VERSION, allCommands()};
    return run(program, QCoreApplication::arguments().mid(1));
}
