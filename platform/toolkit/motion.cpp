// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/motion_p.h"

#include "platform/toolkit/desktopmotion_p.h"

#include <QCoreApplication>
#include <QPointer>

namespace Touch {

bool hasReducedMotion()
{
    if (qEnvironmentVariableIsSet("CLOCK_REDUCED_MOTION"))
        return qgetenv("CLOCK_REDUCED_MOTION") == "1";
    static QPointer<DesktopMotion> desktop;
    if (!desktop)
        desktop = new DesktopMotion(QCoreApplication::instance());
    return desktop->isReduced();
}

} // namespace Touch
