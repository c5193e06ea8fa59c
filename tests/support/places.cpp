// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/support/places.h"

namespace Places {

QString program(const QString &name)
{
    return QStringLiteral(CLOCK_BIN_DIR "/") + name;
}

QString ringerPlugin(const QString &fileName)
{
    return QStringLiteral(CLOCK_RINGER_PLUGIN_DIR "/") + fileName;
}

QString sharedData(const QString &relativePath)
{
    return QStringLiteral(CLOCK_SHARE_DIR "/") + relativePath;
}

QString source(const QString &relativePath)
{
    return QStringLiteral(CLOCK_SOURCE_DIR "/") + relativePath;
}

} // namespace Places
