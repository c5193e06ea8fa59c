// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/componentcache.h"

#include "platform/toolkit/application.h"
#include "platform/toolkit/applicationwindow.h"

namespace Touch {

Application *ComponentCache::mApplication(int &argc, char **argv, const QString &appIdentifier,
                                          ApplicationService *service)
{
    return new Application(argc, argv, appIdentifier, service);
}

ApplicationWindow *ComponentCache::mApplicationWindow()
{
    return new ApplicationWindow;
}

} // namespace Touch
