// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QObject>

namespace Ringer {

/** The alarm daemon as the ringer needs it. Nothing blocks; each answer ends in exactly one of the two signals. */
class AlarmDaemon : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    virtual void rings(quint32 cookie) = 0;
    virtual void sounds(quint32 cookie, const QString &tone) = 0;
    /** It rings, but not as it should; for the journal. */
    virtual void impaired(quint32 cookie, const QString &trouble) = 0;
    virtual void snooze(quint32 cookie, quint32 seconds, const QString &by) = 0;
    virtual void dismiss(quint32 cookie, const QString &by) = 0;

Q_SIGNALS:
    void answered(quint32 cookie);                            ///< nothing more to do for this alarm
    void snoozeFailed(quint32 cookie, const QString &reason); ///< nobody would wake the user again
};

} // namespace Ringer
