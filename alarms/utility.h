// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QObject>
#include <QTime>
#include <QVariantMap>

#include <ctime>

class ContextProperty;

namespace Clock {

/**
 * The snapshot of the triggers that the system publishes, shared by the whole process and kept for its life, and what
 * is told from it. Used in the main thread; the snapshot changes in onValueChanged() only.
 */
class Utility : public QObject
{
    Q_OBJECT

public:
    static Utility *instance();

    /** Starts to follow the triggers, once more with each call: once is enough for a process. */
    void subscribeToContextFramework();
    /** Whether the snapshot has been read at least once. */
    bool isTriggerMapReceived() const;

    /** The next trigger of an alarm in nanoseconds since the epoch; false, and nothing written, if it has none. */
    bool triggerFromContext(quint32 cookie, quint64 &trigger) const;
    /** The same in seconds; 0 if it has none. */
    bool triggerSecondsFromContext(quint32 cookie, time_t &trigger) const;
    /** Whether the alarm rings next at another hour or minute than this one, in local time; false if it has none. */
    bool isTriggerTimeChanged(quint32 cookie, const QTime &time) const;

    /** The text that tells how long it is until an alarm, given in seconds since the epoch. */
    static void timeLeftForAlarmToTrigger(const time_t &alarmTime, QString &text);
    /** The path of the alert tone that the sound profile names. */
    static QString defaultAlertTone();

signals:
    void valueChanged();

public slots:
    /** Reads the snapshot anew. */
    void onValueChanged();

private:
    Utility() = default;

    static QVariantMap s_triggers; ///< decimal cookie to nanoseconds since the epoch
    static bool s_received;
    static ContextProperty *s_property;
};

} // namespace Clock
