// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/timedclient/wallclock.h"
#include "platform/timedclient/wire.h"

#include <QDBusPendingReply>
#include <QObject>

#include <memory>

class TimedProxy;

namespace Astel::Timed {

class Event;

/**
 * The daemon, as a client sees it. Every call starts the daemon if need be, returns at once and leaves the
 * waiting to the caller; a failure is the error of the reply, named in com.astel.timed.xml, which also says
 * what each method does. The methods bear the names they have on the bus. Used in the thread that created it.
 */
class Interface : public QObject
{
    Q_OBJECT

public:
    explicit Interface(QObject *parent = nullptr);
    ~Interface() override;

    QDBusPendingReply<uint> add_event(const Event &event);
    QDBusPendingReply<uint> replace_event(const Event &event, uint cookie);
    QDBusPendingReply<bool> cancel(uint cookie);
    /** Values of type uint. */
    QDBusPendingReply<QVariantList> query(const QVariantMap &attributes);
    QDBusPendingReply<QVariantMap> query_attributes(uint cookie);

    QDBusPendingReply<Wire::Records> backup_events();
    /** Answers a cookie for each record, 0 for one that needed no event. */
    QDBusPendingReply<QList<uint>> restore_events(const Wire::Records &records);

    QDBusPendingReply<> rings(uint cookie);
    QDBusPendingReply<> sounds(uint cookie, const QString &tone);
    QDBusPendingReply<> impaired(uint cookie, const QString &trouble);
    /** Answers nanoseconds since the epoch. */
    QDBusPendingReply<quint64> snooze(uint cookie, uint seconds, const QString &by);
    /** Buttons are counted from 1. Answers nanoseconds since the epoch, 0 where the button stopped the alarm. */
    QDBusPendingReply<quint64> press(uint cookie, uint button, const QString &by);
    QDBusPendingReply<> dismiss(uint cookie, const QString &by);

    QDBusPendingReply<QList<Wire::Trigger>> next_triggers(uint count);
    /** Since a moment in milliseconds since the epoch. */
    QDBusPendingReply<QList<Wire::JournalEntry>> journal(qint64 since);
    QDBusPendingReply<QVariantMap> health();

    /**
     * Connects the daemon's settings-changed signal to a slot given with SLOT(), taking
     * (const Astel::Timed::WallClock::Info &, bool). The process has read its time zone again when the slot is called.
     * False where the receiver has no such slot or there is no bus.
     */
    [[nodiscard]] bool settings_changed_connect(QObject *receiver, const char *slot);

private:
    void readTimeZone();

    std::shared_ptr<TimedProxy> m_proxy;
};

} // namespace Astel::Timed
