// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timed/backupservice.h"

#include "platform/timed/eventbook.h"
#include "platform/timed/lifecycle.h"
#include "platform/timed/moments.h"
#include "platform/timed/validator.h"
#include "platform/timedclient/eventcodec.h"

#include <QHash>

namespace Astel::Timed {

namespace {

/** How often each event is stored, by all that a client gave of it. */
QHash<QString, int> countsOf(const EventBook::Events &events)
{
    QHash<QString, int> counts;
    for (const auto &[cookie, event] : events)
        ++counts[encodeEvent(event.wire())];
    return counts;
}

} // namespace

BackupService::BackupService(EventBook &book, LifeCycle &lifeCycle)
    : m_book(book)
    , m_lifeCycle(lifeCycle)
{ }

Wire::Records BackupService::records() const
{
    Wire::Records result;
    for (const auto &[cookie, event] : m_book.events()) {
        if (event.has(Wire::Backup))
            result.records.append(
                {event.wire(), stateName(event.state()), event.moment() ? toNanoseconds(*event.moment()) : 0});
    }
    return result;
}

Result<QList<quint32>> BackupService::restore(const Wire::Records &records)
{
    if (const auto valid = validate(records); !valid)
        return valid.error();
    const auto first = m_book.nextCookie(quint32(records.records.size()));
    if (!first)
        return first.error();
    auto counts = countsOf(m_book.events());
    QList<quint32> cookies;
    Change change;
    quint32 next = *first;
    for (const Wire::Record &record : records.records) {
        const AlarmEvent event = m_lifeCycle.restored(next, record);
        const bool isOver = event.state() == State::Finished && !event.has(Wire::KeepAlive);
        if (isOver || counts[encodeEvent(record.event)]-- > 0) {
            cookies.append(0);
            continue;
        }
        change.put.append(event);
        cookies.append(next++);
    }
    if (const auto valid = validate(change); !valid)
        return valid.error();
    if (change.isEmpty())
        return cookies;
    if (const auto committed = m_lifeCycle.commit(change); !committed)
        return committed.error();
    return cookies;
}

Result<> BackupService::validate(const Wire::Records &records) const
{
    if (records.oversized || records.records.size() > MaximalEvents)
        return Error{Wire::LimitError, QStringLiteral("at most %1 events are taken").arg(MaximalEvents)};
    for (const Wire::Record &record : records.records) {
        if (auto valid = Timed::validate(record.event); !valid)
            return valid;
        if (!stateFromName(record.state))
            return Error{Wire::InvalidError, QStringLiteral("there is no state \"%1\"").arg(record.state)};
    }
    return Done{};
}

Result<> BackupService::validate(const Change &change) const
{
    if (m_book.events().size() + std::size_t(change.put.size()) > MaximalEvents)
        return Error{Wire::LimitError,
                     QStringLiteral("with these, more than %1 events were stored").arg(MaximalEvents)};
    qsizetype size = m_book.textSize();
    for (const AlarmEvent &event : change.put)
        size += textSize(event.wire());
    return validateTotal(size);
}

} // namespace Astel::Timed
