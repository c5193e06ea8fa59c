// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/context/propertyaddress_p.h"

namespace Context {

QString serviceOf(const QString &key)
{
    return QStringLiteral("com.astel.context.") + key;
}

QString pathOf(const QString &key)
{
    return QStringLiteral("/com/astel/context/") + QString(key).replace('.', '/');
}

} // namespace Context
