// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QVariantList>

#include <optional>

namespace Ringer {

/**
 * Something that a service of the desktop does until it is told to end: one call begins it and answers a number, the
 * other ends it by that number. Without the service nothing happens. Main thread; nothing waits.
 */
class DesktopHold : public QObject
{
    Q_OBJECT

public:
    struct Service
    {
        QString name; ///< of the interface as well
        QString path;
        QString begin;
        QString end;
    };

    DesktopHold(const Service &service, const QVariantList &arguments, const QDBusConnection &bus,
                QObject *parent = nullptr);
    ~DesktopHold() override;

    void begin(); ///< no effect while it goes on
    void end();

private:
    void onBegun(std::optional<uint> number);

    const Service m_service;
    const QVariantList m_arguments;
    QDBusConnection m_bus;
    bool m_isWanted = false;
    bool m_isAsked = false; ///< the answer is under way
    std::optional<uint> m_number;
};

} // namespace Ringer
