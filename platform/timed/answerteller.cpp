// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timed/answerteller.h"

#include "platform/locale/locale.h"
#include "platform/notices/actionkey.h"
#include "platform/notices/notifier.h"
#include "platform/timed/lifecycle.h"
#include "platform/timed/logging.h"
#include "platform/timed/noticetexts.h"
#include "platform/timed/zonesource.h"

#include <optional>

namespace Astel::Timed {

using Notices::actionKey;
using Notices::cookieOfAction;
using Notices::Notice;
using Notices::Notifier;

namespace {

constexpr auto StopPrefix = "com.astel.timed.stop.";
constexpr auto AgainPrefix = "com.astel.timed.again.";
constexpr int AgainAfter = 300; // seconds
constexpr auto Who = "notification";

Notice quietNotice(const AlarmEvent &event, const QString &body, const Notice::Action &action)
{
    return {NoticeTexts::title(event.wire()),   body,       {action},
            QStringLiteral("x-alarm.answered"), action.key, Notice::Urgency::Low};
}

Notice snoozeNotice(const AlarmEvent &event, const Rules::Zone &zone)
{
    //% "Snoozed, rings again at %1."
    const QString body = qtTrId("qtn_timed_snoozed").arg(NoticeTexts::time(event.moment().value_or(0), zone));
    //% "Stop"
    return quietNotice(event, body, {actionKey(StopPrefix, event.cookie()), qtTrId("qtn_timed_stop")});
}

Notice stoppedNotice(const AlarmEvent &event)
{
    //% "Ring again in %n minute(s)"
    const QString again = qtTrId("qtn_timed_ring_again", AgainAfter / 60);
    //% "Stopped."
    return quietNotice(event, qtTrId("qtn_timed_stopped"), {actionKey(AgainPrefix, event.cookie()), again});
}

} // namespace

AnswerTeller::AnswerTeller(LifeCycle &lifeCycle, Notifier &notifier, const ZoneSource &zone,
                           std::chrono::milliseconds timeToTakeBack)
    : m_lifeCycle(lifeCycle)
    , m_notifier(notifier)
    , m_zone(zone)
    , m_timeToTakeBack(timeToTakeBack)
{
    connect(&lifeCycle, &LifeCycle::followed, this, &AnswerTeller::follow);
    connect(&lifeCycle, &LifeCycle::left, this, &AnswerTeller::forget);
    connect(&lifeCycle, &LifeCycle::stopped, this, &AnswerTeller::offerAgain);
    connect(&lifeCycle, &LifeCycle::settingsChanged, this, &AnswerTeller::tellAll);
    connect(&notifier, &Notifier::appeared, this, &AnswerTeller::tellAll);
    connect(&Touch::Locale::getDefault(), &Touch::Locale::settingsChanged, this, &AnswerTeller::tellAll);
    connect(&notifier, &Notifier::chosen, this, &AnswerTeller::answer);
}

void AnswerTeller::follow(const AlarmEvent &event)
{
    if (event.state() == State::Triggered || event.state() == State::Snoozed)
        withdrawOffer(event.cookie());
    if (event.state() == State::Snoozed)
        tellSnooze(event);
    else
        endSnooze(event.cookie());
}

void AnswerTeller::forget(quint32 cookie)
{
    endSnooze(cookie);
    withdrawOffer(cookie);
}

void AnswerTeller::tellSnooze(const AlarmEvent &event)
{
    const auto [known, isNew] = m_snoozed.try_emplace(event.cookie(), event);
    if (!isNew && known->second.moment() == event.moment())
        return;
    known->second = event;
    m_notifier.show(snoozeNotice(event, m_zone.zone()), [](bool) {});
}

void AnswerTeller::endSnooze(quint32 cookie)
{
    if (m_snoozed.erase(cookie) > 0)
        m_notifier.close(actionKey(StopPrefix, cookie));
}

// What has been shown already is brought up to date.
void AnswerTeller::tellAll()
{
    for (const auto &[cookie, event] : m_snoozed)
        m_notifier.show(snoozeNotice(event, m_zone.zone()), [](bool) {});
}

void AnswerTeller::offerAgain(const AlarmEvent &event)
{
    const quint32 cookie = event.cookie();
    auto end = std::make_unique<QTimer>();
    end->setSingleShot(true);
    connect(end.get(), &QTimer::timeout, this, [this, cookie] { withdrawOffer(cookie); });
    end->start(m_timeToTakeBack);
    m_stopped.insert_or_assign(cookie, Stopped{event, std::move(end)});
    m_notifier.show(stoppedNotice(event), [](bool) {});
}

void AnswerTeller::withdrawOffer(quint32 cookie)
{
    const auto stopped = m_stopped.find(cookie);
    if (stopped == m_stopped.end())
        return;
    // It may be the one that just called.
    stopped->second.end.release()->deleteLater();
    m_stopped.erase(stopped);
    m_notifier.close(actionKey(AgainPrefix, cookie));
}

void AnswerTeller::answer(const QString &key)
{
    if (const auto again = cookieOfAction(AgainPrefix, key)) {
        ringAgain(*again);
    } else if (const auto stop = cookieOfAction(StopPrefix, key)) {
        if (const auto done = m_lifeCycle.dismiss(*stop, Who); !done)
            qCWarning(lcTimed, "%ls", qUtf16Printable(done.error().text));
    }
}

void AnswerTeller::ringAgain(quint32 cookie)
{
    const auto stopped = m_stopped.find(cookie);
    if (stopped == m_stopped.end())
        return;
    const AlarmEvent event = stopped->second.event;
    if (const auto done = m_lifeCycle.ringLater(event, AgainAfter, Who); !done)
        qCWarning(lcTimed, "%ls", qUtf16Printable(done.error().text));
}

} // namespace Astel::Timed
