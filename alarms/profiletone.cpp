// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "alarms/profiletone_p.h"

#include "app/settings.h"

namespace Clock {

QString profileTone(const ProfileReader &read)
{
    const auto named = read({Settings::CustomProfile, Settings::VendorProfile}, Settings::ProfileToneKey);
    return named.value_or(Settings::BuiltInTone);
}

} // namespace Clock
