// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timed/answerteller.h"

#include "platform/timed/lifecycle.h"
#include "platform/timed/logging.h"
#include "platform/timed/moments.h"
#include "platform/timed/notifier.h"
#include "platform/timed/rules/zone.h"
#include "platform/timed/zonesource.h"

#include <chrono>
#include <optional>
#include <QDateTime>

namespace Astel::Timed {

namespace {

constexpr auto StopPrefix = "com.astel.timed.stop.";
constexpr auto AgainPrefix = "com.astel.timed.again.";
constexpr qint64 AgainAfter = 300; // seconds
constexpr auto Who = "notification";

QString keyOf(const char *prefix, quint32 cookie)
{
    return prefix + QString::number(cookie);
}

std::optional<quint32> cookieOf(const char *prefix, const QString &key)
{
    bool valid = false;
    const quint32 cookie = key.mid(int(qstrlen(prefix))).toUInt(&valid);
    return valid && key.startsWith(QLatin1String(prefix)) ? std::optional(cookie) : std::nullopt;
}

QString titleOf(const AlarmEvent &event)
{
    const QString title = event.wire().attributes.value("TITLE").simplified();
    return title.isEmpty() ? QStringLiteral("Alarm") : title;
}

Notice quietNotice(const AlarmEvent &event, const QString &body, const Notice::Action &action)
{
    Notice notice{titleOf(event), body, {action}};
    notice.tag = action.key;
    notice.category = QStringLiteral("x-alarm.answered");
    notice.urgency = Notice::Urgency::Low;
    return notice;
}

Notice snoozeNotice(const AlarmEvent &event, const Rules::Zone &zone)
{
    const qint64 moment = event.moment().value_or(0);
    const int offset = int(zone.stretchAt(moment / MillisecondsOfSecond).offset);
    const QString time = QDateTime::fromMSecsSinceEpoch(moment, Qt::OffsetFromUTC, offset).toString("HH:mm");
    return quietNotice(event, QStringLiteral("Snoozed, rings again at %1.").arg(time),
                       {keyOf(StopPrefix, event.cookie()), QStringLiteral("Stop")});
}

Notice stoppedNotice(const AlarmEvent &event)
{
    return quietNotice(
        event, QStringLiteral("Stopped."),
        {keyOf(AgainPrefix, event.cookie()), QStringLiteral("Ring again in %1 minutes").arg(AgainAfter / 60)});
}

} // namespace

AnswerTeller::AnswerTeller(LifeCycle &lifeCycle, Notifier &notifier, const ZoneSource &zone)
    : m_lifeCycle(lifeCycle)
    , m_notifier(notifier)
    , m_zone(zone)
{
    connect(&lifeCycle, &LifeCycle::followed, this, &AnswerTeller::follow);
    connect(&lifeCycle, &LifeCycle::left, this, &AnswerTeller::forget);
    connect(&lifeCycle, &LifeCycle::stopped, this, &AnswerTeller::offerAgain);
    connect(&lifeCycle, &LifeCycle::settingsChanged, this, &AnswerTeller::tellAll);
    connect(&notifier, &Notifier::appeared, this, &AnswerTeller::tellAll);
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
        m_notifier.close(keyOf(StopPrefix, cookie));
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
    end->start(TimeToTakeBack);
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
    m_notifier.close(keyOf(AgainPrefix, cookie));
}

void AnswerTeller::answer(const QString &actionKey)
{
    if (const auto again = cookieOf(AgainPrefix, actionKey)) {
        ringAgain(*again);
    } else if (const auto stop = cookieOf(StopPrefix, actionKey)) {
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
