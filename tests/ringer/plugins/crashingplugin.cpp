// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/ringer/plugins/crashingplugin.h"

#include <csignal>

void CrashingPlugin::show(const Ringer::Alarm &)
{
    raise(SIGKILL);
}
