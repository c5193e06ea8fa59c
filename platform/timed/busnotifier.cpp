// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/timed/busnotifier.h"

#include "platform/timed/logging.h"
#include "platform/timed/noticetexts.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

namespace Astel::Timed {

namespace {

constexpr auto Service = "org.freedesktop.Notifications";
constexpr auto Path = "/org/freedesktop/Notifications";
constexpr int UntilClosed = 0;
constexpr uint NewNotice = 0;

QDBusMessage methodCall(const QString &method)
{
    return QDBusMessage::createMethodCall(Service, Path, Service, method);
}

uchar toUrgency(Notice::Urgency urgency)
{
    return urgency == Notice::Urgency::Critical ? 2 : 0;
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
    if (!notice.tag.isEmpty() && !m_tagged.contains(notice.tag))
        m_tagged.insert(notice.tag, NewNotice);
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
    const QVariantMap hints{{"urgency", QVariant::fromValue(toUrgency(notice.urgency))}, {"category", notice.category}};
    question.setArguments({NoticeTexts::application(), m_tagged.value(notice.tag, NewNotice), "alarm-symbolic",
                           notice.summary, notice.body, toList(notice.actions), hints, UntilClosed});
    auto *call = new QDBusPendingCallWatcher(m_bus.asyncCall(question), this);
    connect(call, &QDBusPendingCallWatcher::finished, this, [this, call, done, tag = notice.tag] {
        call->deleteLater();
        const QDBusPendingReply<uint> number = *call;
        if (number.isError())
            qCWarning(lcTimed, "a notification is not shown: %ls", qUtf16Printable(number.error().message()));
        else if (!tag.isEmpty())
            keepNumber(tag, number);
        done(!number.isError());
    });
}

void BusNotifier::keepNumber(const QString &tag, uint number)
{
    const auto known = m_tagged.find(tag);
    if (known == m_tagged.end()) {
        withdraw(number);
        return;
    }
    if (*known != NewNotice && *known != number)
        withdraw(*known);
    *known = number;
}

void BusNotifier::close(const QString &tag)
{
    if (const uint number = m_tagged.take(tag); number != NewNotice)
        withdraw(number);
}

void BusNotifier::withdraw(uint number)
{
    QDBusMessage call = methodCall("CloseNotification");
    call.setArguments({number});
    m_bus.send(call);
}

void BusNotifier::actionInvoked(uint, const QString &key)
{
    emit chosen(key);
}

} // namespace Astel::Timed
