// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QObject>
#include <QVariant>

#include <memory>

/**
 * Follows the value that a ContextPublisher somewhere on the session bus publishes for a key. Reading never
 * waits for the provider: value() is what arrived last, and stays while the provider is away. A subscription
 * starts the provider where the bus knows how to. Used in the thread that created it.
 */
class ContextProperty : public QObject
{
    Q_OBJECT

public:
    explicit ContextProperty(const QString &key, QObject *parent = nullptr);
    ~ContextProperty() override;

    QString key() const { return m_key; }
    /** The last value, with dictionaries as QVariantMap; invalid before the first one arrived. */
    QVariant value() const { return m_value; }
    QVariant value(const QVariant &fallback) const;

    void subscribe();
    /** Stops following; the last value stays. */
    void unsubscribe();

signals:
    /** The first value arrived, the value was published anew, or a provider that was away is back. */
    void valueChanged();

private:
    class Subscription;

    void accept(const QVariant &value);

    QString m_key;
    QVariant m_value;
    std::unique_ptr<Subscription> m_subscription;
};
