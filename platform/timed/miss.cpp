// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timed/miss.h"

#include <array>

namespace Astel::Timed {

namespace {

constexpr std::array ReasonNames{"off", "slept", "clock set", "late", "unanswered"};

} // namespace

QString missReasonName(MissReason reason)
{
    return QString::fromLatin1(ReasonNames[std::size_t(reason)]);
}

std::optional<MissReason> missReasonFromName(const QString &name)
{
    for (std::size_t i = 0; i < ReasonNames.size(); ++i) {
        if (name == QLatin1String(ReasonNames[i]))
            return MissReason(i);
    }
    return std::nullopt;
}

} // namespace Astel::Timed
