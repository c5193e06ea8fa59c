// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/ringer/ringnotices.h"

#include "platform/ringer/logging.h"
#include "platform/ringer/texts/ringtexts.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QVariantMap>

#include <algorithm>

namespace Ringer {

namespace {

const auto Server = QStringLiteral("org.freedesktop.Notifications");
const auto Path = QStringLiteral("/org/freedesktop/Notifications");
// Unique on the whole desktop, as some servers tell every answer to everybody.
const auto SnoozeKey = QStringLiteral("com.astel.ringer.snooze");
const auto StopKey = QStringLiteral("com.astel.ringer.stop");
constexpr uchar Critical = 2;
constexpr uint NewNotice = 0;
constexpr int UntilClosed = 0;

QDBusMessage methodCall(const QString &method, const QVariantList &arguments)
{
    auto message = QDBusMessage::createMethodCall(Server, Path, Server, method);
    message.setArguments(arguments);
    return message;
}

QStringList actionsOf(const Alarm &alarm)
{
    QStringList actions;
    if (alarm.snoozeSeconds > 0)
        actions << SnoozeKey << RingTexts::snooze(alarm.snoozeSeconds);
    return actions << StopKey << RingTexts::stop();
}

// The body holds nothing that a server could take for markup.
QVariantList noticeOf(const Alarm &alarm)
{
    const QVariantMap hints{{"urgency", QVariant::fromValue(Critical)},
                            {"category", QStringLiteral("alarm")},
                            {"resident", true},
                            {"suppress-sound", true}};
    return {RingTexts::application(),
            NewNotice,
            QStringLiteral("alarm-symbolic"),
            RingTexts::title(alarm.title),
            RingTexts::due(alarm.due),
            actionsOf(alarm),
            hints,
            UntilClosed};
}

} // namespace

RingNotices::RingNotices(const QDBusConnection &bus, QObject *parent)
    : QObject(parent)
    , m_bus(bus)
{
    if (!m_bus.connect(Server, Path, Server, QStringLiteral("ActionInvoked"), this,
                       SLOT(onActionInvoked(uint, QString))))
        qCWarning(lcRinger, "Cannot hear answers to notifications, ignoring");
}

RingNotices::~RingNotices()
{
    for (const auto &[cookie, shown] : m_shown) {
        if (shown.id != 0)
            withdraw(shown.id);
    }
}

void RingNotices::show(const Alarm &alarm)
{
    const auto cookie = alarm.cookie;
    if (!m_shown.try_emplace(cookie, Shown{alarm}).second)
        return;
    auto *call = new QDBusPendingCallWatcher(m_bus.asyncCall(methodCall("Notify", noticeOf(alarm))), this);
    connect(call, &QDBusPendingCallWatcher::finished, this, [this, cookie, call] {
        call->deleteLater();
        const QDBusPendingReply<uint> id = *call;
        if (id.isError())
            qCInfo(lcRinger, "Alarm %u: no notification, ignoring: %s", cookie, qPrintable(id.error().message()));
        else
            onShown(cookie, id);
    });
}

void RingNotices::onShown(quint32 cookie, uint id)
{
    const auto shown = m_shown.find(cookie);
    if (shown == m_shown.end() || shown->second.id != 0)
        withdraw(id);
    else
        shown->second.id = id;
}

void RingNotices::close(quint32 cookie)
{
    const auto shown = m_shown.find(cookie);
    if (shown == m_shown.end())
        return;
    if (shown->second.id != 0)
        withdraw(shown->second.id);
    m_shown.erase(shown);
}

void RingNotices::withdraw(uint id)
{
    m_bus.send(methodCall("CloseNotification", {id}));
}

void RingNotices::onActionInvoked(uint id, const QString &key)
{
    const auto shown
        = std::find_if(m_shown.begin(), m_shown.end(), [id](const auto &each) { return each.second.id == id; });
    if (shown == m_shown.end())
        return;
    const auto &alarm = shown->second.alarm;
    if (key == SnoozeKey)
        Q_EMIT snoozeChosen(alarm.cookie, alarm.snoozeSeconds);
    else if (key == StopKey)
        Q_EMIT stopChosen(alarm.cookie);
}

} // namespace Ringer
