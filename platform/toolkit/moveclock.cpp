// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/moveclock_p.h"

#include <chrono>

namespace Touch {

namespace {

MoveClock replacement = nullptr;

} // namespace

qint64 moveTime()
{
    using namespace std::chrono;
    return replacement ? replacement() : duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}

void setMoveClock(MoveClock clock)
{
    replacement = clock;
}

} // namespace Touch
