// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QObject>

namespace Astel::Timed {

namespace Wire {
struct Event;
}

/** The program that shows and sounds an alarm; it reports back over the bus. */
class Ringer : public QObject
{
    Q_OBJECT

public:
    /** Rings an event, or goes on; "due" in milliseconds since the epoch. Does not wait for the outcome. */
    virtual void ring(quint32 cookie, const Wire::Event &event, qint64 due) = 0;
    virtual void stop(quint32 cookie) = 0;
    /** Asks one that rings for a sign of life. */
    virtual void ping() = 0;

signals:
    /** It was there and is no more. */
    void vanished();
    /** The sign of life that was asked for. */
    void alive();
    /** It cannot be started, or does not take the event. */
    void refused(quint32 cookie);
};

} // namespace Astel::Timed
