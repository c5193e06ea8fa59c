// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/toolkit/applicationservice.h"

/**
 * The application on the session bus, as "com.korvo.clock": asked to launch again, it first resets the main page. Made
 * by start-up and handed to the application, which owns it. GUI thread; a taken name is the base's affair.
 */
class ClockApplicationService : public Touch::ApplicationService
{
public:
    explicit ClockApplicationService(QObject *parent = nullptr);
    ~ClockApplicationService() override;

    using Touch::ApplicationService::launch;
    void launch() override;
};
