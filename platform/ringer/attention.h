// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/ringer/desktophold.h"

namespace Ringer {

/**
 * What calls for the user beside tone and screen: turns the display on and keeps it on through the desktop's screen
 * saver or its portal, vibrates through the feedback daemon. Does without whichever of them is not there. Owned by the program.
 */
class Attention : public QObject
{
    Q_OBJECT

public:
    explicit Attention(const QDBusConnection &bus, QObject *parent = nullptr);
    ~Attention() override;

    void setWanted(bool isWanted);

private:
    void wakeDisplay();

    QDBusConnection m_bus;
    DesktopHold m_display;
    DesktopHold m_idle; ///< where there is no screen saver to ask
    DesktopHold m_vibration;
    bool m_isWanted = false;
};

} // namespace Ringer
