// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/ringer/notices/ringnotices.h"

#include "platform/notices/actionkey.h"
#include "platform/notices/notifier.h"
#include "platform/ringer/texts/ringtexts.h"
#include "platform/timedclient/wire.h"

#include <algorithm>

namespace Ringer {

namespace Wire = Astel::Timed::Wire;

namespace {

constexpr auto SnoozePrefix = "com.astel.ringer.snooze.";
constexpr auto StopPrefix = "com.astel.ringer.stop.";

QString tagOf(quint32 cookie)
{
    return QString::number(cookie);
}

int snoozeSeconds(const Wire::Event &event)
{
    const auto ofButton = Wire::firstSnooze(event);
    return ofButton > 0 ? ofButton : std::max(event.timeoutSnooze, 0);
}

// The body holds nothing that a server could take for markup.
Notices::Notice textsOf(const RingNotice &notice)
{
    QList<Notices::Notice::Action> actions;
    if (notice.snoozeSeconds > 0)
        actions += {Notices::actionKey(SnoozePrefix, notice.cookie), RingTexts::snooze(notice.snoozeSeconds)};
    actions += {Notices::actionKey(StopPrefix, notice.cookie), RingTexts::stop()};
    Notices::Notice texts{RingTexts::title(notice.title), RingTexts::due(notice.due), actions, QStringLiteral("alarm"),
                          tagOf(notice.cookie)};
    texts.isRinging = true;
    return texts;
}

} // namespace

RingNotice ringNoticeOf(quint32 cookie, const Wire::Event &event, quint64 due)
{
    return {cookie, event.attributes.value(QStringLiteral("TITLE")),
            QDateTime::fromMSecsSinceEpoch(qint64(due / 1'000'000), Qt::UTC), snoozeSeconds(event)};
}

RingNotices::RingNotices(Notices::Notifier *notifier, QObject *parent)
    : QObject(parent)
    , m_notifier(notifier)
{
    connect(m_notifier, &Notices::Notifier::appeared, this, &RingNotices::showAll);
    connect(m_notifier, &Notices::Notifier::chosen, this, &RingNotices::choose);
}

RingNotices::~RingNotices()
{
    for (const auto &[cookie, notice] : m_shown)
        m_notifier->close(tagOf(cookie));
}

void RingNotices::show(const RingNotice &notice)
{
    if (m_shown.try_emplace(notice.cookie, notice).second)
        send(notice);
}

void RingNotices::send(const RingNotice &notice)
{
    m_notifier->show(textsOf(notice), [](bool) {});
}

// What was shown before somebody new came has gone with whom it was shown by.
void RingNotices::showAll()
{
    for (const auto &[cookie, notice] : m_shown)
        send(notice);
}

void RingNotices::close(quint32 cookie)
{
    if (m_shown.erase(cookie) > 0)
        m_notifier->close(tagOf(cookie));
}

void RingNotices::choose(const QString &key)
{
    const auto snoozed = Notices::cookieOfAction(SnoozePrefix, key);
    const auto chosen = snoozed ? snoozed : Notices::cookieOfAction(StopPrefix, key);
    const auto shown = chosen ? m_shown.find(*chosen) : m_shown.end();
    if (shown == m_shown.end())
        return;
    if (!snoozed)
        Q_EMIT stopChosen(*chosen);
    else if (shown->second.snoozeSeconds > 0)
        Q_EMIT snoozeChosen(*chosen, shown->second.snoozeSeconds);
}

} // namespace Ringer
