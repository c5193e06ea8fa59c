// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timed/missednotice.h"

#include "platform/notices/actionkey.h"
#include "platform/timed/noticetexts.h"

#include <algorithm>
#include <set>

namespace Astel::Timed {

using Notices::Notice;

namespace {

constexpr auto ActionPrefix = "com.astel.timed.ring-now.";
// More do not fit on a notification; all of them are in the journal.
constexpr int MaximalLines = 8;
constexpr int MaximalActions = 3;

QString reasonText(MissReason reason)
{
    switch (reason) {
    case MissReason::Off:
        //% "the device was off"
        return qtTrId("qtn_timed_missed_off");
    case MissReason::Slept:
        //% "the device did not wake up in time"
        return qtTrId("qtn_timed_missed_slept");
    case MissReason::ClockSet:
        //% "the clock was set to a later time"
        return qtTrId("qtn_timed_missed_clock_set");
    case MissReason::Late:
        //% "the device was not ready in time"
        return qtTrId("qtn_timed_missed_late");
    case MissReason::Unanswered:
        break;
    }
    //% "it rang, but nobody answered"
    return qtTrId("qtn_timed_missed_unanswered");
}

QString lineText(const Miss &miss, const Rules::Zone &zone)
{
    //% "%1 (%2): %3"
    return qtTrId("qtn_timed_missed_line")
        .arg(NoticeTexts::title(miss.event), NoticeTexts::dayAndTime(miss.due, zone), reasonText(miss.reason));
}

QString bodyText(const QList<Miss> &misses, const Rules::Zone &zone)
{
    QStringList lines;
    for (const Miss &miss : misses.first(std::min<qsizetype>(misses.size(), MaximalLines)))
        lines.append(lineText(miss, zone));
    if (misses.size() > MaximalLines) {
        //% "and %n more"
        lines.append(qtTrId("qtn_timed_missed_more", int(misses.size()) - MaximalLines));
    }
    return lines.join('\n');
}

QList<Notice::Action> ringNowActions(const QList<Miss> &misses)
{
    QList<Notice::Action> result;
    std::set<quint32> offered;
    for (const Miss &miss : misses) {
        if (result.size() == MaximalActions || !offered.insert(miss.cookie).second)
            continue;
        //% "Ring now: %1"
        const QString label = qtTrId("qtn_timed_ring_title_now").arg(NoticeTexts::title(miss.event));
        result.append({Notices::actionKey(ActionPrefix, miss.cookie), label});
    }
    if (result.size() == 1) {
        //% "Ring now"
        result.first().label = qtTrId("qtn_timed_ring_now");
    }
    return result;
}

} // namespace

Notice missedNotice(const QList<Miss> &misses, const Rules::Zone &zone)
{
    //% "%n missed alarm(s)"
    const QString summary = qtTrId("qtn_timed_missed", int(misses.size()));
    return {summary, bodyText(misses, zone), ringNowActions(misses), QStringLiteral("x-alarm.missed")};
}

std::optional<quint32> cookieToRing(const QString &actionKey)
{
    return Notices::cookieOfAction(ActionPrefix, actionKey);
}

} // namespace Astel::Timed
