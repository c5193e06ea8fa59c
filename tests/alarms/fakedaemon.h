// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QDBusVirtualObject>
#include <QMap>
#include <QMutex>
#include <QThread>

/**
 * Stands on the bus where the alarm daemon would, on a connection and a thread of its own, so that the calls of the
 * alarms can wait for it. Answers what a test has told it, as the real one cannot be made to.
 */
class FakeDaemon : public QDBusVirtualObject
{
public:
    FakeDaemon();
    ~FakeDaemon() override;

    bool isOnTheBus() const { return m_onTheBus; }
    void setAttributes(quint32 cookie, const QVariantMap &attributes);
    void forget(quint32 cookie);
    qsizetype stored() const;
    /** Answers every call of a method with this error; with an empty text no more. */
    void refuse(const QString &method, const QString &text);
    /** Answers one call of a method with an error: the first from now on is 1. */
    void refuseOne(const QString &method, int call);
    QStringList calls() const;

    QString introspect(const QString &path) const override;
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &connection) override;

private:
    QDBusMessage answerTo(const QDBusMessage &message);

    QThread m_thread;
    bool m_onTheBus = false;
    mutable QMutex m_mutex;
    QMap<quint32, QVariantMap> m_attributes;
    QMap<QString, QString> m_refused;
    QMap<QString, int> m_refusedCalls; ///< how many calls it is until the one that is refused
    QStringList m_calls;
};
