// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later

// The clock, running though there is one already. It logs when its window is on the screen.
#include "app/clockapplicationservice.h"
#include "app/references.h"
#include "app/startup.h"
#include "platform/toolkit/applicationwindow.h"

#include <QCoreApplication>
#include <QTimer>
#include <QWindow>

namespace {

class AnotherService : public ClockApplicationService
{
public:
    void handleServiceRegistrationFailure() override { incrementAndRegister(); }
};

void tellWhenShown()
{
    if (applicationWindow && applicationWindow->windowHandle() && applicationWindow->windowHandle()->isExposed())
        qInfo("the window is on the screen");
    else
        QTimer::singleShot(0, qApp, tellWhenShown);
}

void watchWindow()
{
    QMetaObject::invokeMethod(qApp, tellWhenShown, Qt::QueuedConnection);
}
Q_COREAPP_STARTUP_FUNCTION(watchWindow)

} // namespace

int main(int argc, char **argv)
{
    return runClock(argc, argv, new AnotherService);
}
