// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

class ClockApplicationService;

/**
 * Runs the whole program: application, window, main page, backup participant, event loop, and the end of each in its
 * order. Returns the event loop's value. Call it once, from main().
 */
int runClock(int &argc, char **argv);
/** The same with a service that, say, lets it run more than once; the application takes it. */
int runClock(int &argc, char **argv, ClockApplicationService *service);
