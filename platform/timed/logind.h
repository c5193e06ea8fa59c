// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/notices/buspresence.h"
#include "platform/timed/sleepcontrol.h"

#include <QDBusConnection>
#include <QDBusPendingReply>
#include <QDBusUnixFileDescriptor>
#include <QTimer>

namespace Astel::Timed {

/**
 * The login manager on the system bus. A delay of sleep is a descriptor that it hands out, and that is closed to end
 * the delay. Without the manager or the bus nothing is delayed or heard; the facts say so.
 */
class Logind final : public SleepControl
{
    Q_OBJECT

public:
    explicit Logind(const QDBusConnection &bus);

    void delaySleep(bool delayed) override;
    QVariantMap facts() const override;

private slots:
    void prepareForSleep(bool begins);

private:
    enum class Delay {
        None,
        Asked, ///< the answer is under way
        Held,
        Refused, ///< asked for in vain
    };

    void ask();
    void answered(const QDBusPendingReply<QDBusUnixFileDescriptor> &reply);
    void setDelay(Delay delay, const QDBusUnixFileDescriptor &descriptor = {});

    QDBusConnection m_bus;
    Notices::BusPresence m_presence;
    bool m_wanted = false;
    bool m_asleep = false;
    Delay m_delay = Delay::None;
    QDBusUnixFileDescriptor m_descriptor;
    QTimer m_retry;
};

} // namespace Astel::Timed
