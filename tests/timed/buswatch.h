// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QDBusConnection>
#include <QDBusPendingCallWatcher>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QStringList>

/** Notes what a client sees on the bus, in the order in which it arrives. */
class BusWatch : public QObject
{
    Q_OBJECT

public:
    explicit BusWatch(const QDBusConnection &bus);

    /** Notes the answer to a call as "reply" or the name of its error. */
    void expect(const QDBusPendingCall &call);

    QStringList arrived; ///< "published N", N the size of the map; "settings clock" or "settings zone"; answers
    QVariantMap lastMap;

private slots:
    void published(const QDBusVariant &value);
    void settingsChanged(const QDBusMessage &message);
};

/** A ringer on the bus that only takes notes. */
class NotingRinger : public QDBusVirtualObject
{
    Q_OBJECT

public:
    explicit NotingRinger(QDBusConnection bus);
    ~NotingRinger() override;

    QString introspect(const QString &) const override { return {}; }
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &connection) override;

    QStringList calls; ///< "ring 3", "stop 3"

private:
    QDBusConnection m_bus;
};
