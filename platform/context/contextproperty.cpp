// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/context/contextproperty.h"

#include "contextpropertyproxy.h"
#include "platform/context/plainvalue_p.h"
#include "platform/context/propertyaddress_p.h"

#include <QDBusError>
#include <QDBusMessage>
#include <QDBusServiceWatcher>
#include <utility>

/**
 * The connection to the provider between subscribe() and unsubscribe(). What it hears comes in the order in which it
 * was sent, answers among changes: the last of it holds.
 */
class ContextProperty::Subscription : public QObject
{
    Q_OBJECT

public:
    explicit Subscription(ContextProperty *property);

private slots:
    void answered(const QDBusVariant &value);
    void refused(const QDBusError &error);

private:
    void read();
    void readFinished();
    void changed(const QDBusVariant &value);

    ContextProperty *m_property;
    ContextPropertyProxy m_proxy;
    QDBusServiceWatcher m_watcher;
    int m_readsUnderWay = 0;
    QVariant m_heard; ///< since the first of the reads under way; invalid where nothing was
};

ContextProperty::Subscription::Subscription(ContextProperty *property)
    : m_property(property)
    , m_proxy(Context::serviceOf(property->key()), Context::pathOf(property->key()), QDBusConnection::sessionBus())
    , m_watcher(Context::serviceOf(property->key()), QDBusConnection::sessionBus(),
                QDBusServiceWatcher::WatchForOwnerChange)
{
    connect(&m_proxy, &ContextPropertyProxy::changed, this, &Subscription::changed);
    connect(&m_watcher, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString &, const QString &, const QString &now) {
                // A read that is under way may have gone to the provider before.
                if (!now.isEmpty())
                    read();
            });
    read();
}

void ContextProperty::Subscription::read()
{
    // Not with a watcher: one that is made after the answer came tells of it behind the changes that followed it.
    const auto question = QDBusMessage::createMethodCall(m_proxy.service(), m_proxy.path(), m_proxy.interface(), "get");
    if (m_proxy.connection().callWithCallback(question, this, SLOT(answered(QDBusVariant)), SLOT(refused(QDBusError))))
        ++m_readsUnderWay;
}

void ContextProperty::Subscription::answered(const QDBusVariant &value)
{
    m_heard = value.variant();
    readFinished();
}

void ContextProperty::Subscription::refused(const QDBusError &)
{
    // Nobody provides the value now, or nobody had the time to answer; the watched name tells when somebody else does,
    // and a change that came before is as good as an answer.
    readFinished();
}

void ContextProperty::Subscription::readFinished()
{
    --m_readsUnderWay;
    if (m_readsUnderWay == 0 && m_heard.isValid())
        m_property->accept(std::exchange(m_heard, {}));
}

void ContextProperty::Subscription::changed(const QDBusVariant &value)
{
    // It is contained in the answer under way, if there will be one.
    if (m_readsUnderWay > 0)
        m_heard = value.variant();
    else
        m_property->accept(value.variant());
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

#include "contextproperty.moc"
