// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timed/busnotifier.h"

#include "platform/timed/logging.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

namespace Astel::Timed {

namespace {

constexpr auto Service = "org.freedesktop.Notifications";
constexpr auto Path = "/org/freedesktop/Notifications";
constexpr uchar Critical = 2;
constexpr int UntilClosed = 0;
constexpr uint NewNotice = 0;

QDBusMessage methodCall(const QString &method)
{
    return QDBusMessage::createMethodCall(Service, Path, Service, method);
}

QStringList toList(const QList<Notice::Action> &actions)
{
    QStringList result;
    for (const Notice::Action &action : actions)
        result << action.key << action.label;
    return result;
}

} // namespace

BusNotifier::BusNotifier(const QDBusConnection &bus)
    : m_bus(bus)
    , m_presence(Service, bus)
{
    connect(&m_presence, &BusPresence::appeared, this, &Notifier::appeared);
    if (!m_bus.connect(Service, Path, Service, "ActionInvoked", this, SLOT(actionInvoked(uint, QString))))
        qCWarning(lcTimed, "cannot hear answers to notifications, ignoring");
}

void BusNotifier::show(const Notice &notice, const std::function<void(bool)> &done)
{
    auto *call = new QDBusPendingCallWatcher(m_bus.asyncCall(methodCall("GetCapabilities")), this);
    connect(call, &QDBusPendingCallWatcher::finished, this, [this, call, notice, done] {
        call->deleteLater();
        const QDBusPendingReply<QStringList> capabilities = *call;
        if (!capabilities.isValid()) {
            qCWarning(lcTimed, "nobody shows notifications: %ls", qUtf16Printable(capabilities.error().message()));
            done(false);
            return;
        }
        Notice adapted = notice;
        // A title may hold what the server takes for markup.
        if (capabilities.value().contains("body-markup"))
            adapted.body = notice.body.toHtmlEscaped();
        send(adapted, done);
    });
}

void BusNotifier::send(const Notice &notice, const std::function<void(bool)> &done)
{
    QDBusMessage question = methodCall("Notify");
    const QVariantMap hints{{"urgency", QVariant::fromValue(Critical)}, {"category", "x-alarm.missed"}};
    question.setArguments({"Alarms", NewNotice, "alarm-symbolic", notice.summary, notice.body, toList(notice.actions),
                           hints, UntilClosed});
    auto *call = new QDBusPendingCallWatcher(m_bus.asyncCall(question), this);
    connect(call, &QDBusPendingCallWatcher::finished, this, [call, done] {
        call->deleteLater();
        if (call->isError())
            qCWarning(lcTimed, "a notification is not shown: %ls", qUtf16Printable(call->error().message()));
        done(!call->isError());
    });
}

void BusNotifier::actionInvoked(uint, const QString &key)
{
    emit chosen(key);
}

} // namespace Astel::Timed
