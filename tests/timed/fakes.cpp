// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/timed/fakes.h"

using namespace Astel::Timed;

Result<> FakeStore::commit(const Change &change)
{
    if (failing)
        return Error{Wire::StorageError, QStringLiteral("the disk is full")};
    ++commits;
    for (const AlarmEvent &event : change.put) {
        stored.insert_or_assign(event.cookie(), event);
        last = std::max(last, event.cookie());
    }
    for (const quint32 cookie : change.erased)
        stored.erase(cookie);
    entries += change.journal;
    for (const Miss &miss : change.missed) {
        misses.removeIf([&miss](const Miss &other) { return miss.isSame(other); });
        misses.append(miss);
    }
    return Done{};
}

QList<AlarmEvent> FakeStore::events() const
{
    QList<AlarmEvent> result;
    for (const auto &[cookie, event] : stored)
        result.append(event);
    return result;
}

QList<Wire::JournalEntry> FakeStore::journal(qint64 since) const
{
    QList<Wire::JournalEntry> result;
    std::copy_if(entries.begin(), entries.end(), std::back_inserter(result),
                 [since](const Wire::JournalEntry &entry) { return entry.moment >= since; });
    return result;
}

QStringList FakeStore::words() const
{
    QStringList result;
    for (const Wire::JournalEntry &entry : entries) {
        if (entry.cookie != 0)
            result.append(entry.what);
    }
    return result;
}

QStringList FakeStore::happenings() const
{
    QStringList result;
    for (const Wire::JournalEntry &entry : entries) {
        if (entry.cookie == 0)
            result.append(entry.what);
    }
    return result;
}

void FakeRinger::ring(quint32 cookie, const Wire::Event &, qint64 due)
{
    rung.append(cookie);
    moments.append(due);
    const auto found = m_store.stored.find(cookie);
    storedStates.append(found == m_store.stored.end() ? State::Inactive : found->second.state());
}
