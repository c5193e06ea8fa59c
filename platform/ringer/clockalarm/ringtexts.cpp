// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/ringer/clockalarm/ringtexts.h"

#include "platform/locale/locale.h"
#include "platform/ringer/ringplugin.h"

using Ringer::Alarm;
using Touch::Locale;

namespace RingTexts {

namespace {

// A title may be 4096 characters long; this much is seen, the rest is not needed to know it.
constexpr auto TitleLength = 90;

} // namespace

QString title(const Alarm &alarm)
{
    const auto text = alarm.title.simplified();
    if (text.isEmpty()) {
        //% "Alarm"
        return qtTrId("qtn_ring_untitled");
    }
    return text.size() > TitleLength ? text.left(TitleLength) + QStringLiteral("…") : text;
}

QString due(const Alarm &alarm)
{
    return Locale::getDefault().formatDateTime(alarm.due.toLocalTime(), Locale::DateNone, Locale::TimeShort);
}

QString snooze(int seconds)
{
    if (seconds < 60) {
        //% "Snooze"
        return qtTrId("qtn_ring_snooze_plain");
    }
    //% "Snooze · %n min"
    return qtTrId("qtn_ring_snooze", seconds / 60);
}

QString bigTime(const QDateTime &moment)
{
    auto pattern = Locale::getDefault().icuFormatString(Locale::DateNone, Locale::TimeShort);
    pattern.remove(QLatin1Char('a'));
    return Locale::getDefault().formatDateTimeICU(moment, pattern.trimmed());
}

QString halfOfDay(const QDateTime &moment)
{
    const auto &locale = Locale::getDefault();
    return locale.isTwelveHour() ? locale.formatDateTime(moment, QStringLiteral("%p")) : QString();
}

} // namespace RingTexts
