// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

namespace Astel::Timed {

/** What the event loop answers when the program is to be started anew from its file. */
inline constexpr int StartAnew = 75;

/**
 * Ends the application's event loop: with 0 on SIGTERM and SIGINT, with StartAnew on SIGHUP. Called in main() before
 * any thread starts.
 */
void quitOnSignals();
/** Puts the program of this name in this one's place, as the same process; comes back only if that fails. */
void startAnew(const char *program);

} // namespace Astel::Timed
