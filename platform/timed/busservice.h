// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/timed/result.h"
#include "platform/timedclient/wallclock.h"
#include "platform/timedclient/wire.h"

#include <QDBusContext>
#include <QObject>
#include <QVariantMap>

class ContextPublisher;

namespace Astel::Timed {

class BackupService;
class Clock;
class EventBook;
class EventService;
class Health;
class LifeCycle;
class ZoneSource;

/**
 * The daemon's object on the bus, behind the generated adaptor. A call that changes something is answered first and
 * published then.
 */
class BusService : public QObject, protected QDBusContext
{
    Q_OBJECT

public:
    struct Parts
    {
        const Clock &clock;
        const ZoneSource &zone;
        const EventBook &book;
        const Health &health;
        EventService &events;
        BackupService &backup;
        LifeCycle &lifeCycle;
    };

    explicit BusService(const Parts &parts);

    /** From now on changes go to the publisher, which has the triggers of this moment and outlives this object. */
    void publishThrough(ContextPublisher &publisher);

    uint add_event(const Wire::Event &event);
    uint replace_event(const Wire::Event &event, uint cookie);
    bool cancel(uint cookie);
    QVariantList query(const Wire::Filter &filter) const;
    QVariantMap query_attributes(uint cookie) const;
    Wire::Records backup_events() const;
    QList<uint> restore_events(const Wire::Records &records);
    void rings(uint cookie);
    void sounds(uint cookie, const QString &tone);
    void impaired(uint cookie, const QString &trouble);
    qulonglong snooze(uint cookie, uint seconds, const QString &by);
    qulonglong press(uint cookie, uint button, const QString &by);
    void dismiss(uint cookie, const QString &by);
    QList<Wire::Trigger> next_triggers(uint count) const;
    QList<Wire::JournalEntry> journal(qlonglong since) const;
    QVariantMap health() const;

signals:
    void settings_changed(const Astel::Timed::WallClock::Info &info, bool time_changed);
    /** A change was answered and published; time for what can wait. */
    void idle();

private:
    void answer(const QVariantList &values);
    void refuse(const Error &error) const;
    void publish();
    void publishRestored(qsizetype count);
    WallClock::Info wallClock() const;

    Parts m_parts;
    ContextPublisher *m_publisher = nullptr;
    QVariantMap m_published;
};

} // namespace Astel::Timed
