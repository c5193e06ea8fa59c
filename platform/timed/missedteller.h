// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/timed/miss.h"

#include <QObject>
#include <set>

namespace Notices {
class Notifier;
}

namespace Astel::Timed {

class EventBook;
class LifeCycle;
class ZoneSource;

/**
 * Tells the user what was missed: everything at once after the start, or when a notifier appears that was away; later
 * each miss for itself. What could not be shown stays untold in the book. Rings again what the user asks for.
 */
class MissedTeller : public QObject
{
    Q_OBJECT

public:
    MissedTeller(const EventBook &book, LifeCycle &lifeCycle, Notices::Notifier &notifier, const ZoneSource &zone);

    /** To be called once the life cycle has started. */
    void start();

private:
    void tellAll();
    void tellEach();
    void tell(const QList<Miss> &misses);
    void finish(const QList<Miss> &misses, bool shown);
    /** Untold, and not on its way to the user. */
    QList<Miss> waiting() const;
    void ring(const QString &actionKey);

    const EventBook &m_book;
    LifeCycle &m_lifeCycle;
    Notices::Notifier &m_notifier;
    const ZoneSource &m_zone;
    std::set<std::pair<qint64, quint32>> m_underWay;
};

} // namespace Astel::Timed
