// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QtGlobal>

namespace Touch {

/** Milliseconds of a steady clock, by which the speed and the rest of a finger are told. */
using MoveClock = qint64 (*)();

qint64 moveTime();
/** Another clock in place of the system's, for tests; null: the system's again. */
void setMoveClock(MoveClock clock);

} // namespace Touch
