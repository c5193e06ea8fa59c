// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timedclient/ringerclient.h"

#include "platform/timedclient/wire.h"
#include "ringerproxy.h"

namespace Astel::Timed {

RingerClient::RingerClient()
{
    Wire::registerTypes();
    m_proxy = std::make_unique<RingerProxy>(QString::fromLatin1(Wire::RingerService),
                                            QString::fromLatin1(Wire::RingerPath), QDBusConnection::sessionBus());
}

RingerClient::~RingerClient() = default;

QDBusPendingReply<QVariantMap> RingerClient::check(const QString &tone, const QString &plugin)
{
    return m_proxy->check(tone, plugin);
}

} // namespace Astel::Timed
