// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timed/daemon.h"

#include "platform/context/contextpublisher.h"
#include "platform/notices/busnotifier.h"
#include "platform/timed/answerteller.h"
#include "platform/timed/backupservice.h"
#include "platform/timed/bootmoment.h"
#include "platform/timed/busringer.h"
#include "platform/timed/busservice.h"
#include "platform/timed/eventbook.h"
#include "platform/timed/eventservice.h"
#include "platform/timed/health.h"
#include "platform/timed/lifecycle.h"
#include "platform/timed/localzone.h"
#include "platform/timed/logging.h"
#include "platform/timed/logind.h"
#include "platform/timed/missedteller.h"
#include "platform/timed/noticetexts.h"
#include "platform/timed/restorationteller.h"
#include "platform/timed/ringing.h"
#include "platform/timed/schedule.h"
#include "platform/timed/sleepguard.h"
#include "platform/timed/snapshotkeeper.h"
#include "platform/timed/sqlitestore.h"
#include "platform/timed/systemclock.h"
#include "platform/timed/timedate.h"
#include "platform/timed/timerfdwaketimer.h"

#include <QDBusConnection>
#include <QDBusError>

namespace Astel::Timed {

namespace {

// The standard name for an error of the bus itself.
constexpr auto BusError = "org.freedesktop.DBus.Error.Failed";

} // namespace

struct Daemon::Parts
{
    Parts(const Settings &settings, SqliteStore &store, const QDBusConnection &bus, const QDBusConnection &systemBus)
        : zone(settings.localtime)
        , timedate(systemBus)
        , book(store)
        , timer(settings.clocks)
        , schedule(clock, timer)
        , ringer(Wire::RingerService, bus)
        , fallback(Wire::FallbackRingerService, bus)
        , ringing(book, schedule, clock, ringer, fallback)
        , sleep(systemBus)
        , sleepGuard(schedule, ringing, sleep)
        , lifeCycle(book, schedule, ringing, clock, zone, settings.ringTime)
        , events(book, lifeCycle)
        , backup(book, lifeCycle)
        , health(book, schedule, timer, zone, store)
        , service({clock, zone, book, health, events, backup, lifeCycle})
        , boot(book, schedule, clock, settings.bootFolder, settings.clocks)
        , notifier(bus, QStringLiteral("timed"), NoticeTexts::application())
        , missedTeller(book, lifeCycle, notifier, zone)
        , answerTeller(lifeCycle, notifier, zone)
        , restorationTeller(notifier)
        , snapshots(store, clock, {})
    {
        health.add([this] { return sleep.facts(); });
        health.add([this] { return boot.facts(); });
        health.add([this] { return QVariantMap{{"notifications", notifier.isPresent()}}; });
    }

    SystemClock clock;
    LocalZone zone;
    Timedate timedate;
    EventBook book;
    TimerFdWakeTimer timer;
    Schedule schedule;
    BusRinger ringer;
    BusRinger fallback;
    Ringing ringing;
    Logind sleep;
    SleepGuard sleepGuard;
    LifeCycle lifeCycle;
    EventService events;
    BackupService backup;
    Health health;
    std::unique_ptr<ContextPublisher> publisher;
    BusService service;
    BootMoment boot;
    Notices::BusNotifier notifier;
    MissedTeller missedTeller;
    AnswerTeller answerTeller;
    RestorationTeller restorationTeller;
    SnapshotKeeper snapshots;
};

Daemon::Daemon(const Settings &settings, std::unique_ptr<SqliteStore> store)
    : m_store(std::move(store))
    , m_parts(std::make_unique<Parts>(settings, *m_store, QDBusConnection::sessionBus(), QDBusConnection::systemBus()))
{ }

Daemon::~Daemon() = default;

Result<std::unique_ptr<Daemon>> Daemon::create(const Settings &settings)
{
    Wire::registerTypes();
    NoticeTexts::install();
    if (const auto bus = QDBusConnection::sessionBus(); !bus.isConnected())
        return Error{BusError, QStringLiteral("no session bus: %1").arg(bus.lastError().message())};
    auto store = SqliteStore::create(settings.folder, SystemClock().now());
    if (!store)
        return store.error();
    std::unique_ptr<Daemon> daemon(new Daemon(settings, std::move(*store)));
    if (const auto started = daemon->start(); !started)
        return started.error();
    return daemon;
}

Result<> Daemon::start()
{
    // Calls that come from here on wait for the event loop, when all parts are there.
    auto bus = QDBusConnection::sessionBus();
    Parts &parts = *m_parts;
    if (!bus.registerObject(Wire::Path, &parts.service))
        return Error{BusError, QStringLiteral("cannot export %1").arg(Wire::Path)};
    if (!bus.registerService(Wire::Service))
        return Error{BusError, QStringLiteral("%1 is taken: another daemon is running").arg(Wire::Service)};
    parts.lifeCycle.start();
    parts.missedTeller.start();
    if (m_store->wasRestored())
        parts.restorationTeller.tell();
    parts.boot.update();
    parts.publisher = std::make_unique<ContextPublisher>(Wire::TriggerProperty, parts.book.triggers(), bus);
    // Nobody can follow the alarms then, and they ring all the same.
    if (!parts.publisher->isPublished())
        qCCritical(lcTimed, "%s is published by somebody else, ignoring", Wire::TriggerProperty);
    parts.service.publishThrough(*parts.publisher);

    follow();
    qCInfo(lcTimed, "%zu events, zone %s, timer %ls", parts.book.events().size(), parts.zone.zone().id().constData(),
           qUtf16Printable(parts.timer.kind()));
    return Done{};
}

void Daemon::follow()
{
    Parts &parts = *m_parts;
    QObject::connect(&parts.timer, &WakeTimer::clockSet, &parts.lifeCycle, &LifeCycle::clockSet);
    QObject::connect(&parts.timedate, &Timedate::zoneSet, &parts.zone, &LocalZone::told);
    QObject::connect(&parts.zone, &ZoneSource::changed, &parts.lifeCycle, &LifeCycle::zoneChanged);
    QObject::connect(&parts.sleep, &SleepControl::goesToSleep, &parts.lifeCycle, &LifeCycle::goesToSleep);
    QObject::connect(&parts.sleep, &SleepControl::resumed, &parts.lifeCycle, &LifeCycle::resumed);
    QObject::connect(&parts.service, &BusService::idle, &parts.snapshots, &SnapshotKeeper::follow);
}

} // namespace Astel::Timed
