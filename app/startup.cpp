// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "app/startup.h"

#include "app/clockapplicationservice.h"
#include "app/references.h"
#include "backup/backupclientadaptor.h"
#include "backup/clockbackup.h"
#include "data/clockdata.h"
#include "mainview/mashuppage.h"
#include "platform/tones/tonefiller.h"
#include "platform/toolkit/application.h"
#include "platform/toolkit/applicationwindow.h"
#include "platform/toolkit/componentcache.h"

#include <chrono>
#include <QDBusConnection>
#include <QTimer>

namespace {

// By then the first picture is long on the screen.
constexpr std::chrono::seconds ToneFillDelay{2};

void openMainPage()
{
    applicationWindow = Touch::ComponentCache::mApplicationWindow();
    applicationWindow->setStyleName("ClockWindow");
    applicationWindow->setOrientation(Qt::Vertical);
    applicationWindow->setOrientationLocked(true);
    mainPage = new MashupPage;
    mainPage->appear(applicationWindow, Touch::SceneWindow::KeepWhenDone);
    applicationWindow->show();
}

void registerBackup(QDBusConnection &bus, ClockBackup *participant)
{
    if (!bus.registerService("com.korvo.clock.Backup"))
        qCritical("could not register dbus service");
    if (!bus.registerObject("/backupclient", participant, QDBusConnection::ExportAdaptors))
        qCritical("could not register dbus object");
}

} // namespace

int runClock(int &argc, char **argv)
{
    return runClock(argc, argv, new ClockApplicationService);
}

int runClock(int &argc, char **argv, ClockApplicationService *service)
{
    // The thread that talks to the bus wakes sooner without GLib's loop, which only the first thread needs.
    qputenv("QT_NO_THREADED_GLIB", "1");
    initClockData();
    Touch::Application *application = Touch::ComponentCache::mApplication(argc, argv, "clock", service);
    openMainPage();

    ClockBackup participant;
    new backupclientAdaptor(&participant);
    QDBusConnection bus = QDBusConnection::sessionBus();
    registerBackup(bus, &participant);
    Tones::ToneFiller toneFiller;
    QTimer::singleShot(ToneFillDelay, &toneFiller, &Tones::ToneFiller::start);
    const int status = application->exec();

    delete mainPage;
    delete applicationWindow;
    delete application;
    return status;
}
