// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/timed/result.h"
#include "platform/timedclient/wire.h"

#include <QVariantMap>

namespace Astel::Timed {

class EventBook;
class LifeCycle;

/** What clients ask for about events: checked, committed and scheduled when a call returns success. */
class EventService
{
public:
    EventService(EventBook &book, LifeCycle &lifeCycle);

    Result<quint32> add(const Wire::Event &event);
    Result<quint32> replace(const Wire::Event &event, quint32 cookie);
    /** False where there was no such event. */
    Result<bool> cancel(quint32 cookie);
    /** The cookies of the events whose attributes hold all of these, compared as text. */
    Result<QList<quint32>> query(const Wire::Filter &filter) const;
    /** The attributes and STATE; empty where there is no such event. */
    QVariantMap queryAttributes(quint32 cookie) const;

private:
    Result<> validate(const Wire::Event &event, const QList<quint32> &replaced) const;
    Result<quint32> store(const Wire::Event &event, const QList<quint32> &replaced);

    EventBook &m_book;
    LifeCycle &m_lifeCycle;
};

} // namespace Astel::Timed
