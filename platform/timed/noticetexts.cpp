// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timed/noticetexts.h"

#include "platform/locale/locale.h"
#include "platform/timed/moments.h"
#include "platform/timed/rules/zone.h"
#include "platform/timedclient/wire.h"

#include <QDateTime>
#include <QDir>

using Touch::Locale;

// Stands outside of every namespace, as the macro asks for.
static void initTexts()
{
    // A linker leaves the resources of a static library out unless they are asked for.
    Q_INIT_RESOURCE(timed_texts);
}

namespace Astel::Timed::NoticeTexts {

namespace {

constexpr auto TitleAttribute = "TITLE";

QDateTime localTime(qint64 moment, const Rules::Zone &zone)
{
    const int offset = int(zone.stretchAt(moment / MillisecondsOfSecond).offset);
    return QDateTime::fromMSecsSinceEpoch(moment, Qt::OffsetFromUTC, offset);
}

QString timeText(const QDateTime &local)
{
    return Locale::getDefault().formatDateTime(local, Locale::DateNone, Locale::TimeShort);
}

} // namespace

void install()
{
    initTexts();
    Locale &locale = Locale::getDefault();
    locale.installTrCatalog(QStringLiteral("timed"));
    locale.connectSettings();
}

QString application()
{
    //% "Alarms"
    return qtTrId("qtn_timed_application");
}

QString title(const Wire::Event &event)
{
    const QString title = event.attributes.value(TitleAttribute).simplified();
    if (!title.isEmpty())
        return title;
    //% "Alarm"
    return qtTrId("qtn_timed_untitled");
}

QString time(qint64 moment, const Rules::Zone &zone)
{
    return timeText(localTime(moment, zone));
}

QString dayAndTime(qint64 moment, const Rules::Zone &zone)
{
    const QDateTime local = localTime(moment, zone);
    const Locale &locale = Locale::getDefault();
    const QString day = locale.formatDateTimeICU(local, locale.icuFormatString(QStringLiteral("EEEMMMd")));
    //% "%1, %2"
    return qtTrId("qtn_timed_day_and_time").arg(day, timeText(local));
}

} // namespace Astel::Timed::NoticeTexts
