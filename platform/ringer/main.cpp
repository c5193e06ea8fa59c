// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/locale/locale.h"
#include "platform/notices/busnotifier.h"
#include "platform/ringer/attention.h"
#include "platform/ringer/gsttoneplayer.h"
#include "platform/ringer/logging.h"
#include "platform/ringer/notices/ringnotices.h"
#include "platform/ringer/pluginloader.h"
#include "platform/ringer/ringcheck.h"
#include "platform/ringer/ringcontroller.h"
#include "platform/ringer/ringerservice.h"
#include "platform/ringer/texts/ringtexts.h"
#include "platform/ringer/timeddaemon.h"

#include <QApplication>
#include <QTimer>

#include <chrono>

using namespace std::chrono_literals;

namespace {

// A snooze that follows soon finds the ringer started; a night long it costs nothing.
constexpr auto IdleTime = 10min;

// An alarm must sound also where nothing can be shown.
void choosePlatform()
{
    if (qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        return;
    QByteArrayList platforms;
    if (qEnvironmentVariableIsSet("WAYLAND_DISPLAY"))
        platforms += "wayland";
    if (qEnvironmentVariableIsSet("DISPLAY"))
        platforms += "xcb";
    platforms += "offscreen";
    qputenv("QT_QPA_PLATFORM", platforms.join(';'));
}

void quitWhenIdle(QApplication &application, Ringer::RingController &controller, Ringer::RingerService &service)
{
    auto *timer = new QTimer(&application);
    timer->setSingleShot(true);
    timer->setInterval(IdleTime);
    timer->start();
    QObject::connect(&controller, &Ringer::RingController::idleChanged, timer, [timer](bool isIdle) {
        if (isIdle)
            timer->start();
        else
            timer->stop();
    });
    // What rings when the bus goes is still to be heard.
    QObject::connect(&service, &Ringer::RingerService::busLost, timer, [timer] {
        timer->setInterval(0);
        if (timer->isActive())
            timer->start();
    });
    QObject::connect(timer, &QTimer::timeout, &application, [&service] {
        // Calls sent so far still arrive; later ones start a new ringer.
        service.unregisterName();
        QCoreApplication::processEvents();
        QCoreApplication::quit();
    });
}

void follow(Ringer::RingController &controller, Ringer::RingNotices &notices)
{
    using Ringer::RingController;
    using Ringer::RingNotices;
    const auto who = QStringLiteral("notification");
    QObject::connect(&controller, &RingController::begun, &notices, [&notices](const Ringer::Alarm &alarm) {
        notices.show({alarm.cookie, alarm.title, alarm.due, alarm.snoozeSeconds});
    });
    QObject::connect(&controller, &RingController::over, &notices, &RingNotices::close);
    QObject::connect(&notices, &RingNotices::stopChosen, &controller,
                     [&controller, who](quint32 cookie) { controller.dismissBy(cookie, who); });
    QObject::connect(&notices, &RingNotices::snoozeChosen, &controller,
                     [&controller, who](quint32 cookie, int seconds) { controller.snoozeBy(cookie, seconds, who); });
}

void tellOfNoDisplay(Ringer::RingController &controller, Ringer::TimedDaemon &daemon)
{
    const auto trouble = QStringLiteral("No display: heard, not seen");
    qCWarning(lcRinger, "%ls", qUtf16Printable(trouble));
    QObject::connect(&controller, &Ringer::RingController::begun, &daemon,
                     [&daemon, trouble](const Ringer::Alarm &alarm) { daemon.impaired(alarm.cookie, trouble); });
}

} // namespace

int main(int argc, char **argv)
{
    choosePlatform();
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("ringer"));
    QApplication::setQuitOnLastWindowClosed(false);
    RingTexts::install();
    auto &locale = Touch::Locale::getDefault();
    const auto mirror = [&locale] { QApplication::setLayoutDirection(locale.textDirection()); };
    mirror();
    QObject::connect(&locale, &Touch::Locale::settingsChanged, &application, mirror);

    Ringer::TimedDaemon daemon;
    Ringer::GstTonePlayer player;
    Ringer::PluginLoader plugins;
    Ringer::RingController controller(&daemon, &player, &plugins);
    if (QGuiApplication::platformName() == QLatin1String("offscreen"))
        tellOfNoDisplay(controller, daemon);
    Ringer::RingCheck check(&plugins);
    Ringer::RingerService service(&controller, &check);
    quitWhenIdle(application, controller, service);
    Notices::BusNotifier notifier(QDBusConnection::sessionBus(), QStringLiteral("ringer"), RingTexts::application());
    Ringer::RingNotices notices(&notifier);
    follow(controller, notices);
    Ringer::Attention attention(QDBusConnection::sessionBus());
    QObject::connect(&controller, &Ringer::RingController::idleChanged, &attention,
                     [&attention](bool isIdle) { attention.setWanted(!isIdle); });

    QString reason;
    if (!service.registerOnBus(&reason)) {
        qCCritical(lcRinger, "Not on the session bus: %s", qPrintable(reason));
        return 1;
    }
    return QApplication::exec();
}
