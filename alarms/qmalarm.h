// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/timedclient/event.h"
#include "platform/timedclient/interface.h"

#include <QList>

namespace Clock {

class QmAlarmEvent;

/**
 * The application's way to the daemon's alarms. Lives as long as the one operation it is made for. Every call waits
 * for the daemon; failures are return values, with a line in the debug log.
 */
class QmAlarm
{
public:
    /** The cookie of the new alarm, QmAlarmEvent::NotStored on failure; may move the record's trigger time. */
    quint32 add(QmAlarmEvent &record);
    /** The cookie that takes the place of the given one, QmAlarmEvent::NotStored on failure. */
    quint32 replace(QmAlarmEvent &record, const quint32 &cookie);
    /** False on failure; a cookie that the daemon does not know is none. */
    bool deleteEvent(const quint32 &cookie);
    /** The cookies of this application's alarms, none on failure. */
    QList<quint32> query(bool &failed);
    /** Loads the alarms in the order of the list. True if that failed; the list is left alone then. */
    bool queryAndSortAlarmCookies(QList<QmAlarmEvent> &alarms);

private:
    Astel::Timed::Interface m_interface;
    Astel::Timed::Event m_event;
};

} // namespace Clock
