// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/motion_p.h"

#include <QByteArray>

namespace Touch {

bool hasReducedMotion()
{
    return qgetenv("CLOCK_REDUCED_MOTION") == "1";
}

} // namespace Touch
