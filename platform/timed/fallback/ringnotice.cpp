// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timed/fallback/ringnotice.h"

#include <algorithm>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QVariantMap>

namespace Fallback {

namespace {

constexpr auto Service = "org.freedesktop.Notifications";
constexpr auto Path = "/org/freedesktop/Notifications";
constexpr auto SnoozeKey = "com.astel.ringer.fallback.snooze";
constexpr auto StopKey = "com.astel.ringer.fallback.stop";
constexpr uchar Critical = 2;
constexpr uint NewNotice = 0;
constexpr int UntilClosed = 0;

QDBusMessage methodCall(const QString &method, const QVariantList &arguments)
{
    QDBusMessage message = QDBusMessage::createMethodCall(Service, Path, Service, method);
    message.setArguments(arguments);
    return message;
}

} // namespace

RingNotice::RingNotice(const QDBusConnection &bus)
    : m_bus(bus)
{
    if (!m_bus.connect(Service, Path, Service, "ActionInvoked", this, SLOT(actionInvoked(uint, QString))))
        qWarning("cannot hear answers to notifications, ignoring");
}

void RingNotice::show(quint32 cookie, const QString &title, bool canSnooze)
{
    if (!m_shown.emplace(cookie, NewNotice).second)
        return;
    QStringList actions{StopKey, QStringLiteral("Stop")};
    if (canSnooze)
        actions = QStringList{SnoozeKey, QStringLiteral("Snooze")} + actions;
    const QVariantMap hints{{"urgency", QVariant::fromValue(Critical)}, {"category", "x-alarm.rings"}};
    auto *call = new QDBusPendingCallWatcher(
        m_bus.asyncCall(
            methodCall("Notify",
                       {"Alarms", NewNotice, "alarm-symbolic", title.isEmpty() ? QStringLiteral("Alarm") : title,
                        QStringLiteral("The alarm rings."), actions, hints, UntilClosed})),
        this);
    connect(call, &QDBusPendingCallWatcher::finished, this, [this, cookie, call] {
        call->deleteLater();
        const QDBusPendingReply<uint> number = *call;
        const auto shown = m_shown.find(cookie);
        if (number.isError())
            qWarning("alarm %u is not shown: %ls", cookie, qUtf16Printable(number.error().message()));
        else if (shown == m_shown.end())
            withdraw(number);
        else
            shown->second = number;
    });
}

void RingNotice::close(quint32 cookie)
{
    const auto shown = m_shown.find(cookie);
    if (shown == m_shown.end())
        return;
    if (shown->second != NewNotice)
        withdraw(shown->second);
    m_shown.erase(shown);
}

void RingNotice::withdraw(uint id)
{
    m_bus.send(methodCall("CloseNotification", {id}));
}

void RingNotice::actionInvoked(uint id, const QString &key)
{
    const auto shown
        = std::find_if(m_shown.begin(), m_shown.end(), [id](const auto &entry) { return entry.second == id; });
    if (shown == m_shown.end())
        return;
    if (key == QLatin1String(SnoozeKey))
        emit snooze(shown->first);
    else if (key == QLatin1String(StopKey))
        emit stop(shown->first);
}

} // namespace Fallback
