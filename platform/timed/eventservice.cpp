// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timed/eventservice.h"

#include "platform/timed/eventbook.h"
#include "platform/timed/lifecycle.h"
#include "platform/timed/validator.h"

#include <optional>

namespace Astel::Timed {

namespace {

constexpr auto StateAttribute = "STATE";

/** Nothing where a value is no text, which no attribute equals. */
std::optional<Wire::Attributes> asTexts(const QVariantMap &values)
{
    Wire::Attributes result;
    for (auto it = values.begin(); it != values.end(); ++it) {
        if (!it->canConvert<QString>())
            return std::nullopt;
        result.insert(it.key(), it->toString());
    }
    return result;
}

bool holdsAll(const Wire::Attributes &attributes, const Wire::Attributes &wanted)
{
    for (auto it = wanted.begin(); it != wanted.end(); ++it) {
        const auto attribute = attributes.find(it.key());
        if (attribute == attributes.end() || *attribute != *it)
            return false;
    }
    return true;
}

} // namespace

EventService::EventService(EventBook &book, LifeCycle &lifeCycle)
    : m_book(book)
    , m_lifeCycle(lifeCycle)
{ }

Result<quint32> EventService::add(const Wire::Event &event)
{
    if (m_book.events().size() >= MaximalEvents)
        return Error{Wire::LimitError, QStringLiteral("%1 events are stored already").arg(MaximalEvents)};
    return store(event, {});
}

Result<quint32> EventService::replace(const Wire::Event &event, quint32 cookie)
{
    if (!m_book.find(cookie))
        return Error{Wire::UnknownError, QStringLiteral("there is no alarm %1 to replace").arg(cookie)};
    return store(event, {cookie});
}

Result<> EventService::validate(const Wire::Event &event, const QList<quint32> &replaced) const
{
    if (auto valid = Timed::validate(event); !valid)
        return valid;
    qsizetype size = m_book.textSize() + textSize(event);
    for (const quint32 cookie : replaced)
        size -= textSize(m_book.find(cookie)->wire());
    return validateTotal(size);
}

Result<quint32> EventService::store(const Wire::Event &event, const QList<quint32> &replaced)
{
    if (const auto valid = validate(event, replaced); !valid)
        return valid.error();
    auto cookie = m_book.nextCookie();
    if (!cookie)
        return cookie;
    const auto committed = m_lifeCycle.commit({{m_lifeCycle.fresh(*cookie, event)}, replaced, {}});
    if (!committed)
        return committed.error();
    return *cookie;
}

Result<bool> EventService::cancel(quint32 cookie)
{
    if (!m_book.find(cookie))
        return false;
    const auto committed = m_lifeCycle.commit({{}, {cookie}, {}});
    if (!committed)
        return committed.error();
    return true;
}

Result<QList<quint32>> EventService::query(const Wire::Filter &filter) const
{
    if (const auto valid = Timed::validate(filter); !valid)
        return valid.error();
    QList<quint32> result;
    // Once for all events: a caller may have sent what takes long to turn into text.
    const auto wanted = asTexts(filter.attributes);
    if (!wanted)
        return result;
    for (const auto &[cookie, event] : m_book.events()) {
        if (holdsAll(event.wire().attributes, *wanted))
            result.append(cookie);
    }
    return result;
}

QVariantMap EventService::queryAttributes(quint32 cookie) const
{
    QVariantMap result;
    const AlarmEvent *event = m_book.find(cookie);
    if (!event)
        return result;
    const Wire::Attributes &attributes = event->wire().attributes;
    for (auto it = attributes.begin(); it != attributes.end(); ++it)
        result.insert(it.key(), it.value());
    result.insert(StateAttribute, stateName(event->state()));
    return result;
}

} // namespace Astel::Timed
