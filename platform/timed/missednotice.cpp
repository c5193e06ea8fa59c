// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timed/missednotice.h"

#include "platform/timed/moments.h"
#include "platform/timed/rules/zone.h"

#include <algorithm>
#include <QDateTime>
#include <QLocale>
#include <set>

namespace Astel::Timed {

namespace {

constexpr auto TitleAttribute = "TITLE";
constexpr auto ActionPrefix = "com.astel.timed.ring-now.";
// More do not fit on a notification; all of them are in the journal.
constexpr int MaximalLines = 8;
constexpr int MaximalActions = 3;

QString titleOf(const Miss &miss)
{
    const QString title = miss.event.attributes.value(TitleAttribute).simplified();
    return title.isEmpty() ? QStringLiteral("Alarm") : title;
}

QString timeText(qint64 moment, const Rules::Zone &zone)
{
    const int offset = int(zone.stretchAt(moment / MillisecondsOfSecond).offset);
    const auto local = QDateTime::fromMSecsSinceEpoch(moment, Qt::OffsetFromUTC, offset);
    return QLocale(QLocale::English).toString(local, "ddd d MMM, HH:mm");
}

QString lineText(const Miss &miss, const Rules::Zone &zone)
{
    return QStringLiteral("%1, %2: %3").arg(titleOf(miss), timeText(miss.due, zone), missedReasonText(miss.reason));
}

QString bodyText(const QList<Miss> &misses, const Rules::Zone &zone)
{
    QStringList lines;
    for (const Miss &miss : misses.first(std::min<qsizetype>(misses.size(), MaximalLines)))
        lines.append(lineText(miss, zone));
    if (misses.size() > MaximalLines)
        lines.append(QStringLiteral("and %1 more").arg(misses.size() - MaximalLines));
    return lines.join('\n');
}

QList<Notice::Action> ringNowActions(const QList<Miss> &misses)
{
    QList<Notice::Action> result;
    std::set<quint32> offered;
    for (const Miss &miss : misses) {
        if (result.size() == MaximalActions || !offered.insert(miss.cookie).second)
            continue;
        result.append({ActionPrefix + QString::number(miss.cookie), QStringLiteral("Ring now: ") + titleOf(miss)});
    }
    if (result.size() == 1)
        result.first().label = QStringLiteral("Ring now");
    return result;
}

} // namespace

Notice missedNotice(const QList<Miss> &misses, const Rules::Zone &zone)
{
    const QString summary
        = misses.size() == 1 ? QStringLiteral("Missed alarm") : QStringLiteral("%1 missed alarms").arg(misses.size());
    return {summary, bodyText(misses, zone), ringNowActions(misses)};
}

QString missedReasonText(MissReason reason)
{
    switch (reason) {
    case MissReason::Off:
        return QStringLiteral("the device was off");
    case MissReason::Slept:
        return QStringLiteral("the device did not wake up in time");
    case MissReason::ClockSet:
        return QStringLiteral("the clock was set to a later time");
    case MissReason::Late:
        return QStringLiteral("the device was not ready in time");
    case MissReason::Unanswered:
        break;
    }
    return QStringLiteral("it rang, but nobody answered");
}

std::optional<quint32> cookieToRing(const QString &actionKey)
{
    if (!actionKey.startsWith(QLatin1String(ActionPrefix)))
        return std::nullopt;
    bool valid = false;
    const quint32 cookie = actionKey.mid(int(qstrlen(ActionPrefix))).toUInt(&valid);
    return valid ? std::optional(cookie) : std::nullopt;
}

} // namespace Astel::Timed
