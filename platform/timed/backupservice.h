// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/timed/result.h"
#include "platform/timedclient/wire.h"

namespace Astel::Timed {

struct Change;
class EventBook;
class LifeCycle;

/** What a backup takes of the events, and a restore puts back: checked, committed and scheduled as a whole. */
class BackupService
{
public:
    BackupService(EventBook &book, LifeCycle &lifeCycle);

    /** The events that have the backup flag, in cookie order. */
    Wire::Records records() const;
    /** Answers a cookie for each record, 0 for one that needed no event. */
    Result<QList<quint32>> restore(const Wire::Records &records);

private:
    Result<> validate(const Wire::Records &records) const;
    Result<> validate(const Change &change) const;

    EventBook &m_book;
    LifeCycle &m_lifeCycle;
};

} // namespace Astel::Timed
