// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "alarms/profiletone_p.h"

#include "app/settings.h"
#include "platform/sound/profile/soundprofile.h"

namespace Clock {

QString profileTone(const QString &customProfile, const QString &vendorProfile)
{
    const auto named = Sound::profileValue({customProfile, vendorProfile}, Settings::ProfileToneKey);
    return named.value_or(Settings::BuiltInTone);
}

} // namespace Clock
