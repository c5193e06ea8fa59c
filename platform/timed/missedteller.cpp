// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timed/missedteller.h"

#include "platform/timed/eventbook.h"
#include "platform/timed/lifecycle.h"
#include "platform/timed/logging.h"
#include "platform/timed/missednotice.h"
#include "platform/timed/zonesource.h"

namespace Astel::Timed {

MissedTeller::MissedTeller(const EventBook &book, LifeCycle &lifeCycle, Notices::Notifier &notifier,
                           const ZoneSource &zone)
    : m_book(book)
    , m_lifeCycle(lifeCycle)
    , m_notifier(notifier)
    , m_zone(zone)
{ }

void MissedTeller::start()
{
    tellAll();
    connect(&m_lifeCycle, &LifeCycle::missed, this, &MissedTeller::tellEach);
    connect(&m_notifier, &Notices::Notifier::chosen, this, &MissedTeller::ring);
    connect(&m_notifier, &Notices::Notifier::appeared, this, &MissedTeller::tellAll);
}

void MissedTeller::tellAll()
{
    if (const QList<Miss> misses = waiting(); !misses.isEmpty())
        tell(misses);
}

void MissedTeller::tellEach()
{
    const QList<Miss> misses = waiting();
    for (const Miss &miss : misses)
        tell({miss});
}

void MissedTeller::tell(const QList<Miss> &misses)
{
    for (const Miss &miss : misses)
        m_underWay.emplace(miss.due, miss.cookie);
    m_notifier.show(missedNotice(misses, m_zone.zone()), [this, misses](bool shown) { finish(misses, shown); });
}

void MissedTeller::finish(const QList<Miss> &misses, bool shown)
{
    for (const Miss &miss : misses)
        m_underWay.erase({miss.due, miss.cookie});
    if (shown)
        m_lifeCycle.tell(misses);
}

QList<Miss> MissedTeller::waiting() const
{
    QList<Miss> result = m_book.untold();
    result.removeIf([this](const Miss &miss) { return m_underWay.contains({miss.due, miss.cookie}); });
    return result;
}

void MissedTeller::ring(const QString &actionKey)
{
    const auto cookie = cookieToRing(actionKey);
    if (!cookie)
        return;
    if (const auto rung = m_lifeCycle.ringNow(*cookie); !rung)
        qCWarning(lcTimed, "%ls", qUtf16Printable(rung.error().text));
}

} // namespace Astel::Timed
