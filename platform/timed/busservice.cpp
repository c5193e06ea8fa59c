// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timed/busservice.h"

#include "platform/context/contextpublisher.h"
#include "platform/timed/backupservice.h"
#include "platform/timed/clock.h"
#include "platform/timed/eventbook.h"
#include "platform/timed/eventservice.h"
#include "platform/timed/health.h"
#include "platform/timed/lifecycle.h"
#include "platform/timed/moments.h"
#include "platform/timed/triggers.h"
#include "platform/timed/validator.h"
#include "platform/timed/zonesource.h"
#include "timedadaptor.h"

#include <algorithm>
#include <QDBusConnection>
#include <QDBusMessage>

namespace Astel::Timed {

namespace {

// Each may take a search through decades.
constexpr uint MaximalTriggers = 100;
// Restored events for each of which the whole map travels.
constexpr qsizetype MaximalSteps = 500;

} // namespace

BusService::BusService(const Parts &parts)
    : m_parts(parts)
{
    new TimedAdaptor(this);
}

void BusService::publishThrough(ContextPublisher &publisher)
{
    m_publisher = &publisher;
    m_published = m_parts.book.triggers();
    connect(&m_parts.lifeCycle, &LifeCycle::changed, this, &BusService::publish);
    connect(&m_parts.lifeCycle, &LifeCycle::settingsChanged, this,
            [this](bool timeChanged) { emit settings_changed(wallClock(), timeChanged); });
}

uint BusService::add_event(const Wire::Event &event)
{
    const auto cookie = m_parts.events.add(event);
    if (cookie)
        answer({*cookie});
    else
        refuse(cookie.error());
    return 0;
}

uint BusService::replace_event(const Wire::Event &event, uint cookie)
{
    const auto newCookie = m_parts.events.replace(event, cookie);
    if (newCookie)
        answer({*newCookie});
    else
        refuse(newCookie.error());
    return 0;
}

bool BusService::cancel(uint cookie)
{
    const auto found = m_parts.events.cancel(cookie);
    if (found)
        answer({*found});
    else
        refuse(found.error());
    return false;
}

QVariantList BusService::query(const Wire::Filter &filter) const
{
    const auto cookies = m_parts.events.query(filter);
    if (!cookies) {
        refuse(cookies.error());
        return {};
    }
    return {(*cookies).begin(), (*cookies).end()};
}

QVariantMap BusService::query_attributes(uint cookie) const
{
    return m_parts.events.queryAttributes(cookie);
}

Wire::Records BusService::backup_events() const
{
    return {m_parts.backup.records()};
}

QList<uint> BusService::restore_events(const Wire::Records &records)
{
    const auto cookies = m_parts.backup.restore(records);
    if (!cookies) {
        refuse(cookies.error());
        return {};
    }
    setDelayedReply(true);
    connection().send(message().createReply(QVariant::fromValue(*cookies)));
    publishRestored((*cookies).size() - (*cookies).count(0));
    publish();
    return {};
}

void BusService::rings(uint cookie)
{
    if (const auto done = m_parts.lifeCycle.rings(cookie); !done)
        refuse(done.error());
}

void BusService::sounds(uint cookie, const QString &tone)
{
    if (const auto valid = validateTone(tone); !valid)
        refuse(valid.error());
    else if (const auto done = m_parts.lifeCycle.sounds(cookie, tone); !done)
        refuse(done.error());
}

void BusService::impaired(uint cookie, const QString &trouble)
{
    if (const auto valid = validateTrouble(trouble); !valid)
        refuse(valid.error());
    else if (const auto done = m_parts.lifeCycle.impaired(cookie, trouble); !done)
        refuse(done.error());
}

qulonglong BusService::snooze(uint cookie, uint seconds, const QString &by)
{
    const auto valid = validateWho(by);
    const auto until = valid ? m_parts.lifeCycle.snooze(cookie, seconds, by) : valid.error();
    if (until)
        answer({toNanoseconds(*until)});
    else
        refuse(until.error());
    return 0;
}

qulonglong BusService::press(uint cookie, uint button, const QString &by)
{
    const auto valid = validateWho(by);
    const auto until = valid ? m_parts.lifeCycle.press(cookie, button, by) : valid.error();
    if (until)
        answer({*until ? toNanoseconds(**until) : 0});
    else
        refuse(until.error());
    return 0;
}

void BusService::dismiss(uint cookie, const QString &by)
{
    const auto valid = validateWho(by);
    const auto done = valid ? m_parts.lifeCycle.dismiss(cookie, by) : valid;
    if (done)
        answer({});
    else
        refuse(done.error());
}

QList<Wire::Trigger> BusService::next_triggers(uint count) const
{
    return nextTriggers(m_parts.book.events(), m_parts.zone.zone(), std::min(count, MaximalTriggers));
}

QList<Wire::JournalEntry> BusService::journal(qlonglong since) const
{
    return m_parts.book.journal(since);
}

QVariantMap BusService::health() const
{
    return m_parts.health.facts();
}

void BusService::answer(const QVariantList &values)
{
    setDelayedReply(true);
    connection().send(message().createReply(values));
    publish();
}

void BusService::refuse(const Error &error) const
{
    sendErrorReply(error.name, error.text);
}

void BusService::publishRestored(qsizetype count)
{
    if (count == 0 || count > MaximalSteps)
        return;
    // Followers take in one event with each change, be it one that has no trigger, and sort it among all of them.
    m_published = m_parts.book.triggers();
    for (qsizetype i = 0; i < count; ++i)
        m_publisher->publish(m_published);
}

void BusService::publish()
{
    const QVariantMap triggers = m_parts.book.triggers();
    if (triggers != m_published) {
        m_published = triggers;
        m_publisher->publish(triggers);
    }
    emit idle();
}

WallClock::Info BusService::wallClock() const
{
    const auto stretch = m_parts.zone.zone().stretchAt(m_parts.clock.now() / MillisecondsOfSecond);
    return {QString::fromUtf8(m_parts.zone.zone().id()), qint32(stretch.offset), stretch.summerTime};
}

} // namespace Astel::Timed
