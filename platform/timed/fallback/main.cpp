// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timed/fallback/fallbackringer.h"

#include "platform/ringer/texts/ringtexts.h"

#include <chrono>
#include <gst/gst.h>
#include <QCoreApplication>
#include <QDBusServiceWatcher>
#include <QTimer>

namespace {

using namespace std::chrono_literals;

// For a message that is still on its way to be sent.
constexpr auto LastWords = 200ms;

} // namespace

int main(int argc, char *argv[])
{
    gst_init(&argc, &argv);
    QCoreApplication application(argc, argv);
    Astel::Timed::Wire::registerTypes();
    RingTexts::install();
    auto bus = QDBusConnection::sessionBus();
    Fallback::FallbackRinger ringer(bus);
    if (!ringer.registerOnBus()) {
        qCritical("cannot be reached over the session bus");
        return EXIT_FAILURE;
    }
    QObject::connect(&ringer, &Fallback::FallbackRinger::finished, &application,
                     [&] { QTimer::singleShot(LastWords, &application, &QCoreApplication::quit); });
    // Without the daemon nobody could stop it; the daemon rings again when it is back.
    const QDBusServiceWatcher daemon(Astel::Timed::Wire::Service, bus, QDBusServiceWatcher::WatchForUnregistration);
    QObject::connect(&daemon, &QDBusServiceWatcher::serviceUnregistered, &ringer, &Fallback::FallbackRinger::stopAll);
    if (!bus.connect({}, "/org/freedesktop/DBus/Local", "org.freedesktop.DBus.Local", "Disconnected", &application,
                     SLOT(quit())))
        qWarning("cannot see the end of the session bus, ignoring");
    return QCoreApplication::exec();
}
