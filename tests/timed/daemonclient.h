// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/timedclient/wire.h"

#include <QDBusPendingReply>

/** Asks the daemon on the session bus as any program might, without the client library. */
class DaemonClient
{
public:
    static QDBusPendingCall call(const QString &method, const QVariantList &arguments);
    /** The answer, waited for; a default value where the call failed. */
    template <typename T>
    static T ask(const QString &method, const QVariantList &arguments)
    {
        QDBusPendingReply<T> reply = call(method, arguments);
        reply.waitForFinished();
        return reply.value();
    }
    /** The name of the error, waited for; empty where there is none. */
    static QString errorOf(const QString &method, const QVariantList &arguments);
    static uint add(const Astel::Timed::Wire::Event &event);
    static QString stateOf(uint cookie);
    /** Leaves no event behind; false if that fails. */
    static bool cancelAll();
};
