// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QDateTime>

namespace Clock {

using TimeSource = QDateTime (*)();

/** The local date and time of this moment, from the one place where this folder reads the clock. */
QDateTime currentTime();

/** Puts another clock in its place, as tests do; nullptr brings the system's back. */
void setTimeSource(TimeSource source);

} // namespace Clock
