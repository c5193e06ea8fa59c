// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QDBusConnection>
#include <QString>
#include <QVariant>

#include <memory>

class PublishedValue;

/**
 * Publishes the value of one key to every ContextProperty on the bus, from its construction to its
 * destruction. A value is one that D-Bus can carry, never an invalid QVariant. Used in the thread that
 * created it. Where the bus is not there or the key is published by somebody else, isPublished() is false and
 * publishing reaches nobody.
 */
class ContextPublisher
{
public:
    ContextPublisher(const QString &key, const QVariant &initial,
                     const QDBusConnection &connection = QDBusConnection::sessionBus());
    ~ContextPublisher();
    Q_DISABLE_COPY(ContextPublisher)

    [[nodiscard]] bool isPublished() const { return m_published; }

    /** Sends one change, whether the value differs or not; two calls are never made into one. */
    void publish(const QVariant &value);

private:
    QString m_key;
    QDBusConnection m_connection;
    std::unique_ptr<PublishedValue> m_value;
    bool m_published = false;
};
