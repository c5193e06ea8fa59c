// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QVariantList>

namespace Ringer {

/**
 * Something that a service of the desktop does until it is told to end: one call begins it and answers a number, by
 * which the other ends it, or the path of a request, which is closed. Main thread; nothing waits.
 */
class DesktopHold : public QObject
{
    Q_OBJECT

public:
    struct Service
    {
        QString name;
        QString path;
        QString interface;
        QString begin;
        QString end; ///< empty where requests are closed
    };

    DesktopHold(const Service &service, const QVariantList &arguments, const QDBusConnection &bus,
                QObject *parent = nullptr);
    ~DesktopHold() override;

    void begin(); ///< no effect while it goes on
    void end();

Q_SIGNALS:
    void refused(); ///< there is no such service, or it does not do that

private:
    void onBegun(const QVariant &ticket);

    const Service m_service;
    const QVariantList m_arguments;
    QDBusConnection m_bus;
    bool m_isWanted = false;
    bool m_isAsked = false; ///< the answer is under way
    QVariant m_ticket;      ///< what ends it
};

} // namespace Ringer
