// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/context/contextproperty.h"
#include "platform/timed/busringer.h"
#include "platform/timed/eventbook.h"
#include "platform/timed/eventservice.h"
#include "platform/timed/lifecycle.h"
#include "platform/timed/localzone.h"
#include "platform/timed/moments.h"
#include "platform/timed/ringing.h"
#include "platform/timed/rules/zone.h"
#include "platform/timed/schedule.h"
#include "platform/timed/sqlitestore.h"
#include "platform/timed/systemclock.h"
#include "platform/timed/timerfdwaketimer.h"
#include "platform/timedclient/eventcodec.h"
#include "platform/timedclient/wire.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <functional>
#include <QCoreApplication>
#include <QDateTime>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusPendingReply>
#include <QDBusVirtualObject>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <vector>

using namespace Astel::Timed;

namespace {

constexpr int UsualCommits = 1000;
constexpr int StartTimeout = 10000;
constexpr qint64 RingTime = 120000;

Wire::Event weekdayAlarm()
{
    Wire::Event event;
    event.flags = Wire::KeepAlive | Wire::Boot | Wire::Alarm | Wire::AlignedSnooze;
    event.attributes = {{"APPLICATION", "clock"}, {"TITLE", "Wake up"},   {"enabled", "1"},           {"sound", ""},
                        {"snooze", "10"},         {"alarmtime", "07:00"}, {"PLUGIN", "libclockalarm"}};
    event.recurrences = {{1u << 7, 1, 0x3e, Wire::AllDaysOfMonth, Wire::AllMonths, true}};
    event.buttons = {{600, {}}, {0, {}}};
    return event;
}

/** The real daemon with a store of its own. */
class Daemon
{
public:
    bool start()
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("XDG_DATA_HOME", m_home.path());
        m_process.setProcessEnvironment(environment);
        m_process.start(CLOCK_BIN_DIR "/timed", QStringList());
        const auto *bus = QDBusConnection::sessionBus().interface();
        QElapsedTimer waited;
        waited.start();
        while (!bus->isServiceRegistered("com.astel.context.Alarm.Trigger")) {
            if (waited.hasExpired(StartTimeout) || m_process.state() == QProcess::NotRunning)
                return false;
        }
        return true;
    }

    /** Stores weekday alarms that the daemon finds when it starts. */
    void fill(qint64 count)
    {
        const qint64 now = QDateTime::currentMSecsSinceEpoch();
        const auto store = SqliteStore::create(m_home.filePath("timed"), now);
        const Wire::Event event = weekdayAlarm();
        const auto next = momentAfter(event, *Rules::Zone::local(), now);
        Change change;
        for (quint32 cookie = 1; cookie <= count; ++cookie)
            change.put.append(AlarmEvent(cookie, event, {State::Waiting, next, now, {}, 0}));
        if (!store || !(*store)->commit(change))
            qFatal("the events cannot be stored");
    }

    void stop()
    {
        m_process.terminate();
        m_process.waitForFinished();
    }

    bool add(const Wire::Event &event) const
    {
        auto call = QDBusMessage::createMethodCall(Wire::Service, Wire::Path, Wire::Interface, "add_event");
        call.setArguments({QVariant::fromValue(event)});
        QDBusPendingReply<uint> reply = QDBusConnection::sessionBus().asyncCall(call);
        reply.waitForFinished();
        return reply.isValid();
    }

    bool ask() const
    {
        auto call = QDBusMessage::createMethodCall(Wire::Service, Wire::Path, Wire::Interface, "query_attributes");
        call.setArguments({0u});
        QDBusPendingReply<QVariantMap> reply = QDBusConnection::sessionBus().asyncCall(call);
        reply.waitForFinished();
        return reply.isValid();
    }

    double proportionalSetKilobytes() const
    {
        QFile file(QStringLiteral("/proc/%1/smaps_rollup").arg(m_process.processId()));
        if (!file.open(QIODevice::ReadOnly))
            return 0;
        for (const QByteArray &line : file.readAll().split('\n')) {
            if (line.startsWith("Pss:"))
                return line.simplified().split(' ').value(1).toDouble();
        }
        return 0;
    }

private:
    QTemporaryDir m_home;
    QProcess m_process;
};

/** The daemon's parts that turn a decoded event into one that is stored and scheduled, in this process. */
struct Inside
{
    explicit Inside(Store &store)
        : book(store)
        , schedule(clock, timer)
        , ringer(Wire::RingerService, QDBusConnection::sessionBus())
        , ringing(book, schedule, clock, ringer, ringer)
        , lifeCycle(book, schedule, ringing, clock, zone, RingTime)
        , events(book, lifeCycle)
    { }

    SystemClock clock;
    LocalZone zone;
    EventBook book;
    TimerFdWakeTimer timer;
    Schedule schedule;
    BusRinger ringer;
    Ringing ringing;
    LifeCycle lifeCycle;
    EventService events;
};

/** What SQLite alone takes for the same bytes, with the same durability. */
class BareStore
{
public:
    BareStore()
        : m_text(encodeEvent(weekdayAlarm()))
    {
        QSqlDatabase database = QSqlDatabase::addDatabase("QSQLITE");
        database.setDatabaseName(m_folder.filePath("bare.db"));
        database.open();
        m_insert = QSqlQuery(database);
        for (const char *statement : {"PRAGMA journal_mode=WAL", "PRAGMA synchronous=FULL",
                                      "CREATE TABLE events (cookie INTEGER PRIMARY KEY, event TEXT NOT NULL)"})
            m_insert.exec(statement);
        m_insert.prepare("INSERT INTO events (event) VALUES (?)");
    }

    ~BareStore()
    {
        m_insert = QSqlQuery();
        QSqlDatabase::removeDatabase(QSqlDatabase::defaultConnection);
    }
    Q_DISABLE_COPY(BareStore)

    bool add()
    {
        m_insert.bindValue(0, m_text);
        return m_insert.exec();
    }

private:
    const QTemporaryDir m_folder;
    const QString m_text;
    QSqlQuery m_insert;
};

double microseconds(const std::function<bool()> &act, benchmark::State &state)
{
    QElapsedTimer time;
    time.start();
    if (!act())
        state.SkipWithError("the event was not added");
    return double(time.nsecsElapsed()) / 1000;
}

double median(std::vector<double> values)
{
    std::nth_element(values.begin(), values.begin() + values.size() / 2, values.end());
    return values[values.size() / 2];
}

/** A decoded call is what the daemon gets from the bus; this one is taken from a real one, to be decoded again and again. */
class ReceivedEvent final : public QDBusVirtualObject
{
public:
    ReceivedEvent()
        : m_bus(QDBusConnection::connectToBus(QDBusConnection::SessionBus, "receiver"))
    {
        m_bus.registerVirtualObject("/event", this);
        auto call = QDBusMessage::createMethodCall(m_bus.baseService(), "/event", Wire::Interface, "add_event");
        call.setArguments({QVariant::fromValue(weekdayAlarm())});
        QDBusConnection::sessionBus().send(call);
        while (m_received.type() == QDBusMessage::InvalidMessage)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }

    QString introspect(const QString &) const override { return {}; }
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &) override
    {
        m_received = message;
        return true;
    }

    Wire::Event decode() const
    {
        // The copy is read, and the original stays at its beginning.
        const QDBusArgument copy = m_received.arguments().constFirst().value<QDBusArgument>();
        return qdbus_cast<Wire::Event>(copy);
    }

private:
    QDBusConnection m_bus;
    QDBusMessage m_received;
};

/**
 * An event is added in several ways in turn, so that all meet the same load: by a bare commit; by the daemon's own parts,
 * which decode, check, commit and schedule it; by a call over the bus, from the question to the answer. And a question
 * that needs no disk tells what the ways over the bus take by themselves.
 */
void addEvent(benchmark::State &state)
{
    Daemon daemon;
    if (!daemon.start())
        state.SkipWithError("the daemon does not start");
    BareStore bare;
    const QTemporaryDir folder;
    const auto store = SqliteStore::create(folder.path(), SystemClock().now());
    Inside inside(**store);
    const ReceivedEvent received;
    // The next call finds a daemon that has published the one before.
    ContextProperty triggers(Wire::TriggerProperty);
    triggers.subscribe();
    std::vector<double> barely, inDaemon, asked, called;
    for (auto _ : state) {
        barely.push_back(microseconds([&] { return bare.add(); }, state));
        // Whoever is on the way has rested for as long as a commit takes, as in an addition.
        asked.push_back(microseconds([&] { return daemon.ask(); }, state));
        inDaemon.push_back(microseconds([&] { return bool(inside.events.add(received.decode())); }, state));
        called.push_back(microseconds([&] { return daemon.add(weekdayAlarm()); }, state));
        while (triggers.value().toMap().size() < qsizetype(called.size()))
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    daemon.stop();
    state.counters["1 bare us"] = median(barely);
    state.counters["2 daemon us"] = median(inDaemon);
    state.counters["2 daemon ratio"] = median(inDaemon) / median(barely);
    state.counters["3 question us"] = median(asked);
    state.counters["4 call us"] = median(called);
    state.counters["4 call ratio"] = median(called) / median(barely);
}

/** From the start of the process to the published triggers of many events. */
void startWithManyEvents(benchmark::State &state)
{
    Daemon daemon;
    daemon.fill(state.range(0));
    for (auto _ : state) {
        if (!daemon.start())
            state.SkipWithError("the daemon does not start");
        state.PauseTiming();
        state.counters["PSS kB"] = daemon.proportionalSetKilobytes();
        daemon.stop();
        state.ResumeTiming();
    }
}
BENCHMARK(startWithManyEvents)
    ->Arg(0)
    ->Arg(1000)
    ->Arg(10000)
    ->Iterations(9)
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);

} // namespace

/** bench_daemon [--commits N] [OPTIONS OF THE LIBRARY]: with so many events added one by one. */
int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const qsizetype option = arguments.indexOf("--commits");
    const int commits = option > 0 ? arguments.value(option + 1).toInt() : UsualCommits;
    benchmark::RegisterBenchmark("addEvent", addEvent)
        ->Iterations(commits)
        ->UseRealTime()
        ->Unit(benchmark::kMicrosecond);
    Wire::registerTypes();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
