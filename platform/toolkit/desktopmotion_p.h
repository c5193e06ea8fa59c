// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QObject>

namespace Touch {

/**
 * Whether the desktop's settings portal asks for less motion, or for none. Asks without waiting: until the answer
 * comes, and where there is no portal, everything moves. GUI thread; needs the application object.
 */
class DesktopMotion : public QObject
{
    Q_OBJECT

public:
    explicit DesktopMotion(QObject *parent = nullptr);
    ~DesktopMotion() override;

    bool isReduced() const { return m_wantsLess || m_wantsNone; }

private:
    bool m_wantsLess = false; ///< by the setting of all desktops
    bool m_wantsNone = false; ///< by that of one desktop
};

} // namespace Touch
