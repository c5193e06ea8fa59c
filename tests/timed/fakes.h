// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/notices/notifier.h"
#include "platform/timed/clock.h"
#include "platform/timed/ringer.h"
#include "platform/timed/sleepcontrol.h"
#include "platform/timed/store.h"
#include "platform/timed/waketimer.h"
#include "platform/timed/zonesource.h"

#include <map>
#include <utility>

class FakeClock final : public Astel::Timed::Clock
{
public:
    qint64 now() const override { return time; }

    qint64 time = 0;
};

class FakeTimer final : public Astel::Timed::WakeTimer
{
    Q_OBJECT

public:
    void arm(std::optional<qint64> moment) override { armed = moment; }
    std::optional<qint64> armedFor() const override { return armed; }
    QString kind() const override { return QStringLiteral("fake"); }
    bool wakesFromSleep() const override { return true; }
    QString reason() const override { return {}; }

    std::optional<qint64> armed;
};

class FakeZone final : public Astel::Timed::ZoneSource
{
    Q_OBJECT

public:
    const Astel::Timed::Rules::Zone &zone() const override { return current; }

    Astel::Timed::Rules::Zone current = *Astel::Timed::Rules::Zone::create("Europe/Berlin");
};

/** A store in memory that fails on demand. */
class FakeStore final : public Astel::Timed::Store
{
public:
    Astel::Timed::Result<> commit(const Astel::Timed::Change &change) override;
    QList<Astel::Timed::AlarmEvent> events() const override;
    quint32 lastCookie() const override { return last; }
    QList<Astel::Timed::Wire::JournalEntry> journal(qint64 since) const override;
    QList<Astel::Timed::Miss> missed() const override { return misses; }
    QVariantMap facts() const override { return {}; }

    /** The words of the journal so far that are about an event, without their details. */
    QStringList words() const;
    /** Those that are about all events. */
    QStringList happenings() const;

    std::map<quint32, Astel::Timed::AlarmEvent> stored;
    QList<Astel::Timed::Wire::JournalEntry> entries;
    QList<Astel::Timed::Miss> misses;
    quint32 last = 0;
    int commits = 0;
    bool failing = false;
};

/** Notes the calls, and what was stored of the event when they came. */
class FakeRinger final : public Astel::Timed::Ringer
{
    Q_OBJECT

public:
    explicit FakeRinger(const FakeStore &store)
        : m_store(store)
    { }

    void ring(quint32 cookie, const Astel::Timed::Wire::Event &event, qint64 due) override;
    void stop(quint32 cookie) override { stopped.append(cookie); }
    void ping() override
    {
        if (!hangs)
            emit alive();
    }

    bool hangs = false;
    QList<quint32> rung;
    QList<quint32> stopped;
    QList<qint64> moments;
    QList<Astel::Timed::State> storedStates;

private:
    const FakeStore &m_store;
};

/** Notes whether sleep is delayed, every time that changes. */
class FakeSleep final : public Astel::Timed::SleepControl
{
    Q_OBJECT

public:
    void delaySleep(bool delayed) override
    {
        if (delays.value(delays.size() - 1, false) != delayed)
            delays.append(delayed);
    }
    QVariantMap facts() const override { return {}; }

    QList<bool> delays;
};

/** Keeps the notices; the test says whether they were shown. */
class FakeNotifier final : public Notices::Notifier
{
    Q_OBJECT

public:
    void show(const Notices::Notice &notice, const std::function<void(bool)> &done) override
    {
        notices.append(notice);
        m_pending.append(done);
    }
    void close(const QString &tag) override { closed.append(tag); }
    bool isPresent() const override { return present; }

    /** Answers everything that is not answered yet. */
    void answer(bool shown)
    {
        const auto pending = std::exchange(m_pending, {});
        for (const auto &done : pending)
            done(shown);
    }

    QList<Notices::Notice> notices;
    QStringList closed; ///< tags
    bool present = true;

private:
    QList<std::function<void(bool)>> m_pending;
};
