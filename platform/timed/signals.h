// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

namespace Astel::Timed {

/** Ends the application's event loop on SIGTERM and SIGINT; called in main() before any thread starts. */
void quitOnSignals();

} // namespace Astel::Timed
