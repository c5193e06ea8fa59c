// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/ringer/texts/ringtexts.h"

#include "platform/locale/locale.h"

#include <QDateTime>
#include <QDir>

using Touch::Locale;

// Stands outside of every namespace, as the macro asks for.
static void initTexts()
{
    // A linker leaves the resources of a static library out unless they are asked for.
    Q_INIT_RESOURCE(ringer_texts);
}

namespace RingTexts {

namespace {

// A title may be 4096 characters long; this much is seen, the rest is not needed to know it.
constexpr auto TitleLength = 90;

} // namespace

void install()
{
    initTexts();
    auto &locale = Locale::getDefault();
    locale.installTrCatalog(QStringLiteral("ringer"));
    locale.connectSettings();
}

QString application()
{
    //% "Clock"
    return qtTrId("qtn_ring_window");
}

QString title(const QString &title)
{
    return RingTexts::title(title, TitleLength);
}

QString title(const QString &title, int length)
{
    const auto text = title.simplified();
    if (text.isEmpty()) {
        //% "Alarm"
        return qtTrId("qtn_ring_untitled");
    }
    return text.size() > length ? text.left(length).trimmed() + QStringLiteral("…") : text;
}

QString due(const QDateTime &moment)
{
    return Locale::getDefault().formatDateTime(moment.toLocalTime(), Locale::DateNone, Locale::TimeShort);
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

QString stop()
{
    //% "Stop"
    return qtTrId("qtn_ring_stop");
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
