// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "app/startup.h"

#include <QCoreApplication>

int main(int argc, char **argv)
{
    QCoreApplication::setApplicationVersion(CLOCK_VERSION);
    return runClock(argc, argv);
}
