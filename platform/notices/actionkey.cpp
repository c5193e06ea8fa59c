// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/notices/actionkey.h"

namespace Notices {

QString actionKey(const char *prefix, quint32 cookie)
{
    return prefix + QString::number(cookie);
}

std::optional<quint32> cookieOfAction(const char *prefix, const QString &key)
{
    if (!key.startsWith(QLatin1String(prefix)))
        return std::nullopt;
    bool isNumber = false;
    const quint32 cookie = key.mid(int(qstrlen(prefix))).toUInt(&isNumber);
    return isNumber ? std::optional(cookie) : std::nullopt;
}

} // namespace Notices
