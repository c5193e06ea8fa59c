// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QDBusPendingReply>
#include <QVariantMap>

#include <memory>

class RingerProxy;

namespace Astel::Timed {

/**
 * The ringing program, as others than the daemon see it. A call starts it if need be, returns at once and leaves the
 * waiting to the caller; a failure is the error of the reply. Used in the thread that created it.
 */
class RingerClient
{
public:
    RingerClient();
    ~RingerClient();

    /** What would happen if an alarm with this tone and plug-in rang now; com.astel.ringer.xml names the facts. */
    QDBusPendingReply<QVariantMap> check(const QString &tone, const QString &plugin);

private:
    std::unique_ptr<RingerProxy> m_proxy;
};

} // namespace Astel::Timed
