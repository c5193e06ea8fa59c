// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <functional>
#include <memory>

class QObject;

namespace Flow {

using MakeTest = std::function<std::unique_ptr<QObject>()>;

/** Whether the daemon runs around the program, or is the test's own to start. */
enum class Daemon { Running, Absent };

/**
 * Runs a test inside the real program: a private bus, a virtual display and the real daemon around an inner
 * process, in which the program's own start-up runs, and there the test as soon as the window is on the screen. The
 * program ends with the test. Called from main() with that one's arguments; returns the exit status.
 */
int runInProgram(int argc, char **argv, MakeTest makeTest, Daemon daemon = Daemon::Running);

} // namespace Flow
