// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/commandline/program.h"
#include "platform/timed/daemon.h"
#include "platform/timed/logging.h"
#include "platform/timed/moments.h"
#include "platform/timed/signals.h"

#include <malloc.h>
#include <QCoreApplication>
#include <QDBusConnection>
#include <QFile>
#include <QStandardPaths>

using namespace Astel::Timed;

namespace {

// For devices that keep these elsewhere, and for tests.
constexpr auto LocaltimeVariable = "TIMED_LOCALTIME";
constexpr auto BootFolderVariable = "TIMED_BOOT_FOLDER";
constexpr auto ClocksVariable = "TIMED_RTC_FOLDER";
constexpr auto RingTimeVariable = "TIMED_RING_TIME";

Settings readSettings()
{
    Settings settings;
    settings.folder = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + "/timed";
    settings.localtime = qEnvironmentVariable(LocaltimeVariable, "/etc/localtime");
    settings.bootFolder = qEnvironmentVariable(BootFolderVariable, "/var/lib/clock-rtc");
    settings.clocks = qEnvironmentVariable(ClocksVariable, "/sys/class/rtc");
    bool given = false;
    const int seconds = qEnvironmentVariableIntValue(RingTimeVariable, &given);
    if (given && seconds > 0)
        settings.ringTime = seconds * MillisecondsOfSecond;
    return settings;
}

// A session that is over takes its bus with it; the daemon of the next one needs the store.
bool quitWithTheBus(QCoreApplication *application)
{
    return QDBusConnection::sessionBus().connect({}, "/org/freedesktop/DBus/Local", "org.freedesktop.DBus.Local",
                                                 "Disconnected", application, SLOT(quit()));
}

int run(QCoreApplication &application)
{
    const auto daemon = Daemon::create(readSettings());
    if (!daemon) {
        qCCritical(lcTimed, "%ls", qUtf16Printable(daemon.error().text));
        return EXIT_FAILURE;
    }
    if (!quitWithTheBus(&application))
        qCWarning(lcTimed, "cannot see the end of the session bus, ignoring");
    return QCoreApplication::exec();
}

} // namespace

int main(int argc, char *argv[])
{
    // One heap for its few threads: each of their own would keep what the thread once needed, for a snapshot say.
    mallopt(M_ARENA_MAX, 1);
    // Its threads wait for nothing of GLib's, without whose loop each call is answered sooner.
    qputenv("QT_NO_GLIB", "1");
    QCoreApplication application(argc, argv);
    const Program self{"timed", "Keeps the alarms of this session and has them rung.", CLOCK_VERSION};
    if (const auto answered = answerTo(QCoreApplication::arguments().mid(1), self))
        return *answered;
    // Now, while it is that of this program's file: later, the file may have been replaced.
    const auto program = QFile::encodeName(QCoreApplication::applicationFilePath());
    quitOnSignals();
    const int status = run(application);
    if (status != StartAnew)
        return status;
    startAnew(program);
    return EXIT_FAILURE;
}
