// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "app/startup.h"

int main(int argc, char **argv)
{
    return runClock(argc, argv);
}
