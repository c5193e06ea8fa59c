// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>

/**
 * Keeps the debug trace of the alarms off the terminal, unless CLOCK_DEBUG is set in the environment, and remembers
 * why the daemon refused something, which the alarms tell in no other way.
 */
namespace Trace {

void install();

/** The reason in the last line about a failure; empty if there was none. */
QString lastReason();

} // namespace Trace
