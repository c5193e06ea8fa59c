// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/sparql/sparqlanswer_p.h"

#include <functional>
#include <QMutex>
#include <QObject>

/** Takes an answer from the store's thread to that of its receiver, which may go in the meantime. */
class SparqlMailbox
{
public:
    using Deliver = std::function<void(SparqlAnswer &&answer)>;

    SparqlMailbox(QObject *receiver, const Deliver &deliver)
        : m_receiver(receiver)
        , m_deliver(deliver)
    { }

    /** No delivery begins after this; called by the receiver before it goes. */
    void close()
    {
        const QMutexLocker lock(&m_mutex);
        m_receiver = nullptr;
    }

    /** From any thread. */
    void post(SparqlAnswer answer)
    {
        const QMutexLocker lock(&m_mutex);
        if (m_receiver)
            QMetaObject::invokeMethod(
                m_receiver, [deliver = m_deliver, answer]() mutable { deliver(std::move(answer)); },
                Qt::QueuedConnection);
    }

private:
    QMutex m_mutex;
    QObject *m_receiver;
    const Deliver m_deliver;
};
