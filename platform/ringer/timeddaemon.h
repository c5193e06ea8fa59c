// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/ringer/alarmdaemon.h"
#include "platform/timedclient/interface.h"

namespace Ringer {

/** The alarm daemon on the session bus; every call is sent and not waited for. Failed reports are logged. */
class TimedDaemon : public AlarmDaemon
{
    Q_OBJECT

public:
    explicit TimedDaemon(QObject *parent = nullptr);

    void rings(quint32 cookie) override;
    void sounds(quint32 cookie, const QString &tone) override;
    void impaired(quint32 cookie, const QString &trouble) override;
    void snooze(quint32 cookie, quint32 seconds, const QString &by) override;
    void dismiss(quint32 cookie, const QString &by) override;

private:
    template <typename Function>
    void whenFinished(const QDBusPendingCall &call, Function function);
    void watchReport(quint32 cookie, const QDBusPendingCall &call, const char *what);

    Astel::Timed::Interface m_timed;
};

} // namespace Ringer
