// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/notices/busnotifier.h"

#include "platform/notices/logging.h"

#include <chrono>
#include <QDBusError>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QTimer>

namespace Notices {

namespace {

constexpr auto Service = "org.freedesktop.Notifications";
constexpr auto Path = "/org/freedesktop/Notifications";
constexpr int UntilClosed = 0;
constexpr uint NewNotice = 0;
// One that has just come may not be ready yet.
constexpr std::chrono::milliseconds RetryInterval = std::chrono::seconds(2);
constexpr int MostRetries = 3;

QDBusMessage methodCall(const QString &method, const QString &server = Service)
{
    return QDBusMessage::createMethodCall(server, Path, Service, method);
}

uchar toUrgency(Notice::Urgency urgency)
{
    return urgency == Notice::Urgency::Critical ? 2 : 0;
}

QVariantMap toHints(const Notice &notice)
{
    QVariantMap hints{{"urgency", QVariant::fromValue(toUrgency(notice.urgency))}, {"category", notice.category}};
    if (notice.isRinging) {
        hints.insert("resident", true);
        hints.insert("suppress-sound", true);
    }
    return hints;
}

QStringList toList(const QList<Notice::Action> &actions)
{
    QStringList result;
    for (const Notice::Action &action : actions)
        result << action.key << action.label;
    return result;
}

} // namespace

BusNotifier::BusNotifier(const QDBusConnection &bus, const QString &program, const QString &title)
    : m_bus(bus)
    , m_title(title)
    , m_record(program)
    , m_presence(Service, bus)
{
    takeBack(m_record);
    connect(&m_presence, &BusPresence::appeared, this, &Notifier::appeared);
    if (!m_bus.connect(Service, Path, Service, "ActionInvoked", this, SLOT(actionInvoked(uint, QString))))
        qCWarning(lcNotices, "cannot hear answers to notifications, ignoring");
}

void BusNotifier::show(const Notice &notice, const std::function<void(bool)> &done)
{
    if (notice.tag.isEmpty()) {
        ask(std::make_shared<Request>(Request{notice, done}));
        return;
    }
    if (!m_tagged.contains(notice.tag))
        m_tagged.insert(notice.tag, NewNotice);
    // One that is not sent yet gives way; a server that has just come would show both.
    if (const auto asked = m_asked.value(notice.tag)) {
        *asked = {notice, [before = asked->done, done](bool shown) {
                      before(shown);
                      done(shown);
                  }};
        return;
    }
    const auto request = std::make_shared<Request>(Request{notice, done});
    m_asked.insert(notice.tag, request);
    ask(request);
}

void BusNotifier::ask(const std::shared_ptr<Request> &request)
{
    auto *call = new QDBusPendingCallWatcher(m_bus.asyncCall(methodCall("GetCapabilities")), this);
    connect(call, &QDBusPendingCallWatcher::finished, this, [this, call, request] {
        call->deleteLater();
        const QDBusPendingReply<QStringList> capabilities = *call;
        if (!capabilities.isValid()) {
            fail(request, capabilities.error());
            return;
        }
        // A title may hold what the server takes for markup.
        const QString &body = request->notice.body;
        send(request, capabilities.value().contains("body-markup") ? body.toHtmlEscaped() : body);
    });
}

void BusNotifier::send(const std::shared_ptr<Request> &request, const QString &body)
{
    const Notice &notice = request->notice;
    m_asked.remove(notice.tag);
    QDBusMessage question = methodCall("Notify");
    question.setArguments({m_title, m_tagged.value(notice.tag, NewNotice), "alarm-symbolic", notice.summary, body,
                           toList(notice.actions), toHints(notice), UntilClosed});
    auto *call = new QDBusPendingCallWatcher(m_bus.asyncCall(question), this);
    connect(call, &QDBusPendingCallWatcher::finished, this, [this, call, request] {
        call->deleteLater();
        const QDBusPendingReply<uint> number = *call;
        if (number.isError()) {
            fail(request, number.error());
            return;
        }
        if (const QString tag = request->notice.tag; !tag.isEmpty())
            keepNumber(tag, call->reply().service(), number);
        request->done(true);
    });
}

void BusNotifier::fail(const std::shared_ptr<Request> &request, const QDBusError &error)
{
    const QString tag = request->notice.tag;
    const bool isWanted = tag.isEmpty() || (m_tagged.contains(tag) && m_asked.value(tag, request) == request);
    if (isWanted && m_presence.isPresent() && ++request->failures <= MostRetries) {
        if (!tag.isEmpty())
            m_asked.insert(tag, request);
        QTimer::singleShot(RetryInterval, this, [this, request] { ask(request); });
        return;
    }
    if (m_asked.value(tag) == request)
        m_asked.remove(tag);
    qCWarning(lcNotices, "a notification is not shown: %ls", qUtf16Printable(error.message()));
    request->done(false);
}

void BusNotifier::keepNumber(const QString &tag, const QString &server, uint number)
{
    const auto known = m_tagged.find(tag);
    if (known == m_tagged.end()) {
        withdraw(number);
        return;
    }
    if (*known == number)
        return;
    if (*known != NewNotice)
        withdraw(*known);
    *known = number;
    m_record.add(server, number);
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
    m_record.remove(number);
}

// To the server itself, as another one has its own numbers.
void BusNotifier::takeBack(NoticeRecord &record)
{
    for (const NoticeRecord::Entry &entry : record.entries()) {
        QDBusMessage call = methodCall("CloseNotification", entry.server);
        call.setArguments({entry.number});
        m_bus.send(call);
    }
    record.clear();
}

void BusNotifier::actionInvoked(uint, const QString &key)
{
    emit chosen(key);
}

} // namespace Notices
