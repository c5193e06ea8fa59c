// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/alarms/fakedaemon.h"

#include "platform/timedclient/wire.h"

#include <QDBusConnection>
#include <QDBusMessage>

namespace {

const char ConnectionName[] = "fake daemon";

} // namespace

FakeDaemon::FakeDaemon()
{
    QDBusConnection connection = QDBusConnection::connectToBus(QDBusConnection::SessionBus, ConnectionName);
    moveToThread(&m_thread);
    m_thread.start();
    m_onTheBus = connection.registerVirtualObject(Astel::Timed::Wire::Path, this)
        && connection.registerService(Astel::Timed::Wire::Service);
}

FakeDaemon::~FakeDaemon()
{
    QDBusConnection connection(ConnectionName);
    connection.unregisterService(Astel::Timed::Wire::Service);
    connection.unregisterObject(Astel::Timed::Wire::Path);
    QDBusConnection::disconnectFromBus(ConnectionName);
    m_thread.quit();
    m_thread.wait();
}

void FakeDaemon::setAttributes(quint32 cookie, const QVariantMap &attributes)
{
    const QMutexLocker lock(&m_mutex);
    m_attributes.insert(cookie, attributes);
}

void FakeDaemon::forget(quint32 cookie)
{
    const QMutexLocker lock(&m_mutex);
    m_attributes.remove(cookie);
}

qsizetype FakeDaemon::stored() const
{
    const QMutexLocker lock(&m_mutex);
    return m_attributes.size();
}

void FakeDaemon::refuse(const QString &method, const QString &text)
{
    const QMutexLocker lock(&m_mutex);
    if (text.isEmpty())
        m_refused.remove(method);
    else
        m_refused.insert(method, text);
}

void FakeDaemon::refuseOne(const QString &method, int call)
{
    const QMutexLocker lock(&m_mutex);
    m_refusedCalls.insert(method, call);
}

QStringList FakeDaemon::calls() const
{
    const QMutexLocker lock(&m_mutex);
    return m_calls;
}

QString FakeDaemon::introspect(const QString &) const
{
    return {};
}

bool FakeDaemon::handleMessage(const QDBusMessage &message, const QDBusConnection &connection)
{
    const QMutexLocker lock(&m_mutex);
    m_calls.append(message.member());
    return connection.send(answerTo(message));
}

QDBusMessage FakeDaemon::answerTo(const QDBusMessage &message)
{
    const QString method = message.member();
    if (m_refusedCalls.contains(method) && --m_refusedCalls[method] == 0)
        return message.createErrorReply(Astel::Timed::Wire::StorageError, "refused once");
    if (m_refused.contains(method))
        return message.createErrorReply(Astel::Timed::Wire::StorageError, m_refused.value(method));
    if (method == "query_attributes")
        return message.createReply(m_attributes.value(message.arguments().first().toUInt()));
    if (method == "cancel")
        return message.createReply(false);
    if (method == "query") {
        QVariantList cookies;
        for (const quint32 cookie : m_attributes.keys())
            cookies.append(cookie);
        return message.createReply(QVariant(cookies));
    }
    return message.createReply(1u);
}
