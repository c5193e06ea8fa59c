// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/ringer/ringcontroller.h"

#include "platform/ringer/alarmdaemon.h"
#include "platform/ringer/logging.h"
#include "platform/ringer/notices/ringnotices.h"
#include "platform/ringer/pluginloader.h"
#include "platform/ringer/ring.h"

#include <algorithm>
#include <chrono>

namespace Ringer {

namespace Wire = Astel::Timed::Wire;

namespace {

// No finger aims at what has just come up under it.
constexpr std::chrono::milliseconds DeafTime{500};

Alarm alarmOf(quint32 cookie, const Wire::Event &event, quint64 due)
{
    const auto notice = ringNoticeOf(cookie, event, due);
    return {cookie, notice.title, notice.due, event.attributes.value(QStringLiteral("sound")), notice.snoozeSeconds};
}

} // namespace

RingController::RingController(AlarmDaemon *daemon, TonePlayer *player, PluginLoader *plugins,
                               const ToneOrder &toneOrder, QObject *parent)
    : QObject(parent)
    , m_daemon(daemon)
    , m_player(player)
    , m_plugins(plugins)
    , m_toneOrder(toneOrder)
{
    m_plugins->setAnswers(this);
    connect(m_daemon, &AlarmDaemon::answered, this, &RingController::onAnswered);
    connect(m_daemon, &AlarmDaemon::snoozeFailed, this, &RingController::onSnoozeFailed);
}

RingController::~RingController() = default;

void RingController::ring(quint32 cookie, const Wire::Event &event, quint64 due)
{
    if (auto *known = findUnanswered(cookie)) {
        known->show();
        if (known->state() == Ring::State::Sounding)
            reportSound(*known);
        return;
    }
    remove(cookie);
    qCInfo(lcRinger, "Alarm %u rings", cookie);
    auto *ring = add(alarmOf(cookie, event, due), event.attributes.value(QStringLiteral("PLUGIN")));
    ring->show();
    passTurnOn();
    Q_EMIT begun(ring->alarm());
    Q_EMIT idleChanged(isIdle());
}

void RingController::stop(quint32 cookie)
{
    if (!find(cookie))
        return;
    qCInfo(lcRinger, "Alarm %u is over", cookie);
    remove(cookie);
    passTurnOn();
    Q_EMIT over(cookie);
    Q_EMIT idleChanged(isIdle());
}

void RingController::shown(quint32 cookie)
{
    if (findUnanswered(cookie))
        m_daemon->rings(cookie);
}

void RingController::snooze(quint32 cookie, int seconds)
{
    if (m_deafness.hasExpired())
        snoozeBy(cookie, seconds, screenOf(cookie));
}

void RingController::dismiss(quint32 cookie)
{
    if (m_deafness.hasExpired())
        dismissBy(cookie, screenOf(cookie));
}

void RingController::snoozeBy(quint32 cookie, int seconds, const QString &by)
{
    auto *ring = findUnanswered(cookie);
    if (!ring || seconds < 1)
        return;
    ring->answer();
    m_daemon->snooze(cookie, quint32(seconds), by);
    passTurnOn();
    Q_EMIT over(cookie);
}

void RingController::dismissBy(quint32 cookie, const QString &by)
{
    auto *ring = findUnanswered(cookie);
    if (!ring)
        return;
    ring->answer();
    m_daemon->dismiss(cookie, by);
    passTurnOn();
    Q_EMIT over(cookie);
}

// A new ring of the same cookie may have begun before the answer came back; it is no business of that answer.
void RingController::onAnswered(quint32 cookie)
{
    if (find(cookie) && !findUnanswered(cookie))
        stop(cookie);
}

void RingController::onSnoozeFailed(quint32 cookie, const QString &reason)
{
    auto *ring = find(cookie);
    if (!ring || ring->state() != Ring::State::Answered)
        return;
    qCCritical(lcRinger, "Alarm %u: the snooze was not taken: %s; rings again", cookie, qPrintable(reason));
    ring->ringAgain();
    passTurnOn();
    Q_EMIT begun(ring->alarm());
}

Ring *RingController::find(quint32 cookie) const
{
    const auto ring = std::find_if(m_rings.begin(), m_rings.end(),
                                   [cookie](const auto &each) { return each->alarm().cookie == cookie; });
    return ring != m_rings.end() ? ring->get() : nullptr;
}

Ring *RingController::findUnanswered(quint32 cookie) const
{
    auto *ring = find(cookie);
    return ring && ring->state() != Ring::State::Answered ? ring : nullptr;
}

QString RingController::screenOf(quint32 cookie) const
{
    const auto *ring = find(cookie);
    return ring ? ring->screenName() : QString();
}

Ring *RingController::add(const Alarm &alarm, const QString &pluginName)
{
    const auto [plugin, name, trouble] = m_plugins->screen(pluginName);
    if (!trouble.isEmpty())
        m_daemon->impaired(alarm.cookie, trouble);
    auto *ring = new Ring(alarm, m_toneOrder.tones(alarm.tone), plugin, name, m_player);
    m_rings.emplace_back(ring);
    connect(ring, &Ring::sounding, this, [this, ring] { reportSound(*ring); });
    connect(ring, &Ring::unheard, this, [this, ring](const QString &reason) {
        m_daemon->impaired(ring->alarm().cookie, QStringLiteral("Nothing can be heard: ") + reason);
    });
    return ring;
}

void RingController::reportSound(const Ring &ring)
{
    m_daemon->sounds(ring.alarm().cookie, ring.tone());
}

void RingController::remove(quint32 cookie)
{
    std::erase_if(m_rings, [cookie](const auto &ring) { return ring->alarm().cookie == cookie; });
}

void RingController::passTurnOn()
{
    passSoundOn();
    followFront();
}

void RingController::passSoundOn()
{
    const auto hasTurn = [](const auto &ring) { return ring->hasTurn(); };
    const auto waits = [](const auto &ring) { return ring->state() == Ring::State::Waiting; };
    if (std::any_of(m_rings.begin(), m_rings.end(), hasTurn))
        return;
    const auto next = std::find_if(m_rings.begin(), m_rings.end(), waits);
    if (next != m_rings.end())
        (*next)->takeSound();
}

void RingController::followFront()
{
    const auto isUnanswered = [](const auto &ring) { return ring->state() != Ring::State::Answered; };
    const auto ring = std::find_if(m_rings.begin(), m_rings.end(), isUnanswered);
    const auto front = ring != m_rings.end() ? (*ring)->alarm().cookie : 0;
    if (front == m_front)
        return;
    if (m_front != 0)
        m_deafness.setRemainingTime(DeafTime);
    m_front = front;
}

} // namespace Ringer
