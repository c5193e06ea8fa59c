// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>

namespace Touch {

class Application;
class ApplicationService;
class ApplicationWindow;

/** Where a program gets its application and its window from; both are the caller's to delete. */
class ComponentCache
{
public:
    /**
     * The application, which takes the service. If the service's name is taken, the instance that runs is asked to
     * launch and this process ends.
     */
    static Application *mApplication(int &argc, char **argv, const QString &appIdentifier,
                                     ApplicationService *service = nullptr);
    static ApplicationWindow *mApplicationWindow();
};

} // namespace Touch
