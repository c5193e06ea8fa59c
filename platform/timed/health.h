// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <functional>
#include <QList>
#include <QVariantMap>

namespace Astel::Timed {

class EventBook;
class Schedule;
class Store;
class WakeTimer;
class ZoneSource;

/** Facts that answer whether the next alarm will ring; moments in nanoseconds since the epoch. */
class Health
{
public:
    Health(const EventBook &book, const Schedule &schedule, const WakeTimer &timer, const ZoneSource &zone,
           const Store &store);

    /** Facts of a part that knows them itself, asked for whenever somebody asks. */
    void add(const std::function<QVariantMap()> &source) { m_sources.append(source); }
    QVariantMap facts() const;

private:
    const EventBook &m_book;
    const Schedule &m_schedule;
    const WakeTimer &m_timer;
    const ZoneSource &m_zone;
    const Store &m_store;
    QList<std::function<QVariantMap()>> m_sources;
};

} // namespace Astel::Timed
