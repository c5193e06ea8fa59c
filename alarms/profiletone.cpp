// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "alarms/profiletone_p.h"

#include "app/settings.h"

#include <QSettings>

namespace Clock {

QString profileTone(const QString &customProfile, const QString &vendorProfile)
{
    const QString builtIn = Settings::BuiltInTone;
    const QSettings custom(customProfile, QSettings::IniFormat);
    if (custom.contains(Settings::ProfileToneKey))
        return custom.value(Settings::ProfileToneKey, builtIn).toString();
    const QSettings vendor(vendorProfile, QSettings::IniFormat);
    return vendor.value(Settings::ProfileToneKey, builtIn).toString();
}

} // namespace Clock
