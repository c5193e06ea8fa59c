// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/context/contextproperty.h"

#include "contextpropertyproxy.h"
#include "platform/context/plainvalue_p.h"
#include "platform/context/propertyaddress_p.h"

#include <optional>
#include <QDBusPendingCallWatcher>
#include <QDBusServiceWatcher>
#include <utility>

/** The connection to the provider between subscribe() and unsubscribe(). */
class ContextProperty::Subscription
{
public:
    explicit Subscription(ContextProperty *property);

private:
    void read();
    void readFinished(const QDBusPendingReply<QDBusVariant> &reply);
    void changed(const QDBusVariant &value);
    void ownerChanged(const QString &before, const QString &now);

    ContextProperty *m_property;
    ContextPropertyProxy m_proxy;
    QDBusServiceWatcher m_watcher;
    std::unique_ptr<QDBusPendingCallWatcher> m_pendingRead;
    std::optional<QVariant> m_sentMeanwhile; ///< the last change since the pending read began
};

ContextProperty::Subscription::Subscription(ContextProperty *property)
    : m_property(property)
    , m_proxy(Context::serviceOf(property->key()), Context::pathOf(property->key()), QDBusConnection::sessionBus())
    , m_watcher(Context::serviceOf(property->key()), QDBusConnection::sessionBus(),
                QDBusServiceWatcher::WatchForOwnerChange)
{
    QObject::connect(&m_proxy, &ContextPropertyProxy::changed, &m_proxy,
                     [this](const QDBusVariant &value) { changed(value); });
    QObject::connect(&m_watcher, &QDBusServiceWatcher::serviceOwnerChanged, &m_watcher,
                     [this](const QString &, const QString &before, const QString &now) { ownerChanged(before, now); });
    read();
}

void ContextProperty::Subscription::read()
{
    m_sentMeanwhile.reset();
    m_pendingRead = std::make_unique<QDBusPendingCallWatcher>(m_proxy.get());
    QObject::connect(m_pendingRead.get(), &QDBusPendingCallWatcher::finished, &m_proxy,
                     [this](QDBusPendingCallWatcher *call) { readFinished(*call); });
}

void ContextProperty::Subscription::readFinished(const QDBusPendingReply<QDBusVariant> &reply)
{
    // The watcher is the sender of this very signal.
    m_pendingRead.release()->deleteLater();
    const auto sentMeanwhile = std::exchange(m_sentMeanwhile, std::nullopt);
    // An error means that nobody provides the value now, or nobody had the time to answer; the watched name tells
    // when somebody else does, and a change that came before the error is as good as an answer.
    if (!reply.isError())
        m_property->accept(reply.value().variant());
    else if (sentMeanwhile)
        m_property->accept(*sentMeanwhile);
}

void ContextProperty::Subscription::changed(const QDBusVariant &value)
{
    // What is sent before an answer on its way is contained in that answer, if there will be one.
    if (m_pendingRead)
        m_sentMeanwhile = value.variant();
    else
        m_property->accept(value.variant());
}

void ContextProperty::Subscription::ownerChanged(const QString &before, const QString &now)
{
    // A read that started the provider reaches it as it takes the name; any other one may have gone to the
    // old one.
    const bool startedByRead = before.isEmpty() && m_pendingRead;
    if (!now.isEmpty() && !startedByRead)
        read();
}

ContextProperty::ContextProperty(const QString &key, QObject *parent)
    : QObject(parent)
    , m_key(key)
{ }

ContextProperty::~ContextProperty() = default;

QVariant ContextProperty::value(const QVariant &fallback) const
{
    return m_value.isValid() ? m_value : fallback;
}

void ContextProperty::subscribe()
{
    // Qt DBus looks the type of the signal up by its name, which nobody may have needed before.
    qRegisterMetaType<QDBusVariant>();
    if (!m_subscription)
        m_subscription = std::make_unique<Subscription>(this);
}

void ContextProperty::unsubscribe()
{
    m_subscription.reset();
}

void ContextProperty::accept(const QVariant &value)
{
    m_value = Context::plainValue(value);
    emit valueChanged();
}
