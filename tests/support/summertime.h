// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QTime>

namespace Support {

/**
 * Moves this process, and those that it starts from now on, into a zone in which summer time soon skips an hour.
 * Returns half past of that hour, which would come in two and a half to three and a half hours.
 */
QTime skipAnHourSoon();

} // namespace Support
