// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/support/look/look.h"

#include "data/clockdata.h"
#include "platform/toolkit/theme.h"

namespace Support {

bool loadLook()
{
    initClockData();
    QString error;
    return Touch::Theme::instance().load(":/theme/clock.json", &error);
}

} // namespace Support
