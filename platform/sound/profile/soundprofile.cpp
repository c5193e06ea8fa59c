// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/sound/profile/soundprofile.h"

#include <QSettings>

namespace Sound {

std::optional<QString> profileValue(const QStringList &files, const QString &key)
{
    for (const auto &file : files) {
        const QSettings profile(file, QSettings::IniFormat);
        if (profile.contains(key))
            return profile.value(key).toString();
    }
    return {};
}

} // namespace Sound
